#include "schedule/herlees_rooster.h"

#include "schedule/rij_voor_rij.h"
#include "schedule/roosterproef.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::deelname;
using test::GridEvents;
using test::Roosterproef;
using test::Texts;

// The lines of a schedule of these combinations: number and the rest of the record.
std::string tekst_van(std::initializer_list<std::pair<int, std::string_view>> combinaties) {
    std::string tekst = "[Vendalo 3.4]\r\n";
    std::string rubriek = "rnr:1\trid:D1\troms:Finale";
    for (const auto& [nummer, record] : combinaties) {
        tekst += "dnr:" + std::to_string(nummer) + "\t" + std::string(record) + "\r\n";
        rubriek += deelname(std::to_string(nummer));
    }
    return tekst + rubriek + "\r\n";
}

struct Herleesproef : Roosterproef {
    test::Verslag verslag;
    GridEvents gehoord;

    explicit Herleesproef(std::string_view eerst) { EXPECT_TRUE(lees_bytes(eerst)); }
    bool herlees(std::string_view bytes) {
        const std::string pad = map.write("proef.rst", bytes);
        gehoord = {};
        verslag.regels.clear();
        grid.set_listener(&gehoord);
        const bool gelezen = herlees_rooster(pad, doel, grdImport, &verslag);
        grid.set_listener(nullptr);
        return gelezen;
    }
    [[nodiscard]] Texts nummers() const { return test::column_texts(grid, kolom_inr); }
    [[nodiscard]] Texts namen() const { return test::column_texts(grid, kolom_naam); }
};

TEST(Herlees, een_nieuwe_combinatie_in_het_midden_komt_op_haar_plaats) {
    Herleesproef proef(tekst_van({{1, "na:Jan"}, {3, "na:Kees"}}));
    ASSERT_TRUE(proef.herlees(tekst_van({{1, "na:Jan"}, {2, "na:Piet\tco:K2\tpa:Bles"}, {3, "na:Kees"}})));
    EXPECT_EQ(proef.namen(), (Texts{"Jan", "Piet", "Kees"}));
    EXPECT_EQ(test::row_texts(proef.grid, 2), (Texts{"", "2", "2", "K2", "Piet", "", "Bles", "", "", "", ""}));
    EXPECT_EQ(proef.gehoord.inserted, std::vector{2});
    EXPECT_TRUE(proef.gehoord.removed.empty());
    EXPECT_TRUE(proef.gehoord.cells.empty());
    EXPECT_EQ(proef.gehoord.resets, 0);
    EXPECT_EQ(proef.verslag.regels[2], "toegevoegd\t\tPiet\t\tBles\t\t\t\t");
}

TEST(Herlees, een_combinatie_die_weg_is_gaat_van_het_eind_af) {
    Herleesproef proef(tekst_van({{1, "na:Jan"}, {2, "na:Piet"}, {3, "na:Kees"}, {4, "na:Klaas"}}));
    ASSERT_TRUE(proef.herlees(tekst_van({{1, "na:Jan"}, {3, "na:Kees Vos"}, {4, "na:Klaas"}})));
    // By position: the rows that followed are updated where they stand and one row falls off the end.
    EXPECT_EQ(proef.namen(), (Texts{"Jan", "Piet", "Kees Vos"}));
    EXPECT_EQ(proef.gehoord.removed, std::vector{4});
    EXPECT_EQ(proef.gehoord.cells, (std::vector<std::pair<int, int>>{{3, kolom_naam}}));
    EXPECT_EQ(proef.verslag.regels.back(), "verwijderd\t\tKlaas\t\t\t\t\t\t");
}

TEST(Herlees, van_twee_rijen_met_hetzelfde_nummer_wordt_alleen_de_eerste_bijgewerkt) {
    Herleesproef proef("[Vendalo 3.4]\ndnr:1\tna:Jan\nrnr:1\trid:D1" + deelname("1") + deelname("01"));
    ASSERT_EQ(proef.namen(), (Texts{"Jan", "Jan"}));
    ASSERT_TRUE(proef.herlees("[Vendalo 3.4]\ndnr:1\tna:Piet\nrnr:1\trid:D1" + deelname("1") + deelname("1.0")));
    EXPECT_EQ(proef.namen(), (Texts{"Piet", "Jan"}));
    EXPECT_EQ(proef.grid.row_value(1), 2); // of the last row that matched it
    EXPECT_EQ(proef.grid.row_value(2), 0);
}

