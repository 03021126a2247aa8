#include "vocabulary/rubriek_woorden.h"

#include "fakes/grid_events.h"
#include "fakes/seams.h"
#include "schedule/record/kolommen.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using Teksten = std::vector<std::string>;

TEST(RubriekWoorden, elk_ringtype_heeft_een_naam) {
    const Teksten namen = {"Dressuur",
                           "Springen, Rijstijlwedstrijd",
                           "Springen, Klassiek (AA)",
                           "Springen, Progressief (PP)",
                           "Springen, Jacht (C)",
                           "Springen, 2 Fasen (AC)",
                           "Springen, 2 Manches (AAA)",
                           "Mennen dressuur",
                           "Mennen vaardigheid, Klassiek",
                           "Mennen vaardigheid, 2 Manches (AAA)",
                           "Springen, 2-Fasen (AA)",
                           "Springen, 2 Manches (AASt)",
                           "Afdelingsdressuur (4-tallen)",
                           "Afdelingsdressuur (8-tallen)",
                           "Springen, 2 Manches (StStSt)",
                           "Afdelingsdressuur (6-tallen)",
                           "Springen, 2-Fasen (StSt)",
                           "Springen, Jonge paarden art. 281",
                           "Mennen vaardigheid, 2 Manches (CCC)",
                           ""};
    RubriekRecord r;
    for (std::size_t code = 0; code < namen.size(); ++code) {
        r.rcom = static_cast<std::int16_t>(code);
        EXPECT_EQ(ringtype_naam(r), namen[code]);
    }
    r.rcom = -1;
    EXPECT_EQ(ringtype_naam(r), "");
}

TEST(RubriekWoorden, de_week_begint_op_maandag) {
    const Teksten dagen = {"maandag", "dinsdag", "woensdag", "donderdag", "vrijdag", "zaterdag", "zondag", "onbekend"};
    for (std::size_t dag = 0; dag < dagen.size(); ++dag)
        EXPECT_EQ(weekdag_naam(static_cast<std::int16_t>(dag)), dagen[dag]);
    EXPECT_EQ(weekdag_naam(-1), "onbekend");
}

TEST(RubriekWoorden, minuten_worden_uren_en_minuten_van_de_dag) {
    EXPECT_EQ(minuten_naar_hhmm(0), ""); // midnight is not shown
    EXPECT_EQ(minuten_naar_hhmm(0.4), "00:00");
    EXPECT_EQ(minuten_naar_hhmm(0.5), "00:01");
    EXPECT_EQ(minuten_naar_hhmm(605), "10:05");
    EXPECT_EQ(minuten_naar_hhmm(1439.4), "23:59");
    EXPECT_EQ(minuten_naar_hhmm(1439.6), "00:00");
    EXPECT_EQ(minuten_naar_hhmm(1440), "00:00");
    EXPECT_EQ(minuten_naar_hhmm(1500), "01:00");
    EXPECT_EQ(minuten_naar_hhmm(-1), "23:59");
}

TEST(RubriekWoorden, een_tijd_die_niet_te_rekenen_is_geeft_een_melding) {
    const auto tijd = minuten_naar_hhmm(1e12);
    ASSERT_FALSE(tijd);
    EXPECT_TRUE(tijd.error().starts_with("minuten naar hhmm error: "));
}

std::string dag_tijd(std::string_view dag, std::string_view uur, std::string_view minuut) {
    RubriekRecord r;
    r.rdag = dag;
    r.ruty = uur;
    r.rmty = minuut;
    return dag_tijd_tekst(r);
}

TEST(RubriekWoorden, dag_en_tijd_vullen_alleen_de_minuten_aan) {
    EXPECT_EQ(dag_tijd("5", "9", "5"), "zaterdag 9:05 uur");
    EXPECT_EQ(dag_tijd("0", "10", "30"), "maandag 10:30 uur");
    EXPECT_EQ(dag_tijd("6", "", ""), "zondag :00 uur");
    EXPECT_EQ(dag_tijd("6", "9", "105"), "zondag 9:05 uur"); // the last two
    EXPECT_EQ(dag_tijd("7", "9", "0"), "onbekend 9:00 uur");
    EXPECT_EQ(dag_tijd("", "9", "5"), "");
    EXPECT_EQ(dag_tijd("40000", "9", "5"), "");
    EXPECT_EQ(dag_tijd("0", "9", "€"), "maandag 9:0€ uur"); // characters, not bytes
}

