// Reads a schedule file ("rooster", extension "rst"): a text file of lines "key:value" in Windows-1252, for one
// rubriek, behind the line "[Vendalo 3.4]". A line ends at CR LF, at a lone LF or at a lone CR. Lines may come in any
// order.
#pragma once

#include "basis/codeBestand.h"
#include "schedule/vul_rooster.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <string>
#include <string_view>

namespace tavelo {

enum class GeenRooster {
    niet_te_openen,
    lezen_mislukt, // a read failed before the end of the file
    te_groot,
    andere_eerste_regel,
};

// In bytes. The largest schedule that there can be, 4000 combinations and 2000 rubrieken, has a few million.
inline constexpr std::uint64_t grootste_rooster = 256ULL << 20;
inline constexpr std::string_view eerste_regel_rooster = "[Vendalo 3.4]";

// A file with the right first line.
struct Roosterbestand {
    std::string bytes;
    std::size_t begin; // of the second line
    Bestandskenmerk kenmerk;
    [[nodiscard]] std::string_view regels() const { return std::string_view(bytes).substr(begin); }
};
// What was read of a file, up to its end unless it begins otherwise than with `eerste_regel_rooster`.
[[nodiscard]] std::expected<Roosterbestand, GeenRooster>
als_roosterbestand(std::expected<BestandInhoud, Leesfout> gelezen);
[[nodiscard]] std::expected<Roosterbestand, GeenRooster> open_roosterbestand(std::string_view pad);

// Reads the file into the schedule and fills the grid; numbers that the file does not mention keep their records. Gives
// the caption that the main window shows for it. On failure everything is as it was.
[[nodiscard]] std::expected<std::string, GeenRooster> lees_rooster(std::string_view pad, const RoosterDoel& doel);
// The same for a file whose bytes are there already; `pad` is its path.
[[nodiscard]] std::string lees_rooster(const Roosterbestand& bestand, std::string_view pad, const RoosterDoel& doel);

// Applies the lines of such a file to the schedule. The values of the header begin anew, the tables are kept.
void lees_regels(std::string_view bytes, Schedule& schedule, MessageBox& berichten, SkipLog& logboek);

// The caption of the main window for the schedule that was read from `pad`.
[[nodiscard]] std::string rooster_bijschrift(const Schedule& schedule, std::string_view pad);

} // namespace tavelo