TEST(Herlees, een_nieuw_nummer_dat_twee_keer_in_het_bestand_staat_komt_er_een_keer_bij) {
    Herleesproef proef(tekst_van({{1, "na:Jan"}}));
    ASSERT_TRUE(proef.herlees("[Vendalo 3.4]\ndnr:1\tna:Jan\ndnr:5\tna:Piet\nrnr:1\trid:D1" + deelname("1") +
                              deelname("5") + deelname("05")));
    EXPECT_EQ(proef.nummers(), (Texts{"1", "5"}));
    EXPECT_EQ(proef.grid.row_value(2), 3);
}

TEST(Herlees, alleen_hoofdletters_hc_of_dubbele_spaties_in_een_naam_is_geen_wijziging) {
    for (const std::string_view nieuw :
         {"na:JAN DE BOER", "na:Jan  de Boer", "na:jan de boer (HC)", "na: Jan de Boer ", "na:Jan (HC) de Boer",
          "na:Jan de Boer\tdh:1", "na:Jan   de    Boer", "na:  Jan (HC)  (HC) de Boer"}) {
        Herleesproef proef(tekst_van({{1, "na:Jan de Boer"}}));
        ASSERT_TRUE(proef.herlees(tekst_van({{1, nieuw}})));
        EXPECT_EQ(proef.cel(1, kolom_naam), "Jan de Boer") << nieuw;
    }
    Herleesproef proef(tekst_van({{1, "na:Jan de Boer"}}));
    ASSERT_TRUE(proef.herlees(tekst_van({{1, "na:Jan deBoer"}})));
    EXPECT_EQ(proef.cel(1, kolom_naam), "Jan deBoer");
    ASSERT_TRUE(proef.herlees(tekst_van({{1, "na:Jan (hc) deBoer"}}))); // only in capitals
    EXPECT_EQ(proef.cel(1, kolom_naam), "Jan (hc) deBoer");
}

TEST(Herlees, alleen_hoofdletters_in_een_andere_kolom_is_geen_wijziging) {
    const std::string_view oud = "na:a\tpa:Bles\tva:Vonk\tve:Hoef\tdk:L\tca:B\trhc:D1(1)\tco:k1\thnr:x";
    Herleesproef proef(tekst_van({{1, oud}}));
    ASSERT_TRUE(
        proef.herlees(tekst_van({{1, "na:A\tpa:BLES\tva:VONK\tve:HOEF\tdk:l\tca:b\trhc:D1(1)\tco:K1\thnr:X"}})));
    // The federation's number is compared letter by letter, the head number not at all.
    EXPECT_EQ(test::row_texts(proef.grid, 1),
              (Texts{"", "1", "X", "K1", "a (HC)", "(HC)", "Bles", "Vonk", "Hoef", "L", "B"}));
    EXPECT_EQ(proef.gehoord.cells, (std::vector<std::pair<int, int>>{{1, kolom_cnr}, {1, kolom_hnr}}));
}

