#include "shown.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr double a_friday = 46346;                         // 20 November 2026
constexpr double a_friday_morning = a_friday + 0.38034722; // 9:07:42

TEST(Datum, van_het_systeem_volgt_het_land) {
    EXPECT_EQ(shown_in_dutch(a_friday, builtin_format(14)), "20-11-2026");
    EXPECT_EQ(shown(a_friday, builtin_format(14)), "11/20/26");
    EXPECT_EQ(shown_in_dutch(a_friday_morning, builtin_format(22)), "20-11-2026 09:07");
    EXPECT_EQ(shown(a_friday_morning, builtin_format(22)), "11/20/26 09:07");
    EXPECT_EQ(shown(a_friday, builtin_format(14), "nl-BE"), "20/11/2026");
    EXPECT_EQ(shown(a_friday, builtin_format(14), "en-GB"), "20/11/2026");
}

TEST(Datum, lang_en_tijd_van_het_systeem_volgen_het_land) {
    EXPECT_EQ(shown_in_dutch(a_friday, "[$-F800]dddd, mmmm dd, yyyy"), "vrijdag 20 november 2026");
    EXPECT_EQ(shown(a_friday, "[$-F800]dddd, mmmm dd, yyyy"), "Friday, November 20, 2026");
    EXPECT_EQ(shown_in_dutch(a_friday_morning, "[$-F400]h:mm:ss AM/PM"), "09:07:42");
    EXPECT_EQ(shown(a_friday, "[$-x-sysdate]dddd, mmmm dd, yyyy"), "Friday, November 20, 2026");
}

TEST(Datum, toont_jaar_maand_en_dag_in_hun_lengtes) {
    EXPECT_EQ(shown(a_friday, "d dd ddd dddd"), "20 20 Fri Friday");
    EXPECT_EQ(shown(a_friday, "m mm mmm mmmm mmmmm"), "11 11 Nov November N");
    EXPECT_EQ(shown(a_friday, "yy yyy yyyy"), "26 2026 2026");
    EXPECT_EQ(shown(43466, "D-M-YY"), "1-1-19");
    EXPECT_EQ(shown(a_friday, "e"), "2026");
    EXPECT_EQ(shown(a_friday, "bb bbbb"), "69 2569");
}

TEST(Datum, gebruikt_namen_en_scheidingsteken_van_het_land) {
    EXPECT_EQ(shown_in_dutch(a_friday, "dddd d mmmm yyyy"), "vrijdag 20 november 2026");
    EXPECT_EQ(shown_in_dutch(a_friday + 120, "ddd d mmm"), "za 20 mrt");
    EXPECT_EQ(shown_in_dutch(a_friday, "mmmmm"), "n");
    EXPECT_EQ(shown_in_dutch(a_friday, "dd/mm/yyyy"), "20-11-2026");
    EXPECT_EQ(shown_in_dutch(a_friday, "dd\\/mm\\/yyyy"), "20/11/2026");
}

TEST(Datum, neemt_de_taal_van_de_code_als_die_bekend_is) {
    EXPECT_EQ(shown(a_friday, "[$-413]dddd d mmmm"), "vrijdag 20 november");
    EXPECT_EQ(shown(a_friday, "[$-10813]ddd"), "vr");
    EXPECT_EQ(shown(a_friday, "[$-nl-NL]dddd"), "vrijdag");
    EXPECT_EQ(shown_in_dutch(a_friday, "[$-409]dddd d mmmm"), "Friday 20 November");
    EXPECT_EQ(shown_in_dutch(a_friday, "[$-en-US]mmm"), "Nov");
    EXPECT_EQ(shown_in_dutch(a_friday, "[$-407]dddd, d. mmmm"), "Freitag, 20. November");
    EXPECT_EQ(shown_in_dutch(a_friday - 100, "[$-80C]d mmmm"), "12 août");
    EXPECT_EQ(shown_in_dutch(a_friday, "[$-41D]mmmm"), "november");
}

TEST(Datum, kent_de_schrikkeldag_die_1900_niet_had) {
    EXPECT_EQ(shown(0, "d mmm yyyy ddd"), "0 Jan 1900 Sat");
    EXPECT_EQ(shown(1, "d mmm yyyy ddd"), "1 Jan 1900 Sun");
    EXPECT_EQ(shown(59, "d mmm yyyy"), "28 Feb 1900");
    EXPECT_EQ(shown(60, "d mmm yyyy ddd"), "29 Feb 1900 Wed");
    EXPECT_EQ(shown(61, "d mmm yyyy ddd"), "1 Mar 1900 Thu");
}

