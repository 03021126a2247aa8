#include "schedule/record/kolommen.h"
#include "ui/main/nummer_typen.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using std::chrono::milliseconds;

Grid lijst_met(const std::vector<std::string>& nummers) {
    Grid grid;
    grid.set_columns(kolom_laatste + 1);
    grid.set_rows(1);
    for (const std::string& nummer : nummers)
        grid.set_text(grid.append_row(), kolom_inr, nummer);
    return grid;
}

TEST(NummerTypen, een_nummer_van_de_lijst_begint_met_zijn_cijfers) {
    const Grid lijst = lijst_met({"17", "230", "P", ""});
    for (const char* begin : {"1", "17", "2", "23", "230"})
        EXPECT_TRUE(begint_een_nummer(lijst, begin)) << begin;
    for (const char* ander : {"7", "171", "24", "2300", "72", "9"})
        EXPECT_FALSE(begint_een_nummer(lijst, ander)) << ander;
}

TEST(NummerTypen, spaties_en_nullen_vooraan_doen_er_niet_toe) {
    const Grid lijst = lijst_met({"17", "008"});
    for (const char* begin : {"  1", "01", "0017", "0", "00", "8", "08"})
        EXPECT_TRUE(begint_een_nummer(lijst, begin)) << begin;
    EXPECT_FALSE(begint_een_nummer(lijst, "07"));
}

TEST(NummerTypen, wat_geen_cijfers_zijn_begint_geen_nummer) {
    const Grid lijst = lijst_met({"17", "1"});
    for (const char* tekst : {"a1", "1a", "1 7", "1.", "1.7", "&H1", "1e", "17 ", "--1"}) {
        EXPECT_TRUE(begint_een_nummer(lijst, "1")); // and nothing of it is left behind
        EXPECT_FALSE(begint_een_nummer(lijst, tekst)) << tekst;
    }
}

TEST(NummerTypen, alleen_nummers_die_het_vak_kan_vinden_tellen) {
    const Grid lijst = lijst_met({"40000", "5.5", "0", "x", "-31"});
    for (const char* tekst : {"4", "5", "6", "3"})
        EXPECT_FALSE(begint_een_nummer(lijst, tekst)) << tekst;
    EXPECT_TRUE(begint_een_nummer(lijst, "-3"));
    EXPECT_FALSE(begint_een_nummer(lijst, "-4"));
    EXPECT_FALSE(begint_een_nummer(lijst_met({}), "1"));
    EXPECT_FALSE(begint_een_nummer(lijst_met({}), "0"));
}

TEST(NummerTypen, na_anderhalve_seconde_begint_een_cijfer_dat_niet_kan_vervolgen_een_nieuw_nummer) {
    const Grid lijst = lijst_met({"72", "1", "17"});
    EXPECT_TRUE(begint_nieuw_nummer(lijst, "721", milliseconds(1500)));
    EXPECT_TRUE(begint_nieuw_nummer(lijst, "721", milliseconds(60'000)));
    EXPECT_FALSE(begint_nieuw_nummer(lijst, "721", milliseconds(1499)));
    EXPECT_FALSE(begint_nieuw_nummer(lijst, "721", milliseconds(0)));
}

TEST(NummerTypen, een_cijfer_dat_kan_vervolgen_doet_dat_altijd) {
    const Grid lijst = lijst_met({"72", "1", "17"});
    EXPECT_FALSE(begint_nieuw_nummer(lijst, "17", milliseconds(60'000)));
    EXPECT_FALSE(begint_nieuw_nummer(lijst, "7", milliseconds(60'000)));
}

TEST(NummerTypen, op_een_lijst_zonder_nummers_begint_na_een_pauze_elk_cijfer_opnieuw) {
    EXPECT_TRUE(begint_nieuw_nummer(lijst_met({"", "P"}), "12", milliseconds(1500)));
    EXPECT_FALSE(begint_nieuw_nummer(lijst_met({"", "P"}), "12", milliseconds(500)));
}

} // namespace
} // namespace tavelo
