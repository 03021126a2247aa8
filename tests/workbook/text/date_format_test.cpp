#include "shown.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr double a_friday = 46346; // 20 November 2026
constexpr double just_before_midnight = a_friday + 86399.8 / 86400;
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

TEST(Tijd, leest_m_als_minuten_waar_het_moet) {
    expect_shown({
        {a_friday_morning, "h m", "9 7"},
        {a_friday_morning, "h AM/PM m", "9 AM 7"},
        {a_friday_morning, "m AM/PM s", "7 AM 42"},
        {a_friday_morning, "[h] m", "1112313 7"},
        {a_friday_morning, "[h]:mm", "1112313:07"},
        {a_friday_morning, "m [s]", "46346.38035"},
        {a_friday_morning, "d m s", "20 7 42"},
        {a_friday_morning, "y m d", "26 11 20"},
        {a_friday_morning, "h d m", "9 20 11"},
        {a_friday_morning, "m h", "11 9"},
        {a_friday_morning, "mm", "11"},
        {a_friday_morning, "mmm s", "Nov 42"},
        {a_friday_morning, "m", "11"},
        {a_friday_morning, "s m h", "42 11 9"},
        {a_friday_morning, "h:m:s", "9:7:42"},
        {a_friday_morning, "h a/p m", "9 a 7"},
        {a_friday_morning, "m a/p", "11 a"},
        {a_friday_morning, "h m m", "9 7 11"},
        {a_friday_morning, "m m s", "11 7 42"},
        {a_friday_morning, "[m]:s", "66738787:42"},
        {a_friday_morning, "[mm] m", "66738787 11"},
        {a_friday_morning, "[s] m", "4004327262 11"},
        {a_friday_morning, "d m", "20 11"},
    });
}

TEST(Tijd, weigert_wat_naast_een_doorgetelde_tijd_niet_kan) {
    expect_shown({
        {a_friday_morning, "ss [h]", "42 1112313"},
        {a_friday_morning, "[h] h", "46346.38035"},
        {a_friday_morning, "[h] hh:mm", "46346.38035"},
        {a_friday_morning, "h [m]", "46346.38035"},
        {a_friday_morning, "[m] h", "46346.38035"},
        {a_friday_morning, "[h]:[s]", "46346.38035"},
        {a_friday_morning, "mm:[ss]", "46346.38035"},
        {a_friday_morning, "[s]:s", "46346.38035"},
        {a_friday_morning, "[h] AM/PM", "1112313 AM"},
        {a_friday_morning, "[ss] d", "4004327262 20"},
        {a_friday_morning, "d [m]", "20 66738787"},
        {a_friday_morning, "[h] d/m", "1112313 20/11"},
        {a_friday_morning, "[s].00", "4004327262.00"},
    });
}

TEST(Tijd, rondt_alleen_af_waar_een_tijd_getoond_wordt) {
    expect_shown({
        {just_before_midnight, "d", "20"},
        {just_before_midnight, "d h", "21 0"},
        {just_before_midnight, "d m:s", "21 0:0"},
        {just_before_midnight, "d AM/PM", "21 AM"},
        {just_before_midnight, "d a/p", "21 a"},
        {just_before_midnight, "d s", "21 0"},
        {just_before_midnight, "d [h]", "21 1112328"},
        {just_before_midnight, "d [m]", "21 66739680"},
        {just_before_midnight, "d [s]", "21 4004380800"},
        {just_before_midnight, "d .0", "20 .8"},
        {just_before_midnight, "d e", "20 2026"},
        {just_before_midnight, "d ddd", "20 Fri"},
        {just_before_midnight, "d mmm", "20 Nov"},
        {just_before_midnight, "d h:mm:ss.0", "20 23:59:59.8"},
        {just_before_midnight, "d h:mm", "21 0:00"},
        {just_before_midnight, "[h]", "1112328"},
        {just_before_midnight, "[s]", "4004380800"},
        {just_before_midnight, "h", "0"},
        {just_before_midnight, "ss.0", "59.8"},
        {just_before_midnight, "ss.000", "59.800"},
        {just_before_midnight, "d ss.0000", "20 59.8000"},
        {0.999999999, "h:mm:ss", "0:00:00"},
        {0.999999999, "h:mm:ss.000", "0:00:00.000"},
        {0.999999999, "d", "0"},
    });
}

