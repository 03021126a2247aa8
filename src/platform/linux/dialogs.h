// The patterns of the open dialog for the toolkit.
#pragma once

#include <QStringList>

#include <string_view>

namespace tavelo {

// "label|patterns|label|patterns" with patterns parted by ";", as the toolkit wants it: one text for each pair.
[[nodiscard]] QStringList name_filters(std::string_view filter);

} // namespace tavelo
