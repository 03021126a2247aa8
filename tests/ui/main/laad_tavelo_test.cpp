#include "ui/main/laad_tavelo.h"

#include "fakes/grid_events.h"
#include "fakes/opstelling.h"
#include "fakes/temp_folder.h"
#include "schedule/record/kolommen.h"

#include <gtest/gtest.h>

#include <functional>

namespace tavelo {
namespace {

struct ProefTavelo final : TaveloVenster {
    explicit ProefTavelo(const Programma& p) : programma(p) {}
    const Programma& programma;
    std::vector<std::string> stappen;

    void noteer(const std::string& stap) {
        stappen.push_back(stap + " kolommen=" + std::to_string(programma.grdRooster.columns()) +
                          " paden=" + (programma.paden.app_pad.empty() ? "nee" : "ja") +
                          " breedte=" + std::to_string(programma.grdRooster.column_width(kolom_naam)) +
                          " zoekt=" + (programma.zoek_op_nummer ? "ja" : "nee"));
    }
    void bouw_menu() override { noteer("menu"); }
    std::function<void()> tijdens_intro = [] {};
    void toon_intro() override {
        noteer("intro");
        tijdens_intro();
    }
    void muiswiel_hook() override { noteer("wiel"); }
    void toon_venster() override { noteer("venster"); }
};

struct LaadTavelo : testing::Test {
    Programma programma;
    test::FakeMeasure meter;
    test::FakeMessages berichten;
    test::FakeOpenDialog open_dialoog;
    test::FakeFileStamp tijdstempels;
    test::FakeClock klok;
    test::FakePointer muisaanwijzer;
    test::FakeSkipLog logboek;
    test::NoExcel excel;
    Bediening bediening{
        programma, {meter, berichten, open_dialoog, tijdstempels, klok, muisaanwijzer, logboek, excel}, {}, {}};
    test::TempFolder map;
    test::FakeSettings opslag;
    test::FakeSpecialFolders mappen;
    ProefTavelo venster{programma};

    void laad() {
        mappen.folders[5] = map.file("documenten");
        laad_tavelo(bediening, venster, map.file("programma"), opslag, mappen);
    }
};

TEST_F(LaadTavelo, een_einde_tijdens_het_beginscherm_toont_geen_venster_meer) {
    programma.muiswiel_aanwezig = true;
    venster.tijdens_intro = [this] { programma.afgesloten = true; };
    laad();
    ASSERT_EQ(venster.stappen.size(), 2U);
    EXPECT_TRUE(venster.stappen.back().starts_with("intro"));
}

TEST_F(LaadTavelo, zet_de_stappen_in_hun_volgorde) {
    programma.muiswiel_aanwezig = true;
    laad();
    EXPECT_EQ(venster.stappen, (std::vector<std::string>{
                                   "menu kolommen=0 paden=nee breedte=0 zoekt=nee",
                                   "intro kolommen=11 paden=ja breedte=960 zoekt=nee",
                                   "wiel kolommen=11 paden=ja breedte=960 zoekt=nee",
                                   "venster kolommen=11 paden=ja breedte=2400 zoekt=ja",
                               }));
}

TEST_F(LaadTavelo, zonder_wiel_komt_er_geen_haak) {
    laad();
    EXPECT_EQ(venster.stappen.size(), 3U);
}

TEST_F(LaadTavelo, eindigt_met_een_leeg_rooster_en_het_bijschrift_naamloos) {
    programma.bijschrift = "iets anders";
    laad();
    EXPECT_EQ(programma.bijschrift, "Vendalo 3.5 Tavelo - [naamloos]");
    EXPECT_EQ(programma.grdRooster.rows(), 1);
    EXPECT_EQ(programma.grdRooster.columns(), 11);
    EXPECT_EQ(programma.grdRooster.column_width(kolom_cnr), 0);
    EXPECT_TRUE(berichten.shown.empty());
}

} // namespace
} // namespace tavelo
