#include "schedule/vul_rooster.h"

#include "schedule/roosterproef.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::deelname;
using test::Roosterproef;
using test::Texts;

const std::vector<Texts> alleen_titels = {
    {"nr.--tijd", "Inr", "Hnr", "Cnr", "Naam", "HC", "Paard", "Vader", "Vereniging", "Kl.", "Cat."}};

// The one row of a start list with this "dnr" value and what follows it.
struct Rij {
    Texts cellen;
    std::int32_t waarde = 0;
};
Rij rij(Roosterproef& proef, std::string_view dnr, std::string_view rubriek = "rcom:0") {
    proef.vul(std::string(rubriek) + "\tdnr:" + std::string(dnr));
    EXPECT_EQ(proef.grid.rows(), 2);
    return {test::row_texts(proef.grid, 1), proef.grid.row_value(1)};
}

// A cell of the row of combination 12 with this record.
std::string cel(int kolom, std::string_view combinatie, std::string_view rubriek = "rcom:0") {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(12, std::string(combinatie));
    return rij(proef, "12", rubriek).cellen[static_cast<std::size_t>(kolom)];
}

TEST(VulRooster, een_combinatie_vult_haar_rij) {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(12, "na:Jan\tco:A-1234\tpa:Bles\tva:Vonk\tve:RV De Hoef\tdk:L\tca:B\thnr:7");
    EXPECT_EQ(rij(proef, "12").cellen,
              (Texts{"", "12", "7", "A-1234", "Jan", "", "Bles", "Vonk", "RV De Hoef", "L", "B"}));
    EXPECT_EQ(test::row_texts(proef.grid, 0), alleen_titels[0]);
    EXPECT_TRUE(proef.berichten.shown.empty());
}

TEST(VulRooster, de_rijen_staan_in_de_volgorde_van_het_record) {
    Roosterproef proef;
    for (const int n : {3, 1, 2})
        proef.schedule.zet_deelnemer(n, "na:" + std::to_string(n));
    proef.vul("rid:a" + deelname("3") + deelname("1") + deelname("2") + deelname("3") + "\troms:Finale");
    EXPECT_EQ(test::column_texts(proef.grid, kolom_naam), (Texts{"3", "1", "2", "3"}));
    EXPECT_EQ(proef.schedule.huidige_rubriek.roms, "Finale");
}

TEST(VulRooster, een_combinatie_die_vaker_start_heeft_gelijke_rijen_zolang_de_rubriek_dezelfde_is) {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(12, "na:Jan\thnr:7\tpa:Bles\tva:Vonk\tve:De Hoef\tdk:L\tsk:B\tca:B\trhc:b(1)");
    proef.vul("rcom:0\trid:a" + deelname("12") + deelname("12 ") + "\trid:b" + deelname("12") + "\trcom:1" +
              deelname("12"));
    EXPECT_EQ(test::row_texts(proef.grid, 2), test::row_texts(proef.grid, 1));
    EXPECT_EQ(test::column_texts(proef.grid, kolom_hc), (Texts{"", "", "(HC)", "(HC)"}));
    EXPECT_EQ(test::column_texts(proef.grid, kolom_kl), (Texts{"L", "L", "L", "B"}));
}

TEST(VulRooster, een_leeg_record_maakt_het_grid_leeg_maar_laat_omschrijving_en_titels_staan) {
    Roosterproef proef;
    proef.vul("roms:Finale\trjp1:C\trtype:Baan" + deelname("1"));
    proef.grid.set_text(0, kolom_naam, "eigen titel");
    proef.labels.lblRubriek = "oud";
    proef.vul("");
    EXPECT_EQ(proef.grid.rows(), 1);
    EXPECT_EQ(proef.cel(0, kolom_naam), "eigen titel");
    EXPECT_EQ(proef.labels.lblRoosterOmschrijving, "Baan, Finale");
    EXPECT_EQ(proef.labels.lblRubriek, "");
    const RubriekRecord& rubriek = proef.schedule.huidige_rubriek;
    EXPECT_EQ(rubriek.roms, "");
    EXPECT_EQ(rubriek.rtype, "Ring");
    EXPECT_EQ(rubriek.rajl, "0");
    EXPECT_EQ(rubriek.rtvk, 1);
    EXPECT_EQ(rubriek.rpkl, 0);
    EXPECT_EQ(rubriek.rjp[0], "");
}

