#include "workbook/text/numerals.h"

#include "shown.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

TEST(Chinese_cijfers, spellen_een_getal_in_standaardopmaak) {
    EXPECT_EQ(shown(4706, "[DBNum1][$-804]General"), "四千七百〇六");
    EXPECT_EQ(shown(10, "[DBNum1][$-804]General"), "一十");
    EXPECT_EQ(shown(300200, "[DBNum2][$-804]General"), "叁拾万零贰佰");
    EXPECT_EQ(shown(-2.5, "[DBNum1][$-804]General"), "-二.五");
    EXPECT_EQ(shown(0, "[DBNum1][$-804]General"), "〇");
}

TEST(Chinese_cijfers, staan_in_andere_codes_een_voor_een) {
    EXPECT_EQ(shown(4706, "[DBNum1][$-804]0.0"), "四七〇六.〇");
    EXPECT_EQ(shown(46346, "[DBNum1][$-804]yyyy-m-d"), "二〇二六-十一-二十");
}

std::string everyday(std::string_view text, NumeralStyle style) {
    return with_numerals(text, Numerals::chinese, style);
}
std::string formal(std::string_view text, NumeralStyle style) {
    return with_numerals(text, Numerals::chinese_formal, style);
}

TEST(Chinese_cijfers, hebben_elk_hun_teken) {
    EXPECT_EQ(everyday("0123456789", NumeralStyle::digits), "〇一二三四五六七八九");
    EXPECT_EQ(formal("0123456789", NumeralStyle::digits), "零壹贰叁肆伍陆柒捌玖");
    EXPECT_EQ(everyday("a/0:9", NumeralStyle::digits), "a/〇:九");
}

TEST(Chinese_cijfers, krijgen_hun_macht_van_tien) {
    EXPECT_EQ(everyday("1234567890123456", NumeralStyle::spelled),
              "一千二百三十四兆五千六百七十八亿九千〇一十二万三千四百五十六");
    EXPECT_EQ(formal("1234567890123456", NumeralStyle::spelled),
              "壹仟贰佰叁拾肆兆伍仟陆佰柒拾捌亿玖仟零壹拾贰万叁仟肆佰伍拾陆");
    EXPECT_EQ(everyday("12345678901234567", NumeralStyle::spelled), "一二三四五六七八九〇一二三四五六七");
    EXPECT_EQ(everyday("100000000", NumeralStyle::spelled), "一亿");
    EXPECT_EQ(everyday("100000001", NumeralStyle::spelled), "一亿〇一");
    EXPECT_EQ(everyday("100100", NumeralStyle::spelled), "一十万〇一百");
    EXPECT_EQ(everyday("1001", NumeralStyle::spelled), "一千〇一");
    EXPECT_EQ(everyday("00", NumeralStyle::spelled), "〇");
    EXPECT_EQ(everyday("007", NumeralStyle::spelled), "七");
}

TEST(Chinese_cijfers, van_een_datum_laten_de_een_voor_tien_weg) {
    constexpr auto calendar = NumeralStyle::calendar;
    EXPECT_EQ(everyday("0-1-9-10-11-20-21-05-100-2026", calendar), "〇-一-九-十-十一-二十-二十一-〇五-一〇〇-二〇二六");
    EXPECT_EQ(formal("10-12-30", calendar), "拾-拾贰-叁拾");
}

TEST(Chinese_cijfers, staan_achter_een_punt_of_komma_een_voor_een) {
    EXPECT_EQ(everyday("12.12", NumeralStyle::spelled), "一十二.一二");
    EXPECT_EQ(everyday("12,12", NumeralStyle::spelled), "一十二,一二");
    EXPECT_EQ(everyday("12.12/12", NumeralStyle::spelled), "一十二.一二/一十二");
    EXPECT_EQ(everyday("12-12", NumeralStyle::spelled), "一十二-一十二");
}

TEST(Chinese_cijfers, komen_alleen_bij_een_chinese_taal) {
    EXPECT_EQ(shown(4706, "[DBNum1]0"), "4706");
    EXPECT_EQ(shown(4706, "[DBNum1][$-413]0"), "4706");
    EXPECT_EQ(with_numerals("ring 12", Numerals::western, NumeralStyle::spelled), "ring 12");
    EXPECT_EQ(with_numerals(std::string(20, '1'), Numerals::chinese, NumeralStyle::spelled).size(), 60U);
}

} // namespace
} // namespace tavelo
