#include "platform/codeWindowPos.h"

#include <QWidget>

#include <windows.h>

namespace tavelo {

void zet_bovenaan(QWidget& venster, bool bovenaan) {
    // Not `setWindowFlag`: that hides the window and makes it anew, and the public would see it happen.
    venster.overrideWindowFlags(venster.windowFlags().setFlag(Qt::WindowStaysOnTopHint, bovenaan));
    SetWindowPos(reinterpret_cast<HWND>(venster.winId()), bovenaan ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE);
}

void wis_titel(QWidget& venster) { SetWindowTextW(reinterpret_cast<HWND>(venster.winId()), L""); }

void blijft_zonder_eigenaar(QWidget& /*venster*/, bool /*blijft*/) {}

bool meldt_verkleinde_eigenaar(const void* bericht) {
    const MSG& message = *static_cast<const MSG*>(bericht);
    return message.message == WM_SHOWWINDOW && message.lParam == SW_PARENTCLOSING;
}

} // namespace tavelo
