#include "schedule/lees_rooster.h"

#include "basis/codeBestand.h"
#include "basis/number.h"
#include "basis/text.h"
#include "fakes/heap.h"
#include "fakes/read_faults.h"
#include "schedule/roosterproef.h"
#include "schedule/toeval.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <iostream>

namespace tavelo {
namespace {

using test::Roosterproef;
using test::Texts;
using namespace std::string_view_literals;

constexpr std::string_view kop = "[Vendalo 3.4]\r\n";

// A proof that has read a file, so that "unchanged" can be seen.
struct GelezenProef : Roosterproef {
    GelezenProef() {
        EXPECT_TRUE(lees({"singlesignin:1", "hoofdstelnummerautomatisch:True", "dnr:5\tna:Jan", "rubriek:7\toms:Zeven",
                          "rnr:7\troms:Finale\tdnr:5\t\t\t\t\t\t"}));
    }
    void verwacht_ongewijzigd() const {
        EXPECT_EQ(schedule.singlesignin, 1);
        EXPECT_TRUE(schedule.hoofdstelnummerautomatisch);
        EXPECT_EQ(schedule.rubriek_nummer, 7);
        EXPECT_EQ(schedule.rubriek_record, "roms:Finale\tdnr:5\t\t\t\t\t\t");
        EXPECT_EQ(schedule.huidige_rubriek.roms, "Finale");
        EXPECT_EQ(schedule.deelnemer(5), "na:Jan");
        EXPECT_EQ(schedule.rubriek(7).oms, "Zeven");
        EXPECT_EQ(test::column_texts(grid, kolom_naam), Texts{"Jan"});
        EXPECT_EQ(labels.lblRoosterOmschrijving, "Ring, Finale");
        EXPECT_TRUE(berichten.shown.empty());
    }
};

TEST(LeesRooster, een_bestand_met_een_andere_eerste_regel_verandert_niets) {
    for (const std::string_view eerste : {"[Vendalo 3.4] ", " [Vendalo 3.4]", "[vendalo 3.4]", "[Vendalo 3.5]",
                                          "[Vendalo 3.4", "\xEF\xBB\xBF[Vendalo 3.4]", "", "\r\n[Vendalo 3.4]"}) {
        GelezenProef proef;
        const auto gelezen = proef.lees_bytes(std::string(eerste) + "\r\ndnr:5\tna:Piet\r\nrnr:8\troms:Ander\r\n");
        ASSERT_FALSE(gelezen) << eerste;
        EXPECT_EQ(gelezen.error(), GeenRooster::andere_eerste_regel);
        proef.verwacht_ongewijzigd();
    }
}

TEST(LeesRooster, een_leeg_of_binair_bestand_is_geen_rooster) {
    GelezenProef proef;
    std::string binair = "\x89PNG\r\n\x1A\n";
    for (int i = 0; i < 100'000; ++i)
        binair.push_back(static_cast<char>(i * 7919 % 256));
    for (const std::string& bytes : {std::string(), std::string(1, '\0'), std::string("\xD0\xCF\x11\xE0"), binair}) {
        const auto gelezen = proef.lees_bytes(bytes);
        ASSERT_FALSE(gelezen);
        EXPECT_EQ(gelezen.error(), GeenRooster::andere_eerste_regel);
    }
    proef.verwacht_ongewijzigd();
}

TEST(LeesRooster, wat_niet_te_openen_is_verandert_niets) {
    GelezenProef proef;
    const std::string dicht = proef.map.write("dicht.rst", kop);
    std::filesystem::permissions(dicht, std::filesystem::perms::none);
    const bool mag_alles = bestandbestaat(dicht); // an administrator
    for (const std::string& pad : {proef.map.file("weg.rst"), proef.map.file(""), std::string(), dicht}) {
        if (pad == dicht && mag_alles) continue;
        const auto gelezen = lees_rooster(pad, proef.doel);
        ASSERT_FALSE(gelezen) << pad;
        EXPECT_EQ(gelezen.error(), GeenRooster::niet_te_openen);
    }
    proef.verwacht_ongewijzigd();
}

TEST(LeesRooster, meer_dan_256_mib_is_geen_rooster) {
    GelezenProef proef;
    const std::string pad = proef.map.write("groot.rst", kop);
    std::filesystem::resize_file(pad, 268'435'457); // all holes: it takes no room
    const auto gelezen = lees_rooster(pad, proef.doel);
    ASSERT_FALSE(gelezen);
    EXPECT_EQ(gelezen.error(), GeenRooster::te_groot);
    proef.verwacht_ongewijzigd();
}

#ifndef _WIN32

TEST(LeesRooster, een_lezing_die_het_einde_niet_haalt_verandert_niets) {
    GelezenProef proef;
    const test::ReadFaults storing({{}, {.error = EIO}});
    const auto gelezen = proef.lees({"dnr:5\tna:Piet"});
    ASSERT_FALSE(gelezen);
    EXPECT_EQ(gelezen.error(), GeenRooster::lezen_mislukt);
    proef.verwacht_ongewijzigd();
}

#endif

TEST(LeesRooster, een_bestand_met_alleen_de_eerste_regel_is_een_leeg_rooster) {
    for (const std::string_view bytes : {"[Vendalo 3.4]", "[Vendalo 3.4]\r\n", "[Vendalo 3.4]\n", "[Vendalo 3.4]\r"}) {
        GelezenProef proef;
        const auto gelezen = proef.lees_bytes(bytes);
        ASSERT_TRUE(gelezen);
        EXPECT_EQ(proef.schedule.singlesignin, 0); // header values begin anew at every read
        EXPECT_FALSE(proef.schedule.hoofdstelnummerautomatisch);
        EXPECT_EQ(proef.schedule.rubriek_record, "");
        EXPECT_EQ(proef.grid.rows(), 1);
        EXPECT_EQ(*gelezen, " dres. cat      -     " + proef.map.file("proef.rst") + "     -     ");
    }
}

TEST(LeesRooster, de_regels_van_de_kop_worden_gelezen) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"singlesignin: 1", "hoofdstelnummerautomatisch:True"}));
    EXPECT_EQ(proef.schedule.singlesignin, 1);
    EXPECT_TRUE(proef.schedule.hoofdstelnummerautomatisch);
}

