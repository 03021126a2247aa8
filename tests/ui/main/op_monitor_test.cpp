#include "ui/main/op_monitor.h"

#include "fakes/opstelling.h"
#include "schedule/record/kolommen.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

// A list of rows with a number and a name, one of which is on the wall.
struct Wand : test::Opstelling {
    OpMonitor op;

    explicit Wand(const std::string& extensie) { programma.rooster_extensie = extensie; }
    void zet_rij(const std::string& nummer, const std::string& naam) {
        const int rij = programma.grdRooster.append_row();
        programma.grdRooster.set_text(rij, kolom_inr, nummer);
        programma.grdRooster.set_text(rij, kolom_naam, naam);
    }
    void toon(std::int16_t nummer, int regel) {
        programma.huidig_nummer = nummer;
        programma.huidige_regel = regel;
        programma.huidig_naam = regel >= 1 ? programma.grdRooster.text(regel, kolom_naam) : "";
        op = op_monitor_nu(programma, klok);
    }
    [[nodiscard]] Verouderd hoe() const { return verouderd(op, programma); }
    [[nodiscard]] std::optional<int> rij() const { return rij_op_monitor(op, programma); }
};

TEST(Verouderd, elke_cel_van_de_rij_telt_mee_en_de_tijd_alleen_als_zij_op_de_monitor_staat) {
    for (int kolom = 0; kolom <= kolom_laatste; ++kolom) {
        for (const std::int16_t getoond : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}}) {
            Wand wand("xls");
            wand.programma.instellingen.shownumber = getoond;
            wand.zet_rij("7", "Jan");
            wand.toon(7, 1);
            EXPECT_EQ(wand.hoe(), Verouderd::nee);
            const std::string was(wand.programma.grdRooster.text(1, kolom));
            wand.programma.grdRooster.set_text(1, kolom, was + " "); // still the same number
            EXPECT_EQ(wand.hoe(), kolom == kolom_nrtijd && getoond != 1 ? Verouderd::nee : Verouderd::gewijzigd)
                << kolom << " " << getoond;
        }
    }
}

TEST(Verouderd, een_tekst_die_een_cel_opschuift_is_een_wijziging) {
    Wand wand("xls");
    wand.zet_rij("7", "Jan");
    wand.toon(7, 1);
    wand.programma.grdRooster.set_text(1, kolom_naam, "");
    wand.programma.grdRooster.set_text(1, kolom_hc, "Jan");
    EXPECT_EQ(wand.hoe(), Verouderd::gewijzigd);
}

TEST(Verouderd, van_het_record_telt_welke_items_het_heeft_en_niet_hun_volgorde) {
    Wand wand("rst");
    wand.zet_rij("7", "Jan");
    wand.programma.schedule.zet_deelnemer(7, "na:Jan\tpa:Bles\tva:Moor");
    wand.toon(7, 1);
    for (const char* zelfde :
         {"na:Jan\tpa:Bles\tva:Moor", "va:Moor\tna:Jan\tpa:Bles", "na:Jan\t\tpa:Bles\tva:Moor\t"}) {
        wand.programma.schedule.zet_deelnemer(7, zelfde);
        EXPECT_EQ(wand.hoe(), Verouderd::nee) << zelfde;
    }
    for (const char* ander : {"na:Jan\tpa:Bles", "na:Jan\tpa:Blesva:Moor", "na:Jan\tpa:Bles\tva:Max"}) {
        wand.programma.schedule.zet_deelnemer(7, ander);
        EXPECT_EQ(wand.hoe(), Verouderd::gewijzigd) << ander;
    }
}

TEST(Verouderd, een_pauze_die_bovenaan_stond_en_uit_de_lijst_is_is_verdwenen) {
    Wand wand("rst");
    wand.zet_rij("", "lunch");
    wand.zet_rij("7", "Jan");
    wand.toon(0, 1);
    EXPECT_EQ(wand.hoe(), Verouderd::nee);
    wand.programma.grdRooster.set_text(1, kolom_naam, "prijsuitreiking");
    EXPECT_EQ(wand.rij(), std::nullopt);
    EXPECT_EQ(wand.hoe(), Verouderd::verdwenen);
}

TEST(Verouderd, een_andere_lijst_gaat_voor_een_heropende_en_die_voor_een_gewijzigde) {
    Wand wand("xls");
    wand.programma.lijst = {0, "/shows/proef.xls", 3, false};
    wand.zet_rij("7", "Jan");
    wand.toon(7, 1);
    wand.programma.grdRooster.set_text(1, kolom_naam, "Kees");
    EXPECT_EQ(wand.hoe(), Verouderd::gewijzigd);
    wand.programma.lijst.lezing = 4;
    EXPECT_EQ(wand.hoe(), Verouderd::heropend);
    wand.programma.lijst.slot = 1;
    EXPECT_EQ(wand.hoe(), Verouderd::andere_lijst);
    wand.programma.lijst = {0, "/shows/ander.xls", 4, false};
    EXPECT_EQ(wand.hoe(), Verouderd::andere_lijst);
    EXPECT_EQ(wand.rij(), std::nullopt);
}

