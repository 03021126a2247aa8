// Descriptions of run-time errors in the messages that the program shows.
#pragma once

#include <string_view>

namespace tavelo {

inline constexpr std::string_view fout_overloop = "Overloop";
inline constexpr std::string_view fout_index = "Index buiten bereik";

} // namespace tavelo
