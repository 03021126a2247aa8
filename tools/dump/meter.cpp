#include "meter.h"

#include "basis/text.h"

namespace tavelo {

namespace {

class RasterMeter final : public TextMeasure {
  public:
    [[nodiscard]] double width(std::string_view, double points, std::string_view text) const override {
        double units = 0;
        for (const char32_t c : code_points(text))
            units += c == U' ' ? 6 : 5 + static_cast<double>(c * 7 % 11);
        return units * points;
    }
    [[nodiscard]] double height(std::string_view, double points) const override { return 23 * points; }
};

} // namespace

std::unique_ptr<TextMeasure> raster_meter() { return std::make_unique<RasterMeter>(); }

} // namespace tavelo
