// The pictures on the buttons, drawn when they are asked for: sharp at every scale.
#pragma once

#include <QIcon>

namespace tavelo {

enum class Picture { open, settings, monitor, previous, next, clear, program };

[[nodiscard]] QIcon icon(Picture picture);

} // namespace tavelo
