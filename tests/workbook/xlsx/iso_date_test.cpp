#include "workbook/xlsx/iso_date.h"

#include <gtest/gtest.h>

#include <array>

namespace tavelo {
namespace {

using enum DateSystem;

TEST(IsoDate, een_datum_is_het_aantal_dagen) {
    EXPECT_EQ(serial_of_iso_date("2026-11-20", from_1900), 46346.0);
    EXPECT_EQ(serial_of_iso_date("1900-01-01", from_1900), 1.0);
    EXPECT_EQ(serial_of_iso_date("1900-03-01", from_1900), 61.0);
    EXPECT_EQ(serial_of_iso_date("2026-11-20", from_1904), 44884.0);
}

TEST(IsoDate, een_tijd_is_een_deel_van_een_dag) {
    EXPECT_EQ(serial_of_iso_date("06:00:00", from_1900), 0.25);
    EXPECT_EQ(serial_of_iso_date("18:00", from_1900), 0.75);
    EXPECT_EQ(serial_of_iso_date("2026-11-20T12:00:00", from_1900), 46346.5);
    EXPECT_EQ(serial_of_iso_date("2026-11-20T12:00:00.000Z", from_1900), 46346.5);
}

TEST(IsoDate, voor_het_begin_van_de_telling_is_negatief) {
    EXPECT_LT(*serial_of_iso_date("1899-12-30", from_1900), 0);
    EXPECT_LT(*serial_of_iso_date("1903-12-31", from_1904), 0);
}

TEST(IsoDate, elk_deel_heeft_zijn_grens) {
    struct Serial {
        std::string_view text;
        double serial; // -9 for none
    };
    constexpr double none = -9;
    constexpr std::array<Serial, 56> table = {{
        {"1899-12-31", 0},
        {"1900-02-28", 59},
        {"1900-02-29", none},
        {"1900-03-01", 61},
        {"1904-02-29", 1521},
        {"9999-12-31", 2958465},
        {"2026-01-31", 46053},
        {"2026-04-31", none},
        {"2026-00-01", none},
        {"2026-01-00", none},
        {"2026-01-32", none},
        {"2026-12-01", 46357},
        {"2026/01/01", none},
        {"2026-01", none},
        {"2026-01-", none},
        {"2026-01-1", none},
        {"2026-0a-01", none},
        {"2026-01-0:", none},
        {"2026-01-0/", none},
        {"202-01-01", none},
        {"2026-01-01Z", 46023},
        {"2026-01-01ZZ", none},
        {"2026-01-01 06:00", 46023.25},
        {"2026-01-01T06:00", 46023.25},
        {"2026-01-01T06:00Z", 46023.25},
        {"2026-01-01t06:00", none},
        {"2026-01-01T06:00ZZ", none},
        {"2026-01-01T6:00", none},
        {"00:00", 0},
        {"24:00", 1},
        {"25:00", none},
        {"00:59", 59.0 / 1440},
        {"00:60", none},
        {"12", none},
        {"12:", none},
        {"12:3", none},
        {"12:30:", none},
        {"12:30:5", none},
        {"00:00:59", 59.0 / 86400},
        {"00:00:60", none},
        {"00:00:00.5", 0.5 / 86400},
        {"00:00:00.25", 0.25 / 86400},
        {"00:00:00.125", 0.125 / 86400},
        {"00:00:01.5", 1.5 / 86400},
        {"00:00:00.", 0},
        {"00:00:00,5", none},
        {"00:00.5", none},
        {"01:00:00", 1.0 / 24},
        {"00:01:00", 1.0 / 1440},
        {"06:00Z", 0.25},
        {"Z", none},
        {"06:00x", none},
        {" 06:00", none},
        {"0a:00", none},
        {"06:0:", none},
        {"06-00", none},
    }};
    for (const auto& [text, serial] : table)
        EXPECT_NEAR(serial_of_iso_date(text, from_1900).value_or(none), serial, 1e-12) << text;
    EXPECT_EQ(serial_of_iso_date("1904-01-01", from_1904), 0.0);
    EXPECT_EQ(serial_of_iso_date("1904-03-01", from_1904), 60.0);
    EXPECT_EQ(serial_of_iso_date("1899-12-30", from_1900), -1.0);
}

TEST(IsoDate, een_andere_tekst_is_geen_datum) {
    for (const std::string_view text : {"", "morgen", "2026-13-01", "2026-02-30", "2026-1-1", "25:00:00", "12:60",
                                        "2026-11-20x", "2026-11-20T", "20-11-2026"})
        EXPECT_EQ(serial_of_iso_date(text, from_1900), std::nullopt) << text;
}

} // namespace
} // namespace tavelo
