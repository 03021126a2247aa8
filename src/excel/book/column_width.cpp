#include "excel/book/column_width.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tavelo {

namespace {

constexpr double pixels_per_point = 96.0 / 72.0;
constexpr double points_per_pixel = 0.75;
// The widest column that Excel knows (255 characters) stays far below this, also in a large font.
constexpr double most_characters = 65536.0;

struct DigitAdvance {
    std::string_view font;
    double em; // advance of the widest digit, as a part of the font's size
};

constexpr auto digit_advances = std::to_array<DigitAdvance>({
    {"Aptos Narrow", 0.5},
    {"Arial", 0.556},
    {"Arial Narrow", 0.456},
    {"Calibri", 0.507},
    {"Cambria", 0.554},
    {"Candara", 0.55},
    {"Century Gothic", 0.554},
    {"Comic Sans MS", 0.61},
    {"Consolas", 0.55},
    {"Courier", 0.6},
    {"Courier New", 0.6},
    {"Garamond", 0.469},
    {"Georgia", 0.614},
    {"Segoe UI", 0.539},
    {"Tahoma", 0.546},
    {"Times New Roman", 0.5},
    {"Trebuchet MS", 0.524},
    {"Verdana", 0.636},
});
constexpr double usual_advance = 0.556;

} // namespace

int digit_pixels(std::string_view font_name, double points) {
    const auto* known = std::ranges::find(digit_advances, font_name, &DigitAdvance::font);
    const double em = known == digit_advances.end() ? usual_advance : known->em;
    const double size = std::clamp(points, 1.0, 409.0) * pixels_per_point; // 409 points is Excel's largest font
    return std::max(1, static_cast<int>(std::lround(size * em)));
}

double column_points(double characters, int digit_pixels) {
    if (!(characters > 0)) return 0;
    const double rounding = std::trunc(128.0 / digit_pixels);
    const double width = std::min(characters, most_characters);
    return std::trunc((256.0 * width + rounding) / 256.0 * digit_pixels) * points_per_pixel;
}

double default_column_points(int characters, int digit_pixels) {
    const int padding = 2 * ((digit_pixels + 3) / 4) + 1;
    const int pixels = std::clamp(characters, 0, 255) * digit_pixels + padding;
    return (pixels + 7) / 8 * 8 * points_per_pixel;
}

} // namespace tavelo
