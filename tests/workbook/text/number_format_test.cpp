#include "workbook/text/number_format.h"

#include "shown.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tavelo {
namespace {

TEST(Standaardopmaak, toont_een_geheel_getal_zonder_meer) {
    EXPECT_EQ(shown(0, "General"), "0");
    EXPECT_EQ(shown(417, ""), "417");
    EXPECT_EQ(shown(-38, "GENERAL"), "-38");
    EXPECT_EQ(shown(87654321098, "general"), "87654321098");
}

TEST(Standaardopmaak, gebruikt_hooguit_elf_tekens_zonder_het_minteken) {
    EXPECT_EQ(shown(2.0 / 3, "General"), "0.666666667");
    EXPECT_EQ(shown(-200.0 / 3, "General"), "-66.66666667");
    EXPECT_EQ(shown(7654321098.76, "General"), "7654321099");
    EXPECT_EQ(shown(0.1 + 0.2, "General"), "0.3");
    EXPECT_EQ(shown_in_dutch(-200.0 / 3, "General"), "-66,66666667");
}

TEST(Standaardopmaak, gaat_over_op_machten_van_tien_waar_elf_tekens_niet_volstaan) {
    EXPECT_EQ(shown(3e11, "General"), "3E+11");
    EXPECT_EQ(shown(99999999999.7, "General"), "1E+11");
    EXPECT_EQ(shown(-765432109876.0, "General"), "-7.65432E+11");
    EXPECT_EQ(shown(0.0000765432198, "General"), "7.65432E-05");
    EXPECT_EQ(shown(6.54321987e204, "General"), "6.5432E+204");
    EXPECT_EQ(shown_in_dutch(6.54321987e204, "General"), "6,5432E+204");
}

TEST(Standaardopmaak, schrijft_een_kleine_waarde_uit_als_negen_decimalen_volstaan) {
    EXPECT_EQ(shown(0.00002, "General"), "0.00002");
    EXPECT_EQ(shown(0.000000007, "General"), "0.000000007");
    EXPECT_EQ(shown(0.0000000007, "General"), "7E-10");
    EXPECT_EQ(shown(0.00023456789, "General"), "0.000234568");
}

TEST(Standaardopmaak, mag_midden_in_een_code_staan) {
    EXPECT_EQ(shown(7.25, "\"rit \"General\" van 12\""), "rit 7.25 van 12");
    EXPECT_EQ(shown(-7, "\"rit \"General"), "-rit 7");
    EXPECT_EQ(shown(0.25, "General%"), "25%");
}

TEST(Getallen, ronden_decimaal_af_op_vijftien_cijfers_en_de_helft_van_nul_weg) {
    EXPECT_EQ(shown(58.385, "0.00"), "58.39");
    EXPECT_EQ(shown(-58.385, "0.00"), "-58.39");
    EXPECT_EQ(shown(1.005, "0.00"), "1.01");
    EXPECT_EQ(shown(2.5, "0"), "3");
    EXPECT_EQ(shown(0.145, "0%"), "15%");
    EXPECT_EQ(shown(9.9999, "0.00"), "10.00");
    EXPECT_EQ(shown(456.78901234567891, "0.000000000000000"), "456.789012345679000");
}

TEST(Getallen, die_tot_nul_afronden_verliezen_hun_minteken) {
    EXPECT_EQ(shown(-0.004, "0.00"), "0.00");
    EXPECT_EQ(shown(-0.4, "#,##0"), "0");
    EXPECT_EQ(shown(-0.004, "0.00_);(0.00)"), "(0.00)");
    EXPECT_EQ(shown(-0.0, "General"), "0");
}

TEST(Getallen, tonen_de_scheidingstekens_van_het_land) {
    EXPECT_EQ(shown(1234567.891, "#,##0.00"), "1,234,567.89");
    EXPECT_EQ(shown_in_dutch(1234567.891, "#,##0.00"), "1.234.567,89");
    EXPECT_EQ(shown_in_dutch(1.5, "0.0"), "1,5");
    EXPECT_EQ(shown_in_dutch(999, "#,##0"), "999");
    EXPECT_EQ(shown(42, "0,000"), "0,042");
    EXPECT_EQ(shown(42, "?,???"), "   42");
}

TEST(Getallen, schalen_met_komma_achter_het_laatste_cijfer) {
    EXPECT_EQ(shown(7654321, "0,"), "7654");
    EXPECT_EQ(shown(7654321, "0.0,,\" mln\""), "7.7 mln");
    EXPECT_EQ(shown(7654321, "#,##0,.00"), "7,654.32");
    EXPECT_EQ(shown_in_dutch(7654321, "0.0,,"), "7,7");
    EXPECT_EQ(shown(7654321, "0\" ,\""), "7654321 ,");
    EXPECT_EQ(shown(7654321, "0 ,"), "7654321 ,");
}

TEST(Getallen, maal_honderd_voor_elk_procentteken) {
    EXPECT_EQ(shown(0.0875, "0.0%"), "8.8%");
    EXPECT_EQ(shown_in_dutch(0.0875, "0.00 %"), "8,75 %");
    EXPECT_EQ(shown(0.5, "0%%"), "5000%%");
    EXPECT_EQ(shown(0.5, "0.0\"%\""), "0.5%");
}

TEST(Getallen, vullen_elk_plaatsje_op_zijn_eigen_manier) {
    EXPECT_EQ(shown(7, "000"), "007");
    EXPECT_EQ(shown(7, "???"), "  7");
    EXPECT_EQ(shown(7, "###"), "7");
    EXPECT_EQ(shown(0, "###"), "");
    EXPECT_EQ(shown(7, "0#"), "07");
    EXPECT_EQ(shown(3.5, "0.0?"), "3.5 ");
    EXPECT_EQ(shown(3.5, "0.0#"), "3.5");
    EXPECT_EQ(shown(3, "0.#"), "3.");
    EXPECT_EQ(shown(0.25, ".00"), ".25");
    EXPECT_EQ(shown(31.25, ".00"), "31.25");
    EXPECT_EQ(shown(98765, "00.00.00"), "98765.00.00");
}

TEST(Getallen, een_komma_achter_de_punt_deelt_door_duizend) {
    EXPECT_EQ(shown(12345, "0.,"), "12.");
    EXPECT_EQ(shown(12345678, "0.,,"), "12.");
    EXPECT_EQ(shown(12345, "\"x\".,"), "x.,"); // no digit in front
}

TEST(Opmaakcode, die_excel_weigert_toont_standaard) {
    for (const auto* code : {"Standaard", "0 punten", "0 \\punteN", "h:mm n", "HH[M]", "HH[MM]", "[h]:[mm]", "[h] h",
                             "mm:[ss]", "[mm] h", "0 d", "yyyy #", "d?", "0;0;0;@;0"}) {
        EXPECT_EQ(shown(1234.5, code), "1234.5") << code;
        EXPECT_EQ(NumberFormat(code).show_text("Amber"), "Amber") << code;
    }
}

TEST(Opmaakcode, die_erop_lijkt_wordt_niet_geweigerd) {
    EXPECT_EQ(shown(7, "\"punten\" 0"), "punten 7");
    EXPECT_EQ(shown(7, "0 \\n"), "7 n");
    EXPECT_EQ(shown(7, "0_n"), "7 ");
    EXPECT_EQ(shown(7, "[Green]0"), "7");
    EXPECT_EQ(shown(1.5, "[h]:mm:ss"), "36:00:00");
    EXPECT_EQ(shown(1.5, "[mm]:ss.00"), "2160:00.00");
    EXPECT_EQ(shown(1.5, "d [h]:mm"), "1 36:00");
    EXPECT_EQ(shown(46346, "yyyy\\0"), "20260");
    EXPECT_EQ(NumberFormat("0;0;0;@ d").show_text("x"), "x ");
}

TEST(Getallen, laten_tekst_tussen_hun_cijfers_toe) {
    EXPECT_EQ(shown(612345678, "00\\-00000000"), "06-12345678");
    EXPECT_EQ(shown(528003, "000000000\\.000"), "000000528.003");
    EXPECT_EQ(shown(31, "0\" paarden\""), "31 paarden");
    EXPECT_EQ(shown(31, "rit\\. 0"), "rit. 31");
    EXPECT_EQ(shown(31, "rit. 0"), "rit31. 0");
    EXPECT_EQ(shown(-31, "\"x\"0"), "-x31");
}

TEST(Getallen, in_wetenschappelijke_notatie_volgen_de_plaatsen_voor_de_punt) {
    EXPECT_EQ(shown(65432, "0.00E+00"), "6.54E+04");
    EXPECT_EQ(shown(0.00065432, "0.0E-0"), "6.5E-4");
    EXPECT_EQ(shown(65432, "0.0E-0"), "6.5E4");
    EXPECT_EQ(shown(65432, "##0.0E+0"), "65.4E+3");
    EXPECT_EQ(shown(999960, "##0.0E+0"), "1.0E+6");
    EXPECT_EQ(shown(9.99, "0.0E+0"), "1.0E+1");
    EXPECT_EQ(shown(-0.0654, "#0.0E+00"), "-6.5E-02");
    EXPECT_EQ(shown(0, "0.0E+0"), "0.0E+0");
    EXPECT_EQ(shown(0.5, ".0E+0"), ".5E+0");
    EXPECT_EQ(shown_in_dutch(65432, "0.00E+00"), "6,54E+04");
}

TEST(Breuken, nemen_de_laatste_benadering_die_past) {
    EXPECT_EQ(shown(2.75, "# ?/?"), "2 3/4");
    EXPECT_EQ(shown(3.14159265, "# ?\?/??"), "3  1/7 ");
    EXPECT_EQ(shown(0.9, "# ?/?"), " 8/9");
    EXPECT_EQ(shown(-0.375, "# ?/?"), "- 3/8");
    EXPECT_EQ(shown(3.14159265, "??\?/???"), "355/113");
    EXPECT_EQ(shown(3.14159265, "# ??\?/???"), "3  16/113");
}

TEST(Breuken, laten_bij_een_geheel_getal_hun_plaats_leeg) {
    EXPECT_EQ(shown(5, "# ?/?"), "5    ");
    EXPECT_EQ(shown(0, "# ?\?/??"), "0      ");
    EXPECT_EQ(shown(5, "# 0/0"), "5 0/1");
    EXPECT_EQ(shown(5, "?/?"), "5/1");
    EXPECT_EQ(shown(4.999, "# ?/?"), "5    ");
}

TEST(Breuken, laten_bij_een_geheel_getal_ook_de_tekst_van_de_breuk_leeg) {
    constexpr auto* letters = "# ?\?/\"a\"?\"a\"0\"a\"";
    EXPECT_EQ(shown(0, letters), "0        a");
    EXPECT_EQ(shown(0.1, letters), "0        a");
    EXPECT_EQ(shown(0.12, letters), "  1/a8a0a");
    EXPECT_EQ(shown(1, letters), "1        a");
    EXPECT_EQ(shown(1.1, letters), "1  1/a9a0a");
    EXPECT_EQ(shown(1.12, letters), "1  1/a8a0a");
    EXPECT_EQ(shown(1, "# \"é\" ? \"a\" / \"b\" ?"), "1            ");
    EXPECT_EQ(shown(1.2, "# \"é\" ? \"a\" / \"b\" ?"), "1 é 1 a / b 5");
    EXPECT_EQ(shown(3, "# ?/16\" el\""), "3      el");
}

TEST(Breuken, vullen_cijfers_achter_hun_noemer_op) {
    EXPECT_EQ(shown(12345.67, "00 00/0z0"), "12345 02/3z0");
    EXPECT_EQ(shown(12345.67, "00 00/? ?"), "12345 02/3  ");
    EXPECT_EQ(shown(12345.67, "00 00/# #"), "12345 02/3 0");
}

TEST(Breuken, met_een_vaste_noemer_ronden_de_teller_af) {
    EXPECT_EQ(shown(7.3, "# ?/8"), "7 2/8");
    EXPECT_EQ(shown(7.97, "# ?\?/16"), "8      ");
    EXPECT_EQ(shown(7.97, "# ?\?/100"), "7 97/100");
    EXPECT_EQ(shown(0.5, "?/12"), "6/12");
}

TEST(Secties, geven_positief_negatief_en_nul_hun_eigen_vorm) {
    const char* three = "\"+\"0;\"min \"0;\"geen\"";
    EXPECT_EQ(shown(4, three), "+4");
    EXPECT_EQ(shown(-4, three), "min 4");
    EXPECT_EQ(shown(0, three), "geen");
    EXPECT_EQ(shown(0, "0;(0)"), "0");
    EXPECT_EQ(shown(-6, "0;(0)"), "(6)");
    EXPECT_EQ(shown(6, ";;;"), "");
    EXPECT_EQ(shown(-6, "0;;"), "");
}

TEST(Secties, laten_kleuren_weg) {
    EXPECT_EQ(shown(4, "[Blue]0;[Red]-0"), "4");
    EXPECT_EQ(shown(-4, "[Blue]0;[Color 12]-0"), "-4");
    EXPECT_EQ(shown(4, "[color5]0.0"), "4.0");
}

TEST(Secties, met_een_voorwaarde_nemen_de_eerste_die_klopt) {
    const char* money = "[>=1000000]0.0,,\"M\";[>=1000]0,\"K\";0";
    EXPECT_EQ(shown(2500000, money), "2.5M");
    EXPECT_EQ(shown(2500, money), "3K");
    EXPECT_EQ(shown(25, money), "25");
    EXPECT_EQ(shown(-25, money), "-25");
}

TEST(Secties, met_een_voorwaarde_die_alleen_negatieve_getallen_toelaat_tonen_geen_minteken) {
    EXPECT_EQ(shown(-8, "[<-5]\"koud \"0;\"warm \"0"), "koud 8");
    EXPECT_EQ(shown(-8, "[<=5]\"koud \"0;\"warm \"0"), "-koud 8");
    EXPECT_EQ(shown(-3, "[<-5]\"koud \"0;\"warm \"0"), "warm 3");
    EXPECT_EQ(shown(-3, "[>5]\"warm \"0;\"koud \"0"), "-koud 3");
    EXPECT_EQ(shown(-3, "[<-5]\"koud \"0"), "3");
    EXPECT_EQ(shown(-3, "[>5]\"warm \"0"), "-3");
}

TEST(Secties, zonder_plaats_voor_een_waarde_tonen_hekjes) {
    EXPECT_EQ(shown(7, "[>10]0;[<5]0"), "######");
    EXPECT_EQ(shown(12, "[>10]0;[<5]0"), "12");
    EXPECT_EQ(shown(0, "0.0;[<-5](0)"), "0.0");
    EXPECT_EQ(shown(-2, "0.0;[<-5](0)"), "######");
}

TEST(Opvulling, wordt_een_spatie_en_herhaling_valt_weg) {
    EXPECT_EQ(shown(12, "0_)"), "12 ");
    EXPECT_EQ(shown(12, "_-* 0_-"), " 12 ");
    EXPECT_EQ(shown(12, "**0"), "12");
    EXPECT_EQ(shown(0, "_-* #,##0_-;-* #,##0_-;_-* \"-\"??_-"), " -   ");
    EXPECT_EQ(shown(12, "0_€."), "12 .");
}

TEST(Valuta, tonen_het_teken_voor_het_streepje_van_de_taal) {
    EXPECT_EQ(shown_in_dutch(1234.5, "[$€-413] #,##0.00"), "€ 1.234,50");
    EXPECT_EQ(shown(1234.5, "#,##0.00 [$EUR]"), "1,234.50 EUR");
    EXPECT_EQ(shown(0.125, "[$-1010409]0.0%"), "12.5%");
    EXPECT_EQ(shown(-3, "\"€\" 0"), "-€ 3");
}

TEST(Tekst, gaat_door_de_tekstsectie) {
    EXPECT_EQ(NumberFormat("0;-0;0;\"ruiter \"@").show_text("Jansen"), "ruiter Jansen");
    EXPECT_EQ(NumberFormat("_(* 0_);_(@_)").show_text("ONWAAR"), " ONWAAR ");
    EXPECT_EQ(NumberFormat("@@").show_text("é"), "éé");
    EXPECT_EQ(NumberFormat("0;0;0;").show_text("Jansen"), "");
    EXPECT_EQ(NumberFormat("0;0;0;General \"!\"").show_text("Jansen"), "Jansen !");
}

TEST(Tekst, sectie_toont_leestekens_letterlijk) {
    EXPECT_EQ(NumberFormat("0;0;0;@ (1/2), 3.5:").show_text("ring"), "ring (1/2), 3.5:");
}

TEST(Tekst, zonder_tekstsectie_blijft_zoals_zij_is) {
    EXPECT_EQ(NumberFormat("0.00_)").show_text("n.v.t."), "n.v.t.");
    EXPECT_EQ(NumberFormat("\"ja\";\"nee\";\"nul\"").show_text("misschien"), "misschien");
    EXPECT_EQ(NumberFormat("").show_text(""), "");
}

TEST(Tekst, opmaak_toont_een_getal_als_standaard) {
    EXPECT_EQ(shown(1.25, "@"), "1.25");
    EXPECT_EQ(shown(-3e12, "\"nr \"@"), "-3E+12");
    EXPECT_EQ(shown_in_dutch(1.25, "@"), "1,25");
}

TEST(Vreemde_codes, worden_getoond_zo_goed_als_het_gaat) {
    EXPECT_EQ(shown(5, "\"open"), "open");
    EXPECT_EQ(shown(5, "0\\"), "5");
    EXPECT_EQ(shown(5, "0_"), "5");
    EXPECT_EQ(shown(5, "0*"), "5");
    EXPECT_EQ(shown(5, "0;0;0;0;0"), "5");
    EXPECT_EQ(shown(5, "[>x]0"), "5");
    EXPECT_EQ(shown(5, "[]0"), "5");
    EXPECT_EQ(shown(5, "007"), "057");
    EXPECT_EQ(shown(5, "EUR 0"), "EUR 5");
    EXPECT_EQ(shown(5, "0 beer"), "5 beer");
}

TEST(Vreemde_waarden, geven_een_fout_of_hun_cijfers) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(shown(infinity, "0"), "#NUM!");
    EXPECT_EQ(shown_in_dutch(-infinity, "0"), "#GETAL!");
    EXPECT_EQ(shown(std::nan(""), "yyyy"), "#NUM!");
    EXPECT_EQ(shown(1e308, "0").size(), 309U);
    EXPECT_EQ(shown(1e308, "#,##0").size(), 411U);
    EXPECT_EQ(shown(5e-324, "0.00E+000"), "5.00E-324");
    EXPECT_EQ(shown(5e-324, "0.0"), "0.0");
    EXPECT_EQ(shown(1e308, "# ?/?"), "1" + std::string(308, '0') + "    ");
}