TEST(Tijd, toont_delen_van_een_seconde) {
    expect_shown({
        {42.7654 / 86400, "s.", "43."},
        {42.7654 / 86400, "ss.0", "42.8"},
        {42.7654 / 86400, "ss.00", "42.77"},
        {42.7654 / 86400, "ss.000", "42.765"},
        {42.7654 / 86400, "ss.0000", "42.7650"},
        {42.7654 / 86400, "s.x", "43.x"},
        {42.7654 / 86400, "s.0x.00", "42.7x.77"},
        {42.7654 / 86400, "s.00.0", "42.77.7"},
        {42.7654 / 86400, "ss.0#", "0.00049497"},
        {42.7654 / 86400, "ss.#", "0.00049497"},
        {42.7654 / 86400, "s.0 d", "42.8 0"},
        {42.7654 / 86400, "0.0 s", "0.00049497"},
        {42.7654 / 86400, ".0", ".0"},
    });
}

TEST(Tijd, toont_twaalf_uren) {
    expect_shown({
        {0, "h AM/PM", "12 AM"},         {0, "hh A/P", "12 A"},         {0, "h a/p", "12 a"},
        {1.0 / 24, "h AM/PM", "1 AM"},   {1.0 / 24, "hh A/P", "01 A"},  {1.0 / 24, "h a/p", "1 a"},
        {0.25, "h AM/PM", "6 AM"},       {0.25, "hh A/P", "06 A"},      {0.25, "h a/p", "6 a"},
        {11.0 / 24, "h AM/PM", "11 AM"}, {11.0 / 24, "hh A/P", "11 A"}, {11.0 / 24, "h a/p", "11 a"},
        {0.49, "h AM/PM", "11 AM"},      {0.49, "hh A/P", "11 A"},      {0.49, "h a/p", "11 a"},
        {0.5, "h AM/PM", "12 PM"},       {0.5, "hh A/P", "12 P"},       {0.5, "h a/p", "12 p"},
        {0.51, "h AM/PM", "12 PM"},      {0.51, "hh A/P", "12 P"},      {0.51, "h a/p", "12 p"},
        {13.0 / 24, "h AM/PM", "1 PM"},  {13.0 / 24, "hh A/P", "01 P"}, {13.0 / 24, "h a/p", "1 p"},
        {23.0 / 24, "h AM/PM", "11 PM"}, {23.0 / 24, "hh A/P", "11 P"}, {23.0 / 24, "h a/p", "11 p"},
    });
}

TEST(Datum, laat_andere_tekens_staan) {
    expect_shown({
        {a_friday, "d,", "20,"},
        {a_friday, "d%", "20%"},
        {a_friday, "d5", "205"},
        {a_friday, "d/", "20/"},
        {a_friday, "d:", "20:"},
        {a_friday, "d.", "20."},
        {a_friday, "d.0", "20.0"},
        {a_friday, "d@", "46346"},
        {a_friday, "d General", "20 "},
        {a_friday, "d\\x", "20x"},
        {a_friday, "yyyy5", "20265"},
        {a_friday, "e,", "2026,"},
        {a_friday, "e%", "2026%"},
        {a_friday, "e.0", "e46346.0"},
        {a_friday, "e/m", "2026/11"},
        {a_friday, "d:m", "20:11"},
        {a_friday, "d bb", "20 69"},
        {a_friday, "d bbb", "20 2569"},
        {a_friday, "d e", "20 2026"},
        {a_friday, "B2d bb", "10 91"},
        {a_friday, "[h] e", "1112304 2026"},
        {a_friday, "[h]b1", "1112304"},
        {a_friday, "e e", "2026 2026"},
        {a_friday, "bb bb", "69 69"},
        {a_friday, "yyyyy", "2026"},
        {a_friday, "bbbbb", "2569"},
        {42.7654 / 86400, "s,", "43,"},
        {42.7654 / 86400, "s%", "43%"},
        {42.7654 / 86400, "s5", "435"},
        {42.7654 / 86400, "s/", "43/"},
        {42.7654 / 86400, "s:", "43:"},
        {42.7654 / 86400, "s@", "0.00049497"},
    });
}

