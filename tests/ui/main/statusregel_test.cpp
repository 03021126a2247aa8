#include "ui/main/statusregel.h"

#include "fakes/opstelling.h"
#include "fakes/temp_folder.h"
#include "schedule/record/kolommen.h"
#include "ui/main/auto_import.h"
#include "ui/main/huidige_combinatie.h"
#include "ui/main/open_rooster.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace tavelo {
namespace {

struct Combinatie {
    int nummer = 0; // 0 for a pause
    std::string naam;
    std::string paard = "Bles";
};

std::string bestand_met(const std::vector<Combinatie>& combinaties) {
    std::string tekst = "[Vendalo 3.4]\r\n";
    std::string lijst;
    for (const Combinatie& c : combinaties) {
        const std::string nummer = std::to_string(c.nummer);
        if (c.nummer != 0) tekst += "dnr:" + nummer + "\tna:" + c.naam + "\tpa:" + c.paard + "\r\n";
        lijst += c.nummer != 0 ? "\tdnr:" + nummer + "\t0\t\t0\t\t0\t" : "\tdnr:P\t10\t" + c.naam + "\t\t\t\t";
    }
    return tekst + "rnr:1\trid:S1\troms:Proef\trcom:2\trtvko:3\trpty:5" + lijst + "\r\n";
}

const std::vector<Combinatie> elise_en_jan = {{80, "Elise Dijkgraaf"}, {7, "Jan"}};

// An operator with a schedule open and the participant window on the wall.
struct AanTafel : test::Opstelling {
    test::TempFolder map;
    int klok_tik = 0;

