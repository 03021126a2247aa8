#include "platform/fonts.h"

#include "platform/qt_text.h"

#include <QPaintDevice>

#include <algorithm>

namespace tavelo {

namespace {

constexpr int reference_pixels = 1000;
constexpr double twips_per_reference_pixel = twips_per_pixel * pixels_per_point / reference_pixels;

QFont unhinted_font(std::string_view family) {
    QFont font;
    if (!family.empty()) font.setFamily(qt_text(family));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

} // namespace

QFont display_font(std::string_view family, double points, const QPaintDevice& device) {
    QFont font = unhinted_font(family);
    font.setPointSizeF(points * pixels_per_point * 72.0 / device.logicalDpiY());
    return font;
}

double FontTextMeasure::width(std::string_view font, double points, std::string_view text) const {
    // In pieces: the toolkit takes fifty times the memory of a text to lay it out. What is longer than any monitor is
    // wide, in the smallest letter, is taken to go on as it begins.
    constexpr qsizetype piece = 10'000;
    constexpr qsizetype long_enough = 50'000;
    const QString whole = qt_text(text);
    const qsizetype measured = std::min(whole.size(), long_enough);
    double width = 0;
    for (qsizetype at = 0; at < measured; at += piece)
        width += metrics(font).horizontalAdvance(whole.mid(at, std::min(piece, measured - at)));
    if (measured < whole.size()) width *= static_cast<double>(whole.size()) / static_cast<double>(measured);
    return width * twips_per_reference_pixel * points;
}

double FontTextMeasure::height(std::string_view font, double points) const {
    return metrics(font).height() * twips_per_reference_pixel * points;
}

const QFontMetricsF& FontTextMeasure::metrics(std::string_view font) const {
    auto found = metrics_.find(font);
    if (found == metrics_.end()) {
        QFont reference = unhinted_font(font);
        reference.setPixelSize(reference_pixels);
        found = metrics_.emplace(std::string(font), QFontMetricsF(reference)).first;
    }
    return found->second;
}

} // namespace tavelo