TEST(Datum, negatief_gaat_alleen_als_er_alleen_doorgeteld_wordt) {
    expect_shown({
        {-1.5, "[h]", "-36"},
        {-1.5, "[m]", "-2160"},
        {-1.5, "[s]", "-129600"},
        {-1.5, "[h]:mm", "######"},
        {-1.5, "[h] d", "######"},
        {-1.5, "[h]e", "######"},
        {-1.5, "d", "######"},
        {-1.5, "h", "######"},
        {-1.5, "e", "######"},
        {-1.5, "bb", "######"},
        {-1.5, "\"x\"d", "######"},
        {-1.5, "[h]\"x\"", "-36x"},
        {-1.5, "[s].0", "-129600.0"},
    });
}

TEST(Datum, negatief_heeft_vanaf_1904_een_minteken) {
    expect_shown(
        {
            {-0.25, "[h]", "-6"},
            {-0.25, "h:mm", "-6:00"},
            {-0.25, "d-m-yyyy", "-1-1-1904"},
            {-0.25, "e", "-1904"},
            {-0.25, "B2yyyy-mm-dd", "-1321-10-13"},
            {-1, "[h]", "-24"},
            {-1, "h:mm", "-0:00"},
            {-1, "d-m-yyyy", "-2-1-1904"},
            {-1, "e", "-1904"},
            {-1, "B2yyyy-mm-dd", "-1321-10-14"},
            {-1.5, "[h]", "-36"},
            {-1.5, "h:mm", "-12:00"},
            {-1.5, "d-m-yyyy", "-2-1-1904"},
            {-1.5, "e", "-1904"},
            {-1.5, "B2yyyy-mm-dd", "-1321-10-14"},
        },
        "en-US", DateSystem::from_1904);
}

TEST(Datum, houdt_op_na_het_jaar_9999) {
    expect_shown({
        {2958465.0, "yyyy-mm-dd", "9999-12-31"},
        {2958465.0, "d h", "31 0"},
        {2958465.0, "[h]", "71003160"},
        {2958465.0, "B2yyyy-mm-dd", "9666-04-03"},
        {2958465.4, "yyyy-mm-dd", "9999-12-31"},
        {2958465.4, "d h", "31 9"},
        {2958465.4, "[h]", "71003169"},
        {2958465.4, "B2yyyy-mm-dd", "9666-04-03"},
        {2958465.99999, "yyyy-mm-dd", "9999-12-31"},
        {2958465.99999, "d h", "31 23"},
        {2958465.99999, "[h]", "71003183"},
        {2958465.99999, "B2yyyy-mm-dd", "9666-04-03"},
        {2958465.9999999, "yyyy-mm-dd", "9999-12-31"},
        {2958465.9999999, "d h", "######"},
        {2958465.9999999, "[h]", "######"},
        {2958465.9999999, "B2yyyy-mm-dd", "9666-04-03"},
        {2958466.0, "yyyy-mm-dd", "######"},
        {2958466.0, "d h", "######"},
        {2958466.0, "[h]", "######"},
        {2958466.0, "B2yyyy-mm-dd", "######"},
    });
}

TEST(Datum, houdt_vanaf_1904_op_na_het_jaar_9999) {
    expect_shown(
        {
            {2957003.0, "yyyy-mm-dd", "9999-12-31"},
            {2957003.0, "h:mm", "0:00"},
            {2957003.9999999, "yyyy-mm-dd", "9999-12-31"},
            {2957003.9999999, "h:mm", "######"},
            {2957004.0, "yyyy-mm-dd", "######"},
            {2957004.0, "h:mm", "######"},
        },
        "en-US", DateSystem::from_1904);
}