TEST(VulRooster, ook_een_leeg_record_geeft_het_grid_zijn_kolommen) {
    Roosterproef proef;
    proef.vul("");
    EXPECT_EQ(test::all_texts(proef.grid), std::vector<Texts>{Texts(11)});
}

TEST(VulRooster, de_omschrijving_bestaat_uit_soort_ring_en_tekst) {
    Roosterproef proef;
    const auto omschrijving = [&](std::string_view record) {
        proef.vul(record);
        return proef.labels.lblRoosterOmschrijving;
    };
    EXPECT_EQ(omschrijving("rid:1"), "Ring, ");
    EXPECT_EQ(omschrijving("rring:1\troms:Finale"), "Ring 1, Finale");
    EXPECT_EQ(omschrijving("rtype:\trring:1\troms:Finale"), "1, Finale");
    EXPECT_EQ(omschrijving("rtype:\troms:Finale"), ", Finale");
    EXPECT_EQ(omschrijving("rtype:Baan\trring:A"), "Baan A, ");
}

TEST(VulRooster, sleutels_worden_getrimd_en_in_elke_schrijfwijze_gelezen) {
    Roosterproef proef;
    proef.vul("RKLA :L\t rOms : Finale \tonbekend:x\tlos\trkla9:y");
    EXPECT_EQ(proef.schedule.huidige_rubriek.rkla, "L");
    EXPECT_EQ(proef.schedule.huidige_rubriek.roms, "Finale");
}

TEST(VulRooster, ook_de_sleutel_van_een_deelname_wordt_getrimd_en_in_elke_schrijfwijze_gelezen) {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(12, "na:Jan");
    proef.vul(" DNR : 12 \t\t\t\t\t\t\tDnr:p\troms:a\troms:b\troms:c\troms:d\troms:e\troms:f\trring:3");
    EXPECT_EQ(test::column_texts(proef.grid, kolom_inr), (Texts{"12", "p"}));
    EXPECT_EQ(proef.cel(1, kolom_naam), "Jan");
    EXPECT_EQ(proef.labels.lblRoosterOmschrijving, "Ring 3, ");
}

TEST(VulRooster, een_deelname_zonder_dubbele_punt_is_er_geen) {
    Roosterproef proef;
    proef.vul("dnr\troms:Finale");
    EXPECT_EQ(proef.grid.rows(), 1);
    EXPECT_EQ(proef.schedule.huidige_rubriek.roms, "Finale");
}

TEST(VulRooster, van_een_herhaalde_sleutel_telt_de_laatste_en_een_waarde_loopt_tot_de_tab) {
    Roosterproef proef;
    proef.vul("roms:Eerste\trtvk:3\trjp1:C\troms:Finale: deel 2\trtvk:x\trjp1:");
    EXPECT_EQ(proef.labels.lblRoosterOmschrijving, "Ring, Finale: deel 2");
    EXPECT_EQ(proef.schedule.huidige_rubriek.rtvk, 0);
    EXPECT_EQ(proef.schedule.huidige_rubriek.rjp[0], "");
}

TEST(VulRooster, sleutels_van_een_combinatie_zijn_letterlijk) {
    EXPECT_EQ(cel(kolom_naam, "NA:Jan"), "");
    EXPECT_EQ(cel(kolom_naam, "na : Jan"), "");
    EXPECT_EQ(cel(kolom_naam, "na: Jan "), " Jan ");
}

TEST(VulRooster, een_nummer_zonder_record_is_een_pauze) {
    Roosterproef proef;
    const Rij pauze = rij(proef, "12\t10\tKoffie\t\t\t\t");
    EXPECT_EQ(pauze.cellen, (Texts{"", "12", "", "", "pauze", "", "", "", "", "", ""}));
    EXPECT_EQ(pauze.waarde, 0);
}

TEST(VulRooster, een_pauze_heeft_haar_lengte_en_tekst) {
    Roosterproef proef;
    const Rij pauze = rij(proef, "P\t10\tKoffiepauze\t\t\t\t");
    EXPECT_EQ(pauze.cellen, (Texts{"", "P", "", "", "Koffiepauze", "", "", "", "", "", ""}));
    EXPECT_EQ(pauze.waarde, 10);
}

