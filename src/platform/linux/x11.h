// What the toolkit does not say to an X server by itself. With any other display (Windows, Wayland, the tests') nothing
// is connected and every call does nothing.
#pragma once

#include <QWindow>

#include <string_view>

struct xcb_connection_t;

namespace tavelo {

// The toolkit's own connection, or nothing: what is sent here comes after what the toolkit sent before.
[[nodiscard]] xcb_connection_t* x11_connection();

// A property of a window: a text in UTF-8, another window, or no longer there.
void x11_set_text(WId window, std::string_view property, std::string_view text);
void x11_set_window(WId window, std::string_view property, WId other);
void x11_delete(WId window, std::string_view property);

// Sends what is waiting to be sent.
void x11_flush();

} // namespace tavelo
