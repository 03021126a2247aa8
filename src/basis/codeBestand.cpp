#include "basis/codeBestand.h"

#include "basis/text.h"

#include <algorithm>
#include <utility>

namespace tavelo {

namespace {

// Reads until `bytes`, of which `had` are read, are full or the file ends. Gives how many are read now; nothing when a
// read failed.
std::optional<std::size_t> fill(PlainFile& file, std::string& bytes, std::size_t had) {
    while (had < bytes.size()) {
        const std::optional<std::size_t> count = file.read(bytes.data() + had, bytes.size() - had);
        if (!count) return std::nullopt;
        if (*count == 0) break;
        had += *count;
    }
    return had;
}

// Appends what the file still holds. Grows in steps of the size that it has now: it may change while it is read.
std::expected<void, Leesfout> append_rest(PlainFile& file, std::uint64_t expected, std::uint64_t most,
                                          std::string& bytes) {
    constexpr std::uint64_t least = 4096;
    std::size_t had = bytes.size();
    std::uint64_t room = expected + 1; // one more, to meet the end at once
    while (had == bytes.size()) {
        if (had > most) return std::unexpected(Leesfout::te_groot);
        room = std::max(room, had + std::max<std::uint64_t>(had / 4, least));
        bytes.resize(std::min(room, most + 1));
        const std::optional<std::size_t> filled = fill(file, bytes, had);
        if (!filled) return std::unexpected(Leesfout::mislukt);
        had = *filled;
    }
    bytes.resize(had);
    return {};
}

std::string_view after_last_of(std::string_view text, std::string_view separators) {
    const std::size_t at = text.find_last_of(separators);
    return at == std::string_view::npos ? text : text.substr(at + 1);
}

} // namespace

std::string bestand_extensie(std::string_view pad) {
    const std::string_view name = after_last_of(pad, "\\/");
    const std::size_t point = name.rfind('.');
    return point == std::string_view::npos ? std::string() : std::string(name.substr(point + 1));
}

std::string bestand_titel(std::string_view pad) {
    const std::string_view name = after_last_of(trimmed(pad), "/\\:");
    return std::string(name.substr(0, name.rfind('.')));
}

std::string bestand_map(std::string_view pad) {
    const std::string_view path = trimmed(pad);
    const std::size_t at = path.find_last_of("\\/:");
    return at == std::string_view::npos ? std::string() : std::string(path.substr(0, at + 1));
}

std::expected<std::string, Leesfout> lees_bestand(std::string_view pad, std::uint64_t hoogstens) {
    std::expected<BestandInhoud, Leesfout> inhoud = lees_bestand_met_begin(pad, "", hoogstens);
    if (!inhoud) return std::unexpected(inhoud.error());
    return std::move(inhoud->bytes);
}

std::expected<BestandInhoud, Leesfout> lees_bestand_met_begin(std::string_view pad, std::string_view begin,
                                                              std::uint64_t hoogstens) {
    PlainFile file(pad);
    const std::optional<Bestandskenmerk> kenmerk = file.is_open() ? file.kenmerk() : std::nullopt;
    if (!kenmerk) return std::unexpected(Leesfout::niet_te_openen);
    if (kenmerk->grootte > hoogstens) return std::unexpected(Leesfout::te_groot);
    BestandInhoud inhoud{std::string(begin.size(), '\0'), false, *kenmerk};
    const std::optional<std::size_t> gelezen = fill(file, inhoud.bytes, 0);
    if (!gelezen) return std::unexpected(Leesfout::mislukt);
    inhoud.bytes.resize(*gelezen);
    inhoud.begin_klopt = inhoud.bytes == begin;
    if (!inhoud.begin_klopt) return inhoud;
    if (const auto rest = append_rest(file, kenmerk->grootte, hoogstens, inhoud.bytes); !rest)
        return std::unexpected(rest.error());
    return inhoud;
}

bool bestandbestaat(std::string_view naam) { return PlainFile(naam).is_open(); }

} // namespace tavelo
