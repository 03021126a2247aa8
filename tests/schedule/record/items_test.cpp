#include "schedule/record/items.h"

#include "schedule/toeval.h"

#include <gtest/gtest.h>

#include <iostream>

namespace tavelo {
namespace {

TEST(Items, een_sleutel_wordt_getrimd_en_klein_gemaakt) {
    EXPECT_EQ(sleutel_van(" RKLA :L"), "rkla");
    EXPECT_EQ(sleutel_van("a:b:c"), "a");
    EXPECT_EQ(sleutel_van("zonder"), "");
    EXPECT_EQ(sleutel_van(":x"), "");
}

TEST(Items, een_waarde_wordt_getrimd_en_loopt_tot_het_eind) {
    EXPECT_EQ(waarde_van("a: b:c "), "b:c");
    EXPECT_EQ(waarde_van("a:"), "");
    EXPECT_EQ(waarde_van("zonder"), "");
}

TEST(Items, een_waarde_wordt_gezocht_op_de_letterlijke_sleutel) {
    EXPECT_EQ(zoek_waarde("co", "na:Jan\tco:12"), "12");
    EXPECT_EQ(zoek_waarde("co", "d_coup:1"), "");
    EXPECT_EQ(zoek_waarde("co", "xco:1\tco:2"), "2");
    EXPECT_EQ(zoek_waarde("co", "Co:1"), "");
    EXPECT_EQ(zoek_waarde("co", " co:1"), "");
    EXPECT_EQ(zoek_waarde("co", "co :1"), "");
    EXPECT_EQ(zoek_waarde("co", "co"), "");
    EXPECT_EQ(zoek_waarde("co", ""), "");
}

TEST(Items, een_gezochte_waarde_wordt_niet_getrimd_en_de_eerste_wint) {
    EXPECT_EQ(zoek_waarde("na", "na: Jan \tna:Piet"), " Jan ");
    EXPECT_EQ(zoek_waarde("na", "na:\tna:Piet"), "");
    EXPECT_EQ(zoek_waarde("na", "na:a:b"), "a:b");
}

TEST(Items, een_lijst_sleutels_vindt_in_een_keer_wat_zoek_waarde_vindt) {
    std::string lang = "co:eerste\tco:tweede\tlos\t:leeg\ta:1\tmedr_dagen:za\tmedr_da:zo\t";
    for (int i = 0; i < 100; ++i)
        lang += "k" + std::to_string(i) + ":" + std::to_string(i) + "\t";
    lang += "laatste:x";
    std::vector<std::string> namen = {"co", "a", "los", "na", "d_coup", "coup", "k", "laatste", "CO", "medr_da"};
    for (int i = 0; i < 100; ++i)
        namen.push_back("k" + std::to_string(i));
    const std::vector<std::string_view> gezocht(namen.begin(), namen.end());
    const Sleutels sleutels(gezocht);
    for (const std::string& record :
         {lang, std::string(), std::string("co"), std::string("na:Jan\td_coup:1"), std::string("medr_da:")}) {
        std::vector<std::string_view> waarden(gezocht.size(), "van een vorig record");
        sleutels.zoek(record, waarden);
        for (std::size_t i = 0; i < gezocht.size(); ++i)
            EXPECT_EQ(waarden[i], zoek_waarde(gezocht[i], record)) << gezocht[i];
    }
}

TEST(Items, een_lege_of_lange_sleutel_en_een_met_een_scheiding_worden_nooit_gevonden) {
    const std::vector<std::string_view> gezocht = {"", "a:b", "a\tb", "a", "sp_dagen"};
    std::vector<std::string_view> waarden(gezocht.size());
    Sleutels(gezocht).zoek(":leeg\ta:b:c\tb:d\tsp_dagen:za", waarden);
    EXPECT_EQ(waarden, (std::vector<std::string_view>{"", "", "", "b:c", ""}));
}

TEST(Items, achter_de_laatste_sleutel_van_een_lijst_wordt_er_geen_gezocht) {
    const std::vector<std::string_view> gezocht = {"a", "b", "c"};
    std::vector<std::string_view> waarden(gezocht.size());
    Sleutels(std::span(gezocht).first(2)).zoek("c:3\tb:2\ta:1", waarden);
    EXPECT_EQ(waarden, (std::vector<std::string_view>{"1", "2", ""}));
}

TEST(Items, een_doorloop_geeft_elk_item_in_volgorde) {
    const std::vector<std::string_view> gezocht = {"oms", "com"};
    std::vector<std::string> gehoord;
    Sleutels(gezocht).doorloop(
        "com:1\tOMS:x\t\toms:\tcom:2",
        [&](std::size_t nummer, std::string_view waarde) {
            gehoord.push_back(std::string(gezocht[nummer]) + "=" + std::string(waarde));
        },
        [&](std::string_view item) { gehoord.push_back("?" + std::string(item)); });
    EXPECT_EQ(gehoord, (std::vector<std::string>{"com=1", "?OMS:x", "?", "oms=", "com=2"}));
}

TEST(Items, in_elk_record_is_zoeken_hetzelfde_als_zoeken_tussen_twee_tabs) {
    const auto tussen_tabs = [](std::string_view sleutel, std::string_view record) {
        const std::string lijst = "\t" + std::string(record) + "\t";
        const std::string gezocht = "\t" + std::string(sleutel) + ":";
        const std::size_t plaats = lijst.find(gezocht);
        if (plaats == std::string::npos) return std::string();
        const std::size_t begin = plaats + gezocht.size();
        return lijst.substr(begin, lijst.find('\t', begin) - begin);
    };
    // Keys that begin alike, are each other's tail, or differ by case alone.
    const std::vector<std::string> sleutels = {"co",    "d_co", "coup",   "d_coup", "co1", "CO", "c",   "di_st",
                                               "di_sa", "di_s", "di_str", "é",      "na",  "pa", "mva", "va"};
    const std::vector<std::string_view> gezocht(sleutels.begin(), sleutels.end());
    const Sleutels lijst(gezocht);
    const std::vector<std::string> losse_delen = {"", " ", "\t", "\t\t", ":", ":x", "co", "co :1", " co:1", "a:b:c"};
    const std::uint32_t begin = test::beginwaarde(1811);
    std::cout << "TAVELO_SEED=" << begin << '\n';
    test::Toeval toeval(begin);
    for (int keer = 0; keer < 2000; ++keer) {
        std::string record;
        for (int items = toeval.onder(toeval.een_op(10) ? 300 : 12); items > 0; --items) {
            if (!record.empty() && !toeval.een_op(20)) record += '\t';
            record += toeval.een_op(4) ? toeval.uit(losse_delen)
                                       : toeval.uit(sleutels) + ":" + std::to_string(toeval.onder(3));
        }
        std::vector<std::string_view> waarden(sleutels.size());
        lijst.zoek(record, waarden);
        for (std::size_t i = 0; i < sleutels.size(); ++i) {
            const std::string verwacht = tussen_tabs(sleutels[i], record);
            ASSERT_EQ(zoek_waarde(sleutels[i], record), verwacht) << sleutels[i] << " in " << record;
            ASSERT_EQ(waarden[i], verwacht) << sleutels[i] << " in " << record;
        }
    }
}

TEST(Items, een_waarde_wordt_vervangen_waar_haar_sleutel_staat) {
    EXPECT_EQ(zet_waarde("co", "na:Jan\tco:1\tpa:Bles", "2"), "na:Jan\tco:2\tpa:Bles");
    EXPECT_EQ(zet_waarde("co", "CO :1\tco:1", "2"), "co:2\tco:2");
    EXPECT_EQ(zet_waarde("co", "d_coup:1", " 2 "), "d_coup:1\tco: 2 "); // the value as given
}

TEST(Items, een_sleutel_staat_in_hoofd_of_kleine_letters_en_voor_een_dubbele_punt) {
    EXPECT_EQ(zet_waarde("ad", "AD:Dorpsstraat 1", "Laan 2"), "ad:Laan 2");
    EXPECT_EQ(zet_waarde("zk", "ZK:1\tzK:1", "2"), "zk:2\tzk:2");
    EXPECT_EQ(zet_waarde("co", "co\tna:Jan", "2"), "co\tna:Jan\tco:2");
    EXPECT_EQ(zet_waarde("co", "", std::string(100, '7')), "co:" + std::string(100, '7'));
}

TEST(Items, een_sleutel_die_ontbreekt_komt_achteraan) {
    EXPECT_EQ(zet_waarde("co", "na:Jan", "2"), "na:Jan\tco:2");
    EXPECT_EQ(zet_waarde("co", "", "2"), "co:2");
    EXPECT_EQ(zet_waarde("co", "na:Jan", ""), "na:Jan");
    EXPECT_EQ(zet_waarde("co", "na:Jan", " "), "na:Jan\tco: "); // blank is not empty
}

TEST(Items, een_lege_waarde_laat_het_item_vallen) {
    EXPECT_EQ(zet_waarde("co", "na:Jan\tco:1\tpa:Bles\tco:3", ""), "na:Jan\tpa:Bles");
    EXPECT_EQ(zet_waarde("co", "na:Jan\tco:1", "  "), "na:Jan");
    EXPECT_EQ(zet_waarde("co", "co:1", ""), "");
    EXPECT_EQ(zet_waarde("co", "", ""), "");
}

TEST(Items, de_andere_items_worden_getrimd_en_een_tab_aan_de_rand_verdwijnt) {
    EXPECT_EQ(zet_waarde("co", " na:Jan \t\t pa:Bles\tco:1", "2"), "na:Jan\t\tpa:Bles\tco:2");
    EXPECT_EQ(zet_waarde("co", "\tna:Jan\t", ""), "na:Jan");
    EXPECT_EQ(zet_waarde("co", "\t\tna:Jan\t\t", ""), "\tna:Jan\t"); // one on each side
}

TEST(Items, een_record_heeft_een_waarde_al_als_zetten_niets_verandert) {
    const std::vector<std::string> items = {"",      " ",    "na:Jan", "na:Jan ", " na:Jan", "co",
                                            "co:",   "co:1", "co: 1",  ":x",      "co:1 ",   "co :1",
                                            " co:1", "CO:1", "co:2",   "d_co:1",  "coup:1"};
    const std::vector<std::string> waarden = {"", " ", "1", " 1", "1 ", "2", "x"};
    const std::uint32_t begin = test::beginwaarde(1812);
    std::cout << "TAVELO_SEED=" << begin << '\n';
    test::Toeval toeval(begin);
    int dezelfde = 0;
    for (int keer = 0; keer < 20000; ++keer) {
        std::string record;
        for (int aantal = toeval.onder(4); aantal > 0; --aantal)
            record += (record.empty() && !toeval.een_op(10) ? "" : "\t") + toeval.uit(items);
        const std::string& waarde = toeval.uit(waarden);
        const bool is_gelijk = zet_waarde("co", record, waarde) == record;
        ASSERT_EQ(heeft_waarde_al("co", record, waarde), is_gelijk) << "[" << record << "] [" << waarde << "]";
        dezelfde += is_gelijk;
    }
    EXPECT_GT(dezelfde, 1000);
}

TEST(Items, een_sterrenlijst_wordt_een_lijst_met_kommas) {
    EXPECT_EQ(klasse_tekst("*L*M*"), "L, M");
    EXPECT_EQ(klasse_tekst("L"), "L");
    EXPECT_EQ(klasse_tekst("**L**"), ", L, "); // one star on each side
    EXPECT_EQ(klasse_tekst("*"), "");
    EXPECT_EQ(klasse_tekst(""), "");
}

TEST(Items, elk_ringtype_heeft_zijn_discipline) {
    const std::array<std::string_view, 19> codes = {"D", "S", "S",  "S",  "S", "S",  "S", "MD", "MV", "MV",
                                                    "S", "S", "AD", "AD", "S", "AD", "S", "S",  "MV"};
    for (std::size_t ringtype = 0; ringtype < codes.size(); ++ringtype)
        EXPECT_EQ(discipline_code(static_cast<std::int16_t>(ringtype)), codes[ringtype]) << ringtype;
    for (const std::int16_t ringtype : std::initializer_list<std::int16_t>{-1, 19, 32767, -32768})
        EXPECT_EQ(discipline_code(ringtype), "");
}

TEST(Items, afdelingsdressuur_is_overal_dressuur) {
    EXPECT_EQ(discipline_van(0), Discipline::dressuur);
    EXPECT_EQ(discipline_van(13), Discipline::dressuur);
    EXPECT_EQ(discipline_van(17), Discipline::springen);
    EXPECT_EQ(discipline_van(7), Discipline::mennen_dressuur);
    EXPECT_EQ(discipline_van(18), Discipline::mennen_vaardigheid);
    EXPECT_EQ(discipline_van(19), Discipline::geen);
}

TEST(Items, een_sleutel_loopt_tot_de_eerste_dubbele_punt) {
    EXPECT_EQ(zet_waarde("co", "co:a:b\tna:Jan", "2"), "co:2\tna:Jan");
    EXPECT_EQ(zet_waarde("co", "na:co:1", "2"), "na:co:1\tco:2");
    EXPECT_TRUE(heeft_waarde_al("co", "co:a:b", "a:b"));
    EXPECT_FALSE(heeft_waarde_al("co", "co:a:b", "b"));
}

TEST(Items, een_item_met_alleen_een_dubbele_punt_is_van_geen_sleutel) {
    const std::vector<std::string_view> gezocht = {"", "een_lange_sleutel", "a"};
    std::vector<std::string> gehoord;
    Sleutels(gezocht).doorloop(
        ":\ta:1\t:",
        [&](std::size_t nummer, std::string_view waarde) {
            gehoord.push_back(std::string(gezocht[nummer]) + "=" + std::string(waarde));
        },
        [&](std::string_view item) { gehoord.push_back("?" + std::string(item)); });
    EXPECT_EQ(gehoord, (std::vector<std::string>{"?:", "a=1", "?:"}));
}

} // namespace
} // namespace tavelo
