#include "workbook/text/decimal.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace tavelo {
namespace {

// All that a Decimal tells: "integer digits . decimals" and the power of ten of the first digit.
std::string told(const Decimal& number) {
    std::string text = number.integer_digits() + '.';
    for (std::int64_t n = 0; n < number.decimals(); ++n)
        text += number.decimal_digit(n);
    return text + " e" + std::to_string(number.exponent());
}

Decimal rounded(double value, std::int64_t decimals) {
    Decimal number(value);
    number.round(decimals);
    return number;
}

Decimal scaled(double value, std::int64_t power) {
    Decimal number(value);
    number.scale(power);
    return number;
}

TEST(Decimaal, heeft_de_cijfers_zoals_ze_getypt_zijn) {
    EXPECT_EQ(told(Decimal(0)), ". e0");
    EXPECT_EQ(told(Decimal(7)), "7. e0");
    EXPECT_EQ(told(Decimal(-7.5)), "7.5 e0");
    EXPECT_EQ(told(Decimal(100)), "100. e2");
    EXPECT_EQ(told(Decimal(120.5)), "120.5 e2");
    EXPECT_EQ(told(Decimal(0.5)), ".5 e-1");
    EXPECT_EQ(told(Decimal(0.00625)), ".00625 e-3");
    EXPECT_EQ(told(Decimal(5e-324)).substr(320), "00005 e-324");
    EXPECT_EQ(told(Decimal(1e22)), "10000000000000000000000. e22");
}

TEST(Decimaal, heeft_hoogstens_vijftien_cijfers) {
    EXPECT_EQ(told(Decimal(123456789012345)), "123456789012345. e14");
    EXPECT_EQ(told(Decimal(1234567890123456)), "1234567890123460. e15");
    EXPECT_EQ(told(Decimal(0.1 + 0.2)), ".3 e-1");
    EXPECT_EQ(told(Decimal(0.12345678901234567)), ".123456789012346 e-1");
    EXPECT_EQ(told(Decimal(99999999999999.99)), "100000000000000. e14");
}

TEST(Decimaal, telt_een_waarde_die_geen_getal_is_als_nul) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {infinity, -infinity, std::nan(""), 0.0, -0.0}) {
        EXPECT_TRUE(Decimal(value).is_zero());
        EXPECT_EQ(told(Decimal(value)), ". e0");
    }
    EXPECT_FALSE(Decimal(5e-324).is_zero());
}

TEST(Decimaal, schuift_met_machten_van_tien) {
    EXPECT_EQ(told(scaled(12.5, 2)), "1250. e3");
    EXPECT_EQ(told(scaled(12.5, -3)), ".0125 e-2");
    EXPECT_EQ(told(scaled(0, 2)), ". e0");
}

TEST(Decimaal, rondt_de_helft_van_nul_weg) {
    struct Rounding {
        double value;
        std::int64_t decimals;
        std::string_view told;
    };
    constexpr std::array<Rounding, 20> roundings = {{
        {44.275, 2, "44.28 e1"}, {44.274, 2, "44.27 e1"}, {44.275, 3, "44.275 e1"}, {44.275, 4, "44.275 e1"},
        {44.275, 0, "44. e1"},   {44.275, -1, "40. e1"},  {45, -1, "50. e1"},       {44.275, -2, ". e0"},
        {55, -2, "100. e2"},     {54, -2, "100. e2"},     {44, -3, ". e0"},         {0.4, 0, ". e0"},
        {0.5, 0, "1. e0"},       {0.04, 0, ". e0"},       {0.096, 2, ".1 e-1"},     {9.96, 1, "10. e1"},
        {999.95, 1, "1000. e3"}, {199.95, 1, "200. e2"},  {0.0005, 2, ". e0"},      {0.005, 2, ".01 e-2"},
    }};
    for (const Rounding& rounding : roundings)
        EXPECT_EQ(told(rounded(rounding.value, rounding.decimals)), rounding.told)
            << rounding.value << ' ' << rounding.decimals;
}

TEST(Decimaal, weet_na_het_afronden_niets_meer_van_wat_verviel) {
    Decimal number(1.26);
    number.round(1);
    number.round(1);
    EXPECT_EQ(told(number), "1.3 e0");
    EXPECT_EQ(number.decimal_digit(1), '0');
}

TEST(Decimaal, heeft_buiten_zijn_cijfers_nullen) {
    const Decimal number(120.5);
    EXPECT_EQ(number.decimal_digit(0), '5');
    EXPECT_EQ(number.decimal_digit(1), '0');
    EXPECT_EQ(number.decimal_digit(100), '0');
    EXPECT_EQ(Decimal(0.05).decimal_digit(0), '0');
    EXPECT_EQ(Decimal(0.05).decimal_digit(1), '5');
    EXPECT_EQ(Decimal(120).decimals(), 0);
}

} // namespace
} // namespace tavelo