TEST(Datum, toont_maanden_kort_lang_en_met_een_letter) {
    expect_shown(
        {
            {46023.0, "m mm mmm mmmm mmmmm", "1 01 janv. janvier j"},
            {46054.0, "m mm mmm mmmm mmmmm", "2 02 févr. février f"},
            {46085.0, "m mm mmm mmmm mmmmm", "3 03 mars mars m"},
            {46116.0, "m mm mmm mmmm mmmmm", "4 04 avr. avril a"},
            {46147.0, "m mm mmm mmmm mmmmm", "5 05 mai mai m"},
            {46178.0, "m mm mmm mmmm mmmmm", "6 06 juin juin j"},
            {46209.0, "m mm mmm mmmm mmmmm", "7 07 juil. juillet j"},
            {46240.0, "m mm mmm mmmm mmmmm", "8 08 août août a"},
            {46271.0, "m mm mmm mmmm mmmmm", "9 09 sept. septembre s"},
            {46302.0, "m mm mmm mmmm mmmmm", "10 10 oct. octobre o"},
            {46333.0, "m mm mmm mmmm mmmmm", "11 11 nov. novembre n"},
            {46364.0, "m mm mmm mmmm mmmmm", "12 12 déc. décembre d"},
        },
        "fr-FR");
}

TEST(Datum, toont_dagen_van_de_week_kort_en_lang) {
    expect_shown(
        {
            {46345.0, "ddd dddd aaa aaaa", "do donderdag do donderdag"},
            {46346.0, "ddd dddd aaa aaaa", "vr vrijdag vr vrijdag"},
            {46347.0, "ddd dddd aaa aaaa", "za zaterdag za zaterdag"},
            {46348.0, "ddd dddd aaa aaaa", "zo zondag zo zondag"},
            {46349.0, "ddd dddd aaa aaaa", "ma maandag ma maandag"},
            {46350.0, "ddd dddd aaa aaaa", "di dinsdag di dinsdag"},
            {46351.0, "ddd dddd aaa aaaa", "wo woensdag wo woensdag"},
        },
        "nl-NL");
}

TEST(Datum, van_de_islamitische_kalender_toont_haar_maand_als_getal) {
    expect_shown({
        {a_friday, "B2mmm", "06"},
        {a_friday, "B2mmmmm", "06"},
        {a_friday, "B2m", "6"},
        {a_friday, "B2mm", "06"},
        {a_friday, "B2b", "91"},
        {a_friday, "B2bb", "91"},
    });
}

