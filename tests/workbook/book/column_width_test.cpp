#include "workbook/book/column_width.h"

#include <gtest/gtest.h>

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

TEST(Kolombreedte, een_opgeslagen_breedte_geeft_de_punten_van_het_programma) {
    EXPECT_EQ(column_points(9.140625, 7), 48.0);
    EXPECT_EQ(column_points(0.140625, 7), 0.75);
    EXPECT_EQ(column_points(1.7109375, 7), 9.0);
    EXPECT_EQ(column_points(16.7109375, 7), 87.75);
    EXPECT_EQ(column_points(16.625, 8), 99.75);
}

TEST(Kolombreedte, een_breedte_van_nul_of_minder_is_nul) {
    EXPECT_EQ(column_points(0, 7), 0.0);
    EXPECT_EQ(column_points(-3, 7), 0.0);
}

TEST(Kolombreedte, zonder_eigen_breedte_ronden_de_beeldpunten_op_naar_een_achttal) {
    EXPECT_EQ(default_column_points(8, 7), 48.0);
    EXPECT_EQ(default_column_points(10, 7), 60.0);
    EXPECT_EQ(default_column_points(8, 8), 54.0);
}

} // namespace tavelo
