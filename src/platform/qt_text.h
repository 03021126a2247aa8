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
