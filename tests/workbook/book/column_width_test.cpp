#include "workbook/book/column_width.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace tavelo {

TEST(Kolombreedte, het_cijfer_is_zo_breed_als_op_het_scherm) {
    EXPECT_EQ(digit_pixels("Calibri", 11), 7);
    EXPECT_EQ(digit_pixels("Calibri", 12), 8);
    EXPECT_EQ(digit_pixels("Calibri", 48), 32);
    EXPECT_EQ(digit_pixels("Arial", 10), 7);
    EXPECT_EQ(digit_pixels("CALIBRI", 12), 8);
    EXPECT_EQ(digit_pixels("ＭＳ Ｐゴシック", 11), 8);
    EXPECT_EQ(digit_pixels("Een lettertype dat niemand kent", 10), 7);
    EXPECT_EQ(digit_pixels("Arial", 0), 1);
}

TEST(Kolombreedte, elk_lettertype_heeft_zijn_eigen_cijfer) {
    struct Font {
        std::string_view name;
        int pixels; // at the largest size
    };
    constexpr auto fonts = std::to_array<Font>(
        {{"aptos narrow", 273},    {"arial", 303},         {"arial narrow", 249},   {"calibri", 276},
         {"cambria", 302},         {"candara", 300},       {"century gothic", 302}, {"comic sans ms", 333},
         {"consolas", 300},        {"courier", 327},       {"courier new", 327},    {"garamond", 256},
         {"georgia", 335},         {"malgun gothic", 300}, {"맑은 고딕", 300},      {"ms pgothic", 298},
         {"ＭＳ Ｐゴシック", 298}, {"pmingliu", 273},      {"新細明體", 273},       {"segoe ui", 294},
         {"simsun", 273},          {"宋体", 273},          {"tahoma", 298},         {"times new roman", 273},
         {"trebuchet ms", 286},    {"verdana", 347},       {"Een ander", 303}});
    for (const Font& font : fonts)
        EXPECT_EQ(digit_pixels(font.name, 409), font.pixels) << font.name;
}

TEST(Kolombreedte, een_lettermaat_blijft_binnen_die_van_excel) {
    EXPECT_EQ(digit_pixels("Arial", 408), 302);
    EXPECT_EQ(digit_pixels("Arial", 409), 303);
    EXPECT_EQ(digit_pixels("Arial", 410), 303);
    EXPECT_EQ(digit_pixels("Arial", 10000), 303);
    EXPECT_EQ(digit_pixels("Verdana", 0), 1);
    EXPECT_EQ(digit_pixels("Verdana", 2), 2);
    EXPECT_EQ(digit_pixels("Verdana", -7), 1);
}

TEST(Kolombreedte, een_opgeslagen_breedte_geeft_de_punten_van_het_programma) {
    EXPECT_EQ(column_points(9.140625, 7), 48.0);
    EXPECT_EQ(column_points(0.140625, 7), 0.75);
    EXPECT_EQ(column_points(1.7109375, 7), 9.0);
    EXPECT_EQ(column_points(16.7109375, 7), 87.75);
    EXPECT_EQ(column_points(16.625, 8), 99.75);
    EXPECT_EQ(column_points(8.43, 1), 6.0);
    EXPECT_EQ(column_points(8.43, 16), 101.25);
    EXPECT_EQ(column_points(65536, 7), 344064.0);
    EXPECT_EQ(column_points(1e9, 7), 344064.0); // as wide as it gets
}

TEST(Kolombreedte, een_breedte_van_nul_of_minder_is_nul) {
    EXPECT_EQ(column_points(0, 7), 0.0);
    EXPECT_EQ(column_points(-3, 7), 0.0);
    EXPECT_EQ(column_points(std::nan(""), 7), 0.0);
    EXPECT_EQ(column_points(1, 7), 5.25);
}

TEST(Kolombreedte, zonder_eigen_breedte_ronden_de_beeldpunten_op_naar_een_achttal) {
    EXPECT_EQ(default_column_points(8, 7), 48.0);
    EXPECT_EQ(default_column_points(10, 7), 60.0);
    EXPECT_EQ(default_column_points(8, 8), 54.0);
    EXPECT_EQ(default_column_points(5, 4), 18.0);
    EXPECT_EQ(default_column_points(2, 5), 12.0);
    EXPECT_EQ(default_column_points(1, 9), 12.0); // a multiple of 8 stays
    EXPECT_EQ(default_column_points(2, 9), 24.0);
    EXPECT_EQ(default_column_points(1, 13), 18.0);
    EXPECT_EQ(default_column_points(0, 7), 6.0);
    EXPECT_EQ(default_column_points(-5, 7), 6.0);
    EXPECT_EQ(default_column_points(255, 8), 1536.0);
    EXPECT_EQ(default_column_points(256, 8), 1536.0);
    EXPECT_EQ(default_column_points(1000, 8), 1536.0);
}

} // namespace tavelo
