// Reads a schedule file ("rooster", extension "rst"): a text file of lines "key:value" in Windows-1252, for one
// rubriek, behind the line "[Vendalo 3.4]". A line ends at CR LF, at a lone LF or at a lone CR. Lines may come in any
// order.
#pragma once

#include "schedule/vul_rooster.h"

#include <cstddef>
#include <expected>
#include <string>
#include <string_view>

namespace tavelo {

enum class GeenRooster { niet_te_openen, andere_eerste_regel };

// Reads the file into the schedule and fills the grid; numbers that the file does not mention keep their records. Gives
// the caption that the main window shows for it. On failure everything is as it was.
[[nodiscard]] std::expected<std::string, GeenRooster> lees_rooster(std::string_view pad, const RoosterDoel& doel);

// A file with the right first line.
struct Roosterbestand {
    std::string bytes;
    std::size_t begin; // of the second line
    [[nodiscard]] std::string_view regels() const { return std::string_view(bytes).substr(begin); }
};
[[nodiscard]] std::expected<Roosterbestand, GeenRooster> open_roosterbestand(std::string_view pad);
// Applies the lines of such a file to the schedule. The values of the header begin anew, the tables are kept.
void lees_regels(std::string_view bytes, Schedule& schedule, MessageBox& berichten, SkipLog& logboek);

// The caption of the main window for the schedule that was read from `pad`.
[[nodiscard]] std::string rooster_bijschrift(const Schedule& schedule, std::string_view pad);

} // namespace tavelo
