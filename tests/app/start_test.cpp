#include "app/start.h"

#include "fakes/seams.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::FakePointer;
using test::FakeSettings;

// Notes in which order it is asked, and what the program knew by then.
struct ProefVenster final : Hoofdvenster {
    ProefVenster(const Programma& p, const FakePointer& m, const FakeSettings& o) : programma(p), muis(m), opslag(o) {}
    const Programma& programma;
    const FakePointer& muis;
    const FakeSettings& opslag;
    std::vector<std::string> stappen;

    void noteer(const std::string& stap) {
        stappen.push_back(stap + (muis.depth > 0 ? " bezig" : "") + (opslag.flushes > 0 ? " bewaard" : ""));
    }
    void laad() override {
        noteer("laad " + programma.instellingen.fontname + (programma.muiswiel_aanwezig ? " wiel" : ""));
    }
    void sluit_andere_vensters() override { noteer("sluit andere"); }
    void muiswiel_unhook() override { noteer("unhook"); }
};

struct Start : testing::Test {
    Programma programma;
    FakeSettings opslag;
    FakePointer muis;
    ProefVenster venster{programma, muis, opslag};
    using Stappen = std::vector<std::string>;
};

TEST_F(Start, leest_eerst_de_instellingen_dan_het_wiel_en_laadt_dan_het_venster) {
    std::string letter_bij_wiel;
    const auto wiel = [&] {
        letter_bij_wiel = programma.instellingen.fontname;
        return true;
    };
    Main(programma, opslag, wiel, venster);
    EXPECT_EQ(letter_bij_wiel, "Arial");
    EXPECT_TRUE(programma.muiswiel_aanwezig);
    EXPECT_EQ(venster.stappen, Stappen{"laad Arial wiel"});
    EXPECT_TRUE(opslag.values.empty());
}

TEST_F(Start, zonder_wiel_blijft_de_vlag_uit) {
    Main(
        programma, opslag, [] { return false; }, venster);
    EXPECT_FALSE(programma.muiswiel_aanwezig);
    EXPECT_EQ(venster.stappen, Stappen{"laad Arial"});
}

TEST_F(Start, afsluiten_sluit_vensters_haalt_het_wiel_los_en_bewaart_als_laatste) {
    Main(
        programma, opslag, [] { return true; }, venster);
    venster.stappen.clear();
    sluit_af(programma, opslag, muis, venster);
    EXPECT_EQ(venster.stappen, (Stappen{"sluit andere bezig", "unhook bezig"}));
    EXPECT_EQ(opslag.flushes, 1);
    EXPECT_EQ(muis.depth, 0);
    EXPECT_EQ(muis.times_busy, 1);
}

TEST_F(Start, zonder_wiel_wordt_er_niets_losgehaald) {
    Main(
        programma, opslag, [] { return false; }, venster);
    venster.stappen.clear();
    sluit_af(programma, opslag, muis, venster);
    EXPECT_EQ(venster.stappen, Stappen{"sluit andere bezig"});
}

TEST_F(Start, na_een_gewone_sluiting_staan_alle_instellingen_als_gewone_tekst_in_de_opslag) {
    Main(
        programma, opslag, [] { return true; }, venster);
    programma.instellingen.showrubric = 1;
    sluit_af(programma, opslag, muis, venster);
    EXPECT_EQ(opslag.values.size(), 35U);
    const auto bewaard = [&](const char* sectie, const char* sleutel) {
        return opslag.get("Vendalo 3.5 Deelnemer", sectie, sleutel);
    };
    EXPECT_EQ(bewaard("Layout", "backcolor"), "16777215");
    EXPECT_EQ(bewaard("Layout", "forecolor"), "0");
    EXPECT_EQ(bewaard("Layout", "showrubric"), "1");
    EXPECT_EQ(bewaard("Layout", "fontname"), "Arial");
    EXPECT_EQ(bewaard("Layout", "numbersize"), std::nullopt);
}

TEST_F(Start, de_instellingen_worden_een_keer_bewaard_hoe_vaak_er_ook_wordt_afgesloten) {
    Main(
        programma, opslag, [] { return false; }, venster);
    programma.instellingen.showrubric = 1;
    bewaar_bij_afsluiten(programma, opslag);
    EXPECT_EQ(opslag.get("Vendalo 3.5 Deelnemer", "Layout", "showrubric"), "1");
    EXPECT_TRUE(programma.afgesloten);
    programma.instellingen.showrubric = 0;
    bewaar_bij_afsluiten(programma, opslag);
    sluit_af(programma, opslag, muis, venster);
    EXPECT_EQ(opslag.flushes, 1);
    EXPECT_EQ(opslag.get("Vendalo 3.5 Deelnemer", "Layout", "showrubric"), "1");
}

TEST_F(Start, wat_in_een_open_dialoog_veranderd_is_wordt_niet_bewaard) {
    Main(
        programma, opslag, [] { return false; }, venster);
    programma.instellingen.lastfolder = "/map/";
    programma.instellingen_bij_annuleren = programma.instellingen;
    programma.instellingen.textsize = 200;
    bewaar_bij_afsluiten(programma, opslag);
    EXPECT_EQ(opslag.get("Vendalo 3.5 Deelnemer", "Layout", "textsize"), "100");
    EXPECT_EQ(opslag.get("Vendalo 3.5 Deelnemer", "Files", "lastfolder"), "/map/");
}

} // namespace
} // namespace tavelo
