#include "basis/codeBestand.h"

#include "basis/text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace tavelo {

namespace {

std::filesystem::path native(std::string_view pad) {
    return std::filesystem::path(std::u8string(pad.begin(), pad.end()));
}

// A folder, a pipe or a device opens on some systems; only a plain file counts.
std::optional<std::ifstream> opened(std::string_view pad) {
    if (pad.empty()) return std::nullopt;
    const std::filesystem::path path = native(pad);
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
    std::ifstream stream(path, std::ios::binary);
    if (!stream) return std::nullopt;
    return stream;
}

// Appends what the file still holds. Grows in steps of the size that it has now: it may change while it is read.
void append_rest(std::ifstream& stream, std::size_t expected, std::string& bytes) {
    constexpr std::size_t least = 4096;
    std::size_t step = std::max(expected, least);
    while (stream) {
        const std::size_t had = bytes.size();
        bytes.resize(had + step);
        stream.read(bytes.data() + had, static_cast<std::streamsize>(step));
        bytes.resize(had + static_cast<std::size_t>(std::max<std::streamsize>(stream.gcount(), 0)));
        step = least;
        if (bytes.size() > least) step = bytes.size() / 4;
        if (stream && stream.peek() == std::ifstream::traits_type::eof()) return;
    }
}

std::size_t size_of(std::string_view pad) {
    std::error_code error;
    const auto size = std::filesystem::file_size(native(pad), error);
    return error ? 0 : static_cast<std::size_t>(size);
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

std::optional<std::string> lees_bestand(std::string_view pad) {
    std::optional<std::ifstream> stream = opened(pad);
    if (!stream) return std::nullopt;
    std::string bytes;
    append_rest(*stream, size_of(pad), bytes);
    return bytes;
}

std::optional<BestandInhoud> lees_bestand_met_begin(std::string_view pad, std::string_view begin) {
    std::optional<std::ifstream> stream = opened(pad);
    if (!stream) return std::nullopt;
    BestandInhoud inhoud;
    inhoud.bytes.resize(begin.size());
    stream->read(inhoud.bytes.data(), static_cast<std::streamsize>(begin.size()));
    inhoud.bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(stream->gcount(), 0)));
    inhoud.begin_klopt = inhoud.bytes == begin;
    if (inhoud.begin_klopt) append_rest(*stream, size_of(pad), inhoud.bytes);
    return inhoud;
}

bool bestandbestaat(std::string_view naam) { return opened(naam).has_value(); }

} // namespace tavelo
