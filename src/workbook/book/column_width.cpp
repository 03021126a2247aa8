#include "workbook/book/column_width.h"

#include "basis/text.h"

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
    std::string_view font; // in small letters
    double em;             // advance of the widest digit, as a part of the font's size
};

constexpr auto digit_advances = std::to_array<DigitAdvance>({
    {"aptos narrow", 0.5},
    {"arial", 0.556},
    {"arial narrow", 0.456},
    {"calibri", 0.507},
    {"cambria", 0.554},
    {"candara", 0.55},
    {"century gothic", 0.554},
    {"comic sans ms", 0.61},
    {"consolas", 0.55},
    {"courier", 0.6},
    {"courier new", 0.6},
    {"garamond", 0.469},
    {"georgia", 0.614},
    {"malgun gothic", 0.55},
    {"맑은 고딕", 0.55},
    {"ms pgothic", 0.546},
    {"ＭＳ Ｐゴシック", 0.546},
    {"pmingliu", 0.5},
    {"新細明體", 0.5},
    {"segoe ui", 0.539},
    {"simsun", 0.5},
    {"宋体", 0.5},
    {"tahoma", 0.546},
    {"times new roman", 0.5},
    {"trebuchet ms", 0.524},
    {"verdana", 0.636},
});
constexpr double usual_advance = 0.556;

} // namespace

int digit_pixels(std::string_view font_name, double points) {
    const std::string name = lower_case(font_name);
    const auto* known = std::ranges::find(digit_advances, name, &DigitAdvance::font);
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
    const int whole_eights = (pixels + 7) / 8 * 8;
    return whole_eights * points_per_pixel;
}

} // namespace tavelo
