#include "excel/fake_excel.h"
#include "fakes/grid_events.h"
#include "fakes/opstelling.h"
#include "fakes/read_faults.h"
#include "fakes/temp_folder.h"
#include "schedule/record/kolommen.h"
#include "ui/main/open_rooster.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>

namespace tavelo {
namespace {

constexpr const char* dialoog_filter = "Roosterbestanden (*.rst)|*.rst|Excel bestanden (*.xls;*.xlsx))|*.xls;*.xlsx";

// A schedule of dressage class B on Saturday from 9:05, with these numbers (each of a rider "Ruiter N").
std::string roostertekst(const std::vector<int>& nummers) {
    std::string combinaties;
    std::string rubriek = "rnr:1\trcom:0\trkla:*B*\trcat:*C*\troms:Proef 1\trring:2\trtype:Ring\trdag:5\truty:9\trmty:5"
                          "\trpty:6\trsar:1\trtvko:3";
    for (const int nummer : nummers) {
        const std::string n = std::to_string(nummer);
        combinaties += "dnr:" + n + "\tna:Ruiter " + n + "\r\n";
        rubriek += "\tdnr:" + n + "\t\t\t\t\t\t";
    }
    return "[Vendalo 3.4]\r\n" + combinaties + rubriek + "\r\n";
}

struct OpenRooster : testing::Test, test::Opstelling {
    test::TempFolder map;
    Programma& p = programma;