TEST(LeesRooster, een_sleutel_met_een_hoofdletter_of_spatie_is_in_de_kop_onbekend) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"Singlesignin:1", "singlesignin :1", " singlesignin:1", "DNR:5\tna:Jan", "Rnr:1\troms:x",
                            "Rubriek:1\toms:x", "HoofdstelNummerAutomatisch:True"}));
    EXPECT_EQ(proef.schedule.singlesignin, 0);
    EXPECT_FALSE(proef.schedule.hoofdstelnummerautomatisch);
    EXPECT_EQ(proef.schedule.deelnemer(5), "");
    EXPECT_EQ(proef.schedule.rubriek_record, "");
    EXPECT_EQ(proef.schedule.rubriek(1).oms, "");
}

TEST(LeesRooster, sleutels_in_een_record_mogen_hoofdletters_hebben) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"rubriek:1\tOMS :x", "rnr:1\tROMS :Finale"}));
    EXPECT_EQ(proef.schedule.rubriek(1).oms, "x");
    EXPECT_EQ(proef.schedule.huidige_rubriek.roms, "Finale");
}

TEST(LeesRooster, een_slecht_getal_in_de_kop_laat_de_waarde_staan) {
    for (const std::string_view waarde : {"32768", "-32769", "1e5", "&HFFFF", "99999999999999999999"}) {
        Roosterproef proef;
        ASSERT_TRUE(proef.lees({"singlesignin:1", "singlesignin:" + std::string(waarde)}));
        EXPECT_EQ(proef.schedule.singlesignin, 1) << waarde;
        EXPECT_TRUE(proef.berichten.shown.empty());
    }
    const auto signin = [](std::string_view waarde) {
        Roosterproef proef;
        EXPECT_TRUE(proef.lees({"singlesignin:" + std::string(waarde)}));
        return proef.schedule.singlesignin;
    };
    EXPECT_EQ(signin("12abc"), 12);
    EXPECT_EQ(signin("abc"), 0);
    EXPECT_EQ(signin("-3"), -3);
    EXPECT_EQ(signin("&H10"), 16);
    EXPECT_EQ(signin("&H"), 0);
    EXPECT_EQ(signin("1.5"), 2);
    EXPECT_EQ(signin("0.5"), 0);
}

