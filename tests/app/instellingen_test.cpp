#include "app/instellingen.h"
#include "fakes/seams.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavelo {
namespace {

using I = Instellingen;

struct Verwacht {
    std::string_view sectie;
    std::string_view sleutel;
    std::string_view standaard;
    InstellingVeld veld;
};

// The 35 settings once more, in the order of the store.
const std::vector<Verwacht> verwachte_tabel = {
    {"Files", "lastfolder", "", &I::lastfolder},
    {"Layout", "fontname", "Arial", &I::fontname},
    {"Layout", "rubricbackcolor", "&HFFFFFF", &I::rubricbackcolor},
    {"Layout", "rubricforecolor", "&H000000", &I::rubricforecolor},
    {"Layout", "rubricalignment", "0", &I::rubricalignment},
    {"Layout", "rubrictextsize", "100", &I::rubrictextsize},
    {"Layout", "backcolor", "&HFFFFFF", &I::backcolor},
    {"Layout", "forecolor", "&H000000", &I::forecolor},
    {"Layout", "alignment", "0", &I::alignment},
    {"Layout", "textsize", "100", &I::textsize},
    {"Layout", "showrubric", "0", &I::showrubric},
    {"Layout", "shownumber", "0", &I::shownumber},
    {"Layout", "showridername", "1", &I::showridername},
    {"Layout", "showhorsename", "1", &I::showhorsename},
    {"Layout", "showhorsesire", "1", &I::showhorsesire},
    {"Layout", "showhorsesiredamr", "0", &I::showhorsesiredamr},
    {"Layout", "showhorsecolor", "0", &I::showhorsecolor},
    {"Layout", "showhorsegender", "0", &I::showhorsegender},
    {"Layout", "showhorseage", "0", &I::showhorseage},
    {"Layout", "showhorsebreed", "0", &I::showhorsebreed},
    {"Layout", "showhorsebreeder", "0", &I::showhorsebreeder},
    {"Layout", "showunionname", "0", &I::showunionname},
    {"Excel", "fieldnames", "", &I::fieldnames},
    {"Excel", "col_startnumber", "", &I::col_startnumber},
    {"Excel", "col_hnr", "", &I::col_hnr},
    {"Excel", "col_rider_name", "", &I::col_rider_name},
    {"Excel", "col_horse_name", "", &I::col_horse_name},
    {"Excel", "col_horse_sire", "", &I::col_horse_sire},
    {"Excel", "col_horse_siredam", "", &I::col_horse_siredam},
    {"Excel", "col_horse_color", "", &I::col_horse_color},
    {"Excel", "col_horse_sex", "", &I::col_horse_sex},
    {"Excel", "col_horse_age", "", &I::col_horse_age},
    {"Excel", "col_horse_book", "", &I::col_horse_book},
    {"Excel", "col_horse_breeder", "", &I::col_horse_breeder},
    {"Excel", "col_union_name", "", &I::col_union_name},
};

constexpr const char* toepassing = "Vendalo 3.5 Deelnemer";

test::FakeSettings opslag_met(const std::string& sectie, const std::string& sleutel, const std::string& waarde) {
    test::FakeSettings opslag;
    opslag.values[{toepassing, sectie, sleutel}] = waarde;
    return opslag;
}

// What `sleutel` holds after a load of that text alone.
std::string gelezen(const std::string& sectie, const std::string& sleutel, const std::string& waarde) {
    const I geladen = laad_instellingen(opslag_met(sectie, sleutel, waarde));
    const auto tabel = instellingen_tabel();
    const auto plaats = std::ranges::find(tabel, sleutel, &Instelling::sleutel);
    return plaats == tabel.end() ? "(geen)" : instelling_tekst(geladen, *plaats);
}

// Remembers the order of what it is asked.
struct VolgordeOpslag final : SettingsStore {
    mutable std::vector<std::string> stappen;
    [[nodiscard]] std::optional<std::string> get(std::string_view application, std::string_view section,
                                                 std::string_view key) const override {
        stappen.push_back("lees " + std::string(application) + "|" + std::string(section) + "|" + std::string(key));
        return std::nullopt;
    }
    void save(std::string_view application, std::string_view section, std::string_view key, std::string_view) override {
        stappen.push_back("schrijf " + std::string(application) + "|" + std::string(section) + "|" + std::string(key));
    }
    void flush() override { stappen.emplace_back("klaar"); }
};

TEST(Instellingen, de_tabel_heeft_35_regels_in_vaste_volgorde) {
    const auto tabel = instellingen_tabel();
    ASSERT_EQ(tabel.size(), 35U);
    ASSERT_EQ(verwachte_tabel.size(), 35U);
    for (std::size_t i = 0; i < tabel.size(); ++i) {
        EXPECT_EQ(tabel[i].sectie, verwachte_tabel[i].sectie) << i;
        EXPECT_EQ(tabel[i].sleutel, verwachte_tabel[i].sleutel) << i;
        EXPECT_EQ(tabel[i].standaard, verwachte_tabel[i].standaard) << verwachte_tabel[i].sleutel;
        EXPECT_TRUE(tabel[i].veld == verwachte_tabel[i].veld) << verwachte_tabel[i].sleutel;
        EXPECT_EQ(tabel[i].leessleutel, i == 1 ? "numbersize" : verwachte_tabel[i].sleutel) << i;
    }
}

TEST(Instellingen, laden_en_bewaren_gaan_in_de_volgorde_van_de_tabel) {
    VolgordeOpslag opslag;
    const I instellingen = laad_instellingen(opslag);
    bewaar_instellingen(instellingen, opslag);
    std::vector<std::string> verwacht;
    for (const Verwacht& v : verwachte_tabel) {
        const std::string_view sleutel = v.sleutel == "fontname" ? "numbersize" : v.sleutel;
        verwacht.push_back("lees Vendalo 3.5 Deelnemer|" + std::string(v.sectie) + "|" + std::string(sleutel));
    }
    for (const Verwacht& v : verwachte_tabel)
        verwacht.push_back("schrijf Vendalo 3.5 Deelnemer|" + std::string(v.sectie) + "|" + std::string(v.sleutel));
    verwacht.emplace_back("klaar");
    EXPECT_EQ(opslag.stappen, verwacht);
}

TEST(Instellingen, wat_nog_standaard_is_wordt_als_standaard_bewaard) {
    struct Opslag final : SettingsStore {
        std::vector<std::string> gekozen;
        int standaard = 0;
        [[nodiscard]] std::optional<std::string> get(std::string_view, std::string_view,
                                                     std::string_view) const override {
            return std::nullopt;
        }
        void save(std::string_view, std::string_view, std::string_view key, std::string_view value) override {
            gekozen.push_back(std::string(key) + '=' + std::string(value));
        }
        void save_default(std::string_view, std::string_view, std::string_view, std::string_view) override {
            ++standaard;
        }
    } opslag;
    I instellingen = laad_instellingen(opslag);
    instellingen.lastfolder = "/map/";
    instellingen.backcolor = 255;
    instellingen.showhorsename = 0;
    instellingen.fieldnames = 1;
    bewaar_instellingen(instellingen, opslag);
    EXPECT_EQ(opslag.gekozen,
              (std::vector<std::string>{"lastfolder=/map/", "backcolor=255", "showhorsename=0", "fieldnames=1"}));
    EXPECT_EQ(opslag.standaard, 31);
}

TEST(Instellingen, een_lege_opslag_geeft_de_standaardwaarden) {
    I verwacht;
    verwacht.fontname = "Arial";
    verwacht.rubricbackcolor = 16777215;
    verwacht.backcolor = 16777215;
    verwacht.rubrictextsize = 100;
    verwacht.textsize = 100;
    verwacht.showridername = 1;
    verwacht.showhorsename = 1;
    verwacht.showhorsesire = 1;
    EXPECT_EQ(laad_instellingen(test::FakeSettings()), verwacht);
}

TEST(Instellingen, een_gekozen_lettertype_wordt_bewaard_maar_niet_teruggelezen) {
    test::FakeSettings opslag;
    I instellingen = laad_instellingen(opslag);
    instellingen.fontname = "Liberation Serif";
    bewaar_instellingen(instellingen, opslag);
    const std::string bewaard = opslag.values[{toepassing, "Layout", "fontname"}];
    EXPECT_EQ(bewaard, "Liberation Serif");
    EXPECT_FALSE(opslag.values.contains({toepassing, "Layout", "numbersize"}));
    EXPECT_EQ(laad_instellingen(opslag).fontname, "Arial");
    const std::string na_lezen = opslag.values[{toepassing, "Layout", "fontname"}];
    EXPECT_EQ(na_lezen, "Liberation Serif");
}

TEST(Instellingen, het_lettertype_komt_uit_numbersize) {
    EXPECT_EQ(gelezen("Layout", "fontname", "Verdana"), "Arial");
    EXPECT_EQ(laad_instellingen(opslag_met("Layout", "numbersize", "Verdana")).fontname, "Verdana");
}

TEST(Instellingen, een_kleur_leest_als_het_getal_waarmee_de_tekst_begint) {
    EXPECT_EQ(gelezen("Layout", "backcolor", "&HFF"), "255");
    EXPECT_EQ(gelezen("Layout", "backcolor", "&hff00ff"), "16711935");
    EXPECT_EQ(gelezen("Layout", "backcolor", "&O17"), "15");
    EXPECT_EQ(gelezen("Layout", "backcolor", "abc"), "0");
    EXPECT_EQ(gelezen("Layout", "backcolor", "  12 34"), "12");
    EXPECT_EQ(gelezen("Layout", "backcolor", "-1"), "-1");
    EXPECT_EQ(gelezen("Layout", "backcolor", "2147483647"), "2147483647");
}

TEST(Instellingen, een_getal_wordt_afgerond_halven_naar_even) {
    EXPECT_EQ(gelezen("Layout", "textsize", "0.5"), "0");
    EXPECT_EQ(gelezen("Layout", "textsize", "1.5"), "2");
    EXPECT_EQ(gelezen("Layout", "textsize", "2.5"), "2");
    EXPECT_EQ(gelezen("Layout", "textsize", "99.6 procent"), "100");
}

TEST(Instellingen, een_getal_dat_niet_past_laat_zijn_veld_op_0_en_de_rest_gaat_door) {
    EXPECT_EQ(gelezen("Layout", "textsize", "99999"), "0");
    EXPECT_EQ(gelezen("Layout", "textsize", "32767"), "32767");
    EXPECT_EQ(gelezen("Layout", "textsize", "32768"), "0");
    EXPECT_EQ(gelezen("Layout", "textsize", "-32768"), "-32768");
    EXPECT_EQ(gelezen("Layout", "textsize", "-32769"), "0");
    EXPECT_EQ(gelezen("Layout", "forecolor", "2147483648"), "0");
    EXPECT_EQ(gelezen("Layout", "forecolor", "1e999"), "0");

    test::FakeSettings opslag = opslag_met("Layout", "rubrictextsize", "99999");
    opslag.values[{toepassing, "Layout", "backcolor"}] = "&HFF";
    const I geladen = laad_instellingen(opslag);
    EXPECT_EQ(geladen.rubrictextsize, 0);
    EXPECT_EQ(geladen.backcolor, 255);
    EXPECT_EQ(geladen.showridername, 1);
}

TEST(Instellingen, een_lege_tekst_in_de_opslag_is_geen_ontbrekende) {
    EXPECT_EQ(gelezen("Layout", "textsize", ""), "0");
    EXPECT_EQ(gelezen("Layout", "showridername", ""), "0");
    EXPECT_EQ(laad_instellingen(opslag_met("Layout", "numbersize", "")).fontname, "");
}

TEST(Instellingen, na_de_eerste_afsluiting_staan_er_gewone_getallen) {
    test::FakeSettings opslag;
    I instellingen = laad_instellingen(opslag);
    instellingen.showunionname = 1; // a check box that the user switched on
    bewaar_instellingen(instellingen, opslag);
    const auto staat_er = [&](const char* sectie, const char* sleutel) {
        return opslag.values[{toepassing, sectie, sleutel}];
    };
    EXPECT_EQ(opslag.values.size(), 35U);
    EXPECT_EQ(staat_er("Layout", "rubricbackcolor"), "16777215");
    EXPECT_EQ(staat_er("Layout", "rubricforecolor"), "0");
    EXPECT_EQ(staat_er("Layout", "backcolor"), "16777215");
    EXPECT_EQ(staat_er("Layout", "forecolor"), "0");
    EXPECT_EQ(staat_er("Layout", "showunionname"), "1");
    EXPECT_EQ(staat_er("Layout", "showhorsesiredamr"), "0");
    EXPECT_EQ(staat_er("Excel", "fieldnames"), "0");
    EXPECT_EQ(staat_er("Files", "lastfolder"), "");
    EXPECT_EQ(opslag.flushes, 1);
}

TEST(Instellingen, elke_waarde_komt_bij_een_volgende_start_terug) {
    I instellingen;
    int teller = 1;
    for (const Instelling& instelling : instellingen_tabel())
        ASSERT_TRUE(zet_instelling(instellingen, instelling, std::to_string(teller++)));
    test::FakeSettings opslag;
    bewaar_instellingen(instellingen, opslag);
    instellingen.fontname = "Arial"; // the one that is not read back
    EXPECT_EQ(laad_instellingen(opslag), instellingen);
}

TEST(Instellingen, de_instellingen_van_een_ander_programma_tellen_niet) {
    test::FakeSettings opslag;
    opslag.values[{"Vendalo 3.5", "Layout", "textsize"}] = "50";
    EXPECT_EQ(laad_instellingen(opslag).textsize, 100);
}

TEST(Instellingen, een_waarde_die_niet_past_verandert_een_gezette_instelling_niet) {
    I instellingen;
    instellingen.textsize = 80;
    const auto tabel = instellingen_tabel();
    const auto textsize = std::ranges::find(tabel, "textsize", &Instelling::sleutel);
    EXPECT_FALSE(zet_instelling(instellingen, *textsize, "40000"));
    EXPECT_EQ(instellingen.textsize, 80);
    EXPECT_TRUE(zet_instelling(instellingen, *textsize, "40"));
    EXPECT_EQ(instellingen.textsize, 40);
}

} // namespace
} // namespace tavelo