    AanTafel() {
        programma.zoek_op_nummer = true;
        programma.deelnemer_open = true;
        bediening.deelnemer_venster.picDeelnemer.breedte = 14400;
        bediening.deelnemer_venster.picDeelnemer.hoogte = 8100;
        klok.time = {2026, 6, 13, 14, 2, 0};
    }
    std::string schrijf(const std::string& naam, const std::string& tekst) {
        const std::string pad = map.write(naam, tekst);
        tijdstempels.stamps[pad] = {2026, 6, 13, 10, 0, ++klok_tik};
        return pad;
    }
    void open(const std::string& naam, const std::vector<Combinatie>& combinaties, int slot = 0) {
        open_tekst(naam, bestand_met(combinaties), slot);
    }
    void open_tekst(const std::string& naam, const std::string& tekst, int slot = 0) {
        programma.rooster_slot = static_cast<std::int16_t>(slot);
        kies_bestand(bediening, schrijf(naam, tekst), slot);
        laad_rooster(bediening, slot);
    }
    void herlees(const std::vector<Combinatie>& combinaties) {
        schrijf("proef.rst", bestand_met(combinaties));
        auto_import(bediening, [] {});
    }
    [[nodiscard]] std::string op_monitor() const { return statusregel(bediening).monitor.tekst; }
    [[nodiscard]] bool amber() const { return statusregel(bediening).monitor.let_op; }
};

TEST(Statusregel, zegt_wat_er_op_de_monitor_staat_en_uit_welk_rooster) {
    AanTafel proef;
    proef.open("proef.rst", elise_en_jan);
    zet_txtINR(proef.bediening, "80");
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 80 Elise Dijkgraaf, rooster 1");
    EXPECT_FALSE(proef.amber());
    proef.open("ander.rst", {{3, "Kees"}}, 1);
    zet_txtINR(proef.bediening, "3");
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 3 Kees, rooster 2");
    EXPECT_FALSE(proef.amber());
}

TEST(Statusregel, zonder_combinatie_zegt_zij_dat) {
    AanTafel proef;
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: geen combinatie");
    proef.open("proef.rst", elise_en_jan);
    zet_txtINR(proef.bediening, "9");
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: geen combinatie");
    zet_txtINR(proef.bediening, "80");
    blader(proef.bediening, Blader::wis);
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: geen combinatie");
}

TEST(Statusregel, een_pauze_op_de_monitor_heet_zoals_zij_in_de_lijst_staat) {
    AanTafel proef;
    proef.open("proef.rst", {{80, "Elise"}, {0, "lunch"}});
    proef.programma.grdRooster.set_row(2);
    kies_rij(proef.bediening);
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: lunch, rooster 1");
    EXPECT_EQ(rij_op_monitor(proef.bediening.op_monitor, proef.programma), 2);
}

TEST(Statusregel, noemt_ook_wie_wel_in_het_bestand_en_niet_in_de_lijst_staat) {
    AanTafel proef;
    proef.open_tekst("proef.rst", "[Vendalo 3.4]\r\ndnr:80\tna:Elise*\r\nrnr:1\trcom:2\r\n");
    zet_txtINR(proef.bediening, "80");
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 80 Elise, rooster 1");
    EXPECT_TRUE(nummer_onbekend(proef.programma));
}

TEST(Statusregel, met_het_monitorvenster_dicht_gaat_het_over_het_voorbeeld) {
    AanTafel proef;
    proef.programma.deelnemer_open = false;
    proef.open("proef.rst", elise_en_jan);
    zet_txtINR(proef.bediening, "80");
    EXPECT_EQ(proef.op_monitor(), "Op het voorbeeld: 80 Elise Dijkgraaf, rooster 1");
}

TEST(Statusregel, het_voorbeeld_alleen_verandert_niets_aan_wat_er_op_de_monitor_staat) {
    AanTafel proef;
    proef.open("proef.rst", elise_en_jan);
    zet_txtINR(proef.bediening, "80");
    proef.open("proef.rst", {{80, "Iemand anders"}});
    toon_voorbeeld(proef.bediening); // the main window was resized
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 80 Elise Dijkgraaf, rooster 1 (de lijst is sindsdien heropend)");
    toon_deelnemer_venster(proef.bediening); // the participant window was
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 80 Iemand anders, rooster 1");
}

TEST(Statusregel, is_amber_zodra_de_lijst_heropend_of_gewisseld_is) {
    AanTafel proef;
    proef.open("proef.rst", elise_en_jan);
    zet_txtINR(proef.bediening, "80");
    open_rooster(proef.bediening, proef.programma.rooster_bestand, 0);
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 80 Elise Dijkgraaf, rooster 1 (de lijst is sindsdien heropend)");
    EXPECT_TRUE(proef.amber());
    typ_txtINR(proef.bediening, "80");
    EXPECT_FALSE(proef.amber());
    proef.open("ander.rst", {{80, "Kees"}}, 1);
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 80 Elise Dijkgraaf, rooster 1 (er is nu een andere lijst open)");
    EXPECT_TRUE(proef.amber());
}

TEST(Statusregel, is_amber_zodra_een_herlezing_de_combinatie_wijzigde_of_wegnam) {
    AanTafel proef;
    proef.open("proef.rst", elise_en_jan);
    zet_txtINR(proef.bediening, "80");
    proef.herlees({{80, "Elise Dijkgraaf"}, {7, "Johan"}, {5, "Piet"}});
    EXPECT_FALSE(proef.amber()) << proef.op_monitor(); // others changed
    proef.herlees({{80, "Elise Dijkgraaf", "Moor"}, {7, "Jan"}});
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 80 Elise Dijkgraaf, rooster 1 (sindsdien gewijzigd in het bestand)");
    EXPECT_TRUE(proef.amber());
    zet_txtINR(proef.bediening, "7");
    EXPECT_FALSE(proef.amber());
    proef.herlees({{80, "Elise Dijkgraaf", "Moor"}});
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 7 Jan, rooster 1 (staat niet meer in het bestand)");
    EXPECT_TRUE(proef.amber());
}

TEST(Statusregel, is_amber_voor_een_afmelding_waarvan_de_rij_blijft_staan) {
    AanTafel proef;
    proef.open("proef.rst", {{80, "Elise"}, {7, "Jan"}, {8, "Kees"}});
    zet_txtINR(proef.bediening, "80");
    proef.herlees({{7, "Jan"}, {8, "Kees"}});
    EXPECT_EQ(proef.programma.grdRooster.text(1, kolom_inr), "80"); // rows go from the end
    EXPECT_EQ(proef.op_monitor(), "Op de monitor: 80 Elise, rooster 1 (staat niet meer in het bestand)");
}

TEST(Statusregel, een_behouden_startnummer_is_geen_wijziging) {
    AanTafel proef;
    const std::string zonder = "[Vendalo 3.4]\r\ndnr:80\tna:Elise\tpa:Bles\r\nrnr:1\trcom:2\tdnr:80\t0\t\t0\t\t0\t\r\n";
    std::string met = zonder;
    met.insert(met.find("\tna:"), "\tco:12");
    proef.open_tekst("proef.rst", met);
    zet_txtINR(proef.bediening, "80");
    proef.schrijf("proef.rst", zonder);
    auto_import(proef.bediening, [] {});
    EXPECT_EQ(proef.programma.grdRooster.text(1, kolom_cnr), "12");
    EXPECT_FALSE(proef.amber()) << proef.op_monitor();
}

TEST(Statusregel, een_verschoven_tijd_telt_alleen_als_de_tijd_op_de_monitor_staat) {
    for (const std::int16_t getoond : std::array<std::int16_t, 2>{0, 1}) {
        AanTafel proef;
        proef.programma.instellingen.shownumber = getoond;
        proef.open("proef.rst", elise_en_jan);
        zet_txtINR(proef.bediening, "7");
        const std::string tijd(proef.programma.grdRooster.text(2, kolom_nrtijd));
        proef.herlees({{80, "Elise Dijkgraaf"}, {5, "Piet"}, {7, "Jan"}});
        ASSERT_NE(proef.programma.grdRooster.text(3, kolom_nrtijd), tijd);
        EXPECT_EQ(proef.amber(), getoond == 1);
    }
}

TEST(Statusregel, zegt_hoe_het_monitorvenster_staat) {
    AanTafel proef;
    const auto venster = [&] { return statusregel(proef.bediening).venster; };
    EXPECT_EQ(venster().tekst, "gewoon venster");
    proef.bediening.monitorvenster = Monitorvenster::beeldvullend;
    EXPECT_EQ(venster().tekst, "beeldvullend");
    EXPECT_FALSE(venster().let_op);
    proef.bediening.monitorvenster = Monitorvenster::monitor_weg;
    EXPECT_EQ(venster().tekst, "de monitor is weg");
    EXPECT_TRUE(venster().let_op);
    proef.programma.deelnemer_open = false;
    EXPECT_EQ(venster().tekst, "monitorvenster gesloten");
    EXPECT_FALSE(venster().let_op);
}

TEST(Statusregel, telt_de_regels_die_buiten_het_beeld_op_de_monitor_vallen) {
    AanTafel proef;
    Tekenvlak& vlak = proef.bediening.deelnemer_venster.picDeelnemer;
    vlak.hoogte = 3 * 23 * 10;
    vlak.breedte = 1000;
    vlak.zet_punten(10);
    const auto gezegd = [&] { return statusregel(proef.bediening).buiten_beeld; };
    for (const std::string_view tekst : {"a", "b", "c"})
        vlak.druk(proef.meter, 0, tekst);
    EXPECT_EQ(gezegd().tekst, "");
    vlak.druk(proef.meter, 0, "");
    EXPECT_EQ(gezegd().tekst, ""); // an empty line is not missed
    vlak.druk(proef.meter, 0, "d");
    EXPECT_EQ(gezegd().tekst, "1 regel valt buiten beeld");
    EXPECT_TRUE(gezegd().let_op);
    vlak.huidige_y = 0;
    vlak.druk(proef.meter, 950, "breed");
    EXPECT_EQ(gezegd().tekst, "2 regels vallen buiten beeld");

    Tekenvlak& band = proef.bediening.deelnemer_venster.picRubriek;
    band.hoogte = 100;
    band.breedte = 1000;
    band.zet_punten(10);
    band.druk(proef.meter, 0, "kop");
    EXPECT_EQ(gezegd().tekst, "3 regels vallen buiten beeld");
    band.zichtbaar = false;
    EXPECT_EQ(gezegd().tekst, "2 regels vallen buiten beeld");
    proef.programma.deelnemer_open = false;
    EXPECT_EQ(gezegd().tekst, "");
}

TEST(Statusregel, zegt_wanneer_en_wat_de_laatste_herlezing_wijzigde) {
    AanTafel proef;
    proef.open("proef.rst", elise_en_jan);
    EXPECT_EQ(statusregel(proef.bediening).herlezen.tekst, "");
    proef.herlees({{80, "Elise Dijkgraaf", "Moor"}, {7, "Jan"}, {8, "Kees"}});
    EXPECT_EQ(statusregel(proef.bediening).herlezen.tekst, "14:02: gewijzigd 1, toegevoegd 1, verwijderd 0");
    EXPECT_FALSE(statusregel(proef.bediening).biedt_heropenen);
}

TEST(Statusregel, biedt_heropenen_aan_als_de_lijst_van_het_bestand_verschilt) {
    AanTafel proef;
    proef.open("proef.rst", {{80, "Elise"}, {7, "Jan"}, {8, "Kees"}});
    proef.herlees({{7, "Jan"}, {8, "Kees"}}); // the withdrawn row stays, the last one goes
    EXPECT_EQ(statusregel(proef.bediening).lijst.tekst, "de lijst verschilt van het bestand");
    EXPECT_TRUE(statusregel(proef.bediening).lijst.let_op);
    EXPECT_TRUE(statusregel(proef.bediening).biedt_heropenen);
    klik_slot(proef.bediening, 0, Muisknop::links);
    EXPECT_EQ(statusregel(proef.bediening).lijst.tekst, "");
    EXPECT_FALSE(statusregel(proef.bediening).biedt_heropenen);
}

TEST(Statusregel, zegt_waarom_er_niets_te_lezen_viel_zonder_berichtvenster) {
    AanTafel proef;
    const auto gezegd = [&] { return statusregel(proef.bediening).lijst.tekst; };
    proef.open_tekst("brief.rst", "Geachte jury,\r\n");
    EXPECT_EQ(gezegd(), "brief.rst: is geen roosterbestand");
    proef.open_tekst("brief.txt", "Geachte jury,\r\n");
    EXPECT_EQ(gezegd(), "brief.txt: is geen roosterbestand");
    kies_bestand(proef.bediening, proef.map.file("weg.rst"), 0);
    laad_rooster(proef.bediening, 0);
    EXPECT_EQ(gezegd(), "weg.rst: kan niet geopend worden");
    EXPECT_TRUE(statusregel(proef.bediening).lijst.let_op);
    kies_bestand(proef.bediening, " " + proef.map.file("weg.rst") + " ", 0);
    laad_rooster(proef.bediening, 0);
    EXPECT_EQ(gezegd(), "weg.rst: is geen roosterbestand");
    proef.open("leeg.rst", {});
    EXPECT_EQ(gezegd(), "de lijst is leeg");
    proef.open("proef.rst", elise_en_jan);
    EXPECT_EQ(gezegd(), "");
    EXPECT_TRUE(proef.berichten.shown.empty());
}

TEST(Statusregel, een_mislukte_lezing_staat_er_tot_er_weer_gelezen_is) {
    AanTafel proef;
    proef.open("proef.rst", elise_en_jan);
    proef.programma.leesfout = GeenRooster::lezen_mislukt;
    EXPECT_EQ(statusregel(proef.bediening).lijst.tekst, "proef.rst: lezen is mislukt");
    proef.herlees(elise_en_jan);
    EXPECT_EQ(statusregel(proef.bediening).lijst.tekst, "");
}

TEST(Statusregel, leest_de_lijst_en_de_huidige_waarden_zonder_ze_te_veranderen) {
    AanTafel proef;
    proef.open("proef.rst", elise_en_jan);
    zet_txtINR(proef.bediening, "80");
    const auto beeld = proef.bediening.deelnemer_venster.picDeelnemer.regels();
    proef.herlees({{80, "Elise Dijkgraaf", "Moor"}});
    (void)statusregel(proef.bediening);
    EXPECT_EQ(proef.bediening.deelnemer_venster.picDeelnemer.regels(), beeld);
    EXPECT_EQ(proef.programma.txtINR, "80");
    EXPECT_EQ(proef.programma.huidige_regel, 1);
}

TEST(LeegRooster, zegt_wat_er_te_doen_valt) {
    AanTafel proef;
    EXPECT_EQ(tekst_in_leeg_rooster(proef.programma), "Open een rooster: Ctrl+O\nHandleiding: F1");
    proef.open("proef.rst", elise_en_jan);
    EXPECT_EQ(tekst_in_leeg_rooster(proef.programma), "");
    proef.open_tekst("brief.rst", "Geachte jury,\r\n");
    EXPECT_EQ(tekst_in_leeg_rooster(proef.programma), "Open een rooster: Ctrl+O\nHandleiding: F1");
}

TEST(NummerOnbekend, geldt_voor_een_nummer_dat_niet_in_de_lijst_staat) {
    AanTafel proef;
    proef.open("proef.rst", {{80, "Elise"}, {0, "pauze"}, {7, "Jan"}});
    for (const char* tekst : {"9", "abc", "0", "99999", "8"}) {
        zet_txtINR(proef.bediening, tekst);
        EXPECT_TRUE(nummer_onbekend(proef.programma)) << tekst;
    }
    for (const char* tekst : {"", " ", "80", " 7", "007"}) {
        zet_txtINR(proef.bediening, tekst);
        EXPECT_FALSE(nummer_onbekend(proef.programma)) << tekst;
    }
    proef.programma.grdRooster.set_row(2);
    kies_rij(proef.bediening);
    EXPECT_FALSE(nummer_onbekend(proef.programma));
}

TEST(NummerOnbekend, kijkt_in_de_lijst_die_nu_open_is) {
    AanTafel proef;
    proef.open("proef.rst", elise_en_jan);
    zet_txtINR(proef.bediening, "7");
    proef.open("ander.rst", {{3, "Kees"}, {4, "Piet"}}, 1);
    EXPECT_TRUE(nummer_onbekend(proef.programma));
    klik_slot(proef.bediening, 0, Muisknop::links);
    EXPECT_FALSE(nummer_onbekend(proef.programma));
}

TEST(RijOpMonitor, wordt_na_een_samenvoeging_teruggevonden_op_haar_nummer) {
    AanTafel proef;
    proef.open("proef.rst", elise_en_jan);
    zet_txtINR(proef.bediening, "7");
    const auto rij = [&] { return rij_op_monitor(proef.bediening.op_monitor, proef.programma); };
    EXPECT_EQ(rij(), 2);
    proef.herlees({{80, "Elise Dijkgraaf"}, {5, "Piet"}, {7, "Jan"}});
    EXPECT_EQ(rij(), 3);
    klik_slot(proef.bediening, 0, Muisknop::links); // the same file again
    EXPECT_EQ(rij(), 3);
    proef.open("ander.rst", {{7, "Een andere Jan"}}, 1);
    EXPECT_EQ(rij(), std::nullopt);
}

TEST(RijOpMonitor, is_van_dubbele_nummers_de_rij_die_getoond_wordt) {
    AanTafel proef;
    proef.open("proef.rst", {{5, "Jan"}, {6, "Piet"}, {5, "Jan"}});
    const auto rij = [&] { return rij_op_monitor(proef.bediening.op_monitor, proef.programma); };
    zet_txtINR(proef.bediening, "5");
    EXPECT_EQ(rij(), 3);
    proef.programma.grdRooster.set_row(1);
    kies_rij(proef.bediening);
    EXPECT_EQ(rij(), 1);
}

TEST(Pijltjes, beginnen_zonder_gekozen_rij_bij_de_rij_die_op_de_monitor_staat) {
    AanTafel proef;
    proef.open("proef.rst", {{1, "Jan"}, {2, "Piet"}, {3, "Kees"}, {4, "Klaas"}});
    zet_txtINR(proef.bediening, "3");
    EXPECT_EQ(begin_van_pijltjes(proef.bediening), 3);
    open_rooster(proef.bediening, proef.programma.rooster_bestand, 0); // the current cell is at the top again
    ASSERT_EQ(proef.programma.grdRooster.row(), 1);
    EXPECT_EQ(begin_van_pijltjes(proef.bediening), 3);
    proef.programma.grdRooster.highlight_row(2);
    EXPECT_EQ(begin_van_pijltjes(proef.bediening), 2);
    for (const int kolom : {1, kolom_laatste}) { // a cell of that row is no chosen row
        proef.programma.grdRooster.set_column(kolom);
        EXPECT_EQ(begin_van_pijltjes(proef.bediening), 3) << kolom;
    }
    zet_txtINR(proef.bediening, "99"); // nothing on the wall
    EXPECT_EQ(begin_van_pijltjes(proef.bediening), 1);
}

} // namespace
} // namespace tavelo