TEST(LeesRooster, ja_of_nee_is_een_woord_of_een_getal) {
    const auto automatisch = [](std::string_view waarde, std::string_view eerst = "False") {
        Roosterproef proef;
        EXPECT_TRUE(proef.lees(
            {"hoofdstelnummerautomatisch:" + std::string(eerst), "hoofdstelnummerautomatisch:" + std::string(waarde)}));
        return proef.schedule.hoofdstelnummerautomatisch;
    };
    for (const std::string_view ja : {"True", "TRUE", " true ", "-1", "1", "0.1", "2x", "&H1"})
        EXPECT_TRUE(automatisch(ja)) << ja;
    for (const std::string_view nee : {"False", "false", "0", " 0", "&H0"})
        EXPECT_FALSE(automatisch(nee, "True")) << nee;
    for (const std::string_view onzin : {"Waar", "", "x", "&H"})
        EXPECT_TRUE(automatisch(onzin, "True")) << onzin;
}

TEST(LeesRooster, rubrieken_hebben_nummers_van_1_tot_en_met_2000) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"rubriek:0\toms:nul", "rubriek:1\toms:een", "rubriek:2000\toms:laatste",
                            "rubriek:2001\toms:x", "rubriek:-1\toms:x", "rubriek:40000\toms:x", "rubriek: 3 \toms:drie",
                            "rubriek:&H10\toms:zestien", "rubriek:4.5\toms:vier"}));
    EXPECT_EQ(proef.schedule.rubriek(0).oms, "");
    EXPECT_EQ(proef.schedule.rubriek(1).oms, "een");
    EXPECT_EQ(proef.schedule.rubriek(2000).oms, "laatste");
    EXPECT_EQ(proef.schedule.rubriek(2001).oms, "");
    EXPECT_EQ(proef.schedule.rubriek(-1).oms, "");
    EXPECT_EQ(proef.schedule.rubriek(3).oms, "drie");
    EXPECT_EQ(proef.schedule.rubriek(16).oms, "zestien");
    EXPECT_EQ(proef.schedule.rubriek(4).oms, "vier");
    EXPECT_TRUE(proef.berichten.shown.empty());
}

TEST(LeesRooster, een_herhaalde_rubriek_vervangt_haar_hele_regel) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"rubriek:1\toms:een\tklasse:L", "rubriek:1\toms:twee"}));
    EXPECT_EQ(proef.schedule.rubriek(1).oms, "twee");
    EXPECT_EQ(proef.schedule.rubriek(1).klasse, "");
}

TEST(LeesRooster, een_getal_dat_niet_past_in_de_lijst_wordt_gemeld_en_de_rest_gelezen) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees(
        {"rubriek:1\tid:a\tcom:40000\toms:x", "rubriek:2\tmop:-40000", "rubriek:3\toms:drie", "dnr:1\tna:Jan"}));
    ASSERT_EQ(proef.berichten.shown, Texts{"Overloop"});
    EXPECT_EQ(proef.schedule.rubriek(1).id, "a");
    EXPECT_EQ(proef.schedule.rubriek(1).oms, "");
    EXPECT_EQ(proef.schedule.rubriek(3).oms, "drie");
    EXPECT_EQ(proef.schedule.deelnemer(1), "na:Jan");
}

TEST(LeesRooster, combinaties_hebben_nummers_van_0_tot_en_met_4000) {
    const auto laatste = [](std::string_view regel) {
        Roosterproef proef;
        EXPECT_TRUE(proef.lees({regel}));
        return std::pair(proef.schedule.laatste_dnr, proef.schedule.deelnemer(4000));
    };
    EXPECT_EQ(laatste("dnr:4000\tna:Jan"), (std::pair<std::int16_t, std::string>(4000, "na:Jan")));
    EXPECT_EQ(laatste("dnr:4001\tna:Jan"), (std::pair<std::int16_t, std::string>(4001, "")));
    EXPECT_EQ(laatste("dnr:-1\tna:Jan"), (std::pair<std::int16_t, std::string>(-1, "")));
    EXPECT_EQ(laatste("dnr:40000\tna:Jan"), (std::pair<std::int16_t, std::string>(0, ""))); // the line is ignored
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"dnr:0\tna:Nul", "dnr:x\tna:Ook nul"}));
    EXPECT_EQ(proef.schedule.deelnemer(0), "na:Ook nul");
}

TEST(LeesRooster, een_regel_zonder_tab_wordt_overgeslagen_en_genoteerd) {
    GelezenProef proef;
    proef.logboek.entries.clear();
    ASSERT_TRUE(proef.lees({"dnr:5", "rubriek:7", "rnr:9", "dnr:", "rnr", "", ":", "onzin"}));
    EXPECT_EQ(proef.schedule.deelnemer(5), "na:Jan");
    EXPECT_EQ(proef.schedule.rubriek(7).oms, "Zeven");
    EXPECT_EQ(proef.schedule.rubriek_nummer, 7);
    EXPECT_EQ(proef.schedule.rubriek_record, "");
    ASSERT_EQ(proef.logboek.entries.size(), 4U);
    EXPECT_EQ(proef.logboek.entries[0].line, 2U);
    EXPECT_EQ(proef.logboek.entries[0].key, "dnr");
    EXPECT_EQ(proef.logboek.entries[2].line, 4U);
    EXPECT_EQ(proef.logboek.entries[2].key, "rnr");
}

