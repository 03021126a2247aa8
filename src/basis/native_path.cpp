#include "basis/native_path.h"

#include <algorithm>

namespace tavelo {

namespace {

// Of a folder even less is allowed than 260: the name of a file must still fit below it.
constexpr std::size_t short_enough = 240;

bool begins_with_drive(std::string_view path) { return path.size() > 2 && path[1] == ':' && path[2] == '\\'; }

} // namespace

std::string without_limit(std::string_view pad) {
    if (pad.size() <= short_enough) return std::string(pad);
    std::string path(pad);
    std::ranges::replace(path, '/', '\\');
    if (path.starts_with("\\\\?\\")) return path;
    if (path.starts_with("\\\\")) return "\\\\?\\UNC" + path.substr(1);
    return begins_with_drive(path) ? "\\\\?\\" + path : std::string(pad);
}

std::filesystem::path native_path(std::string_view pad) {
    constexpr bool windows = std::filesystem::path::preferred_separator == '\\';
    const std::string path = windows ? without_limit(pad) : std::string(pad);
    return std::filesystem::path(std::u8string(path.begin(), path.end()));
}

} // namespace tavelo
