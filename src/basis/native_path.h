// A path of the program, which is UTF-8, as the system wants it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tavelo {

[[nodiscard]] std::filesystem::path native_path(std::string_view pad);

// Windows refuses a path of 260 characters or more, unless it is written in the form that it takes as it is:
// "\\?\C:\..." or "\\?\UNC\server\share\...". Gives that form of a long path on a drive or a share, and any other path
// unchanged.
[[nodiscard]] std::string without_limit(std::string_view pad);

} // namespace tavelo