    OpenRooster() {
        p.paden.mijn_bestanden = map.file("mijn") + "/";
        std::filesystem::create_directory(map.file("mijn"));
        std::filesystem::create_directory(map.file("laatst"));
        wis_rooster(bediening);
    }
    [[nodiscard]] std::string pad(const std::string& naam) const { return map.file("laatst/" + naam); }
    std::string schrijf(const std::string& naam, const std::vector<int>& nummers) {
        map.write("laatst/" + naam, roostertekst(nummers));
        tijdstempels.stamps[pad(naam)] = {2026, 6, 13, 8, 5, 9};
        return pad(naam);
    }
    // The dialog answers with this file, or with a cancel.
    void kies_in_dialoog(const std::optional<std::string>& antwoord, int slot) {
        open_dialoog.answer = antwoord;
        open_rooster(bediening, "", slot);
    }
    [[nodiscard]] test::Texts nummers() const { return test::column_texts(p.grdRooster, kolom_inr); }
    [[nodiscard]] std::vector<std::string> bestanden() const {
        std::vector<std::string> namen;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(map.file("")))
            if (entry.is_regular_file()) namen.push_back(entry.path().filename().string());
        return namen;
    }
    void verwacht_slot(int slot, const RoosterSlot& verwacht) const {
        const RoosterSlot& s = p.slots[static_cast<std::size_t>(slot)];
        EXPECT_EQ(s.bestand, verwacht.bestand);
        EXPECT_EQ(s.tijdstempel, verwacht.tijdstempel);
        EXPECT_EQ(s.extensie, verwacht.extensie);
    }
};

// ---- the dialog

TEST_F(OpenRooster, de_dialoog_vraagt_om_roosters_en_werkmappen) {
    p.instellingen.lastfolder = map.file("laatst") + "/";
    kies_in_dialoog(std::nullopt, 0);
    ASSERT_EQ(open_dialoog.requests.size(), 1U);
    EXPECT_EQ(open_dialoog.requests[0].folder, map.file("laatst") + "/");
    EXPECT_EQ(open_dialoog.requests[0].filter, dialoog_filter);
    EXPECT_EQ(open_dialoog.requests[0].filter_index, 1);
}

TEST_F(OpenRooster, zonder_laatste_map_begint_de_dialoog_in_mijn_bestanden) {
    kies_in_dialoog(std::nullopt, 0);
    EXPECT_EQ(open_dialoog.requests.at(0).folder, map.file("mijn") + "/");
}

TEST_F(OpenRooster, een_verdwenen_laatste_map_wordt_mijn_bestanden) {
    p.instellingen.lastfolder = map.file("verdwenen") + "/";
    kies_in_dialoog(std::nullopt, 0);
    EXPECT_EQ(open_dialoog.requests.at(0).folder, map.file("mijn") + "/");
    EXPECT_EQ(p.instellingen.lastfolder, map.file("verdwenen") + "/"); // a cancel changes no setting
    EXPECT_TRUE(bestanden().empty());
}

TEST_F(OpenRooster, een_map_waarin_niets_te_maken_is_wordt_mijn_bestanden) {
    map.write("bestand", "geen map");
    p.instellingen.lastfolder = map.file("bestand") + "/";
    kies_in_dialoog(std::nullopt, 0);
    EXPECT_EQ(open_dialoog.requests.at(0).folder, map.file("mijn") + "/");

    std::filesystem::create_directory(map.file("laatst/~tmp.tmp")); // the probe cannot be made
    p.instellingen.lastfolder = map.file("laatst") + "/";
    kies_in_dialoog(std::nullopt, 0);
    EXPECT_EQ(open_dialoog.requests.at(1).folder, map.file("mijn") + "/");
}

TEST_F(OpenRooster, de_proef_laat_nergens_een_bestand_achter) {
    p.instellingen.lastfolder = map.file("laatst") + "/";
    kies_in_dialoog(std::nullopt, 0);
    p.instellingen.lastfolder.clear();
    kies_in_dialoog(std::nullopt, 1);
    EXPECT_TRUE(bestanden().empty());
}

TEST_F(OpenRooster, zijn_ook_mijn_bestanden_weg_dan_begint_de_dialoog_daar_toch) {
    p.instellingen.lastfolder = map.file("verdwenen") + "/";
    p.paden.mijn_bestanden = map.file("ook weg") + "/";
    kies_in_dialoog(std::nullopt, 0);
    EXPECT_EQ(open_dialoog.requests.at(0).folder, map.file("ook weg") + "/");
}

TEST_F(OpenRooster, het_filter_volgt_de_soort_van_het_slot) {
    p.slots[0].extensie = "rst";
    p.slots[1].extensie = "xls";
    kies_in_dialoog(std::nullopt, 1);
    EXPECT_EQ(open_dialoog.requests.at(0).filter_index, 2);
    p.rooster_extensie = "xls"; // the current file does not count
    kies_in_dialoog(std::nullopt, 0);
    EXPECT_EQ(open_dialoog.requests.at(1).filter_index, 1);
    p.slots[1].extensie = "";
    kies_in_dialoog(std::nullopt, 1);
    EXPECT_EQ(open_dialoog.requests.at(2).filter_index, 1);
}

TEST_F(OpenRooster, met_een_naam_komt_er_geen_dialoog) {
    schrijf("a.rst", {3});
    kies_bestand(bediening, pad("a.rst"), 0);
    open_rooster(bediening, pad("a.rst"), 0);
    EXPECT_TRUE(open_dialoog.requests.empty());
    EXPECT_EQ(nummers(), test::Texts{"3"});
}

// ---- choosing a file

TEST_F(OpenRooster, een_gekozen_rooster_wordt_het_huidige_en_staat_in_zijn_slot) {
    const std::string bestand = schrijf("a.rst", {3, 12});
    kies_in_dialoog(bestand, 1);
    EXPECT_EQ(p.rooster_bestand, bestand);
    EXPECT_EQ(p.rooster_tijdstempel, "20260613080509");
    EXPECT_EQ(p.rooster_extensie, "rst");
    EXPECT_EQ(p.instellingen.lastfolder, map.file("laatst") + "/");
    verwacht_slot(1, {bestand, "20260613080509", "rst"});
    verwacht_slot(0, {});
}

TEST_F(OpenRooster, na_het_openen_staan_rijen_tijden_labels_en_bijschrift_er) {
    const std::string bestand = schrijf("a.rst", {3, 12});
    kies_in_dialoog(bestand, 0);
    const Grid& grid = p.grdRooster;
    EXPECT_EQ(nummers(), (test::Texts{"3", "12"}));
    EXPECT_EQ(test::column_texts(grid, kolom_naam), (test::Texts{"Ruiter 3", "Ruiter 12"}));
    EXPECT_EQ(test::column_texts(grid, kolom_nrtijd), (test::Texts{"1--09:05", "2--09:11"}));
    EXPECT_EQ(grid.text(0, kolom_nrtijd), "nr.--tijd");
    EXPECT_EQ(grid.text(0, kolom_paard), "Paard");
    EXPECT_EQ(grid.row(), 1);
    EXPECT_EQ(grid.column(), 3);
    EXPECT_EQ(p.labels.lblRubriek, "Dressuur, Klasse B, Categorie C");
    EXPECT_EQ(p.labels.lblRoosterOmschrijving, "Ring 2, Proef 1");
    EXPECT_EQ(p.labels.lblRingType, "Dressuur");
    EXPECT_EQ(p.labels.lblDagTijd, "zaterdag 9:05 uur");
    EXPECT_EQ(p.bijschrift, "B dres. cat C     -     " + bestand + "     -     Proef 1");
    EXPECT_TRUE(berichten.shown.empty());
}

TEST_F(OpenRooster, tijdens_het_vullen_ziet_een_beeld_niets_en_de_zandloper_staat_aan) {
    test::GridEvents gebeurtenissen;
    p.grdRooster.set_listener(&gebeurtenissen);
    kies_in_dialoog(schrijf("a.rst", {3, 12}), 0);
    p.grdRooster.set_listener(nullptr);
    EXPECT_TRUE(gebeurtenissen.inserted.empty());
    EXPECT_TRUE(gebeurtenissen.cells.empty());
    EXPECT_TRUE(p.grdRooster.redraw());
    EXPECT_EQ(muisaanwijzer.times_busy, 1);
    EXPECT_EQ(muisaanwijzer.depth, 0);
}

TEST_F(OpenRooster, de_extensie_bepaalt_de_soort_zonder_op_hoofdletters_te_letten) {
    for (const auto& [naam, soort] : std::vector<std::pair<std::string, std::string>>{{"a.rst", "rst"},
                                                                                      {"a.RST", "rst"},
                                                                                      {"a.b.Rst", "rst"},
                                                                                      {"plan.xls", "xls"},
                                                                                      {"plan.XLSX", "xls"},
                                                                                      {"plan.xlsm", ""},
                                                                                      {"plan.txt", ""},
                                                                                      {"rst", ""},
                                                                                      {"a.rst.oud", ""}}) {
        kies_bestand(bediening, pad(naam), 0);
        EXPECT_EQ(p.rooster_extensie, soort) << naam;
        EXPECT_EQ(p.slots[0].extensie, soort) << naam;
    }
}

TEST_F(OpenRooster, een_werkmap_geeft_de_volgende_keer_het_tweede_filter) {
    kies_in_dialoog(pad("plan.XLSX"), 0);
    verwacht_slot(0, {pad("plan.XLSX"), "", "xls"});
    kies_in_dialoog(std::nullopt, 0);
    EXPECT_EQ(open_dialoog.requests.at(1).filter_index, 2);
}

TEST_F(OpenRooster, de_laatste_map_loopt_tot_en_met_de_laatste_scheiding) {
    for (const auto& [gekozen, verwacht] :
         std::vector<std::pair<std::string, std::string>>{{"/home/jan/a.rst", "/home/jan/"},
                                                          {"D:\\Data\\a.rst", "D:\\Data\\"},
                                                          {"D:a.rst", "D:"},
                                                          {"  /x/a.rst  ", "/x/"},
                                                          {"a.rst", ""}}) {
        kies_bestand(bediening, gekozen, 0);
        EXPECT_EQ(p.instellingen.lastfolder, verwacht) << gekozen;
        EXPECT_EQ(p.rooster_bestand, gekozen);
    }
}

TEST_F(OpenRooster, een_bestand_zonder_tijd_heeft_een_lege_stempel) {
    tijdstempels.stamps.clear();
    kies_bestand(bediening, pad("a.rst"), 0);
    EXPECT_EQ(p.rooster_tijdstempel, "");
}

TEST_F(OpenRooster, een_bestand_met_een_andere_extensie_geeft_een_leeg_rooster_maar_wordt_onthouden) {
    kies_in_dialoog(schrijf("a.rst", {3, 12}), 0);
    const std::string bijschrift = p.bijschrift;
    const std::string tekst = schrijf("a.txt", {5});
    kies_in_dialoog(tekst, 0);
    EXPECT_EQ(p.grdRooster.rows(), 1);
    EXPECT_EQ(p.rooster_bestand, tekst);
    EXPECT_EQ(p.rooster_extensie, "");
    verwacht_slot(0, {tekst, "20260613080509", ""});
    EXPECT_EQ(p.bijschrift, bijschrift); // only what is read changes it
    EXPECT_EQ(p.labels.lblRubriek, "");
    EXPECT_TRUE(berichten.shown.empty());
}

// ---- cancelling

TEST_F(OpenRooster, na_annuleren_wordt_het_huidige_bestand_opnieuw_gelezen) {
    kies_in_dialoog(schrijf("a.rst", {3}), 0);
    schrijf("a.rst", {3, 12});
    tijdstempels.stamps[pad("a.rst")].hour = 20;
    kies_in_dialoog(std::nullopt, 0);
    EXPECT_EQ(nummers(), (test::Texts{"3", "12"}));
    verwacht_slot(0, {pad("a.rst"), "20260613080509", "rst"}); // the stamp stays that of the choice
    EXPECT_EQ(p.rooster_tijdstempel, "20260613080509");
}

TEST_F(OpenRooster, annuleren_vanuit_het_menu_geeft_het_slot_het_huidige_bestand_van_het_andere) {
    kies_in_dialoog(schrijf("a.rst", {3}), 0);
    p.slots[1] = {pad("b.xls"), "20250101000000", "xls"};
    kies_in_dialoog(std::nullopt, 1);
    verwacht_slot(1, {pad("a.rst"), "20260613080509", "rst"});
    verwacht_slot(0, {pad("a.rst"), "20260613080509", "rst"});
    EXPECT_EQ(nummers(), test::Texts{"3"});
}

TEST_F(OpenRooster, annuleren_zonder_huidig_bestand_laat_een_leeg_rooster) {
    p.grdRooster.set_rows(5);
    p.bijschrift = "van de vorige";
    kies_in_dialoog(std::nullopt, 0);
    EXPECT_EQ(p.grdRooster.rows(), 1);
    verwacht_slot(0, {});
    EXPECT_EQ(p.bijschrift, "van de vorige");
}

// ---- what is read

TEST_F(OpenRooster, gelezen_wordt_het_huidige_bestand_en_niet_het_genoemde) {
    kies_in_dialoog(schrijf("a.rst", {3}), 0);
    open_rooster(bediening, schrijf("b.rst", {12}), 0);
    EXPECT_EQ(nummers(), test::Texts{"3"});
    EXPECT_EQ(p.rooster_bestand, pad("a.rst"));
}

TEST_F(OpenRooster, de_soort_van_het_slot_bepaalt_hoe_het_huidige_bestand_wordt_gelezen) {
    kies_in_dialoog(schrijf("a.rst", {3}), 0);
    laad_rooster(bediening, 1); // a slot without a file
    EXPECT_EQ(p.grdRooster.rows(), 1);
    p.rooster_extensie = "xls";
    laad_rooster(bediening, 0);
    EXPECT_EQ(nummers(), test::Texts{"3"});
}

TEST_F(OpenRooster, voor_het_lezen_wordt_alles_van_het_vorige_rooster_gewist) {
    kies_in_dialoog(schrijf("a.rst", {3, 12}), 0);
    p.grdRooster.set_column_width(kolom_naam, 77);
    kies_in_dialoog(schrijf("b.rst", {5}), 0);
    EXPECT_EQ(nummers(), test::Texts{"5"});
    EXPECT_EQ(p.schedule.deelnemer(3), "");
    EXPECT_EQ(p.schedule.deelnemer(12), "");
    EXPECT_EQ(p.schedule.deelnemer(5), "na:Ruiter 5");
    EXPECT_EQ(p.grdRooster.column_width(kolom_naam), 2400);
}

TEST_F(OpenRooster, een_bestand_dat_geen_rooster_is_leegt_zijn_slot_en_heet_naamloos) {
    for (const char* inhoud : {"", "[Vendalo 3.4] \r\nrnr:1\tdnr:3", "[vendalo 3.4]\r\n", "\xFF\x00\x01"}) {
        kies_in_dialoog(schrijf("a.rst", {3}), 0);
        map.write("laatst/b.rst", inhoud);
        tijdstempels.stamps[pad("b.rst")] = {2026, 6, 13, 8, 5, 9};
        kies_in_dialoog(pad("b.rst"), 1);
        EXPECT_EQ(p.grdRooster.rows(), 1) << inhoud;
        EXPECT_EQ(p.bijschrift, bijschrift_naamloos) << inhoud;
        verwacht_slot(1, {});
        EXPECT_EQ(p.rooster_bestand, pad("b.rst"));
    }
    verwacht_slot(0, {pad("a.rst"), "20260613080509", "rst"});
    EXPECT_TRUE(berichten.shown.empty());
    EXPECT_EQ(muisaanwijzer.depth, 0);
}

TEST_F(OpenRooster, ook_zonder_rooster_volgt_de_titel_boven_de_tijden_de_lege_rubriek) {
    kies_in_dialoog(schrijf("a.rst", {3}), 0);
    ASSERT_EQ(p.grdRooster.text(0, kolom_nrtijd), "nr.--tijd");
    map.write("laatst/b.rst", "iets anders");
    kies_in_dialoog(pad("b.rst"), 0);
    EXPECT_EQ(p.grdRooster.text(0, kolom_nrtijd), "tijd");
    EXPECT_EQ(p.labels.lblDagTijd, "");
    EXPECT_EQ(p.labels.lblRubriek, "");
    EXPECT_EQ(p.labels.lblRingNaam, "Ring");
}

TEST_F(OpenRooster, een_bestand_dat_er_niet_is_houdt_zijn_slot) {
    tijdstempels.stamps[pad("weg.rst")] = {2026, 6, 13, 8, 5, 9};
    p.bijschrift = "van de vorige";
    kies_in_dialoog(pad("weg.rst"), 0);
    EXPECT_EQ(p.grdRooster.rows(), 1);
    EXPECT_EQ(p.bijschrift, "van de vorige");
    verwacht_slot(0, {pad("weg.rst"), "20260613080509", "rst"});
    std::filesystem::create_directory(map.file("laatst/map.rst"));
    kies_in_dialoog(pad("map.rst"), 0);
    EXPECT_EQ(p.grdRooster.rows(), 1);
    EXPECT_EQ(p.bijschrift, "van de vorige");
}

TEST_F(OpenRooster, een_te_groot_bestand_is_geen_rooster) {
    map.write("laatst/b.rst", roostertekst({3}));
    std::filesystem::resize_file(pad("b.rst"), grootste_rooster + 1); // all holes: it takes no room
    kies_in_dialoog(pad("b.rst"), 1);
    EXPECT_EQ(p.grdRooster.rows(), 1);
    verwacht_slot(1, {});
    EXPECT_EQ(p.leesfout, GeenRooster::te_groot);
}

TEST_F(OpenRooster, waarom_er_niets_gelezen_is_staat_in_het_logboek_tot_een_volgende_opening) {
    kies_in_dialoog(schrijf("a.rst", {3}), 0);
    EXPECT_EQ(p.leesfout, std::nullopt);
    kies_in_dialoog(pad("weg.rst"), 0);
    EXPECT_EQ(p.leesfout, GeenRooster::niet_te_openen);
    EXPECT_EQ(p.rooster_kenmerk, Bestandskenmerk{}); // of no file
    ASSERT_EQ(logboek.entries.size(), 1U);
    EXPECT_EQ(logboek.entries[0].key, pad("weg.rst"));
    EXPECT_EQ(logboek.entries[0].reason, "kan niet geopend worden");
    map.write("laatst/b.rst", "iets anders");
    kies_in_dialoog(pad("b.rst"), 0);
    EXPECT_EQ(p.leesfout, GeenRooster::andere_eerste_regel);
    EXPECT_EQ(p.rooster_kenmerk, kenmerk_van(pad("b.rst")));
    EXPECT_EQ(logboek.entries.back().reason, "is geen roosterbestand");
    kies_in_dialoog(pad("plan.xlsx"), 0);
    EXPECT_EQ(p.leesfout, std::nullopt);
    EXPECT_EQ(p.rooster_kenmerk, std::nullopt);
}

#ifndef _WIN32

TEST_F(OpenRooster, een_lezing_die_halverwege_mislukt_houdt_het_slot_onder_een_lege_lijst) {
    kies_in_dialoog(schrijf("a.rst", {3}), 0);
    open_dialoog.answer = schrijf("b.rst", {4, 5});
    {
        const test::ReadFaults storing({{}, {.error = EIO}});
        open_rooster(bediening, "", 1);
    }
    EXPECT_EQ(p.grdRooster.rows(), 1);
    verwacht_slot(1, {pad("b.rst"), "20260613080509", "rst"});
    EXPECT_EQ(p.leesfout, GeenRooster::lezen_mislukt);
    EXPECT_EQ(p.rooster_kenmerk, Bestandskenmerk{});
    EXPECT_EQ(logboek.entries.back().reason, "lezen is mislukt");
    EXPECT_TRUE(berichten.shown.empty());
}

#endif

TEST_F(OpenRooster, een_werkmap_vult_het_rooster_en_wist_de_labels) {
    test::FakeExcel spreadsheet;
    spreadsheet.sheets = {test::sheet_of({{"1", "Jan"}, {"2", "Piet"}})};
    Bediening met_excel{
        p, {meter, berichten, open_dialoog, tijdstempels, klok, muisaanwijzer, logboek, spreadsheet}, {}, {}};
    p.instellingen.col_startnumber = "A";
    p.instellingen.col_rider_name = "B";
    p.labels = {"rubriek", "omschrijving", "ringtype", "Ring 2", "zaterdag", "lijsten", "jury"};
    open_dialoog.answer = pad("plan.xlsx");
    open_rooster(met_excel, "", 1);
    EXPECT_EQ(spreadsheet.opened, std::vector{pad("plan.xlsx")});
    EXPECT_EQ(test::column_texts(p.grdRooster, kolom_naam), (test::Texts{"Jan", "Piet"}));
    EXPECT_EQ(test::column_texts(p.grdRooster, kolom_nrtijd), (test::Texts{"1", "2"}));
    EXPECT_EQ(p.bijschrift, "Vendalo 3.5 Tavelo - plan");
    EXPECT_EQ(p.labels.lblRubriek, "");
    EXPECT_EQ(p.labels.lblRoosterOmschrijving, "");
    EXPECT_EQ(p.labels.lblRingType, "");
    EXPECT_EQ(p.labels.lblRingNaam, "");
    EXPECT_EQ(p.labels.lblDagTijd, "");
    EXPECT_TRUE(p.grdRooster.redraw());
    EXPECT_EQ(muisaanwijzer.depth, 0);
}

TEST_F(OpenRooster, de_vraag_om_kolomletters_komt_zonder_zandloper) {
    struct BerichtenBijAanwijzer final : MessageBox {
        explicit BerichtenBijAanwijzer(const test::FakePointer& pointer) : pointer_(pointer) {}
        void show(std::string_view /*text*/) override { dieptes.push_back(pointer_.depth); }
        const test::FakePointer& pointer_;
        std::vector<int> dieptes;
    } gezien(muisaanwijzer);
    test::FakeExcel spreadsheet;
    spreadsheet.sheets = {test::sheet_of({{"1", "Jan"}})};
    Bediening met_excel{
        p, {meter, gezien, open_dialoog, tijdstempels, klok, muisaanwijzer, logboek, spreadsheet}, {}, {}};
    open_dialoog.answer = pad("plan.xlsx");
    open_rooster(met_excel, "", 0);
    EXPECT_EQ(gezien.dieptes, std::vector{0});
    EXPECT_GT(muisaanwijzer.times_busy, 0);
    EXPECT_EQ(muisaanwijzer.depth, 0);
}

TEST_F(OpenRooster, na_een_opening_die_misgaat_volgt_het_beeld_het_grid_weer) {
    struct Misgaand final : ExcelApplication {
        [[nodiscard]] Automation<std::unique_ptr<ExcelWorkbooks>> Workbooks() override {
            throw std::runtime_error("het ging mis");
        }
    } mis;
    Bediening misgaand{p, {meter, berichten, open_dialoog, tijdstempels, klok, muisaanwijzer, logboek, mis}, {}, {}};
    open_dialoog.answer = pad("plan.xlsx");
    EXPECT_THROW(open_rooster(misgaand, "", 0), std::runtime_error);
    EXPECT_TRUE(p.grdRooster.redraw());
    EXPECT_TRUE(p.grdExcel.redraw());
    EXPECT_EQ(muisaanwijzer.depth, 0);
}

// ---- the slot buttons

struct KlikSlot : OpenRooster {
    KlikSlot() {
        kies_in_dialoog(schrijf("a.rst", {1, 2, 3, 4, 5, 6}), 0);
        kies_in_dialoog(schrijf("b.rst", {11, 12, 13, 14, 15, 16, 17}), 1);
        open_dialoog.requests.clear();
        open_dialoog.answer.reset();
    }
};

TEST_F(KlikSlot, links_leest_het_bestand_van_het_slot_opnieuw) {
    klik_slot(bediening, 0, Muisknop::links);
    EXPECT_EQ(p.rooster_slot, 0);
    EXPECT_EQ(p.rooster_bestand, pad("a.rst"));
    EXPECT_EQ(p.rooster_extensie, "rst");
    EXPECT_EQ(nummers(), (test::Texts{"1", "2", "3", "4", "5", "6"}));
    klik_slot(bediening, 1, Muisknop::links);
    EXPECT_EQ(p.rooster_slot, 1);
    EXPECT_EQ(p.rooster_bestand, pad("b.rst"));
    EXPECT_EQ(nummers().size(), 7U);
    EXPECT_TRUE(open_dialoog.requests.empty());
}

TEST_F(KlikSlot, links_houdt_de_oude_stempel) {
    tijdstempels.stamps[pad("a.rst")].hour = 20;
    klik_slot(bediening, 0, Muisknop::links);
    EXPECT_EQ(p.rooster_tijdstempel, "20260613080509");
    verwacht_slot(0, {pad("a.rst"), "20260613080509", "rst"});
}

TEST_F(KlikSlot, zonder_te_lezen_is_van_de_bytes_van_het_slot_niets_bekend) {
    klik_slot(bediening, 0, Muisknop::links);
    EXPECT_EQ(p.rooster_kenmerk, kenmerk_van(pad("a.rst")));
    klik_slot(bediening, 1, Muisknop::anders);
    EXPECT_EQ(p.rooster_kenmerk, std::nullopt);
}

TEST_F(KlikSlot, links_op_een_leeg_slot_vraagt_om_een_bestand) {
    p.slots[1] = {};
    open_dialoog.answer = schrijf("c.rst", {21});
    klik_slot(bediening, 1, Muisknop::links);
    EXPECT_EQ(open_dialoog.requests.size(), 1U);
    EXPECT_EQ(nummers(), test::Texts{"21"});
    verwacht_slot(1, {pad("c.rst"), "20260613080509", "rst"});
}

TEST_F(KlikSlot, annuleren_op_een_leeg_slot_laat_het_leeg) {
    p.slots[1] = {};
    klik_slot(bediening, 1, Muisknop::links);
    EXPECT_EQ(open_dialoog.requests.size(), 1U);
    verwacht_slot(1, {});
    EXPECT_EQ(p.grdRooster.rows(), 1);
    EXPECT_EQ(p.rooster_bestand, "");
}

TEST_F(KlikSlot, rechts_vraagt_om_een_ander_bestand_voor_het_slot) {
    open_dialoog.answer = schrijf("c.rst", {21});
    klik_slot(bediening, 0, Muisknop::rechts);
    EXPECT_EQ(open_dialoog.requests.size(), 1U);
    EXPECT_EQ(p.rooster_slot, 0);
    EXPECT_EQ(nummers(), test::Texts{"21"});
    verwacht_slot(0, {pad("c.rst"), "20260613080509", "rst"});
    verwacht_slot(1, {pad("b.rst"), "20260613080509", "rst"});
}

TEST_F(KlikSlot, rechts_en_annuleren_laat_het_slot_zoals_het_was_en_leest_het_opnieuw) {
    klik_slot(bediening, 0, Muisknop::links);
    schrijf("b.rst", {31});
    klik_slot(bediening, 1, Muisknop::rechts);
    verwacht_slot(1, {pad("b.rst"), "20260613080509", "rst"});
    verwacht_slot(0, {pad("a.rst"), "20260613080509", "rst"});
    EXPECT_EQ(nummers(), test::Texts{"31"});
}

TEST_F(KlikSlot, een_andere_knop_kiest_het_slot_zonder_te_lezen) {
    klik_slot(bediening, 0, Muisknop::anders);
    EXPECT_EQ(p.rooster_slot, 0);
    EXPECT_EQ(p.rooster_bestand, pad("a.rst"));
    EXPECT_EQ(nummers().size(), 7U); // still those of the other slot
    EXPECT_TRUE(open_dialoog.requests.empty());
}

TEST_F(KlikSlot, bovenste_en_huidige_rij_komen_terug) {
    p.grdRooster.set_top_row(3);
    p.grdRooster.set_row(5);
    klik_slot(bediening, 0, Muisknop::links);
    EXPECT_EQ(p.grdRooster.top_row(), 3);
    EXPECT_EQ(p.grdRooster.row(), 5);
    EXPECT_EQ(p.grdRooster.column(), kolom_laatste);
    EXPECT_EQ(p.grdRooster.selection_column(), 1);
}

TEST_F(KlikSlot, een_rij_die_er_niet_meer_is_komt_niet_terug) {
    p.grdRooster.set_top_row(7);
    p.grdRooster.set_row(7);
    klik_slot(bediening, 0, Muisknop::links);
    EXPECT_EQ(p.grdRooster.top_row(), 1);
    EXPECT_EQ(p.grdRooster.row(), 1);
    EXPECT_EQ(p.grdRooster.column(), kolom_laatste);
}

TEST_F(KlikSlot, de_huidige_combinatie_blijft_staan) {
    p.txtINR = "13";
    p.huidig_nummer = 13;
    p.huidige_regel = 3;
    p.huidig_naam = "Ruiter 13";
    klik_slot(bediening, 0, Muisknop::links);
    EXPECT_EQ(p.txtINR, "13");
    EXPECT_EQ(p.huidig_nummer, 13);
    EXPECT_EQ(p.huidige_regel, 3);
    EXPECT_EQ(p.huidig_naam, "Ruiter 13");
}

} // namespace
} // namespace tavelo
