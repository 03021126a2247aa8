#include "fakes/grid_events.h"
#include "fakes/opstelling.h"
#include "schedule/record/kolommen.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

struct Kolom {
    std::string titel;
    CellAlignment uitlijning;
    int breedte; // twips
};

constexpr auto links = CellAlignment::left_centre;
constexpr auto midden = CellAlignment::centre_centre;
constexpr auto rechts = CellAlignment::right_centre;

// The eleven columns once more, by index.
const std::vector<Kolom> kolommen = {
    {"nr.--tijd", rechts, 1020}, {"Inr", rechts, 480}, {"Hnr", rechts, 480},        {"Cnr", links, 0},
    {"Naam", links, 2400},       {"HC", midden, 480},  {"Paard/Pony", links, 1680}, {"Vader", links, 1680},
    {"Vereniging", links, 1680}, {"Kl.", midden, 660}, {"Cat.", midden, 660},
};

TEST(RoosterGrid, de_kolommen_hebben_hun_vaste_plaats) {
    EXPECT_EQ((std::vector{kolom_nrtijd, kolom_inr, kolom_hnr, kolom_cnr, kolom_naam, kolom_hc, kolom_paard,
                           kolom_vader, kolom_vereniging, kolom_kl, kolom_cat, kolom_laatste}),
              (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 10}));
    EXPECT_EQ(static_cast<int>(links), 1);
    EXPECT_EQ(static_cast<int>(midden), 4);
    EXPECT_EQ(static_cast<int>(rechts), 7);
}

TEST(RoosterGrid, na_de_start_staat_er_een_titelrij_van_elf_kolommen) {
    test::Opstelling o;
    wis_rooster(o.bediening);
    const Grid& grid = o.programma.grdRooster;
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.fixed_rows(), 1);
    ASSERT_EQ(grid.columns(), 11);
    for (int kolom = 0; kolom < grid.columns(); ++kolom) {
        const Kolom& verwacht = kolommen[static_cast<std::size_t>(kolom)];
        EXPECT_EQ(grid.text(0, kolom), verwacht.titel) << kolom;
        EXPECT_EQ(grid.column_alignment(kolom), verwacht.uitlijning) << verwacht.titel;
        EXPECT_EQ(grid.column_width(kolom), verwacht.breedte) << verwacht.titel;
    }
}

TEST(RoosterGrid, de_kolom_cnr_is_nooit_te_zien) {
    test::Opstelling o;
    o.programma.grdRooster.set_column_width(kolom_cnr, 500);
    wis_rooster(o.bediening);
    EXPECT_EQ(o.programma.grdRooster.column_width(kolom_cnr), 0);
}

TEST(RoosterGrid, inrichten_haalt_oude_rijen_weg) {
    Grid grid;
    grid.set_columns(3);
    grid.set_rows(5);
    richt_grid_in(grid);
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.columns(), 11);
}

TEST(RoosterGrid, wissen_zet_versleepte_kolommen_terug) {
    test::Opstelling o;
    Grid& grid = o.programma.grdRooster;
    for (int kolom = 0; kolom < grid.columns(); ++kolom)
        grid.set_column_width(kolom, 77);
    wis_rooster(o.bediening);
    for (int kolom = 0; kolom < grid.columns(); ++kolom)
        EXPECT_EQ(grid.column_width(kolom), kolommen[static_cast<std::size_t>(kolom)].breedte) << kolom;
}

TEST(RoosterGrid, wissen_leegt_het_rooster_en_laat_de_titelrij_staan) {
    test::Opstelling o;
    Programma& p = o.programma;
    p.grdRooster.set_text(0, kolom_paard, "Paard");
    p.grdRooster.set_rows(4);
    p.schedule.zet_deelnemer(0, "na:Nul");
    p.schedule.zet_deelnemer(4000, "na:Jan");
    p.schedule.zet_rubriek(1, "oms:Proef");
    p.schedule.zet_rubriek(2000, "oms:Proef");
    p.schedule.rubriek_record = "rkla:*B*";
    p.schedule.rubriek_nummer = 7;
    wis_rooster(o.bediening);
    EXPECT_EQ(p.grdRooster.rows(), 1);
    EXPECT_EQ(p.grdRooster.text(0, kolom_paard), "Paard");
    EXPECT_EQ(p.schedule.deelnemer(0), "");
    EXPECT_EQ(p.schedule.deelnemer(4000), "");
    EXPECT_EQ(p.schedule.rubriek(1), RubriekLijstRecord());
    EXPECT_EQ(p.schedule.rubriek(2000), RubriekLijstRecord());
    EXPECT_EQ(p.schedule.rubriek_record, "");
    EXPECT_EQ(p.schedule.rubriek_nummer, 1);
}

TEST(RoosterGrid, wissen_begint_een_lege_rubriek) {
    test::Opstelling o;
    Programma& p = o.programma;
    p.schedule.huidige_rubriek.rcom = 8;
    p.schedule.huidige_rubriek.rkla = "*B*";
    p.schedule.huidige_rubriek.rjn[0] = "Mevrouw De Vries";
    p.labels = {"rubriek", "omschrijving", "ringtype", "Ring 2", "zaterdag", "lijsten", "jury"};
    wis_rooster(o.bediening);
    EXPECT_EQ(p.schedule.huidige_rubriek.rcom, 0);
    EXPECT_EQ(p.schedule.huidige_rubriek.rkla, "");
    EXPECT_EQ(p.schedule.huidige_rubriek.rpkl, 1);
    EXPECT_EQ(p.schedule.huidige_rubriek.rjp, (std::array<std::string, 5>{"C", "H", "M", "E", "B"}));
    EXPECT_EQ(p.schedule.huidige_rubriek.rjn, (std::array<std::string, 5>{}));
    EXPECT_EQ(p.labels.lblRubriek, "");
    EXPECT_EQ(p.labels.lblRoosterOmschrijving, "omschrijving"); // belongs to the schedule
    EXPECT_EQ(p.labels.lblRingType, "");
    EXPECT_EQ(p.labels.lblRingNaam, "Ring");
    EXPECT_EQ(p.labels.lblDagTijd, "");
    EXPECT_EQ(p.labels.lblRubriekLijsten, "");
    EXPECT_EQ(p.labels.lblJury, "");
}

} // namespace
} // namespace tavelo
