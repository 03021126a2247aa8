#include "workbook/xlsx/cell_text.h"

#include <gtest/gtest.h>

#include <vector>

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

TEST(CellText, elke_code_heeft_zijn_eigen_teken) {
    struct Escaped {
        std::string_view stored;
        std::string_view text;
    };
    constexpr std::array<Escaped, 30> table = {{
        {"", ""},
        {"_", "_"},
        {"_x", "_x"},
        {"_x0041", "_x0041"},
        {"_x0041_", "A"},
        {"_x0041_b", "Ab"},
        {"x0041_", "x0041_"},
        {"_y0041_", "_y0041_"},
        {"_x0041-", "_x0041-"},
        {"_x041_b", "_x041_b"},
        {"_x00041_", "_x00041_"},
        {"_x-041_", "_x-041_"},
        {"_x 041_", "_x 041_"},
        {"__x0041_", "_A"},
        {"_x007F__x0080_", "\x7F\u0080"},
        {"_x07FF__x0800_", "\u07FF\u0800"},
        {"_x00BF__x00C0_", "\u00BF\u00C0"},
        {"_xD7FF__xE000_", "\uD7FF\uE000"},
        {"_xFFFF_", "\uFFFF"},
        {"_x20ac__xABcd_", "\u20AC\uABCD"},
        {"_xD800__xDC00_", "\U00010000"},
        {"_xDBFF__xDFFF_", "\U0010FFFF"},
        {"_xD83C__xDFC7_", "\U0001F3C7"},
        {"_xD800_", "\uFFFD"},
        {"_xDBFF_x", "\uFFFDx"},
        {"_xDC00_", "\uFFFD"},
        {"_xDFFF__xD800_", "\uFFFD\uFFFD"},
        {"_xD800__xE000_", "\uFFFD\uE000"},
        {"_xD800__xDBFF__xDC00_", "\uFFFD\U0010FC00"},
        {"_xD800__x0041_", "\uFFFDA"},
    }};
    for (const auto& [stored, text] : table)
        EXPECT_EQ(without_escapes(stored), text) << stored;
}

TEST(CellText, een_code_houdt_op_waar_de_tekst_ophoudt) {
    constexpr std::string_view whole = "_xD83D__xDC0E_";
    EXPECT_EQ(without_escapes(whole.substr(0, 6)), "_xD83D");
    EXPECT_EQ(without_escapes(whole.substr(0, 1)), "_");
    EXPECT_EQ(without_escapes(whole.substr(0, 13)), "\uFFFD_xDC0E");
}

TEST(OpgeslagenTekst, van_een_tekst_past_precies_wat_mag) {
    constexpr std::size_t most = 7 * longest_text;
    std::string stored(most - 1, 'x');
    append_stored(stored, "yz");
    EXPECT_EQ(stored.size(), most);
    EXPECT_TRUE(stored.ends_with("xy"));
    append_stored(stored, "z");
    EXPECT_EQ(stored.size(), most);
    std::string longer(most + 1, 'x');
    append_stored(longer, "z");
    EXPECT_EQ(longer.size(), most + 1);
}

struct Rich {
    RichText text;

    Rich& start(std::string_view name, const char* space = nullptr) {
        std::vector<XmlAttribute> attributes;
        if (space != nullptr) attributes.push_back({"xml:space", space});
        text.element_start(name, XmlAttributes(attributes));
        return *this;
    }
    Rich& end(std::string_view name) {
        text.element_end(name);
        return *this;
    }
    Rich& letters(std::string_view piece) {
        text.text(piece);
        return *this;
    }
};

TEST(OpgemaakteTekst, voegt_haar_stukken_aaneen) {
    Rich rich;
    rich.letters("weg").start("r").letters("weg").start("t").letters(" a").letters("b ").end("t").letters("weg");
    rich.end("r").start("x").letters("weg").end("x").start("t", "preserve").letters(" c ").end("t");
    rich.start("t", "default").letters(" _x0041_ ").end("t").end("t").start("t").end("t");
    EXPECT_EQ(rich.text.take(), "ab c A");
    EXPECT_EQ(rich.text.take(), "");
}

TEST(OpgemaakteTekst, slaat_de_uitspraak_over) {
    Rich rich;
    rich.start("rPh").start("t").letters("weg").end("t").start("rPh").end("rPh").start("t").letters("weg").end("t");
    rich.end("rPh").start("t").letters("a").end("t").end("rPh").start("t").letters("b").end("t");
    EXPECT_EQ(rich.text.take(), "ab");
}

TEST(OpgemaakteTekst, die_niet_af_is_telt_niet_mee) {
    Rich rich;
    rich.start("t").letters("weg");
    EXPECT_EQ(rich.text.take(), "");
    rich.letters("weg").start("t").letters("a").end("t");
    EXPECT_EQ(rich.text.take(), "a");
}

TEST(OpgeslagenTekst, van_een_eindeloze_tekst_wordt_niet_meer_bewaard_dan_er_getoond_kan_worden) {
    std::string stored;
    for (int i = 0; i < 100; ++i)
        append_stored(stored, std::string(10'000, 'x'));
    EXPECT_GE(stored.size(), longest_text);
    EXPECT_LE(stored.size(), 7 * longest_text); // that many, were each of them an escape

    RichText rich;
    for (int i = 0; i < 100; ++i) { // runs
        rich.element_start("t", XmlAttributes({}));
        rich.text(std::string(10'000, 'x'));
        rich.element_end("t");
    }
    const std::string text = rich.take();
    EXPECT_GE(text.size(), longest_text);
    EXPECT_LE(text.size(), longest_text_bytes + 10'000);
}

} // namespace
} // namespace tavelo
