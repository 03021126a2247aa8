// The edge between the kern and the toolkit: UTF-8 texts, colours as 0xBBGGRR and lengths in twips become the toolkit's
// own and back.
#pragma once

#include <QColor>
#include <QString>

#include <cstdint>
#include <string>
#include <string_view>

namespace tavelo {

[[nodiscard]] inline QString qt_text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
// The beginning of a text, for one line on the screen: of a longer one the toolkit would lay out every letter, at a
// hundred times its memory, before it cuts it off; and a display server ends the program that sends it a caption of
// megabytes.
inline constexpr std::size_t longest_line = 1000; // UTF-16 units
[[nodiscard]] inline QString line_of_text(std::string_view text) {
    return qt_text(text.substr(0, 4 * longest_line)).left(longest_line); // a unit takes at most 3 bytes
}
[[nodiscard]] inline std::string utf8(const QString& text) { return text.toStdString(); }

// The low byte is red. Bits above the three colour bytes are ignored.
[[nodiscard]] inline QColor qt_colour(std::int32_t colour) {
    return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}
[[nodiscard]] inline std::int32_t kern_colour(const QColor& colour) {
    return colour.red() | (colour.green() << 8) | (colour.blue() << 16);
}

// Twips (1440 to the inch) and device-independent pixels (96 to the inch).
inline constexpr int twips_per_pixel = 15;
[[nodiscard]] inline int pixels(int twips) { return twips / twips_per_pixel; }
[[nodiscard]] inline int twips(int pixels) { return pixels * twips_per_pixel; }
// A font size of 1 point is this many device-independent pixels.
inline constexpr double pixels_per_point = 96.0 / 72.0;

} // namespace tavelo