TEST(Getoond_getal, neemt_de_plaats_in_van_wat_er_stond) {
    const Locale& dutch = locale_named("nl-NL");
    std::string text = "Ruiter";
    NumberFormat("0.00").show_number(65.125, DateSystem::from_1900, dutch, text);
    EXPECT_EQ(text, "65,13");
    NumberFormat("").show_number(7, DateSystem::from_1900, dutch, text);
    EXPECT_EQ(text, "7");
    NumberFormat("hh:mm").show_number(0.5, DateSystem::from_1900, dutch, text);
    EXPECT_EQ(text, "12:00");
    NumberFormat("hh:mm").show_number(-1, DateSystem::from_1900, dutch, text);
    EXPECT_EQ(text, "######"); // no time lies before midnight
}

TEST(Lange_codes, blijven_binnen_hun_eigen_maat) {
    const std::string zeros(1'000'000, '0');
    EXPECT_EQ(shown(7, zeros).size(), zeros.size());
    EXPECT_EQ(shown(0.5, "0." + zeros), "0.5" + zeros.substr(1));
    EXPECT_EQ(shown(7, "0E+" + zeros).size(), zeros.size() + 3);
    EXPECT_EQ(shown(0.5, "?/" + zeros).size(), zeros.size() + 2);
    EXPECT_EQ(shown(7, "# ?/" + zeros).size(), zeros.size() + 4);
    EXPECT_EQ(shown(7, "0" + std::string(100'000, 'x')).size(), 100'001U);
    EXPECT_EQ(shown(7, "0" + std::string(100'000, 'g')).size(), 100'001U);
    EXPECT_EQ(shown(1, "[" + std::string(100'000, 'h') + "]").size(), 100'000U);
    EXPECT_EQ(shown(7, std::string(100'000, '[')).size(), 100'000U);
    EXPECT_EQ(shown(7, "0" + std::string(100'000, ',')), "0");
    EXPECT_LE(shown(7, "0" + std::string(100'000, '%')).size(), 100'050U);
}

} // namespace
} // namespace tavelo
