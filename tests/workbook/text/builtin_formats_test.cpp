#include "shown.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

std::string shown_builtin(double value, unsigned id) { return shown(value, builtin_format(id)); }

TEST(Ingebouwde_opmaak, is_standaard_voor_een_nummer_zonder_opmaak) {
    EXPECT_EQ(builtin_format(0), "General");
    EXPECT_EQ(builtin_format(23), "General");
    EXPECT_EQ(builtin_format(65535), "General");
}

TEST(Ingebouwde_opmaak, toont_getallen) {
    EXPECT_EQ(shown_builtin(2345.675, 1), "2346");
    EXPECT_EQ(shown_builtin(2345.675, 2), "2345.68");
    EXPECT_EQ(shown_builtin(2345.675, 4), "2,345.68");
    EXPECT_EQ(shown_builtin(0.3, 10), "30.00%");
    EXPECT_EQ(shown_builtin(2345.675, 11), "2.35E+03");
    EXPECT_EQ(shown_builtin(5.5, 12), "5 1/2");
    EXPECT_EQ(shown_builtin(5.5, 13), "5  1/2 ");
    EXPECT_EQ(shown_builtin(2345.675, 48), "2.3E+3");
    EXPECT_EQ(shown_builtin(2345.675, 49), "2345.675");
}

TEST(Ingebouwde_opmaak, vult_bedragen_op_met_spaties) {
    EXPECT_EQ(shown_builtin(-1234.5, 7), "($1,234.50)");
    EXPECT_EQ(shown_builtin(1234.5, 37), "1,235 ");
    EXPECT_EQ(shown_builtin(-1234.5, 40), "(1,234.50)");
    EXPECT_EQ(shown_builtin(0, 43), " -   ");
    EXPECT_EQ(shown_builtin(1234.5, 44), " $1,234.50 ");
    EXPECT_EQ(NumberFormat(builtin_format(41)).show_text("x"), " x ");
}

TEST(Ingebouwde_opmaak, toont_datums_en_tijden) {
    const double moment = 46346.63; // 20 November 2026, 15:07:12
    EXPECT_EQ(shown_builtin(moment, 15), "20-Nov-26");
    EXPECT_EQ(shown_builtin(moment, 17), "Nov-26");
    EXPECT_EQ(shown_builtin(moment, 18), "3:07 PM");
    EXPECT_EQ(shown_builtin(moment, 21), "15:07:12");
    EXPECT_EQ(shown_builtin(moment, 47), "07:12.0");
    EXPECT_EQ(shown_builtin(1.5, 46), "36:00:00");
}

TEST(Ingebouwde_opmaak, toont_een_tijd_met_de_voorloopnul_van_het_systeem) {
    const double half_past_eight = 8.5 / 24;
    EXPECT_EQ(shown(half_past_eight, builtin_format(20), "nl-NL"), "08:30");
    EXPECT_EQ(shown(half_past_eight, builtin_format(21), "nl-NL"), "08:30:00");
    EXPECT_EQ(shown_builtin(half_past_eight, 20), "08:30");
    EXPECT_EQ(shown(half_past_eight, "h:mm", "nl-NL"), "8:30");
}

TEST(Ingebouwde_opmaak, toont_oosterse_datums_als_korte_datum) {
    EXPECT_EQ(shown_builtin(46346, 27), "11/20/26");
    EXPECT_EQ(shown_builtin(46346.63, 32), "15:07:12");
    EXPECT_EQ(shown(46346, builtin_format(58), "nl-NL"), "20-11-2026");
}

} // namespace
} // namespace tavelo