// The days on which a year begins and ends, over a whole cycle: 11 of the 30 years have a leap day.
TEST(Datum, van_de_islamitische_kalender_kent_elf_schrikkeljaren_in_dertig_jaar) {
    expect_shown({
        {43708, "B2d-m-yyyy", "1-1-1441"},   {44061, "B2d-m-yyyy", "29-12-1441"}, {44062, "B2d-m-yyyy", "1-1-1442"},
        {44416, "B2d-m-yyyy", "30-12-1442"}, {44417, "B2d-m-yyyy", "1-1-1443"},   {44770, "B2d-m-yyyy", "29-12-1443"},
        {44771, "B2d-m-yyyy", "1-1-1444"},   {45124, "B2d-m-yyyy", "29-12-1444"}, {45125, "B2d-m-yyyy", "1-1-1445"},
        {45479, "B2d-m-yyyy", "30-12-1445"}, {45480, "B2d-m-yyyy", "1-1-1446"},   {45833, "B2d-m-yyyy", "29-12-1446"},
        {45834, "B2d-m-yyyy", "1-1-1447"},   {46188, "B2d-m-yyyy", "30-12-1447"}, {46189, "B2d-m-yyyy", "1-1-1448"},
        {46542, "B2d-m-yyyy", "29-12-1448"}, {46543, "B2d-m-yyyy", "1-1-1449"},   {46896, "B2d-m-yyyy", "29-12-1449"},
        {46897, "B2d-m-yyyy", "1-1-1450"},   {47251, "B2d-m-yyyy", "30-12-1450"}, {47252, "B2d-m-yyyy", "1-1-1451"},
        {47605, "B2d-m-yyyy", "29-12-1451"}, {47606, "B2d-m-yyyy", "1-1-1452"},   {47959, "B2d-m-yyyy", "29-12-1452"},
        {47960, "B2d-m-yyyy", "1-1-1453"},   {48314, "B2d-m-yyyy", "30-12-1453"}, {48315, "B2d-m-yyyy", "1-1-1454"},
        {48668, "B2d-m-yyyy", "29-12-1454"}, {48669, "B2d-m-yyyy", "1-1-1455"},   {49022, "B2d-m-yyyy", "29-12-1455"},
        {49023, "B2d-m-yyyy", "1-1-1456"},   {49377, "B2d-m-yyyy", "30-12-1456"}, {49378, "B2d-m-yyyy", "1-1-1457"},
        {49731, "B2d-m-yyyy", "29-12-1457"}, {49732, "B2d-m-yyyy", "1-1-1458"},   {50086, "B2d-m-yyyy", "30-12-1458"},
        {50087, "B2d-m-yyyy", "1-1-1459"},   {50440, "B2d-m-yyyy", "29-12-1459"}, {50441, "B2d-m-yyyy", "1-1-1460"},
        {50794, "B2d-m-yyyy", "29-12-1460"}, {50795, "B2d-m-yyyy", "1-1-1461"},   {51149, "B2d-m-yyyy", "30-12-1461"},
        {51150, "B2d-m-yyyy", "1-1-1462"},   {51503, "B2d-m-yyyy", "29-12-1462"}, {51504, "B2d-m-yyyy", "1-1-1463"},
        {51857, "B2d-m-yyyy", "29-12-1463"}, {51858, "B2d-m-yyyy", "1-1-1464"},   {52212, "B2d-m-yyyy", "30-12-1464"},
        {52213, "B2d-m-yyyy", "1-1-1465"},   {52566, "B2d-m-yyyy", "29-12-1465"}, {52567, "B2d-m-yyyy", "1-1-1466"},
        {52921, "B2d-m-yyyy", "30-12-1466"}, {52922, "B2d-m-yyyy", "1-1-1467"},   {53275, "B2d-m-yyyy", "29-12-1467"},
        {53276, "B2d-m-yyyy", "1-1-1468"},   {53629, "B2d-m-yyyy", "29-12-1468"}, {53630, "B2d-m-yyyy", "1-1-1469"},
        {53984, "B2d-m-yyyy", "30-12-1469"}, {53985, "B2d-m-yyyy", "1-1-1470"},   {54338, "B2d-m-yyyy", "29-12-1470"},
    });
}

TEST(Datum, van_de_islamitische_kalender_heeft_om_en_om_maanden_van_dertig_en_van_negenentwintig_dagen) {
    expect_shown({
        {45480, "B2d-m-yyyy", "1-1-1446"},
        {45510, "B2d-m-yyyy", "1-2-1446"},
        {45539, "B2d-m-yyyy", "1-3-1446"},
        {45569, "B2d-m-yyyy", "1-4-1446"},
        {45598, "B2d-m-yyyy", "1-5-1446"},
        {45628, "B2d-m-yyyy", "1-6-1446"},
        {45657, "B2d-m-yyyy", "1-7-1446"},
        {45687, "B2d-m-yyyy", "1-8-1446"},
        {45716, "B2d-m-yyyy", "1-9-1446"},
        {45746, "B2d-m-yyyy", "1-10-1446"},
        {45775, "B2d-m-yyyy", "1-11-1446"},
        {45805, "B2d-m-yyyy", "1-12-1446"},
    });
}

TEST(Datum, met_een_letter_voor_de_maand_neemt_een_heel_teken) {
    Locale locale = locale_named("nl-NL");
    locale.months[10] = "ñovember";
    EXPECT_EQ(NumberFormat("mmmmm").show_number(a_friday, DateSystem::from_1900, locale), "ñ");
}

} // namespace
} // namespace tavelo
