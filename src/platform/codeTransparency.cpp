#include "platform/codeTransparency.h"

#include <QWidget>

#ifdef _WIN32
#include <windows.h>
#endif

namespace tavelo {

void zet_transparantie(QWidget& venster, std::uint8_t alpha) {
#ifdef _WIN32
    const HWND handle = reinterpret_cast<HWND>(venster.winId());
    const LONG stijl = GetWindowLongA(handle, GWL_EXSTYLE);
    if (alpha == 255) {
        SetWindowLongA(handle, GWL_EXSTYLE, stijl & ~WS_EX_LAYERED);
        return;
    }
    SetWindowLongA(handle, GWL_EXSTYLE, stijl | WS_EX_LAYERED);
    SetLayeredWindowAttributes(handle, 0, alpha, LWA_ALPHA);
#else
    venster.setWindowOpacity(alpha / 255.0);
#endif
}

} // namespace tavelo