TEST(Datum, achter_b2_is_die_van_de_islamitische_kalender) {
    EXPECT_EQ(shown(0, "B2yyyymmdd"), "13170829");
    EXPECT_EQ(shown(1, "B2yyyymmdd"), "13170829");
    EXPECT_EQ(shown(2, "B2yyyy-mm-dd"), "1317-09-01");
    EXPECT_EQ(shown(60, "B2yyyy-mm-dd"), "1317-10-29");
    EXPECT_EQ(shown(61, "B2yyyy-mm-dd"), "1317-10-29");
    EXPECT_EQ(shown(45472, "B2d/m/yyyy"), "23/12/1445");
    EXPECT_EQ(shown(45479, "B2d/m/yyyy"), "30/12/1445"); // the last day of a leap year
    EXPECT_EQ(shown(45480, "B2d/m/yyyy"), "1/1/1446");
    EXPECT_EQ(shown(45472, "B2dddd d mmmm"), "Saturday 23 12"); // its months have no names here
    EXPECT_EQ(shown(45472, "B1d/m/yyyy"), "29/6/2024");
}

TEST(Datum, kan_vanaf_1904_tellen) {
    EXPECT_EQ(shown_from_1904(0, "d mmm yyyy ddd"), "1 Jan 1904 Fri");
    EXPECT_EQ(shown_from_1904(a_friday - 1462, "d mmm yyyy"), "20 Nov 2026");
    EXPECT_EQ(shown_from_1904(1.5, "[h]:mm"), "36:00");
}

TEST(Datum, voor_het_begin_of_na_het_jaar_9999_wordt_hekjes) {
    EXPECT_EQ(shown(-1, "d-m-yyyy"), "######");
    EXPECT_EQ(shown(-0.25, "h:mm"), "######");
    EXPECT_EQ(shown(2958465.5, "yyyy-mm-dd"), "9999-12-31");
    EXPECT_EQ(shown(2958466, "yyyy-mm-dd"), "######");
    EXPECT_EQ(shown(1e300, "yyyy"), "######");
    EXPECT_EQ(shown_from_1904(2957004, "yyyy"), "######");
    EXPECT_EQ(shown_from_1904(-1, "d mmm yyyy"), "-2 Jan 1904");
}

TEST(Tijd, toont_uren_minuten_en_seconden) {
    EXPECT_EQ(shown(a_friday_morning, "h:mm"), "9:07");
    EXPECT_EQ(shown(a_friday_morning, "hh:mm:ss"), "09:07:42");
    EXPECT_EQ(shown(a_friday_morning, "h m s"), "9 7 42");
    EXPECT_EQ(shown(0.75, "[$-409]h:mm AM/PM"), "6:00 PM");
    EXPECT_EQ(shown(0, "h AM/PM"), "12 AM");
    EXPECT_EQ(shown(0.5, "h A/P"), "12 P");
    EXPECT_EQ(shown(0.25, "ha/p"), "6a");
}

TEST(Tijd, leest_m_als_minuten_naast_uren_of_seconden) {
    EXPECT_EQ(shown(a_friday_morning, "mm:ss"), "07:42");
    EXPECT_EQ(shown(a_friday_morning, "h\" uur \"m"), "9 uur 7");
    EXPECT_EQ(shown(a_friday_morning, "d/m h:m"), "20/11 9:7");
    EXPECT_EQ(shown(a_friday_morning, "s m"), "42 11");
    EXPECT_EQ(shown(a_friday_morning, "hh mmm"), "09 Nov");
}

TEST(Tijd, rondt_af_op_de_kleinste_eenheid) {
    EXPECT_EQ(shown(42.7 / 86400, "s"), "43");
    EXPECT_EQ(shown(42.7 / 86400, "s.0"), "42.7");
    EXPECT_EQ(shown(42.7654 / 86400, "ss.000"), "42.765");
    EXPECT_EQ(shown(59.96 / 86400, "mm:ss.0"), "01:00.0");
    EXPECT_EQ(shown(a_friday + 86399.8 / 86400, "d h:mm:ss"), "21 0:00:00");
    EXPECT_EQ(shown(a_friday + 86399.8 / 86400, "d-m-yyyy"), "20-11-2026");
    EXPECT_EQ(shown_in_dutch(42.7 / 86400, "ss.00"), "42,70");
}

TEST(Tijd, telt_door_tussen_haken) {
    EXPECT_EQ(shown(2.25, "[h]:mm"), "54:00");
    EXPECT_EQ(shown(0.0625, "[m]"), "90");
    EXPECT_EQ(shown(0.0625, "[mm]:ss"), "90:00");
    EXPECT_EQ(shown(65.0 / 86400, "[ss]"), "65");
    EXPECT_EQ(shown(0.125, "[hhh]"), "003");
    EXPECT_EQ(shown(-1.5, "[h]"), "-36");
}

} // namespace
} // namespace tavelo