TEST(OpMonitor, van_een_werkmap_komt_de_naam_uit_de_kolom_van_de_ruiter) {
    Wand wand("xls");
    wand.programma.instellingen.col_rider_name = "B";
    wand.programma.grdExcel.set_columns(2);
    wand.programma.grdExcel.set_rows(2);
    wand.programma.grdExcel.set_text(0, 1, "Jan de Vries");
    wand.programma.grdExcel.set_text(1, 1, "Kees Bakker");
    wand.zet_rij("7", "Jan");
    wand.zet_rij("8", "Kees");
    wand.toon(7, 1);
    EXPECT_EQ(wand.op.naam, "Jan de Vries");
    EXPECT_EQ(wand.op.naam_in_rij, "Jan");
    EXPECT_FALSE(wand.op.in_bestand);
    wand.toon(8, 2);
    EXPECT_EQ(wand.op.naam, "Kees Bakker");
}

TEST(OpMonitor, zonder_rij_record_en_naam_staat_er_geen_combinatie) {
    for (const char* extensie : {"rst", "xls"}) {
        Wand wand(extensie);
        wand.programma.grdExcel.set_columns(1);
        wand.programma.grdExcel.set_rows(1);
        wand.toon(9, 0);
        EXPECT_FALSE(wand.op.combinatie) << extensie;
        EXPECT_EQ(wand.hoe(), Verouderd::nee) << extensie;
        wand.programma.lijst = {1, "/shows/ander", 2, false};
        EXPECT_EQ(wand.hoe(), Verouderd::nee) << extensie; // nothing is no older in another list
        wand.zet_rij("0", "");
        wand.toon(0, 1); // a row without a name
        EXPECT_TRUE(wand.op.combinatie) << extensie;
        EXPECT_EQ(wand.rij(), 1) << extensie;
        wand.toon(0, 1);
        wand.programma.grdRooster.set_rows(1); // and is not found beyond the end
        EXPECT_EQ(wand.rij(), std::nullopt) << extensie;
    }
}

TEST(RijOpMonitor, is_de_laatste_met_dat_nummer_als_de_rij_zelf_een_ander_kreeg) {
    Wand wand("rst");
    for (const char* nummer : {"5", "6", "5"})
        wand.zet_rij(nummer, "Jan");
    wand.toon(6, 2);
    wand.programma.grdRooster.set_text(1, kolom_inr, "6");
    EXPECT_EQ(wand.rij(), 2);
    wand.programma.grdRooster.set_text(2, kolom_inr, "5");
    EXPECT_EQ(wand.rij(), 1);
    wand.programma.grdRooster.set_text(3, kolom_inr, "6");
    EXPECT_EQ(wand.rij(), 3);
}

TEST(RijOpMonitor, een_pauze_is_alleen_dezelfde_met_dezelfde_tekst) {
    Wand wand("rst");
    for (const char* naam : {"pauze", "lunch", "pauze"})
        wand.zet_rij("", naam);
    wand.toon(0, 1);
    EXPECT_EQ(wand.rij(), 1);
    wand.programma.grdRooster.set_text(1, kolom_naam, "lunch");
    EXPECT_EQ(wand.rij(), 3);
    wand.programma.grdRooster.set_rows(3);
    EXPECT_EQ(wand.rij(), std::nullopt);
}

struct Plek {
    double x;
    double y;
    int buiten;
};

TEST(RegelsBuitenBeeld, een_pixel_over_elke_rand_van_de_monitor_telt_nog_niet) {
    const test::FakeMeasure meter; // "a" in 10 points: 130 wide, 230 high
    for (const Plek& plek : {Plek{0, 0, 0},
                             {-15, 0, 0},
                             {-16, 0, 1},
                             {0, -15, 0},
                             {0, -16, 1},
                             {885, 0, 0},
                             {886, 0, 1},
                             {0, 785, 0},
                             {0, 786, 1},
                             {-16, -16, 1}}) {
        Vertoning vertoning;
        for (Tekenvlak* vlak : {&vertoning.picDeelnemer, &vertoning.picRubriek}) {
            vlak->breedte = 1000;
            vlak->hoogte = 1000;
            vlak->zet_punten(10);
            vlak->huidige_y = plek.y;
            vlak->druk(meter, plek.x, "a");
            vlak->druk(meter, plek.x, "");
        }
        EXPECT_EQ(regels_buiten_beeld(vertoning, meter), 2 * plek.buiten) << plek.x << ", " << plek.y;
        vertoning.picRubriek.zichtbaar = false;
        EXPECT_EQ(regels_buiten_beeld(vertoning, meter), plek.buiten) << plek.x << ", " << plek.y;
    }
}

} // namespace
} // namespace tavelo
