#include "platform/codeWindowPos.h"

#include <QApplication>
#include <QDialog>
#include <QWindow>

#ifdef _WIN32
#include <windows.h>
#endif

#include <algorithm>

namespace tavelo {

void zet_bovenaan(QWidget& venster, bool bovenaan) {
    // Not `setWindowFlag`: that hides the window and makes it anew, and the public would see it happen.
    venster.overrideWindowFlags(venster.windowFlags().setFlag(Qt::WindowStaysOnTopHint, bovenaan));
#ifdef _WIN32
    SetWindowPos(reinterpret_cast<HWND>(venster.winId()), bovenaan ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE);
#else
    if (QWindow* handle = venster.windowHandle()) handle->setFlag(Qt::WindowStaysOnTopHint, bovenaan);
#endif
}

bool staat_bovenaan(const QWidget& venster) { return venster.windowFlags().testFlag(Qt::WindowStaysOnTopHint); }

void blijf_bereikbaar(QDialog& dialoog) {
    const QWidgetList vensters = QApplication::topLevelWidgets();
    if (std::ranges::any_of(vensters, [](const QWidget* w) { return w->isVisible() && staat_bovenaan(*w); }))
        dialoog.setWindowFlag(Qt::WindowStaysOnTopHint);
}

} // namespace tavelo
