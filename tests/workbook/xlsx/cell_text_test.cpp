#include "workbook/xlsx/cell_text.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

TEST(CellText, een_code_tussen_strepen_wordt_het_teken) {
    EXPECT_EQ(without_escapes("regel_x000D_\neinde"), "regel\r\neinde");
    EXPECT_EQ(without_escapes("_x00e9__x20AC_"), "é€");
    EXPECT_EQ(without_escapes("_x0041_"), "A");
}

TEST(CellText, de_code_van_de_streep_zelf_maakt_een_gewone_tekst) {
    EXPECT_EQ(without_escapes("_x005F_x000D_"), "_x000D_");
}

TEST(CellText, wat_op_een_code_lijkt_blijft_staan) {
    EXPECT_EQ(without_escapes("_x00G0_"), "_x00G0_");
    EXPECT_EQ(without_escapes("_x000D"), "_x000D");
    EXPECT_EQ(without_escapes("_X000D_"), "_X000D_");
    EXPECT_EQ(without_escapes("a_b_"), "a_b_");
}

TEST(CellText, twee_halve_codes_zijn_samen_een_teken) {
    EXPECT_EQ(without_escapes("_xD83D__xDC0E_"), "🐎");
    EXPECT_EQ(without_escapes("_xD83D_ "), "\xEF\xBF\xBD ");
    EXPECT_EQ(without_escapes("_xDC0E_"), "\xEF\xBF\xBD");
}

} // namespace
} // namespace tavelo
