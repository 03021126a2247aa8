#include "shown.h"

#include <gtest/gtest.h>

#include <array>

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
    EXPECT_EQ(NumberFormat(code_in_locale(builtin_format(41), locale_named("en-US"))).show_text("x"), " x ");
}

struct Amounts {
    std::string_view language;
    std::array<std::string_view, 12> negative; // -1234.5 under 5 to 8, 37 to 40, 41 to 44
    std::array<std::string_view, 4> zero;      // under 41 to 44
};

TEST(Ingebouwde_opmaak, van_bedragen_volgt_de_landinstelling) {
    constexpr std::array ids{5U, 6U, 7U, 8U, 37U, 38U, 39U, 40U, 41U, 42U, 43U, 44U};
    constexpr std::array<Amounts, 6> expected{{
        {"nl-NL",
         {"€ -1.235", "€ -1.235", "€ -1.234,50", "€ -1.234,50", "-1.235", "-1.235", "-1.234,50", "-1.234,50",
          " -1.235 ", " € -1.235 ", " -1.234,50 ", " € -1.234,50 "},
         {" - ", " € - ", " -   ", " € -   "}},
        {"nl-BE",
         {"€ -1.235", "€ -1.235", "€ -1.234,50", "€ -1.234,50", "-1.235", "-1.235", "-1.234,50", "-1.234,50",
          " -1.235 ", " € -1.235 ", " -1.234,50 ", " € -1.234,50 "},
         {" - ", " € - ", " -   ", " € -   "}},
        {"en-GB",
         {"-£1,235", "-£1,235", "-£1,234.50", "-£1,234.50", "-1,235", "-1,235", "-1,234.50", "-1,234.50", "-1,235 ",
          "-£1,235 ", "-1,234.50 ", "-£1,234.50 "},
         {" - ", " £- ", " -   ", " £-   "}},
        {"en-US",
         {"($1,235)", "($1,235)", "($1,234.50)", "($1,234.50)", "(1,235)", "(1,235)", "(1,234.50)", "(1,234.50)",
          " (1,235)", " $(1,235)", " (1,234.50)", " $(1,234.50)"},
         {" - ", " $- ", " -   ", " $-   "}},
        {"de-DE",
         {"-1.235 €", "-1.235 €", "-1.234,50 €", "-1.234,50 €", "-1.235  ", "-1.235  ", "-1.234,50  ", "-1.234,50  ",
          "-1.235   ", "-1.235 € ", "-1.234,50   ", "-1.234,50 € "},
         {" -   ", " - € ", " -     ", " -   € "}},
        {"fr-FR",
         {"-1\u202F235 €", "-1\u202F235 €", "-1\u202F234,50 €", "-1\u202F234,50 €", "-1\u202F235  ", "-1\u202F235  ",
          "-1\u202F234,50  ", "-1\u202F234,50  ", "-1\u202F235   ", "-1\u202F235 € ", "-1\u202F234,50   ",
          "-1\u202F234,50 € "},
         {" -   ", " - € ", " -     ", " -   € "}},
    }};
    for (const Amounts& amounts : expected) {
        for (std::size_t i = 0; i < ids.size(); ++i)
            EXPECT_EQ(shown(-1234.5, builtin_format(ids[i]), amounts.language), amounts.negative[i])
                << amounts.language << ' ' << ids[i];
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(shown(0, builtin_format(ids[8 + i]), amounts.language), amounts.zero[i])
                << amounts.language << ' ' << ids[8 + i];
    }
    EXPECT_EQ(shown(1234.5, builtin_format(37), "nl-NL"), "1.235");
    EXPECT_EQ(shown(1234.5, builtin_format(7), "de-DE"), "1.234,50 €");
}

TEST(Ingebouwde_opmaak, een_merk_dat_geen_bedrag_is_blijft_staan) {
    EXPECT_EQ(code_in_locale("[$-x-amount", locale_named("nl-NL")), "[$-x-amount");
    EXPECT_EQ(code_in_locale("[$-x-amountz]0", locale_named("nl-NL")), "[$-x-amountz]0");
    EXPECT_EQ(code_in_locale("0.00", locale_named("nl-NL")), "0.00");
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