TEST(Herlees, elke_vergeleken_kolom_volgt_het_bestand) {
    Herleesproef proef(tekst_van({{1, "na:a\tpa:b\tva:c\tve:d\tdk:e\tca:f\tco:g\thnr:h"}}));
    ASSERT_TRUE(proef.herlees(tekst_van({{1, "na:1\tpa:2\tva:3\tve:4\tdk:5\tca:6\tco:7\thnr:8\tdh:1"}})));
    EXPECT_EQ(test::row_texts(proef.grid, 1), (Texts{"", "1", "8", "7", "1 (HC)", "HC", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(proef.verslag.regels,
              (Texts{"gewijzigd\tvan\tg\ta\t\tb\tc\td\te\tf", "\tnaar\t7\t1 (HC)\tHC\t2\t3\t4\t5\t6"}));
}

TEST(Herlees, een_cnr_dat_leeg_wordt_blijft_in_grid_en_record) {
    Herleesproef proef(tekst_van({{1, "na:Jan\tco:K1"}, {2, "na:Piet\tco:K2"}}));
    ASSERT_TRUE(proef.herlees(tekst_van({{1, "na:Jan\tco:"}, {2, "na:Piet"}})));
    EXPECT_EQ(test::column_texts(proef.grid, kolom_cnr), (Texts{"K1", "K2"}));
    EXPECT_EQ(proef.schedule.deelnemer(1), "na:Jan\tco:K1");
    EXPECT_EQ(proef.schedule.deelnemer(2), "na:Piet\tco:K2");
    EXPECT_EQ(proef.verslag.regels[1], "\tnaar\tK1\tJan\t\t\t\t\t\t");
}

TEST(Herlees, een_cnr_dat_verandert_of_erbij_komt_volgt_het_bestand) {
    Herleesproef proef(tekst_van({{1, "na:Jan\tco:K1"}, {2, "na:Piet"}}));
    ASSERT_TRUE(proef.herlees(tekst_van({{1, "na:Jan\tco:K9"}, {2, "na:Piet\tco:K2"}})));
    EXPECT_EQ(test::column_texts(proef.grid, kolom_cnr), (Texts{"K9", "K2"}));
    EXPECT_EQ(proef.schedule.deelnemer(1), "na:Jan\tco:K9");
}

TEST(Herlees, pauzes_doen_niet_mee) {
    const std::string pauze = "\tdnr:P\t10\tKoffie\t\t\t\t";
    const auto tekst = [&](std::string_view na, const std::string& lijst) {
        return "[Vendalo 3.4]\ndnr:1\tna:" + std::string(na) + "\nrnr:1\trid:a" + lijst;
    };
    Herleesproef proef(tekst("Jan", pauze + deelname("1") + deelname("-3")));
    proef.gehoord = {};
    ASSERT_TRUE(proef.herlees(tekst("Piet", "\tdnr:P\t20\tLunch\t\t\t\t" + deelname("1") + deelname("-3"))));
    EXPECT_EQ(proef.namen(), (Texts{"Koffie", "Piet", "pauze"}));
    EXPECT_EQ(proef.grid.row_value(1), 10);
    EXPECT_EQ(proef.verslag.regels.size(), 2U);
    // A pause that falls off the end is not reported, a negative number is.
    ASSERT_TRUE(proef.herlees(tekst("Piet", "")));
    EXPECT_EQ(proef.grid.rows(), 1);
    EXPECT_EQ(proef.verslag.regels, (Texts{"verwijderd\t\tPiet\t\t\t\t\t\t", "verwijderd\t\tpauze\t\t\t\t\t\t"}));
}

TEST(Herlees, een_plaats_voorbij_het_eind_wordt_de_laatste) {
    Herleesproef proef(tekst_van({{1, "na:Jan"}}));
    const std::string pauze = "\tdnr:P\t10\tKoffie\t\t\t\t";
    ASSERT_TRUE(proef.herlees("[Vendalo 3.4]\ndnr:1\tna:Jan\ndnr:2\tna:Piet\nrnr:1\trid:a" + pauze + pauze + pauze +
                              deelname("1") + deelname("2")));
    EXPECT_EQ(proef.namen(), (Texts{"Jan", "Piet"}));
}

TEST(Herlees, hetzelfde_bestand_wijzigt_niets) {
    const std::string tekst = tekst_van({{1, "na:Jan\tco:K1\tpa:Bles"}, {2, "na:*Piet (HC)"}, {3, ""}});
    Herleesproef proef(tekst);
    const auto voor = test::all_texts(proef.grid);
    ASSERT_TRUE(proef.herlees(tekst));
    EXPECT_EQ(test::all_texts(proef.grid), voor);
    EXPECT_TRUE(proef.gehoord.cells.empty());
    EXPECT_TRUE(proef.gehoord.inserted.empty());
    EXPECT_TRUE(proef.gehoord.removed.empty());
    EXPECT_EQ(proef.gehoord.current + proef.gehoord.resets, 0);
    ASSERT_EQ(proef.verslag.regels.size(), 6U);
    EXPECT_EQ(proef.verslag.regels[0], "gewijzigd\tvan\tK1\tJan\t\tBles\t\t\t\t");
    EXPECT_EQ(proef.verslag.regels[1], "\tnaar\tK1\tJan\t\tBles\t\t\t\t");
}

TEST(Herlees, een_gewijzigde_cel_hertekent_een_cel) {
    Herleesproef proef(tekst_van({{1, "na:Jan\tpa:Bles"}, {2, "na:Piet"}}));
    ASSERT_TRUE(proef.herlees(tekst_van({{1, "na:Jan\tpa:Vonk"}, {2, "na:Piet"}})));
    EXPECT_EQ(proef.gehoord.cells, (std::vector<std::pair<int, int>>{{1, kolom_paard}}));
    EXPECT_TRUE(proef.gehoord.inserted.empty());
    EXPECT_TRUE(proef.gehoord.removed.empty());
    EXPECT_EQ(proef.gehoord.current + proef.gehoord.resets, 0);
}

TEST(Herlees, elke_gevonden_rij_krijgt_haar_plaats_in_het_bestand) {
    Herleesproef proef(tekst_van({{1, "na:a"}, {2, "na:b"}, {3, "na:c"}}));
    ASSERT_TRUE(proef.herlees(tekst_van({{3, "na:c"}, {1, "na:a"}, {2, "na:b"}})));
    EXPECT_EQ(proef.nummers(), (Texts{"1", "2", "3"}));
    EXPECT_EQ(proef.grid.row_value(1), 2);
    EXPECT_EQ(proef.grid.row_value(2), 3);
    EXPECT_EQ(proef.grid.row_value(3), 1);
}

TEST(Herlees, de_lijsten_worden_eerst_gewist) {
    Herleesproef proef("[Vendalo 3.4]\ndnr:1\tna:Jan\ndnr:9\tna:Oud\nrubriek:9\toms:Oud\nsinglesignin:1\nrnr:1\trid:a");
    ASSERT_TRUE(proef.herlees("[Vendalo 3.4]\ndnr:1\tna:Jan\ndnr:4001\tna:x\nrubriek:2001\toms:x\nrnr:1\trid:b"));
    EXPECT_EQ(proef.schedule.deelnemer(9), "");
    EXPECT_EQ(proef.schedule.rubriek(9).oms, "");
    EXPECT_EQ(proef.schedule.singlesignin, 0);
    EXPECT_EQ(proef.schedule.huidige_rubriek.rid, "b");
}

TEST(Herlees, een_andere_eerste_regel_of_geen_bestand_verandert_niets) {
    const std::string tekst = tekst_van({{1, "na:Jan"}});
    Herleesproef proef(tekst);
    EXPECT_FALSE(proef.herlees("[Vendalo 3.4] \r\ndnr:1\tna:Piet\r\n"));
    EXPECT_FALSE(proef.herlees(""));
    EXPECT_FALSE(herlees_rooster(proef.map.file("weg.rst"), proef.doel, proef.grdImport));
    EXPECT_FALSE(herlees_rooster(proef.map.file(""), proef.doel, proef.grdImport));
    EXPECT_EQ(proef.namen(), Texts{"Jan"});
    EXPECT_EQ(proef.schedule.deelnemer(1), "na:Jan");
    EXPECT_EQ(proef.schedule.huidige_rubriek.roms, "Finale");
    EXPECT_TRUE(proef.verslag.regels.empty());
}

TEST(Herlees, wat_er_ook_in_het_bestand_staat_er_komt_geen_melding) {
    Herleesproef proef(tekst_van({{1, "na:Jan"}}));
    ASSERT_TRUE(proef.herlees("[Vendalo 3.4]\nrubriek:1\tcom:99999\nsinglesignin:99999\n"
                              "rnr:1\trcom:99999\trtvk:1e9\tdnr:-3\t\t\t\t\t\t\tdnr:P\t1e99\t\t\t\t\t"));
    EXPECT_TRUE(proef.berichten.shown.empty());
    EXPECT_FALSE(proef.logboek.entries.empty());
}

TEST(Herlees, een_half_geschreven_bestand_wordt_samengevoegd_zoals_het_is) {
    const std::string heel = tekst_van({{1, "na:Jan"}, {2, "na:Piet"}});
    Herleesproef proef(heel);
    ASSERT_TRUE(proef.herlees(heel.substr(0, heel.find("rnr:"))));
    EXPECT_EQ(proef.grid.rows(), 1);
    ASSERT_TRUE(proef.herlees(heel));
    EXPECT_EQ(proef.namen(), (Texts{"Jan", "Piet"}));
}

TEST(Herlees, een_nummer_buiten_de_lijst_van_combinaties_heeft_geen_record_om_te_bewaren) {
    for (const std::string_view nummer : {"4001", "5000000000"}) {
        Grid doel;
        doel.set_columns(kolom_laatste + 1);
        doel.set_rows(1);
        std::array<std::string_view, kolom_laatste + 1> rij{};
        rij[kolom_inr] = nummer;
        rij[kolom_cnr] = "K1";
        doel.append_row(rij);
        Grid bron;
        bron.set_columns(kolom_laatste + 1);
        bron.set_rows(1);
        rij[kolom_naam] = "Jan";
        bron.append_row(rij);
        Schedule schedule;
        voeg_rooster_samen(doel, bron, schedule, nullptr);
        EXPECT_EQ(doel.rows(), 2) << nummer;
        EXPECT_EQ(doel.text(1, kolom_naam), "Jan") << nummer;
        EXPECT_EQ(schedule.deelnemer(0), "") << nummer;
    }
}

} // namespace
} // namespace tavelo
