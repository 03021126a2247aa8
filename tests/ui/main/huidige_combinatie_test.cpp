#include "fakes/opstelling.h"
#include "schedule/record/kolommen.h"
#include "ui/main/huidige_combinatie.h"

#include <gtest/gtest.h>

#include <new>

namespace tavelo {
namespace {

// A schedule file is open; the display shows the row's name alone (and the rider, where a record stands).
struct HuidigeCombinatie : testing::Test, test::Opstelling {
    Programma& p = programma;
    Grid& grid = p.grdRooster;

    HuidigeCombinatie() {
        for (Vertoning* venster : {&bediening.voorbeeld, &bediening.deelnemer_venster}) {
            venster->picDeelnemer.breedte = 19200;
            venster->picDeelnemer.hoogte = 10800;
        }
        p.instellingen.textsize = 100;
        p.instellingen.rubrictextsize = 100;
        p.rooster_extensie = "rst";
        p.zoek_op_nummer = true;
    }

    // Row by row the text of "Inr"; the other cells follow from it and the row.
    void vul(const std::vector<std::string>& nummers) {
        grid.set_rows(1);
        for (const std::string& inr : nummers) {
            const int rij = grid.append_row();
            const std::string welke = inr + "/" + std::to_string(rij);
            grid.set_text(rij, kolom_inr, inr);
            grid.set_text(rij, kolom_nrtijd, "tijd " + welke);
            grid.set_text(rij, kolom_hnr, "hnr " + welke);
            grid.set_text(rij, kolom_naam, "naam " + welke);
        }
    }
    void typ(std::string_view tekst) { zet_txtINR(bediening, tekst); }
    void kies(int rij) {
        grid.set_row(rij);
        kies_rij(bediening);
    }
    void verwacht_geen_combinatie() const {
        EXPECT_EQ(p.huidige_regel, 0);
        EXPECT_EQ(p.huidig_nr_tijd, "");
        EXPECT_EQ(p.huidig_hnr, "");
        EXPECT_EQ(p.huidig_naam, "");
        EXPECT_EQ(grid.row(), 1);
        EXPECT_EQ(grid.column(), 1);
        EXPECT_EQ(grid.selection_column(), 1);
        EXPECT_TRUE(getoond(bediening.voorbeeld).empty());
    }
    void verwacht_rij(int rij) const {
        EXPECT_EQ(p.huidige_regel, rij);
        EXPECT_EQ(p.huidig_nr_tijd, grid.text(rij, kolom_nrtijd));
        EXPECT_EQ(p.huidig_hnr, grid.text(rij, kolom_hnr));
        EXPECT_EQ(p.huidig_naam, grid.text(rij, kolom_naam));
        EXPECT_EQ(grid.row(), rij);
        EXPECT_EQ(grid.column(), kolom_laatste);
        EXPECT_EQ(grid.selection_column(), 1);
        EXPECT_EQ(getoond(bediening.voorbeeld), grid.text(rij, kolom_naam));
    }
    // The last line, which is the name of the row.
    [[nodiscard]] static std::string getoond(const Vertoning& venster) {
        const auto& regels = venster.picDeelnemer.regels();
        return regels.empty() ? std::string() : regels.back().tekst;
    }
};

// ---- typing

TEST_F(HuidigeCombinatie, een_getypt_nummer_kiest_zijn_rij) {
    vul({"3", "12", "7"});
    typ("12");
    EXPECT_EQ(p.huidig_nummer, 12);
    verwacht_rij(2);
    EXPECT_EQ(p.huidig_nr_tijd, "tijd 12/2");
    EXPECT_EQ(p.huidig_hnr, "hnr 12/2");
    EXPECT_EQ(p.huidig_naam, "naam 12/2");
}

TEST_F(HuidigeCombinatie, teken_voor_teken_typen_kiest_onderweg_andere_rijen) {
    vul({"3", "1", "12"});
    typ("1");
    verwacht_rij(2);
    typ("12");
    verwacht_rij(3);
    typ("123");
    EXPECT_EQ(p.huidig_nummer, 123);
    verwacht_geen_combinatie();
    typ("12");
    verwacht_rij(3);
}

TEST_F(HuidigeCombinatie, een_nummer_dat_er_niet_is_laat_het_scherm_leeg) {
    vul({"3", "12"});
    typ("12");
    typ("99");
    EXPECT_EQ(p.huidig_nummer, 99);
    verwacht_geen_combinatie();
}

TEST_F(HuidigeCombinatie, een_leeg_vak_of_een_woord_is_geen_combinatie) {
    vul({"3", "0", "P", ""});
    for (const char* tekst : {"0", "", "abc", "-", " "}) {
        typ("3");
        typ(tekst);
        EXPECT_EQ(p.huidig_nummer, 0) << tekst;
        verwacht_geen_combinatie();
    }
}

TEST_F(HuidigeCombinatie, van_rijen_met_hetzelfde_nummer_wint_de_laatste) {
    vul({"5", "3", "5", "4"});
    typ("5");
    verwacht_rij(3);
}

TEST_F(HuidigeCombinatie, nummers_worden_als_getal_vergeleken) {
    vul({"3", "007", "8 x", "9.4"});
    typ("7");
    verwacht_rij(2);
    typ(" 8");
    verwacht_rij(3);
    typ("9"); // what stands in the row is not rounded
    verwacht_geen_combinatie();
    typ("2.6"); // what is typed is
    EXPECT_EQ(p.huidig_nummer, 3);
    verwacht_rij(1);
}

TEST_F(HuidigeCombinatie, een_nummer_boven_16_bits_kiest_niets) {
    vul({"40000", "32767"});
    typ("40000");
    EXPECT_EQ(p.huidig_nummer, 0);
    verwacht_geen_combinatie();
    typ("32767");
    verwacht_rij(2);
}

TEST_F(HuidigeCombinatie, de_titelrij_doet_niet_mee) {
    vul({"3"});
    grid.set_text(0, kolom_inr, "5");
    typ("5");
    verwacht_geen_combinatie();
}

TEST_F(HuidigeCombinatie, in_een_leeg_rooster_blijft_de_titelrij_de_huidige) {
    typ("5");
    EXPECT_EQ(p.huidige_regel, 0);
    EXPECT_EQ(grid.row(), 0);
    EXPECT_EQ(p.huidig_naam, "");
}

TEST_F(HuidigeCombinatie, een_ongewijzigde_tekst_doet_niets) {
    vul({"3", "12"});
    typ("12");
    grid.set_text(2, kolom_naam, "iemand anders");
    typ("12");
    EXPECT_EQ(p.huidig_naam, "naam 12/2");
}

TEST_F(HuidigeCombinatie, een_nieuw_rooster_laat_de_combinatie_staan_tot_de_volgende_wijziging) {
    vul({"3", "12"});
    typ("12");
    vul({"12"});
    EXPECT_EQ(p.huidig_naam, "naam 12/2");
    EXPECT_EQ(p.huidige_regel, 2);
    typ("1");
    typ("12");
    verwacht_rij(1);
}

TEST_F(HuidigeCombinatie, zonder_zoeken_geldt_de_huidige_rij_van_het_grid) {
    vul({"3", "12"});
    p.zoek_op_nummer = false;
    grid.set_row(1);
    typ("12");
    EXPECT_EQ(p.huidig_nummer, 12);
    EXPECT_EQ(p.huidige_regel, 1);
    EXPECT_EQ(p.huidig_naam, "naam 3/1");
    EXPECT_EQ(p.huidig_hnr, "hnr 3/1");
}

TEST_F(HuidigeCombinatie, zonder_zoeken_op_de_titelrij_komen_de_nummers_wel_van_die_rij_maar_de_naam_niet) {
    p.zoek_op_nummer = false;
    grid.set_row(0);
    typ("12");
    EXPECT_EQ(p.huidige_regel, 0);
    EXPECT_EQ(p.huidig_nr_tijd, "nr.--tijd");
    EXPECT_EQ(p.huidig_hnr, "Hnr");
    EXPECT_EQ(p.huidig_naam, "");
}

// ---- picking a row

TEST_F(HuidigeCombinatie, een_gekozen_rij_staat_in_het_nummervak_en_op_het_scherm) {
    vul({"3", "12", "7"});
    kies(3);
    EXPECT_EQ(p.txtINR, "7");
    EXPECT_EQ(p.huidig_nummer, 7);
    verwacht_rij(3);
    EXPECT_TRUE(p.zoek_op_nummer);
}

TEST_F(HuidigeCombinatie, typen_kiest_de_laatste_van_twee_gelijke_en_kiezen_precies_de_gekozen) {
    vul({"3", "5", "5"});
    typ("5");
    verwacht_rij(3);
    kies(2);
    EXPECT_EQ(p.txtINR, "5");
    verwacht_rij(2);
}

TEST_F(HuidigeCombinatie, opnieuw_kiezen_van_dezelfde_rij_telt_als_wijziging) {
    vul({"3", "5"});
    kies(2);
    grid.set_text(2, kolom_naam, "iemand anders");
    kies(2);
    EXPECT_EQ(p.huidig_naam, "iemand anders");
}

TEST_F(HuidigeCombinatie, een_rij_zonder_nummer_is_te_kiezen) {
    vul({"3", "P", ""});
    kies(2);
    EXPECT_EQ(p.txtINR, "P");
    EXPECT_EQ(p.huidig_nummer, 0);
    verwacht_rij(2);
    kies(3);
    EXPECT_EQ(p.txtINR, "");
    verwacht_rij(3);
}

TEST_F(HuidigeCombinatie, de_titelrij_is_niet_te_kiezen) {
    vul({"3", "12"});
    typ("12");
    kies(0);
    EXPECT_EQ(p.txtINR, "12");
    EXPECT_EQ(p.huidige_regel, 2);
    EXPECT_EQ(p.huidig_naam, "naam 12/2");
}

TEST_F(HuidigeCombinatie, na_een_keuze_die_misgaat_wordt_er_weer_op_nummer_gezocht) {
    struct VolGeheugen final : TextMeasure {
        [[nodiscard]] double width(std::string_view, double, std::string_view) const override {
            throw std::bad_alloc();
        }
        [[nodiscard]] double height(std::string_view, double) const override { throw std::bad_alloc(); }
    };
    vul({"3", "5", "5"});
    const VolGeheugen vol;
    Bediening misgaand{p, {vol, berichten, open_dialoog, tijdstempels, klok, muisaanwijzer, logboek, excel}, {}, {}};
    grid.set_row(2);
    EXPECT_THROW(kies_rij(misgaand), std::bad_alloc);
    EXPECT_TRUE(p.zoek_op_nummer);
    typ("5");
    verwacht_rij(3);
}

// ---- previous and next

TEST_F(HuidigeCombinatie, volgende_en_vorige_lopen_langs_de_rijen) {
    vul({"3", "12", "7"});
    typ("3");
    blader(bediening, Blader::volgende);
    EXPECT_EQ(p.txtINR, "12");
    verwacht_rij(2);
    blader(bediening, Blader::volgende);
    verwacht_rij(3);
    blader(bediening, Blader::vorige);
    verwacht_rij(2);
}

TEST_F(HuidigeCombinatie, rijen_zonder_nummer_worden_overgeslagen) {
    vul({"3", "P", "", "0", "12"});
    typ("3");
    blader(bediening, Blader::volgende);
    verwacht_rij(5);
    blader(bediening, Blader::vorige);
    verwacht_rij(1);
}

TEST_F(HuidigeCombinatie, volgende_op_de_laatste_en_vorige_op_de_eerste_doen_niets) {
    vul({"P", "3", "12", "P"});
    typ("12");
    blader(bediening, Blader::volgende);
    EXPECT_EQ(p.txtINR, "12");
    verwacht_rij(3);
    typ("3");
    blader(bediening, Blader::vorige);
    EXPECT_EQ(p.txtINR, "3");
    verwacht_rij(2);
}

TEST_F(HuidigeCombinatie, met_een_leeg_nummervak_doet_bladeren_niets) {
    vul({"3", "12"});
    grid.set_row(1);
    for (const char* tekst : {"", "abc", "0"}) {
        typ(tekst);
        blader(bediening, Blader::volgende);
        blader(bediening, Blader::vorige);
        EXPECT_EQ(p.txtINR, tekst);
        EXPECT_EQ(p.huidige_regel, 0);
    }
}

TEST_F(HuidigeCombinatie, bladeren_leest_het_nummervak_zoals_het_vak_zelf) {
    vul({"3", "12", "40000", "32768", "-40000"});
    for (const char* tekst : {"40000", "32768", "0.4", "-40000", "-0.5"}) {
        typ(tekst);
        grid.set_row(2);
        blader(bediening, Blader::volgende);
        blader(bediening, Blader::vorige);
        EXPECT_EQ(p.txtINR, tekst);
        EXPECT_EQ(p.huidige_regel, 0) << tekst;
        EXPECT_EQ(grid.row(), 2) << tekst;
    }
    typ("2.6"); // rounded, as the box shows it
    verwacht_rij(1);
    blader(bediening, Blader::volgende);
    verwacht_rij(2);
}

TEST_F(HuidigeCombinatie, bladeren_begint_bij_de_laatste_rij_met_het_nummer) {
    vul({"5", "3", "5", "4"});
    kies(1);
    blader(bediening, Blader::volgende);
    verwacht_rij(4);
}

TEST_F(HuidigeCombinatie, bladeren_naar_een_dubbel_nummer_toont_de_laatste_rij_ervan) {
    vul({"3", "5", "4", "5"});
    typ("3");
    blader(bediening, Blader::volgende);
    EXPECT_EQ(p.txtINR, "5");
    verwacht_rij(4);
}

TEST_F(HuidigeCombinatie, bladeren_vanaf_een_nummer_dat_er_niet_is_begint_bij_de_rij_van_het_grid) {
    vul({"3", "12", "7"});
    typ("99"); // row 1 becomes the current one
    blader(bediening, Blader::volgende);
    verwacht_rij(2);
    typ("99");
    grid.set_row(3);
    blader(bediening, Blader::vorige);
    verwacht_rij(2);
}

TEST_F(HuidigeCombinatie, bladeren_naar_hetzelfde_nummer_telt_als_wijziging) {
    vul({"5", "P", "6"});
    typ("5");
    grid.set_text(3, kolom_inr, "5");
    blader(bediening, Blader::vorige); // from row 3, the last one, to row 1; shown is row 3 again
    EXPECT_EQ(p.txtINR, "5");
    verwacht_rij(3);
}

// ---- clear

TEST_F(HuidigeCombinatie, wissen_maakt_nummervak_en_scherm_leeg) {
    vul({"3", "12"});
    typ("12");
    blader(bediening, Blader::wis);
    EXPECT_EQ(p.txtINR, "");
    EXPECT_EQ(p.huidig_nummer, 0);
    verwacht_geen_combinatie();
}

TEST_F(HuidigeCombinatie, wissen_maakt_de_kop_van_het_voorbeeld_leeg) {
    vul({"3", "12"});
    p.schedule.huidige_rubriek.rkla = "*B*";
    p.instellingen.showrubric = 1;
    p.deelnemer_open = true;
    typ("12");
    ASSERT_EQ(bediening.voorbeeld.picRubriek.regels().size(), 2U);
    blader(bediening, Blader::wis);
    EXPECT_TRUE(bediening.voorbeeld.picRubriek.regels().empty());
    EXPECT_TRUE(bediening.deelnemer_venster.picRubriek.regels().empty());
    blader(bediening, Blader::wis); // once more, with an empty box
    EXPECT_EQ(p.txtINR, "");
    EXPECT_TRUE(bediening.voorbeeld.picRubriek.regels().empty());
}

// ---- the windows

TEST_F(HuidigeCombinatie, met_het_deelnemervenster_dicht_wordt_alleen_het_voorbeeld_getekend) {
    vul({"3", "12"});
    p.instellingen.backcolor = 0x123456;
    typ("12");
    EXPECT_EQ(getoond(bediening.voorbeeld), "naam 12/2");
    EXPECT_TRUE(bediening.deelnemer_venster.picDeelnemer.regels().empty());
    EXPECT_NE(bediening.deelnemer_venster.picDeelnemer.achtergrond, 0x123456);
}

TEST_F(HuidigeCombinatie, het_deelnemervenster_toont_hetzelfde_in_zijn_eigen_maat) {
    vul({"3", "12"});
    p.deelnemer_open = true;
    bediening.deelnemer_venster.picDeelnemer.breedte = 38400;
    bediening.deelnemer_venster.picDeelnemer.hoogte = 21600;
    typ("12");
    EXPECT_EQ(getoond(bediening.deelnemer_venster), "naam 12/2");
    EXPECT_EQ(bediening.voorbeeld.picDeelnemer.regels().at(0).punten, 32);
    EXPECT_EQ(bediening.deelnemer_venster.picDeelnemer.regels().at(0).punten, 64);
}

TEST_F(HuidigeCombinatie, na_een_andere_maat_wordt_de_huidige_combinatie_opnieuw_getekend) {
    vul({"3", "12"});
    p.schedule.zet_deelnemer(12, "na:Jan");
    p.instellingen.showridername = 1;
    p.instellingen.shownumber = 1;
    typ("12");
    p.deelnemer_open = true;
    bediening.deelnemer_venster.picDeelnemer.breedte = 9600;
    toon_deelnemer_venster(bediening);
    const auto& regels = bediening.deelnemer_venster.picDeelnemer.regels();
    ASSERT_EQ(regels.size(), 3U);
    EXPECT_EQ(regels[0].tekst, "tijd 12/2");
    EXPECT_EQ(regels[1].tekst, "Jan");
    EXPECT_EQ(regels[2].tekst, "naam 12/2");
    EXPECT_EQ(regels[0].punten, 16);

    bediening.voorbeeld.picDeelnemer.breedte = 6000;
    toon_voorbeeld(bediening);
    EXPECT_EQ(bediening.voorbeeld.picDeelnemer.regels().at(0).punten, 10);
}

TEST_F(HuidigeCombinatie, zonder_gekozen_combinatie_krijgt_het_deelnemervenster_toch_zijn_kleuren) {
    p.rooster_extensie = "rst";
    p.deelnemer_open = true;
    p.instellingen.backcolor = 0x0000AA;
    p.instellingen.rubricbackcolor = 0x00AA00;
    toon_deelnemer_venster(bediening);
    EXPECT_EQ(bediening.deelnemer_venster.picDeelnemer.achtergrond, 0x0000AA);
    EXPECT_EQ(bediening.deelnemer_venster.picRubriek.achtergrond, 0x00AA00);
    EXPECT_TRUE(bediening.deelnemer_venster.picDeelnemer.regels().empty());
}

TEST_F(HuidigeCombinatie, uit_een_werkblad_is_een_rij_te_kiezen_zonder_nummer) {
    p.rooster_extensie = "xls";
    vul({"", ""});
    p.grdExcel.set_columns(1);
    p.grdExcel.set_rows(2);
    p.grdExcel.set_text(0, 0, "Jan");
    p.grdExcel.set_text(1, 0, "Piet");
    p.instellingen.col_rider_name = "A";
    p.instellingen.showridername = 1;
    kies(2);
    EXPECT_EQ(p.txtINR, "");
    const auto& regels = bediening.voorbeeld.picDeelnemer.regels();
    ASSERT_EQ(regels.size(), 2U);
    EXPECT_EQ(regels[0].tekst, "Piet");
    EXPECT_EQ(regels[1].tekst, "naam /2");
}

} // namespace
} // namespace tavelo