TEST(LeesRooster, het_record_van_de_rubriek_geldt_ook_met_een_nummer_dat_niet_past) {
    GelezenProef proef;
    ASSERT_TRUE(proef.lees({"rnr:99999\troms:Ander"}));
    EXPECT_EQ(proef.schedule.rubriek_nummer, 7);
    EXPECT_EQ(proef.schedule.huidige_rubriek.roms, "Ander");
}

TEST(LeesRooster, regels_staan_in_elke_volgorde_en_de_laatste_wint) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"rnr:1\troms:Eerste\tdnr:5\t\t\t\t\t\t", "dnr:5\tna:Jan", "dnr:5\tna:Piet\tco:K1",
                            "rnr:2\troms:Finale\tdnr:5\t\t\t\t\t\t"}));
    EXPECT_EQ(proef.schedule.rubriek_nummer, 2);
    EXPECT_EQ(proef.cel(1, kolom_naam), "Piet");
    EXPECT_EQ(proef.cel(1, kolom_cnr), "K1");
}

TEST(LeesRooster, een_regel_met_een_leeg_record_leegt_het_vorige) {
    GelezenProef proef;
    ASSERT_TRUE(proef.lees({"dnr:5\t", "rubriek:7\t", "rnr:8\troms:Finale" + test::deelname("5"), "rnr:9\t"}));
    EXPECT_EQ(proef.schedule.deelnemer(5), "");
    EXPECT_EQ(proef.schedule.rubriek(7), RubriekLijstRecord());
    EXPECT_EQ(proef.schedule.rubriek_nummer, 9);
    EXPECT_EQ(proef.schedule.rubriek_record, "");
    EXPECT_EQ(proef.grid.rows(), 1);
}

TEST(LeesRooster, een_tweede_bestand_laat_de_nummers_staan_die_het_niet_noemt) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"dnr:1\tna:Een", "dnr:2\tna:Twee", "rubriek:1\toms:A", "rubriek:2\toms:B"}));
    ASSERT_TRUE(proef.lees({"dnr:2\tna:Ander", "rubriek:2\toms:C"}));
    EXPECT_EQ(proef.schedule.deelnemer(1), "na:Een");
    EXPECT_EQ(proef.schedule.deelnemer(2), "na:Ander");
    EXPECT_EQ(proef.schedule.rubriek(1).oms, "A");
    EXPECT_EQ(proef.schedule.rubriek(2).oms, "C");
}

TEST(LeesRooster, het_bijschrift_noemt_klasse_discipline_categorie_pad_en_omschrijving) {
    Roosterproef proef;
    const auto bijschrift = [&](std::string_view rcom) {
        return proef.lees({"rnr:1\trkla:*L*M*\trcat:*A*B*\troms:Finale\trcom:" + std::string(rcom)}).value();
    };
    const std::string rest = " cat AB     -     " + proef.map.file("proef.rst") + "     -     Finale";
    EXPECT_EQ(bijschrift("0"), "L/M dres." + rest);
    EXPECT_EQ(bijschrift("13"), "L/M dres." + rest);
    EXPECT_EQ(bijschrift("2"), "L/M spr." + rest);
    EXPECT_EQ(bijschrift("7"), "L/M mendr." + rest);
    EXPECT_EQ(bijschrift("9"), "L/M menva." + rest);
    EXPECT_EQ(bijschrift("19"), "L/M" + rest);
}

TEST(LeesRooster, het_bijschrift_zoekt_zijn_sleutels_letterlijk) {
    Roosterproef proef;
    EXPECT_EQ(proef.lees({"rnr:1\tRKLA :L\trcom:2\tRoms:Finale"}).value(),
              " spr. cat      -     " + proef.map.file("proef.rst") + "     -     ");
    EXPECT_EQ(proef.schedule.huidige_rubriek.rkla, "L");
}

