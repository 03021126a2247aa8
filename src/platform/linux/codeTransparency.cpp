#include "platform/codeTransparency.h"

#include "platform/linux/x11.h"

#include <QWidget>

namespace tavelo {

void zet_transparantie(QWidget& venster, std::uint8_t alpha) {
    venster.setWindowOpacity(alpha / 255.0);
    x11_flush(); // the toolkit leaves it until something is painted
}

} // namespace tavelo
