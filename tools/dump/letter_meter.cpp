#include "meter.h"

#include "platform/fonts.h"

#include <QGuiApplication>
#include <QOperatingSystemVersion>

namespace tavelo {

namespace {

// Fonts exist only while an application does; nothing of it is ever shown.
class LetterMeter final : public TextMeasure {
  public:
    LetterMeter(int& argument_count, char** arguments) : application_(argument_count, arguments) {}
    [[nodiscard]] double width(std::string_view font, double points, std::string_view text) const override {
        return meter_.width(font, points, text);
    }
    [[nodiscard]] double height(std::string_view font, double points) const override {
        return meter_.height(font, points);
    }

  private:
    QGuiApplication application_;
    FontTextMeasure meter_;
};

} // namespace

std::unique_ptr<TextMeasure> letter_meter(int& argument_count, char** arguments) {
    // Without a display; only on Windows there always is one, and the system's fonts come with it.
    if (QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Windows)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<LetterMeter>(argument_count, arguments);
}

} // namespace tavelo
