#include "basis/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tavelo {
namespace {

TEST(Number, het_getal_vooraan_telt) {
    EXPECT_EQ(leading_number("12abc"), 12);
    EXPECT_EQ(leading_number("abc"), 0);
    EXPECT_EQ(leading_number(""), 0);
    EXPECT_EQ(leading_number("   7"), 7);
    EXPECT_EQ(leading_number("12 34"), 12); // an inner blank ends the number
    EXPECT_EQ(leading_number("- 3"), 0);
    EXPECT_EQ(leading_number("\t7"), 0);
    EXPECT_EQ(leading_number("0012"), 12);
    EXPECT_EQ(leading_number("-3"), -3);
    EXPECT_EQ(leading_number("+3"), 3);
    EXPECT_EQ(leading_number("--3"), 0);
}

TEST(Number, breuken_en_machten_horen_bij_het_getal) {
    EXPECT_EQ(leading_number("1.25x"), 1.25);
    EXPECT_EQ(leading_number(".5"), 0.5);
    EXPECT_EQ(leading_number("5."), 5);
    EXPECT_EQ(leading_number("."), 0);
    EXPECT_EQ(leading_number("1,5"), 1);
    EXPECT_EQ(leading_number("1.2.3"), 1.2);
    EXPECT_EQ(leading_number("1e3"), 1000);
    EXPECT_EQ(leading_number("1E-2"), 0.01);
    EXPECT_EQ(leading_number("1e"), 1);
    EXPECT_EQ(leading_number("1e+"), 1);
    EXPECT_EQ(leading_number("e5"), 0);
}

TEST(Number, zestien_en_achttallige_getallen_hebben_geen_teken) {
    EXPECT_EQ(leading_number("&HFF"), 255);
    EXPECT_EQ(leading_number(" &hff0000x"), 0xFF0000);
    EXPECT_EQ(leading_number("&HFFFF"), 65535);
    EXPECT_EQ(leading_number("&O17"), 15);
    EXPECT_EQ(leading_number("&o178"), 15);
    EXPECT_EQ(leading_number("-&H10"), 0);
    EXPECT_EQ(leading_number("&H"), 0);
    EXPECT_EQ(leading_number("&"), 0);
    EXPECT_EQ(leading_number("&12"), 0);
}

TEST(Number, een_tekst_zonder_getal_is_te_onderscheiden_van_nul) {
    for (const std::string_view tekst : {"", " ", "x", "-", "+", ".", "&", "&H", "&O", "&Z1", "-&H1", "\t1"})
        EXPECT_EQ(number_in(tekst), std::nullopt) << tekst;
    EXPECT_EQ(number_in("0"), 0.0);
    EXPECT_EQ(number_in("&H0"), 0.0);
}

TEST(Number, een_getal_zonder_eind_past_nergens) {
    EXPECT_EQ(leading_number("1e999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(leading_number("-1e999"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(leading_number("1e-999"), 0);
    EXPECT_EQ(leading_number("1e99999999999999999999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(leading_number("1e-99999999999999999999"), 0);
    EXPECT_EQ(int32_of("1e999"), std::nullopt);
    EXPECT_EQ(int32_of(std::string(100'000, '9')), std::nullopt);
    EXPECT_EQ(int16_of("&H" + std::string(100'000, 'F')), std::nullopt);
}

TEST(Number, niet_de_macht_alleen_zegt_hoe_groot_een_getal_is) {
    const std::string nullen(400, '0');
    EXPECT_EQ(leading_number("0." + nullen + "1"), 0);
    EXPECT_EQ(leading_number("0." + nullen + "1e9"), 0);
    EXPECT_EQ(leading_number("0.01e+999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(leading_number("0." + nullen + "1e401"), 1);
    EXPECT_EQ(leading_number("1" + nullen + "e-5"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(leading_number("1" + nullen + ".5"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(leading_number("1" + nullen + "e-400"), 1);
    EXPECT_EQ(leading_number(nullen + "1e-999"), 0);
}

TEST(Number, halven_worden_afgerond_naar_even) {
    EXPECT_EQ(round_half_even(0.5), 0);
    EXPECT_EQ(round_half_even(1.5), 2);
    EXPECT_EQ(round_half_even(2.5), 2);
    EXPECT_EQ(round_half_even(-0.5), 0);
    EXPECT_EQ(round_half_even(-1.5), -2);
    EXPECT_EQ(round_half_even(-2.5), -2);
    EXPECT_EQ(round_half_even(2.4999), 2);
    EXPECT_EQ(round_half_even(2.5001), 3);
}

TEST(Number, alleen_wat_past_wordt_een_getal_van_16_of_32_bits) {
    EXPECT_EQ(int16_of("32767"), 32767);
    EXPECT_EQ(int16_of("32767.4"), 32767);
    EXPECT_EQ(int16_of("32767.5"), std::nullopt);
    EXPECT_EQ(int16_of("-32768.5"), -32768);
    EXPECT_EQ(int16_of("-32769"), std::nullopt);
    EXPECT_EQ(int16_of("1e5"), std::nullopt);
    EXPECT_EQ(int16_of("&HFFFF"), std::nullopt);
    EXPECT_EQ(int32_of("2147483647"), 2147483647);
    EXPECT_EQ(int32_of("2147483648"), std::nullopt);
    EXPECT_EQ(to_int16(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

TEST(Number, een_getal_als_tekst_is_gewoon_decimaal) {
    EXPECT_EQ(number_text(5), "5");
    EXPECT_EQ(number_text(-0.0), "0");
    EXPECT_EQ(number_text(1.5), "1.5");
    EXPECT_EQ(number_text(-12.25), "-12.25");
    EXPECT_EQ(number_text(123456789012345), "123456789012345");
    EXPECT_EQ(number_text(-999999999999999), "-999999999999999");
    EXPECT_EQ(number_text(1e15), "1e+15"); // from here on in the shortest way
    EXPECT_EQ(number_text(-1e300), "-1e+300");
    EXPECT_EQ(leading_number(number_text(5e-324)), 5e-324); // longest of all
}

// What stands behind a text in memory is not of the number.
TEST(Number, een_getal_eindigt_waar_zijn_tekst_eindigt) {
    constexpr std::string_view vervolg = "1e35.5";
    EXPECT_EQ(leading_number(vervolg.substr(0, 1)), 1);
    EXPECT_EQ(leading_number(vervolg.substr(0, 2)), 1);
    EXPECT_EQ(leading_number(vervolg.substr(0, 3)), 1000);
    EXPECT_EQ(leading_number(std::string_view("12.75").substr(0, 3)), 12);
    EXPECT_EQ(number_in(std::string_view(".5").substr(0, 1)), std::nullopt);
    EXPECT_EQ(leading_number(std::string_view("1e999x9").substr(0, 5)), std::numeric_limits<double>::infinity());
    EXPECT_EQ(leading_number("1e3x9"), 1000);
}

} // namespace
} // namespace tavelo
