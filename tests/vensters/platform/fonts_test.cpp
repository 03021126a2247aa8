#include "platform/fonts.h"

#include <QImage>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

TEST(FontTextMeasure, twee_keer_zo_groot_is_twee_keer_zo_breed_en_hoog) {
    const FontTextMeasure meter;
    const double breedte = meter.width("Arial", 10, "Hallo, paard");
    ASSERT_GT(breedte, 0);
    EXPECT_DOUBLE_EQ(meter.width("Arial", 20, "Hallo, paard"), 2 * breedte);
    EXPECT_DOUBLE_EQ(meter.width("Arial", 12.75, "Hallo, paard"), 1.275 * breedte);
    EXPECT_DOUBLE_EQ(meter.height("Arial", 64), 8 * meter.height("Arial", 8));
}

TEST(FontTextMeasure, arial_meet_in_twips_zoals_zijn_ontwerp_zegt) {
    const FontTextMeasure meter;
    // A digit of Arial and of its metric equals is 1139 of 2048 units wide; 20 twips a point.
    EXPECT_NEAR(meter.width("Arial", 32, "8888"), 4 * 32 * 20 * 1139.0 / 2048, 1);
    // Ascent 1854 and descent 434.
    EXPECT_NEAR(meter.height("Arial", 32), 32 * 20 * 2288.0 / 2048, 2);
}

TEST(FontTextMeasure, een_tekst_zonder_einde_is_zo_breed_als_zijn_letters) {
    const FontTextMeasure meter;
    const double letter = meter.width("Arial", 1, "x");
    for (const std::size_t aantal : {25'000U, 250'000U})
        EXPECT_NEAR(meter.width("Arial", 1, std::string(aantal, 'x')), static_cast<double>(aantal) * letter,
                    1e-5 * letter);
}

TEST(FontTextMeasure, een_lege_tekst_heeft_geen_breedte_en_een_onbekende_letter_meet_als_zijn_vervanger) {
    const FontTextMeasure meter;
    EXPECT_EQ(meter.width("Arial", 10, ""), 0);
    EXPECT_GT(meter.width("Bestaat niet", 10, "a"), 0);
    EXPECT_GT(meter.width("", 10, "a"), 0);
}

TEST(DisplayFont, is_op_elk_vlak_even_groot_als_gemeten) {
    const FontTextMeasure meter;
    for (const int dpi : {72, 96, 192, 300}) {
        QImage vlak(10, 10, QImage::Format_RGB32);
        vlak.setDotsPerMeterX(qRound(dpi / 0.0254));
        vlak.setDotsPerMeterY(qRound(dpi / 0.0254));
        const QFontMetricsF maten(display_font("Arial", 60, vlak), &vlak);
        EXPECT_NEAR(maten.horizontalAdvance("Wim van den Berg") * 15, meter.width("Arial", 60, "Wim van den Berg"), 30)
            << dpi;
        EXPECT_NEAR(maten.height() * 15, meter.height("Arial", 60), 30) << dpi;
    }
}

} // namespace
} // namespace tavelo
