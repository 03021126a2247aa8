#include "workbook/xlsx/cell_text.h"

#include <gtest/gtest.h>

#include <array>

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

TEST(OpgeslagenTekst, van_een_eindeloze_tekst_wordt_niet_meer_bewaard_dan_er_getoond_kan_worden) {
    std::string stored;
    for (int i = 0; i < 100; ++i)
        append_stored(stored, std::string(10'000, 'x'));
    EXPECT_GE(stored.size(), longest_text);
    EXPECT_LE(stored.size(), 7 * longest_text); // that many, were each of them an escape

    RichText rich;
    for (int i = 0; i < 100; ++i) { // runs
        rich.element_start("t", XmlAttributes(std::array<const char*, 1>{nullptr}.data()));
        rich.text(std::string(10'000, 'x'));
        rich.element_end("t");
    }
    const std::string text = rich.take();
    EXPECT_GE(text.size(), longest_text);
    EXPECT_LE(text.size(), longest_text_bytes + 10'000);
}

} // namespace
} // namespace tavelo