TEST(RubriekWoorden, de_rubriekregel_laat_lege_koppen_weg) {
    RubriekRecord r;
    const Schedule schedule;
    EXPECT_EQ(rubriek_regel(r, schedule), "Dressuur");
    r.rkla = "*L*M*";
    EXPECT_EQ(rubriek_regel(r, schedule), "Dressuur, Klasse L, M");
    r.rcat = "*A*";
    EXPECT_EQ(rubriek_regel(r, schedule), "Dressuur, Klasse L, M, Categorie A");
    r.rkla = "";
    EXPECT_EQ(rubriek_regel(r, schedule), "Dressuur, Categorie A");
    r.rcom = 19;
    EXPECT_EQ(rubriek_regel(r, schedule), ", Categorie A");
}

Teksten groepen(std::int16_t stand, std::string_view eigen = "") {
    RubriekRecord r;
    r.rhcapu = stand;
    r.rhcap = eigen;
    return categorie_groepen(r);
}

TEST(RubriekWoorden, elke_stand_heeft_zijn_groepen_van_categorieen) {
    const std::vector<Teksten> standen = {{"AB", "C", "D", "E", "P"},
                                          {"A", "BC", "D", "E", "P"},
                                          {"A", "B", "C", "D", "E", "P"},
                                          {"AB", "CD", "EP"},
                                          {"ABCDEP"},
                                          {"A", "B", "CD", "E", "P"},
                                          {"A", "B", "C", "DE", "P"},
                                          {"AB", "CD", "E", "P"},
                                          {"AB", "C", "DE", "P"},
                                          {"A", "BC", "DE", "P"},
                                          {"ABCDE", "P"}};
    for (std::size_t stand = 0; stand < standen.size(); ++stand) {
        Teksten verwacht = standen[stand];
        for (const std::string letter : {"S", "T", "U", "V"})
            verwacht.push_back(letter);
        EXPECT_EQ(groepen(static_cast<std::int16_t>(stand)), verwacht) << stand;
    }
}

TEST(RubriekWoorden, wat_een_eigen_patroon_niet_noemt_wordt_een_groep_op_zichzelf) {
    const Teksten alle = {"A", "B", "C", "D", "E", "P", "S", "T", "U", "V"};
    EXPECT_EQ(groepen(11), alle);
    EXPECT_EQ(groepen(11, "  "), alle);
    EXPECT_EQ(groepen(11, "-"), alle);
    EXPECT_EQ(groepen(12), alle);
    EXPECT_EQ(groepen(11, " -AV---BU- "), (Teksten{"AV", "BU", "C", "D", "E", "P", "S", "T"}));
    EXPECT_EQ(groepen(11, "ab"), (Teksten{"ab", "A", "B", "C", "D", "E", "P", "S", "T", "U", "V"}));
}

TEST(RubriekWoorden, de_lijsten_zijn_klassen_en_groepen_achter_elkaar) {
    RubriekRecord r;
    r.rpkl = 2;
    r.rpklh = "L-M";
    r.rhcapu = 3;
    EXPECT_EQ(rubriek_lijsten(r), "L, M, AB, CD, EP, S, T, U, V");
}

TEST(RubriekWoorden, een_lege_rubriek_heeft_juryplaatsen_en_laat_de_omschrijving_staan) {
    Schedule schedule;
    schedule.huidige_rubriek.roms = "Finale";
    schedule.huidige_rubriek.rjn[2] = "Jansen";
    RubriekLabels labels{"a", "b", "c", "d", "e", "f", "g"};
    Grid grid;
    grid.set_columns(2);
    grid.set_rows(3);
    grid.set_text(0, 0, "titel");
    rubriek_leeg(grid, schedule, labels);
    EXPECT_EQ(schedule.huidige_rubriek.roms, "");
    EXPECT_EQ(schedule.huidige_rubriek.rpkl, 1);
    EXPECT_EQ(schedule.huidige_rubriek.rjp, (std::array<std::string, 5>{"C", "H", "M", "E", "B"}));
    EXPECT_EQ(schedule.huidige_rubriek.rjn, (std::array<std::string, 5>{}));
    EXPECT_EQ(labels.lblRubriek, "");
    EXPECT_EQ(labels.lblRoosterOmschrijving, "b");
    EXPECT_EQ(labels.lblRingType, "");
    EXPECT_EQ(labels.lblRingNaam, "Ring");
    EXPECT_EQ(labels.lblDagTijd, "");
    EXPECT_EQ(labels.lblRubriekLijsten, "");
    EXPECT_EQ(labels.lblJury, "");
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.text(0, 0), "titel");
}

