#include "platform/codeTransparency.h"

#include <QWidget>

#include <windows.h>

namespace tavelo {

void zet_transparantie(QWidget& venster, std::uint8_t alpha) {
    const HWND handle = reinterpret_cast<HWND>(venster.winId());
    const LONG stijl = GetWindowLongA(handle, GWL_EXSTYLE);
    if (alpha == 255) {
        SetWindowLongA(handle, GWL_EXSTYLE, stijl & ~WS_EX_LAYERED);
        return;
    }
    SetWindowLongA(handle, GWL_EXSTYLE, stijl | WS_EX_LAYERED);
    SetLayeredWindowAttributes(handle, 0, alpha, LWA_ALPHA);
}

} // namespace tavelo
