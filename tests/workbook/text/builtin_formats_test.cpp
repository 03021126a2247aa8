#include "shown.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>
#include <vector>

namespace tavelo {
namespace {

std::string shown_builtin(double value, unsigned id) { return shown(value, builtin_format(id)); }

struct CodeOfIds {
    std::string_view code;
    std::vector<unsigned> ids;
};

TEST(Ingebouwde_opmaak, heeft_voor_elk_nummer_zijn_code) {
    const std::vector<CodeOfIds> codes = {
        {"General", {0, 23, 24, 25, 26, 63, 64, 65, 66, 82, 83, 1000, 65535}},
        {"0", {1, 59}},
        {"0.00", {2, 60}},
        {"#,##0", {3, 61}},
        {"#,##0.00", {4, 62}},
        {"[$-x-amounta]General", {5}},
        {"[$-x-amountb]General", {6}},
        {"[$-x-amountc]General", {7}},
        {"[$-x-amountd]General", {8}},
        {"0%", {9, 67}},
        {"0.00%", {10, 68}},
        {"0.00E+00", {11}},
        {"# ?/?", {12, 69}},
        {"# ?\?/?\?", {13, 70}},
        {"[$-x-shortdate]m/d/yy", {14, 27, 28, 29, 30, 31, 36, 50, 51, 52, 53, 54, 55, 56, 57, 58, 71, 72}},
        {"d-mmm-yy", {15, 73}},
        {"d-mmm", {16, 74}},
        {"mmm-yy", {17, 75}},
        {"h:mm AM/PM", {18}},
        {"h:mm:ss AM/PM", {19}},
        {"[$-x-shorttime]h:mm", {20, 76}},
        {"[$-x-longtime]h:mm:ss", {21, 32, 33, 34, 35, 77}},
        {"[$-x-shortdatetime]m/d/yy h:mm", {22, 78}},
        {"[$-x-amounte]General", {37}},
        {"[$-x-amountf]General", {38}},
        {"[$-x-amountg]General", {39}},
        {"[$-x-amounth]General", {40}},
        {"[$-x-amounti]General", {41}},
        {"[$-x-amountj]General", {42}},
        {"[$-x-amountk]General", {43}},
        {"[$-x-amountl]General", {44}},
        {"mm:ss", {45, 79}},
        {"[h]:mm:ss", {46, 80}},
        {"mm:ss.0", {47, 81}},
        {"##0.0E+0", {48}},
        {"@", {49}},
    };
    for (const auto& [code, ids] : codes)
        for (const unsigned id : ids)
            EXPECT_EQ(builtin_format(id), code) << id;
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
}

struct Amounts {
    std::string_view language;
    std::array<std::string_view, 12> negative; // -1234.5 under 5 to 8, 37 to 40, 41 to 44
    std::array<std::string_view, 12> positive; // 1234.5
    std::array<std::string_view, 4> zero;      // under 41 to 44
    std::string_view text;                     // "x" under each of these
};

TEST(Ingebouwde_opmaak, van_bedragen_volgt_de_landinstelling) {
    constexpr std::array ids{5U, 6U, 7U, 8U, 37U, 38U, 39U, 40U, 41U, 42U, 43U, 44U};
    constexpr std::array<Amounts, 6> expected{{
        {"nl-NL",
         {"€ -1.235", "€ -1.235", "€ -1.234,50", "€ -1.234,50", "-1.235", "-1.235", "-1.234,50", "-1.234,50",
          " -1.235 ", " € -1.235 ", " -1.234,50 ", " € -1.234,50 "},
         {"€ 1.235", "€ 1.235", "€ 1.234,50", "€ 1.234,50", "1.235", "1.235", "1.234,50", "1.234,50", " 1.235 ",
          " € 1.235 ", " 1.234,50 ", " € 1.234,50 "},
         {" - ", " € - ", " -   ", " € -   "},
         " x "},
        {"nl-BE",
         {"€ -1.235", "€ -1.235", "€ -1.234,50", "€ -1.234,50", "-1.235", "-1.235", "-1.234,50", "-1.234,50",
          " -1.235 ", " € -1.235 ", " -1.234,50 ", " € -1.234,50 "},
         {"€ 1.235", "€ 1.235", "€ 1.234,50", "€ 1.234,50", "1.235", "1.235", "1.234,50", "1.234,50", " 1.235 ",
          " € 1.235 ", " 1.234,50 ", " € 1.234,50 "},
         {" - ", " € - ", " -   ", " € -   "},
         " x "},
        {"en-GB",
         {"-£1,235", "-£1,235", "-£1,234.50", "-£1,234.50", "-1,235", "-1,235", "-1,234.50", "-1,234.50", "-1,235 ",
          "-£1,235 ", "-1,234.50 ", "-£1,234.50 "},
         {"£1,235", "£1,235", "£1,234.50", "£1,234.50", "1,235", "1,235", "1,234.50", "1,234.50", " 1,235 ", " £1,235 ",
          " 1,234.50 ", " £1,234.50 "},
         {" - ", " £- ", " -   ", " £-   "},
         " x "},
        {"en-US",
         {"($1,235)", "($1,235)", "($1,234.50)", "($1,234.50)", "(1,235)", "(1,235)", "(1,234.50)", "(1,234.50)",
          " (1,235)", " $(1,235)", " (1,234.50)", " $(1,234.50)"},
         {"$1,235 ", "$1,235 ", "$1,234.50 ", "$1,234.50 ", "1,235 ", "1,235 ", "1,234.50 ", "1,234.50 ", " 1,235 ",
          " $1,235 ", " 1,234.50 ", " $1,234.50 "},
         {" - ", " $- ", " -   ", " $-   "},
         " x "},
        {"de-DE",
         {"-1.235 €", "-1.235 €", "-1.234,50 €", "-1.234,50 €", "-1.235  ", "-1.235  ", "-1.234,50  ", "-1.234,50  ",
          "-1.235   ", "-1.235 € ", "-1.234,50   ", "-1.234,50 € "},
         {"1.235 €", "1.235 €", "1.234,50 €", "1.234,50 €", "1.235  ", "1.235  ", "1.234,50  ", "1.234,50  ",
          " 1.235   ", " 1.235 € ", " 1.234,50   ", " 1.234,50 € "},
         {" -   ", " - € ", " -     ", " -   € "},
         " x "},
        {"fr-FR",
         {"-1\u202F235 €", "-1\u202F235 €", "-1\u202F234,50 €", "-1\u202F234,50 €", "-1\u202F235  ", "-1\u202F235  ",
          "-1\u202F234,50  ", "-1\u202F234,50  ", "-1\u202F235   ", "-1\u202F235 € ", "-1\u202F234,50   ",
          "-1\u202F234,50 € "},
         {"1\u202F235 €", "1\u202F235 €", "1\u202F234,50 €", "1\u202F234,50 €", "1\u202F235  ", "1\u202F235  ",
          "1\u202F234,50  ", "1\u202F234,50  ", " 1\u202F235   ", " 1\u202F235 € ", " 1\u202F234,50   ",
          " 1\u202F234,50 € "},
         {" -   ", " - € ", " -     ", " -   € "},
         " x "},
    }};
    for (const Amounts& amounts : expected) {
        for (std::size_t i = 0; i < ids.size(); ++i)
            EXPECT_EQ(shown(-1234.5, builtin_format(ids[i]), amounts.language), amounts.negative[i])
                << amounts.language << ' ' << ids[i];
        for (std::size_t i = 0; i < ids.size(); ++i)
            EXPECT_EQ(shown(1234.5, builtin_format(ids[i]), amounts.language), amounts.positive[i])
                << amounts.language << ' ' << ids[i];
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(shown(0, builtin_format(ids[8 + i]), amounts.language), amounts.zero[i])
                << amounts.language << ' ' << ids[8 + i];
        for (std::size_t i = 0; i < 4; ++i) {
            const std::string_view code = code_in_locale(builtin_format(ids[8 + i]), locale_named(amounts.language));
            EXPECT_EQ(NumberFormat(code).show_text("x"), amounts.text) << amounts.language << ' ' << ids[8 + i];
        }
    }
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
