#include "schedule/record/vlaggen.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr std::int16_t dressuur = 0;
constexpr std::int16_t springen = 2;
constexpr std::int16_t geen = 19;

struct Groep {
    std::int16_t ringtype;
    std::string resultaat;
    std::string handicap;
    std::string selectie;
    std::string impuls;
};
const std::vector<Groep> groepen = {
    {0, "d_res", "dh", "d_sel", "d_gr"},      {12, "d_res", "dh", "d_sel", "d_gr"},
    {17, "s_res", "sh", "s_sel", "s_gr"},     {7, "md_res", "mdh", "md_sel", "md_gr"},
    {18, "mv_res", "mvh", "mv_sel", "mv_gr"},
};

std::string alle_vlaggen(std::int16_t ringtype, const std::string& record) {
    std::string tekst(resultaat_tekst(ringtype, RecordItems(record)));
    tekst.append("|").append(handicap_tekst("D12", ringtype, RecordItems(record)));
    tekst.append("|").append(handicap_kolom("D12", ringtype, RecordItems(record)));
    tekst.append("|").append(selectie_tekst(ringtype, RecordItems(record)));
    tekst.append("|").append(impuls_tekst(ringtype, RecordItems(record)));
    return tekst;
}

TEST(Vlaggen, elke_groep_van_disciplines_heeft_haar_eigen_sleutels) {
    for (const Groep& van : groepen) {
        for (const Groep& in : groepen) {
            const bool zelfde = van.resultaat == in.resultaat;
            const auto vlaggen = [&](const std::string& sleutel) { return alle_vlaggen(in.ringtype, sleutel + ":1"); };
            EXPECT_EQ(vlaggen(van.resultaat), zelfde ? " (res)||||" : "||||");
            EXPECT_EQ(vlaggen(van.handicap), zelfde ? "| (HC)|HC||" : "||||");
            EXPECT_EQ(vlaggen(van.selectie), zelfde ? "||| (Sel)|" : "||||");
            EXPECT_EQ(vlaggen(van.impuls), zelfde ? "|||| (impuls)" : "||||");
        }
    }
}

TEST(Vlaggen, alleen_uitslag_bij_springen_zegt_niets_in_de_dressuur) {
    EXPECT_EQ(resultaat_tekst(springen, RecordItems("s_res:1")), " (res)");
    EXPECT_EQ(resultaat_tekst(dressuur, RecordItems("s_res:1")), "");
}

TEST(Vlaggen, zonder_discipline_is_er_geen_vlag_maar_wel_een_uitzondering_per_rubriek) {
    EXPECT_EQ(alle_vlaggen(geen, "d_res:1\tdh:1\tsh:1\td_sel:1\td_gr:1\t:1"), "||||");
    EXPECT_EQ(handicap_tekst("D12", geen, RecordItems("rhc:D12(1)")), " (HC)");
    EXPECT_EQ(handicap_kolom("D12", geen, RecordItems("rhc:D12(2)")), "()");
}

TEST(Vlaggen, een_rubriek_kan_buiten_mededinging_opheffen) {
    EXPECT_EQ(handicap_tekst("D12", dressuur, RecordItems("dh:1\trhc:D12(2)")), "");
    EXPECT_EQ(handicap_kolom("D12", dressuur, RecordItems("dh:1\trhc:D12(2)")), "()");
}

TEST(Vlaggen, een_rubriek_kan_buiten_mededinging_instellen) {
    EXPECT_EQ(handicap_tekst("D12", dressuur, RecordItems("rhc:D12(1)")), " (HC)");
    EXPECT_EQ(handicap_kolom("D12", dressuur, RecordItems("rhc:D12(1)")), "(HC)");
}

TEST(Vlaggen, het_laatste_element_voor_de_rubriek_wint) {
    EXPECT_EQ(handicap_tekst("D12", dressuur, RecordItems("rhc:D12(1),D12(2)")), "");
    EXPECT_EQ(handicap_kolom("D12", dressuur, RecordItems("rhc:D12(1),D12(2)")), "()");
    EXPECT_EQ(handicap_tekst("D12", dressuur, RecordItems("rhc:D12(2),S3(2),D12(1)")), " (HC)");
    EXPECT_EQ(handicap_kolom("D12", dressuur, RecordItems("rhc:D12(2),S3(2),D12(1)")), "(HC)");
}

TEST(Vlaggen, elementen_worden_letterlijk_vergeleken) {
    for (const std::string_view rhc : {"rhc:d12(1)", "rhc: D12(1)", "rhc:D12 (1)", "rhc:D12(1) ", "rhc:D120(1)",
                                       "rhc:D12(3)", "rhc:D12", "rhc:2(1)"}) {
        EXPECT_EQ(handicap_tekst("D12", dressuur, RecordItems(rhc)), "") << rhc;
        EXPECT_EQ(handicap_kolom("D12", dressuur, RecordItems(rhc)), "") << rhc;
    }
    EXPECT_EQ(handicap_kolom("", dressuur, RecordItems("rhc:(1)")), "(HC)"); // a rubriek without identifier
}

TEST(Vlaggen, een_vlag_staat_alleen_aan_bij_precies_een_1) {
    for (const std::string_view waarde : {"01", "1 ", " 1", "2", "-1", "True", ""}) {
        const std::string record = "d_sel:" + std::string(waarde);
        EXPECT_EQ(selectie_tekst(dressuur, RecordItems(record)), "") << record;
    }
    EXPECT_EQ(selectie_tekst(dressuur, RecordItems("d_sel:1")), " (Sel)");
    EXPECT_EQ(selectie_tekst(dressuur, RecordItems("D_SEL:1")), "");
}

TEST(Vlaggen, de_klasse_en_de_coupe_hebben_een_sleutel_per_groep) {
    EXPECT_EQ(sleutels_van(13).klasse, "dk");
    EXPECT_EQ(sleutels_van(1).klasse, "sk");
    EXPECT_EQ(sleutels_van(7).klasse, "mdk");
    EXPECT_EQ(sleutels_van(8).klasse, "mvk");
    EXPECT_EQ(sleutels_van(13).coupe, "d_coup");
    EXPECT_EQ(sleutels_van(1).coupe, "s_coup");
    EXPECT_EQ(sleutels_van(7).coupe, "md_coup");
    EXPECT_EQ(sleutels_van(8).coupe, "mv_coup");
    EXPECT_EQ(sleutels_van(geen).klasse, "");
    EXPECT_EQ(sleutels_van(geen).coupe, "");
}

} // namespace
} // namespace tavelo
