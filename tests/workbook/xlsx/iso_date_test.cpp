#include "workbook/xlsx/iso_date.h"

#include <gtest/gtest.h>

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

TEST(IsoDate, een_andere_tekst_is_geen_datum) {
    for (const std::string_view text : {"", "morgen", "2026-13-01", "2026-02-30", "2026-1-1", "25:00:00", "12:60",
                                        "2026-11-20x", "2026-11-20T", "20-11-2026"})
        EXPECT_EQ(serial_of_iso_date(text, from_1900), std::nullopt) << text;
}

} // namespace
} // namespace tavelo
