#include "platform/codeWindowPos.h"

#include "platform/linux/x11.h"

#include <QWidget>
#include <QWindow>

namespace tavelo {

void zet_bovenaan(QWidget& venster, bool bovenaan) {
    // Not `setWindowFlag`: that hides the window and makes it anew, and the public would see it happen.
    venster.overrideWindowFlags(venster.windowFlags().setFlag(Qt::WindowStaysOnTopHint, bovenaan));
    if (QWindow* handle = venster.windowHandle()) handle->setFlag(Qt::WindowStaysOnTopHint, bovenaan);
}

void wis_titel(QWidget& venster) { x11_set_text(venster.winId(), "_NET_WM_NAME", ""); }

void blijft_zonder_eigenaar(QWidget& venster, bool blijft) {
    // The window manager hides what is transient for a minimised window. Without the hint only being on top keeps the
    // window above its owner; so this is for full screen alone.
    if (!venster.parentWidget()) return;
    if (blijft)
        x11_delete(venster.winId(), "WM_TRANSIENT_FOR");
    else
        x11_set_window(venster.winId(), "WM_TRANSIENT_FOR", venster.parentWidget()->window()->winId());
}

bool meldt_verkleinde_eigenaar(const void* /*bericht*/) { return false; }

} // namespace tavelo
