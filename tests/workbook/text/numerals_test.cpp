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

TEST(Chinese_cijfers, komen_alleen_bij_een_chinese_taal) {
    EXPECT_EQ(shown(4706, "[DBNum1]0"), "4706");
    EXPECT_EQ(shown(4706, "[DBNum1][$-413]0"), "4706");
    EXPECT_EQ(with_numerals("ring 12", Numerals::western, NumeralStyle::spelled), "ring 12");
    EXPECT_EQ(with_numerals(std::string(20, '1'), Numerals::chinese, NumeralStyle::spelled).size(), 60U);
}

} // namespace
} // namespace tavelo
