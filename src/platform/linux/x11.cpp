// What the toolkit does not say to an X server by itself. With any other display (Wayland, the tests') nothing is
// connected and nothing is said.
#include "platform/codeTransparency.h"
#include "platform/codeWindowPos.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace tavelo {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); } // the library allocates its replies so
};

// The toolkit's own, or nothing: what is sent here comes after what the toolkit sent before.
xcb_connection_t* x11_connection() {
    const auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

// Sends what is waiting to be sent.
void x11_flush() {
    if (xcb_connection_t* connection = x11_connection()) xcb_flush(connection);
}

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto asked = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(xcb_intern_atom_reply(connection, asked, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void set(WId window, std::string_view property, std::string_view type, std::uint8_t bits, std::uint32_t count,
         const void* value) {
    xcb_connection_t* connection = x11_connection();
    if (!connection) return;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window),
                        atom(connection, property), atom(connection, type), bits, count, value);
    x11_flush();
}

void x11_set_text(WId window, std::string_view property, std::string_view text) {
    set(window, property, "UTF8_STRING", 8, static_cast<std::uint32_t>(text.size()), text.data());
}

void x11_set_window(WId window, std::string_view property, WId other) {
    const auto number = static_cast<xcb_window_t>(other);
    set(window, property, "WINDOW", 32, 1, &number);
}

void x11_delete(WId window, std::string_view property) {
    xcb_connection_t* connection = x11_connection();
    if (!connection) return;
    xcb_delete_property(connection, static_cast<xcb_window_t>(window), atom(connection, property));
    x11_flush();
}

} // namespace

void zet_transparantie(QWidget& venster, std::uint8_t alpha) {
    venster.setWindowOpacity(alpha / 255.0);
    x11_flush(); // the toolkit leaves it until something is painted
}

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
