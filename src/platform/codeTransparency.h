// Transparency of a whole window.
#pragma once

#include <cstdint>

class QWidget;

namespace tavelo {

// From 0, invisible, to 255, plain and opaque. Where the screen cannot do it the window stays as it is.
void zet_transparantie(QWidget& venster, std::uint8_t alpha);

} // namespace tavelo