TEST(VulRooster, de_tekst_van_een_pauze_is_het_hele_item) {
    Roosterproef proef;
    EXPECT_EQ(rij(proef, "P\t 5 min\t om 12:30 eten \t\t\t\t").cellen[kolom_naam], "om 12:30 eten");
    EXPECT_EQ(proef.grid.row_value(1), 5);
    EXPECT_EQ(rij(proef, "P\t70000\t\t\t\t\t").cellen[kolom_naam], "");
    EXPECT_EQ(proef.grid.row_value(1), 70000); // 32 bits
}

TEST(VulRooster, alleen_een_grote_p_heeft_lengte_en_tekst) {
    for (const std::string_view inr : {"p", "", "0", "PP", "x"}) {
        Roosterproef proef;
        const Rij pauze = rij(proef, std::string(inr) + "\t10\tKoffie\t\t\t\t");
        EXPECT_EQ(pauze.cellen[kolom_inr], inr);
        EXPECT_EQ(pauze.cellen[kolom_naam], "pauze");
        EXPECT_EQ(pauze.waarde, 0);
    }
}

TEST(VulRooster, een_pauze_aan_het_eind_neemt_wat_er_nog_is) {
    Roosterproef proef;
    EXPECT_EQ(rij(proef, "P").cellen[kolom_naam], "pauze");
    EXPECT_EQ(rij(proef, "P\t15").cellen[kolom_naam], "pauze");
    EXPECT_EQ(proef.grid.row_value(1), 15);
    EXPECT_EQ(rij(proef, "P\t15\tKoffie").cellen[kolom_naam], "Koffie");
}

TEST(VulRooster, nummer_0_is_een_pauze_ook_als_het_bestand_er_een_record_voor_heeft) {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(0, "na:Nul");
    EXPECT_EQ(rij(proef, "0").cellen[kolom_naam], "pauze");
}

TEST(VulRooster, een_nummer_boven_4000_wordt_0) {
    for (const std::string_view dnr : {"4001", "32767", "40000", "1e5"}) {
        Roosterproef proef;
        proef.schedule.zet_deelnemer(0, "na:Nul");
        const Rij pauze = rij(proef, dnr);
        EXPECT_EQ(pauze.cellen[kolom_inr], "0") << dnr;
        EXPECT_EQ(pauze.cellen[kolom_naam], "pauze") << dnr;
    }
    Roosterproef proef;
    proef.schedule.zet_deelnemer(4000, "na:Laatste");
    EXPECT_EQ(rij(proef, "4000").cellen[kolom_naam], "Laatste");
}

TEST(VulRooster, een_negatief_nummer_is_een_pauze_en_wordt_gemeld) {
    Roosterproef proef;
    EXPECT_EQ(rij(proef, "-3").cellen[kolom_inr], "-3");
    EXPECT_EQ(proef.cel(1, kolom_naam), "pauze");
    ASSERT_EQ(proef.berichten.shown.size(), 1U);
    EXPECT_TRUE(proef.berichten.shown[0].starts_with("Vul rooster error 1: "));
}

TEST(VulRooster, het_nummer_blijft_staan_zoals_het_geschreven_is) {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(12, "na:Jan");
    for (const std::string_view dnr : {"012", "12abc", "12.5", "&HC", "1.2e1"}) {
        EXPECT_EQ(rij(proef, dnr).cellen[kolom_inr], dnr);
        EXPECT_EQ(proef.cel(1, kolom_naam), "Jan") << dnr;
    }
    EXPECT_EQ(rij(proef, " 12 ").cellen[kolom_inr], "12");  // items are trimmed
    proef.vul("rcom:0" + deelname("12") + deelname("012")); // also of who starts once more
    EXPECT_EQ(test::column_texts(proef.grid, kolom_inr), (Texts{"12", "012"}));
}

TEST(VulRooster, de_zes_items_achter_een_deelname_zijn_geen_sleutels) {
    Roosterproef proef;
    proef.vul("dnr:1\trid:a\tdnr:2\troms:b\trkla:c\trcat:d\trcom:7\trring:3\tdnr:4");
    EXPECT_EQ(test::column_texts(proef.grid, kolom_inr), (Texts{"1", "4"}));
    EXPECT_EQ(proef.schedule.huidige_rubriek.rid, "");
    EXPECT_EQ(proef.schedule.huidige_rubriek.rcom, 0);
    EXPECT_EQ(proef.schedule.huidige_rubriek.rring, "3"); // the seventh is a key again
}