TEST(LeesRooster, het_bijschrift_neemt_de_eerste_van_gelijke_sleutels_maar_de_discipline_van_de_gelezen_rubriek) {
    Roosterproef proef;
    EXPECT_EQ(proef.lees({"rnr:1\trkla:L\trcat:A\troms:Een\trcom:1\trkla:M\trcat:B\troms:Twee\tRCOM :7"}).value(),
              "L mendr. cat A     -     " + proef.map.file("proef.rst") + "     -     Een");
    EXPECT_EQ(proef.labels.lblRoosterOmschrijving, "Ring, Twee");
}

TEST(LeesRooster, rij_1_kolom_1_wordt_de_huidige_cel) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"rnr:1\trid:1" + test::deelname("1") + test::deelname("2")}));
    EXPECT_EQ(proef.grid.rows(), 3);
    EXPECT_EQ(proef.grid.row(), 1);
    EXPECT_EQ(proef.grid.column(), 1);
}

TEST(LeesRooster, een_regel_eindigt_op_cr_lf_op_lf_en_op_cr) {
    for (const std::string_view einde : {"\r\n", "\n", "\r"}) {
        Roosterproef proef;
        std::string tekst = "[Vendalo 3.4]";
        tekst.append(einde).append(einde).append("dnr:1\tna:Jan").append(einde).append("dnr:2\tna:Piet");
        ASSERT_TRUE(proef.lees_bytes(tekst));
        EXPECT_EQ(proef.schedule.deelnemer(1), "na:Jan");
        EXPECT_EQ(proef.schedule.deelnemer(2), "na:Piet"); // without a line end behind it
    }
    Roosterproef gemengd;
    ASSERT_TRUE(gemengd.lees_bytes("[Vendalo 3.4]\ndnr:1\tna:a\rdnr:2\tna:b\r\n\rdnr:3\tna:c\n\r\ndnr:4\tna:d\r"));
    for (const auto& [nummer, record] :
         {std::pair{1, "na:a"}, std::pair{2, "na:b"}, std::pair{3, "na:c"}, std::pair{4, "na:d"}})
        EXPECT_EQ(gemengd.schedule.deelnemer(nummer), record);
}

TEST(LeesRooster, elke_mengeling_van_regeleinden_geeft_dezelfde_regels) {
    const std::vector<std::string> stukken = {"\r", "\n", "\r\n", "\n\r", "\r\r\n", "x", "dnr:", ":", "\t", ""};
    const std::uint32_t begin = test::beginwaarde(1252);
    std::cout << "TAVELO_SEED=" << begin << '\n';
    test::Toeval toeval(begin);
    for (int keer = 0; keer < 2000; ++keer) {
        std::string tekst;
        for (int delen = toeval.onder(25); delen > 0; --delen)
            tekst += toeval.een_op(3) ? toeval.uit(stukken)
                                      : "dnr:" + std::to_string(toeval.onder(10)) + "\tna:" + std::to_string(delen) +
                                            toeval.uit(stukken);
        Schedule verwacht;
        const std::string met_lf = replaced(replaced(tekst, "\r\n", "\n"), "\r", "\n");
        for (const std::string_view regel : split(met_lf, "\n"))
            if (const std::size_t tab = regel.find('\t'); regel.starts_with("dnr:") && tab != std::string_view::npos)
                verwacht.zet_deelnemer(int16_of(regel.substr(4, tab - 4)).value(), std::string(regel.substr(tab + 1)));

        Roosterproef proef;
        lees_regels(tekst, proef.schedule, proef.berichten, proef.logboek);
        for (int n = 0; n < 10; ++n)
            ASSERT_EQ(proef.schedule.deelnemer(n), verwacht.deelnemer(n)) << n << " in " << tekst;
    }
}

TEST(LeesRooster, een_byte_1a_of_00_is_een_gewoon_teken) {
    Roosterproef proef;
    std::string tekst(kop);
    tekst.append("dnr:1\tna:a\x1A"
                 "b\0c\r\ndnr:2\tna:Piet\r\n"sv);
    ASSERT_TRUE(proef.lees_bytes(tekst));
    EXPECT_EQ(proef.schedule.deelnemer(1), std::string("na:a\x1A"
                                                       "b\0c",
                                                       8));
    EXPECT_EQ(proef.schedule.deelnemer(2), "na:Piet");
}

