#include "platform/linux/x11.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace tavelo {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); } // the library allocates its replies so
};

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

} // namespace

xcb_connection_t* x11_connection() {
    const auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
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

void x11_flush() {
    if (xcb_connection_t* connection = x11_connection()) xcb_flush(connection);
}

} // namespace tavelo