TEST(VulRooster, meer_items_dan_zes_achter_de_laatste_deelname_zijn_sleutels) {
    Roosterproef proef;
    proef.vul("dnr:1\t\t\t\t\t\t\troms:Finale\trring:2");
    EXPECT_EQ(proef.schedule.huidige_rubriek.roms, "Finale");
    EXPECT_EQ(proef.labels.lblRoosterOmschrijving, "Ring 2, Finale");
}

TEST(VulRooster, een_hoofdnummer_komt_uit_het_record_en_wordt_dan_nooit_ingekort) {
    EXPECT_EQ(cel(kolom_hnr, "hnr:1234\tco:A-1234"), "1234");
    EXPECT_EQ(cel(kolom_hnr, "hnr: \tna:x"), " ");
    EXPECT_EQ(cel(kolom_hnr, "hnr:\tna:x"), "12");
}

TEST(VulRooster, een_afgeleid_hoofdnummer_heeft_hoogstens_drie_cijfers) {
    Roosterproef proef;
    proef.schedule.hoofdstelnummerautomatisch = true;
    const auto hnr = [&](int n, std::string_view record) {
        proef.schedule.zet_deelnemer(n, std::string(record));
        return rij(proef, std::to_string(n)).cellen[kolom_hnr];
    };
    EXPECT_EQ(hnr(12, "co:A-1234"), "234");
    EXPECT_EQ(hnr(12, "co:A1-2"), "12");
    EXPECT_EQ(hnr(12, "co:A0-9/0:"), "090");
    EXPECT_EQ(hnr(12, "co:ABC\tna:x"), "12");
    EXPECT_EQ(hnr(12, "na:x"), "12");
    EXPECT_EQ(hnr(1234, "na:x"), "234"); // the number itself as well
    proef.schedule.hoofdstelnummerautomatisch = false;
    EXPECT_EQ(hnr(12, "co:A-1234"), "12");
    EXPECT_EQ(hnr(1234, "co:A-1"), "234");
}

TEST(VulRooster, achter_de_naam_staan_handicap_selectie_en_impuls) {
    EXPECT_EQ(cel(kolom_naam, "na:Jan\td_gr:1\td_sel:1\tdh:1"), "Jan (HC) (Sel) (impuls)");
    EXPECT_EQ(cel(kolom_naam, "na:Jan\ts_gr:1\ts_sel:1\tsh:1"), "Jan");
    EXPECT_EQ(cel(kolom_naam, "na:Jan\ts_gr:1\ts_sel:1\tsh:1", "rcom:1"), "Jan (HC) (Sel) (impuls)");
    EXPECT_EQ(cel(kolom_naam, "na:Jan\trhc:D1(1)", "rid:D1"), "Jan (HC)");
    EXPECT_EQ(cel(kolom_hc, "na:Jan\tdh:1"), "HC");
    EXPECT_EQ(cel(kolom_hc, "na:Jan\trhc:D1(1)", "rid:D1"), "(HC)");
    EXPECT_EQ(cel(kolom_paard, "pa:Bles\td_res:1"), "Bles (res)");
}

TEST(VulRooster, in_een_samengestelde_naam_staat_niets_van_de_vorige) {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(1, "na:Jan\td_gr:1\td_coup:1");
    proef.schedule.zet_deelnemer(2, "na:Piet\td_sel:1\td_coup:1");
    proef.vul("rcom:0" + deelname("1") + deelname("2"));
    EXPECT_EQ(test::column_texts(proef.grid, kolom_naam), (Texts{"*Jan (impuls)", "*Piet (Sel)"}));
}

TEST(VulRooster, een_ster_voor_de_naam_hangt_van_de_coupe_af) {
    EXPECT_EQ(cel(kolom_naam, "na:*Jan"), "Jan");
    EXPECT_EQ(cel(kolom_naam, "na:**Jan*"), "*Jan*");
    EXPECT_EQ(cel(kolom_naam, "na:*Jan\td_coup:1"), "*Jan");
    EXPECT_EQ(cel(kolom_naam, "na:Jan\td_coup:1"), "*Jan");
    EXPECT_EQ(cel(kolom_naam, "na:Jan\td_coup:2"), "Jan");
    for (const auto& [rcom, sleutel] : {std::pair{"0", "d_coup"},
                                        {"12", "d_coup"},
                                        {"1", "s_coup"},
                                        {"7", "md_coup"},
                                        {"8", "mv_coup"},
                                        {"19", ""}}) {
        for (const std::string anders : {"d_coup", "s_coup", "md_coup", "mv_coup"})
            EXPECT_EQ(cel(kolom_naam, "na:Jan\t" + anders + ":1\t:1", "rcom:" + std::string(rcom)),
                      anders == sleutel ? "*Jan" : "Jan");
    }
}