TEST(RubriekWoorden, de_labels_vertellen_over_de_rubriek) {
    Schedule schedule;
    RubriekRecord& r = schedule.huidige_rubriek;
    r.rcom = 7;
    r.rtype = "Baan";
    r.rring = "2";
    r.rdag = "5";
    r.ruty = "9";
    r.rkla = "L";
    r.rpkl = 2;
    r.rpklh = "L";
    r.rhcapu = 4;
    r.rjp = {"C", "H", "M", "E", "B"};
    r.rjn = {"Vos", "", "De Wit", "", ""};
    RubriekLabels labels;
    labels.lblRoosterOmschrijving = "blijft";
    vul_rubriek_labels(schedule, labels);
    EXPECT_EQ(labels.lblRubriek, "Mennen dressuur, Klasse L");
    EXPECT_EQ(labels.lblRingType, "Mennen dressuur");
    EXPECT_EQ(labels.lblRingNaam, "Baan 2");
    EXPECT_EQ(labels.lblDagTijd, "zaterdag 9:00 uur");
    EXPECT_EQ(labels.lblRubriekLijsten, "L, ABCDEP, S, T, U, V");
    EXPECT_EQ(labels.lblJury, "C: Vos, M: De Wit");
    EXPECT_EQ(labels.lblRoosterOmschrijving, "blijft");
}

// A rubriek that starts at 9:00 with 7 minutes for a combination.
struct NrTijd {
    RubriekRecord rubriek;
    Grid grid;
    test::FakeMessages berichten;

    explicit NrTijd(std::int16_t soort) {
        rubriek.rtvko = soort;
        rubriek.ruty = "9";
        rubriek.rmty = "0";
        rubriek.rpty = "7";
        grid.set_columns(kolom_laatste + 1);
        grid.set_rows(1);
    }
    NrTijd& rij(std::string_view inr, std::int32_t waarde = 0) {
        const int plaats = grid.append_row();
        grid.set_text(plaats, kolom_inr, inr);
        grid.set_row_value(plaats, waarde);
        return *this;
    }
    // The column with its title.
    Teksten kolom() {
        vul_nr_tijd(grid, rubriek, berichten);
        Teksten teksten{std::string(grid.text(0, kolom_nrtijd))};
        for (const std::string& tekst : test::column_texts(grid, kolom_nrtijd))
            teksten.push_back(tekst);
        return teksten;
    }
};

TEST(NrTijd, de_kolom_toont_tijd_nummer_of_beide) {
    EXPECT_EQ(NrTijd(0).rij("3").rij("8").kolom(), (Teksten{"tijd", "09:00", "09:07"}));
    EXPECT_EQ(NrTijd(1).rij("3").rij("8").kolom(), (Teksten{"nr.", "1", "2"}));
    EXPECT_EQ(NrTijd(3).rij("3").rij("8").kolom(), (Teksten{"nr.--tijd", "1--09:00", "2--09:07"}));
    for (const std::int16_t soort : std::initializer_list<std::int16_t>{2, 4, -1, 5}) {
        NrTijd proef(soort);
        proef.rij("3").rij("P");
        proef.grid.set_text(2, kolom_nrtijd, "oud");
        EXPECT_EQ(proef.kolom(), (Teksten{"", "", ""}));
    }
}

TEST(NrTijd, een_pauze_houdt_het_nummer_vast_en_duurt_haar_eigen_tijd) {
    EXPECT_EQ(NrTijd(3).rij("3").rij("P", 30).rij("8").kolom(),
              (Teksten{"nr.--tijd", "1--09:00", "09:07", "2--09:37"}));
    EXPECT_EQ(NrTijd(1).rij("3").rij("P", 30).rij("8").kolom(), (Teksten{"nr.", "1", "", "2"}));
}

TEST(NrTijd, een_pauze_zonder_lengte_duurt_zo_lang_als_een_combinatie) {
    EXPECT_EQ(NrTijd(0).rij("P", 0).rij("P", -5).rij("8").kolom(), (Teksten{"tijd", "09:00", "09:07", "09:14"}));
}

TEST(NrTijd, een_kleine_p_toont_geen_nummer_maar_verbruikt_er_wel_een) {
    EXPECT_EQ(NrTijd(3).rij("p", 30).rij("8").kolom(), (Teksten{"nr.--tijd", "09:00", "2--09:07"}));
}

