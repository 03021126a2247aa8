// Fonts of the participant display. Unhinted, so that a text grows in proportion to its size and looks the same on the
// preview and on the monitor.
#pragma once

#include "basis/seams.h"

#include <QFont>
#include <QFontMetricsF>

#include <map>

class QPaintDevice;

namespace tavelo {

// `points` may be fractional; a point is 4/3 device-independent pixel on `device`, whatever resolution it reports.
[[nodiscard]] QFont display_font(std::string_view family, double points, const QPaintDevice& device);

// Measures once per font in a large size and scales: independent of any screen.
class FontTextMeasure final : public TextMeasure {
  public:
    [[nodiscard]] double width(std::string_view font, double points, std::string_view text) const override;
    [[nodiscard]] double height(std::string_view font, double points) const override;

  private:
    [[nodiscard]] const QFontMetricsF& metrics(std::string_view font) const;

    mutable std::map<std::string, QFontMetricsF, std::less<>> metrics_;
};

} // namespace tavelo