TEST(VulRooster, de_klasse_is_die_van_de_discipline_zoals_geschreven) {
    const std::string_view klassen = "na:x\tdk:l\tsk:sB\tmdk:Z\tmvk:M";
    EXPECT_EQ(cel(kolom_kl, klassen, "rcom:0"), "l");
    EXPECT_EQ(cel(kolom_kl, klassen, "rcom:15"), "l");
    EXPECT_EQ(cel(kolom_kl, klassen, "rcom:17"), "sB");
    EXPECT_EQ(cel(kolom_kl, klassen, "rcom:7"), "Z");
    EXPECT_EQ(cel(kolom_kl, klassen, "rcom:18"), "M");
    EXPECT_EQ(cel(kolom_kl, klassen, "rcom:19"), "");
}

TEST(VulRooster, de_categorie_is_bij_mennen_een_naam) {
    EXPECT_EQ(cel(kolom_cat, "ca:A", "rcom:0"), "A");
    EXPECT_EQ(cel(kolom_cat, "ca:A", "rcom:7"), "1sp po");
    EXPECT_EQ(cel(kolom_cat, "ca:v", "rcom:9"), "4sp pa");
}

TEST(VulRooster, een_rij_kent_van_de_rubriek_alleen_wat_voor_haar_staat) {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(12, "na:Jan\tsh:1\tsk:M\trhc:S1(2)");
    proef.vul("rcom:1" + deelname("12") + "\trid:S1" + deelname("12") + "\trcom:0" + deelname("12"));
    EXPECT_EQ(test::column_texts(proef.grid, kolom_naam), (Texts{"Jan (HC)", "Jan", "Jan"}));
    EXPECT_EQ(test::column_texts(proef.grid, kolom_kl), (Texts{"M", "M", ""}));
}

TEST(VulRooster, een_slecht_getal_laat_zijn_veld_staan_en_wordt_een_keer_gemeld) {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(12, "na:Jan");
    proef.vul("rtvk:40000\trcom:99999\trxqd:7\troms:Finale" + deelname("12") + "\trring:3");
    EXPECT_EQ(proef.schedule.huidige_rubriek.rtvk, 1);
    EXPECT_EQ(proef.schedule.huidige_rubriek.rcom, 0);
    EXPECT_EQ(proef.schedule.huidige_rubriek.rxqd, 7);
    EXPECT_EQ(proef.labels.lblRoosterOmschrijving, "Ring 3, Finale");
    EXPECT_EQ(proef.cel(1, kolom_naam), "Jan");
    EXPECT_EQ(proef.cel(0, kolom_naam), "Naam");
    ASSERT_EQ(proef.berichten.shown, Texts{"Vul rooster error 1: Overloop"});
    ASSERT_EQ(proef.logboek.entries.size(), 2U);
    EXPECT_EQ(proef.logboek.entries[1].key, "rcom");
}

TEST(VulRooster, een_pauze_met_een_onmogelijke_lengte_duurt_nul_minuten) {
    Roosterproef proef;
    const Rij pauze = rij(proef, "P\t9999999999\tKoffie\t\t\t\t");
    EXPECT_EQ(pauze.cellen[kolom_naam], "Koffie");
    EXPECT_EQ(pauze.waarde, 0);
    EXPECT_EQ(proef.berichten.shown, Texts{"Vul rooster error 1: Overloop"});
}

TEST(VulRooster, opnieuw_vullen_begint_met_lege_rijen) {
    Roosterproef proef;
    proef.vul("rid:1\tdnr:P\t10\tKoffie\t\t\t\t" + deelname("P"));
    proef.vul("rid:1" + deelname("1"));
    EXPECT_EQ(test::all_texts(proef.grid), (std::vector<Texts>{
                                               alleen_titels[0],
                                               {"", "1", "", "", "pauze", "", "", "", "", "", ""},
                                           }));
    EXPECT_EQ(proef.grid.row_value(1), 0);
}

} // namespace
} // namespace tavelo