TEST(NrTijd, alleen_een_pauze_gebruikt_de_waarde_van_haar_rij) {
    EXPECT_EQ(NrTijd(0).rij("3", 30).rij("0", 30).rij("8").kolom(), (Teksten{"tijd", "09:00", "09:07", "09:14"}));
}

TEST(NrTijd, het_eerste_nummer_staat_in_de_rubriek_en_anders_is_het_1) {
    const auto eerste = [](std::string_view rsar) {
        NrTijd proef(1);
        proef.rubriek.rsar = rsar;
        return proef.rij("3").kolom()[1];
    };
    EXPECT_EQ(eerste(""), "1");
    EXPECT_EQ(eerste("12"), "12");
    EXPECT_EQ(eerste("0"), "0");
    EXPECT_EQ(eerste("-3"), "-3");
    EXPECT_EQ(eerste("x"), "0");
    EXPECT_EQ(eerste("40000"), "0");
}

TEST(NrTijd, het_nummer_blijft_staan_op_het_hoogste) {
    NrTijd proef(1);
    proef.rubriek.rsar = "32766";
    EXPECT_EQ(proef.rij("1").rij("2").rij("3").kolom(), (Teksten{"nr.", "32766", "32767", "32767"}));
}

TEST(NrTijd, de_begintijd_wordt_afgerond_en_een_breuk_per_combinatie_loopt_door) {
    NrTijd proef(0);
    proef.rubriek.ruty = "9.5";
    proef.rubriek.rmty = "0.5";
    proef.rubriek.rpty = "2.5";
    EXPECT_EQ(proef.rij("1").rij("2").rij("3").kolom(), (Teksten{"tijd", "09:31", "09:34", "09:36"}));
}

TEST(NrTijd, zonder_begintijd_blijft_de_eerste_tijd_leeg) {
    NrTijd proef(3);
    proef.rubriek.ruty = "";
    EXPECT_EQ(proef.rij("1").rij("2").kolom(), (Teksten{"nr.--tijd", "1--", "2--00:07"}));
}

TEST(NrTijd, daarna_is_rij_1_kolom_3_de_huidige_cel) {
    NrTijd proef(0);
    proef.rij("1").rij("2").grid.set_row(2);
    (void)proef.kolom();
    EXPECT_EQ(proef.grid.row(), 1);
    EXPECT_EQ(proef.grid.column(), 3);
    NrTijd leeg(0);
    EXPECT_EQ(leeg.kolom(), Teksten{"tijd"});
    EXPECT_EQ(leeg.grid.row(), 0);
}

TEST(NrTijd, een_tijd_die_niet_te_rekenen_is_wordt_een_keer_gemeld) {
    NrTijd proef(3);
    proef.rubriek.rpty = "1e300";
    EXPECT_EQ(proef.rij("1").rij("2").rij("3").kolom(), (Teksten{"nr.--tijd", "1--09:00", "2--", "3--"}));
    ASSERT_EQ(proef.berichten.shown.size(), 1U);
    EXPECT_TRUE(proef.berichten.shown[0].starts_with("minuten naar hhmm error: "));
}

TEST(RubriekWoorden, wat_geen_rechter_is_staat_niet_bij_de_jury) {
    Schedule schedule;
    schedule.huidige_rubriek.rjp = {"C", "M", "B", "H", "E"};
    schedule.huidige_rubriek.rjc.fill("code");
    RubriekLabels labels;
    vul_rubriek_labels(schedule, labels);
    EXPECT_EQ(labels.lblJury, "");
    schedule.huidige_rubriek.rjn[4] = "Vos";
    vul_rubriek_labels(schedule, labels);
    EXPECT_EQ(labels.lblJury, "E: Vos");
}

TEST(RubriekWoorden, de_naam_van_de_ring_heeft_geen_spaties_aan_zijn_randen) {
    const auto naam = [](std::string_view soort, std::string_view ring) {
        Schedule schedule;
        schedule.huidige_rubriek.rtype = soort;
        schedule.huidige_rubriek.rring = ring;
        RubriekLabels labels;
        vul_rubriek_labels(schedule, labels);
        return labels.lblRingNaam;
    };
    EXPECT_EQ(naam("", "2"), "2");
    EXPECT_EQ(naam("Ring", ""), "Ring");
    EXPECT_EQ(naam("", ""), "");
}

} // namespace
} // namespace tavelo