TEST(LeesRooster, de_tekst_is_windows_1252) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees(
        {"dnr:1\tna:Ren\xE9\tpa:\x80uro", "rubriek:1\toms:caf\xE9", "rnr:1\troms:\x8Akoda" + test::deelname("1")}));
    EXPECT_EQ(proef.cel(1, kolom_naam), "René");
    EXPECT_EQ(proef.cel(1, kolom_paard), "€uro");
    EXPECT_EQ(proef.schedule.rubriek(1).oms, "café");
    EXPECT_EQ(proef.schedule.huidige_rubriek.roms, "Škoda");
}

TEST(LeesRooster, een_heel_lange_regel_wordt_tot_het_eind_gelezen) {
    Roosterproef proef;
    const std::string lang(3'000'000, 'x');
    ASSERT_TRUE(proef.lees({"dnr:1\tna:" + lang + "\tpa:Bles", lang, "rnr:1\troms:Finale" + test::deelname("1")}));
    EXPECT_EQ(proef.cel(1, kolom_naam), lang);
    EXPECT_EQ(proef.cel(1, kolom_paard), "Bles");
}

TEST(LeesRooster, heel_veel_onbekende_sleutels_worden_overgeslagen) {
    Roosterproef proef;
    std::string tekst(kop);
    std::string record = "rnr:1\troms:Finale";
    for (int i = 0; i < 100'000; ++i) {
        tekst += "sleutel" + std::to_string(i) + ":1\r\n";
        record += "\tr" + std::to_string(i) + ":x";
    }
    tekst += "dnr:1\tna:Jan\r\n" + record + test::deelname("1") + "\r\n";
    ASSERT_TRUE(proef.lees_bytes(tekst));
    EXPECT_EQ(test::column_texts(proef.grid, kolom_naam), Texts{"Jan"});
    EXPECT_TRUE(proef.berichten.shown.empty());
}

TEST(LeesRooster, vijf_megabyte_rommel_achter_een_goede_eerste_regel_wordt_verdragen) {
    Roosterproef proef;
    std::string tekst(kop);
    std::uint32_t toeval = 1;
    while (tekst.size() < 5'000'000) {
        toeval = toeval * 1664525U + 1013904223U;
        tekst.push_back(static_cast<char>(toeval >> 24U));
    }
    tekst += "\r\ndnr:1\tna:Jan\r\nrnr:1\troms:Finale" + test::deelname("1") + "\r\n";
    ASSERT_TRUE(proef.lees_bytes(tekst));
    EXPECT_EQ(proef.cel(1, kolom_naam), "Jan");
    EXPECT_EQ(proef.schedule.huidige_rubriek.roms, "Finale");
}

TEST(LeesRooster, de_ruimte_van_reusachtige_records_komt_bij_het_wissen_terug) {
    Roosterproef proef;
    proef.schedule.zet_deelnemer(1, "na:Jan");
    const std::size_t voor = test::heap_bytes();
    proef.schedule.zet_deelnemer(2, std::string(10'000'000, 'x'));
    proef.schedule.zet_rubriek(2, std::string(10'000'000, 'x'));
    EXPECT_GT(test::heap_bytes(), voor + 20'000'000);
    proef.schedule.wis_tabellen();
    EXPECT_LE(test::heap_bytes(), voor);
    EXPECT_EQ(proef.schedule.deelnemer(1), "");
    EXPECT_EQ(proef.schedule.deelnemer(2), "");
    EXPECT_EQ(proef.schedule.rubriek(2), RubriekLijstRecord());
}

TEST(LeesRooster, elk_nummer_dat_niet_geldt_wordt_genoteerd_met_regel_sleutel_en_reden) {
    Roosterproef proef;
    ASSERT_TRUE(proef.lees({"dnr:4000\tna:Jan", "dnr:4001\tna:Piet", "rubriek:2000\toms:a", "rubriek:2001\toms:b",
                            "dnr:40000\tna:Kees", "rnr:99999\troms:Finale", "hoofdstelnummerautomatisch:misschien"}));
    std::vector<std::tuple<std::size_t, std::string, std::string>> genoteerd;
    for (const auto& [regel, sleutel, reden] : proef.logboek.entries)
        genoteerd.emplace_back(regel, sleutel, reden);
    const std::vector<std::tuple<std::size_t, std::string, std::string>> verwacht = {
        {3, "dnr", "nummer buiten 0 tot 4000"},
        {5, "rubriek", "nummer buiten 1 tot 2000"},
        {6, "dnr", "nummer past niet in 16 bits"},
        {7, "rnr", "nummer past niet in 16 bits"},
        {8, "hoofdstelnummerautomatisch", "geen ja of nee"}};
    EXPECT_EQ(genoteerd, verwacht);
}

} // namespace
} // namespace tavelo
