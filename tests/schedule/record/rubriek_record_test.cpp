#include "schedule/record/rubriek_record.h"

#include "basis/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <type_traits>

namespace tavelo {
namespace {

enum class Soort { tekst, getal };
struct Sleutel {
    std::string_view naam;
    Soort soort = Soort::tekst;
    std::string_view standaard = "";
    int eerste = 0; // of a row of numbered keys
    int laatste = -1;
};

// The record as the suite documents it, independent of the program's own table.
constexpr auto getal = Soort::getal;
constexpr auto tekst = Soort::tekst;
constexpr std::array sleutels = std::to_array<Sleutel>({
    {"rid"},
    {"rxpad"},
    {"roms"},
    {"rkop"},
    {"rvoet"},
    {"rkopuitslag"},
    {"rvoetuitslag"},
    {"rdag"},
    {"rring"},
    {"rtype", tekst, "Ring"},
    {"ruty"},
    {"rmty"},
    {"rpty"},
    {"rtvk", getal, "1"},
    {"rtvko", getal, "0"},
    {"rvnr"},
    {"rvor"},
    {"rsar"},
    {"rmda"},
    {"rcom", getal, "0"},
    {"rverkamp", getal, "0"},
    {"rpro", tekst, "", 0, 25},
    {"rproab", tekst, "", 0, 25},
    {"rp12", getal, "0"},
    {"rkla"},
    {"rklh", getal, "0"},
    {"rklhs"},
    {"rcat"},
    {"rpkl", getal, "0"},
    {"rpklh"},
    {"rhcapu", getal, "0"},
    {"rhcap"},
    {"rmex", getal, "0"},
    {"rsel", getal, "0"},
    {"rgroen", getal, "0"},
    {"rkur", getal, "0"},
    {"rrubi"},
    {"runo", getal, "0"},
    {"rajl", tekst, "0"},
    {"rjp", tekst, "", 1, 5},
    {"rjn", tekst, "", 1, 5},
    {"rjc", tekst, "", 1, 5},
    {"rxqd", getal, "1"},
    {"rhjd", getal, "1"},
    {"rdubprijs", getal, "0"},
    {"rprijzen1op4", getal, "0"},
    {"rprijzenaantal"},
    {"rprijs", tekst, "", 1, 15},
    {"ropm"},
    {"rgig", getal, "0"},
    {"rilgb"},
    {"rmon", getal, "0"},
    {"rdkk", getal, "0"},
    {"rlocked"},
});

using Velden = std::map<std::string, std::string>;

// Every field of a record by its key in the file, numbers as text.
Velden velden_van(const RubriekRecord& rubriek) {
    Velden velden;
    for (const RubriekVeld& veld : rubriek_velden()) {
        const std::string naam(veld.sleutel);
        std::visit(
            [&](auto lid) {
                using Lid = std::remove_cvref_t<decltype(rubriek.*lid)>;
                if constexpr (std::is_same_v<Lid, std::string>) {
                    velden[naam] = rubriek.*lid;
                } else if constexpr (std::is_same_v<Lid, std::int16_t>) {
                    velden[naam] = std::to_string(rubriek.*lid);
                } else {
                    int nummer = veld.eerste;
                    for (const std::string& deel : rubriek.*lid)
                        velden[naam + std::to_string(nummer++)] = deel;
                }
            },
            veld.veld);
    }
    return velden;
}

Velden verwachte_standaard() {
    Velden velden;
    for (const Sleutel& sleutel : sleutels) {
        if (sleutel.laatste < 0) velden[std::string(sleutel.naam)] = sleutel.standaard;
        for (int nummer = sleutel.eerste; nummer <= sleutel.laatste; ++nummer)
            velden[std::string(sleutel.naam) + std::to_string(nummer)] = sleutel.standaard;
    }
    return velden;
}

TEST(RubriekRecord, elk_veld_heeft_zijn_standaardwaarde) {
    EXPECT_EQ(velden_van(rubriek_met_standaardwaarden()), verwachte_standaard());
}

TEST(RubriekRecord, elke_sleutel_zet_zijn_eigen_veld_en_geen_ander) {
    for (const auto& [naam, standaard] : verwachte_standaard()) {
        RubriekRecord rubriek = rubriek_met_standaardwaarden();
        ASSERT_TRUE(zet_rubriek_veld(rubriek, naam, "73"));
        Velden verwacht = verwachte_standaard();
        verwacht[naam] = "73";
        EXPECT_EQ(velden_van(rubriek), verwacht) << naam;
    }
    EXPECT_EQ(verwachte_standaard().size(), 130U);
}

TEST(RubriekRecord, getallen_worden_afgerond_en_teksten_blijven_zoals_ze_zijn) {
    for (const Sleutel& sleutel : sleutels) {
        if (sleutel.laatste >= 0 || sleutel.naam == "rajl") continue;
        RubriekRecord rubriek;
        ASSERT_TRUE(zet_rubriek_veld(rubriek, sleutel.naam, "12.5 abc"));
        EXPECT_EQ(velden_van(rubriek)[std::string(sleutel.naam)], sleutel.soort == getal ? "12" : "12.5 abc")
            << sleutel.naam;
    }
}

TEST(RubriekRecord, een_getal_dat_niet_past_laat_zijn_veld_staan_en_meldt_overloop) {
    for (const Sleutel& sleutel : sleutels) {
        if (sleutel.soort != getal) continue;
        for (const std::string_view waarde : {"32768", "-32769", "1e5", "&HFFFF"}) {
            RubriekRecord rubriek = rubriek_met_standaardwaarden();
            const auto gezet = zet_rubriek_veld(rubriek, sleutel.naam, waarde);
            ASSERT_FALSE(gezet) << sleutel.naam;
            EXPECT_EQ(gezet.error(), "Overloop");
            EXPECT_EQ(velden_van(rubriek), verwachte_standaard());
        }
    }
}

TEST(RubriekRecord, een_genummerde_sleutel_buiten_zijn_rij_is_onbekend) {
    RubriekRecord rubriek = rubriek_met_standaardwaarden();
    for (const std::string_view sleutel :
         {"rpro26",  "rproab26", "rjp0", "rjp6",   "rjn0",   "rjn6",   "rjc0",   "rjc6",
          "rprijs0", "rprijs16", "rpro", "rpro05", "rpro-1", "rpro1x", "rpro 1", "rpro99999999999999999999",
          "rproab",  "RID",      "id",   "",       "dnr",    "x"})
        EXPECT_TRUE(zet_rubriek_veld(rubriek, sleutel, "7")) << sleutel;
    EXPECT_EQ(velden_van(rubriek), verwachte_standaard());
}

TEST(RubriekRecord, rajl_is_een_getal_dat_als_tekst_wordt_bewaard) {
    RubriekRecord rubriek = rubriek_met_standaardwaarden();
    const auto rajl = [&](std::string_view waarde) {
        EXPECT_TRUE(zet_rubriek_veld(rubriek, "rajl", waarde));
        return rubriek.rajl;
    };
    EXPECT_EQ(rajl("05"), "5");
    EXPECT_EQ(rajl("x"), "0");
    EXPECT_EQ(rajl("1.50"), "1.5");
    EXPECT_EQ(rajl("40000"), "40000"); // kept as text, so 16 bits are no limit
    EXPECT_FALSE(zet_rubriek_veld(rubriek, "rajl", "1e999"));
    EXPECT_EQ(rubriek.rajl, "40000");
}

TEST(RubriekLijst, elke_sleutel_zet_zijn_veld) {
    RubriekLijstRecord entry;
    ASSERT_TRUE(lees_rubriek_lijst("id:a\tvpn:b\toms:c\tdis:d\tdiscode:e\tklasse:f\tcat:g\tilg:h\tpid:i\tptd:j\tdtm:k\t"
                                   "com:1\tmop:2\tedit:3",
                                   entry));
    EXPECT_EQ(entry, (RubriekLijstRecord{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", 1, 2, 3}));
}

TEST(RubriekLijst, sleutels_in_elke_volgorde_en_schrijfwijze_en_waarden_ongetrimd) {
    RubriekLijstRecord entry;
    ASSERT_TRUE(lees_rubriek_lijst(" OMS : Finale: \tid:1\tonbekend:x\tlos\tID:2\tcom: 12.5x", entry));
    EXPECT_EQ(entry.oms, " Finale: ");
    EXPECT_EQ(entry.id, "2"); // a repeated key overwrites
    EXPECT_EQ(entry.com, 12);
}

TEST(RubriekLijst, de_volgorde_van_de_sleutels_maakt_niet_uit) {
    std::vector<std::string> items = {"id:a",  "vpn:b", "oms:c", "dis:d", "discode:e", "klasse:f", "cat:g",
                                      "ilg:h", "pid:i", "ptd:j", "dtm:k", "com:1",     "mop:2",    "edit:3"};
    const RubriekLijstRecord verwacht{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", 1, 2, 3};
    for (std::size_t keer = 0; keer < items.size(); ++keer) {
        std::ranges::rotate(items, items.begin() + 1);
        for (const bool achterstevoren : {false, true}) {
            std::vector<std::string> volgorde = items;
            if (achterstevoren) std::ranges::reverse(volgorde);
            RubriekLijstRecord entry;
            ASSERT_TRUE(lees_rubriek_lijst(join(volgorde, "\t"), entry));
            EXPECT_EQ(entry, verwacht) << join(volgorde, " ");
        }
    }
}

TEST(RubriekLijst, bij_een_getal_dat_niet_past_houdt_het_lezen_op) {
    RubriekLijstRecord entry;
    const auto gelezen = lees_rubriek_lijst("id:a\tcom:40000\toms:c", entry);
    ASSERT_FALSE(gelezen);
    EXPECT_EQ(gelezen.error(), "Overloop");
    RubriekLijstRecord verwacht;
    verwacht.id = "a";
    EXPECT_EQ(entry, verwacht);
}

} // namespace
} // namespace tavelo
