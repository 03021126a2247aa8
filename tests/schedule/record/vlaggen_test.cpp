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

// Views on the record.
Deelname deelname(std::int16_t ringtype, std::string_view record) {
    Deelname gelezen;
    DeelnameLezer(ringtype).lees(record, gelezen);
    return gelezen;
}

std::string alle_vlaggen(std::int16_t ringtype, const std::string& record) {
    std::string tekst(resultaat_tekst(deelname(ringtype, record)));
    tekst.append("|").append(handicap_tekst("D12", deelname(ringtype, record)));
    tekst.append("|").append(handicap_kolom("D12", deelname(ringtype, record)));
    tekst.append("|").append(selectie_tekst(deelname(ringtype, record)));
    tekst.append("|").append(impuls_tekst(deelname(ringtype, record)));
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
    EXPECT_EQ(resultaat_tekst(deelname(springen, "s_res:1")), " (res)");
    EXPECT_EQ(resultaat_tekst(deelname(dressuur, "s_res:1")), "");
}

TEST(Vlaggen, zonder_discipline_is_er_geen_vlag_maar_wel_een_uitzondering_per_rubriek) {
    EXPECT_EQ(alle_vlaggen(geen, "d_res:1\tdh:1\tsh:1\td_sel:1\td_gr:1\t:1"), "||||");
    EXPECT_EQ(handicap_tekst("D12", deelname(geen, "rhc:D12(1)")), " (HC)");
    EXPECT_EQ(handicap_kolom("D12", deelname(geen, "rhc:D12(2)")), "()");
}

TEST(Vlaggen, een_rubriek_kan_buiten_mededinging_opheffen) {
    EXPECT_EQ(handicap_tekst("D12", deelname(dressuur, "dh:1\trhc:D12(2)")), "");
    EXPECT_EQ(handicap_kolom("D12", deelname(dressuur, "dh:1\trhc:D12(2)")), "()");
}

TEST(Vlaggen, een_rubriek_kan_buiten_mededinging_instellen) {
    EXPECT_EQ(handicap_tekst("D12", deelname(dressuur, "rhc:D12(1)")), " (HC)");
    EXPECT_EQ(handicap_kolom("D12", deelname(dressuur, "rhc:D12(1)")), "(HC)");
}

TEST(Vlaggen, het_laatste_element_voor_de_rubriek_wint) {
    EXPECT_EQ(handicap_tekst("D12", deelname(dressuur, "rhc:D12(1),D12(2)")), "");
    EXPECT_EQ(handicap_kolom("D12", deelname(dressuur, "rhc:D12(1),D12(2)")), "()");
    EXPECT_EQ(handicap_tekst("D12", deelname(dressuur, "rhc:D12(2),S3(2),D12(1)")), " (HC)");
    EXPECT_EQ(handicap_kolom("D12", deelname(dressuur, "rhc:D12(2),S3(2),D12(1)")), "(HC)");
}

TEST(Vlaggen, elementen_worden_letterlijk_vergeleken) {
    for (const std::string_view rhc : {"rhc:d12(1)", "rhc: D12(1)", "rhc:D12 (1)", "rhc:D12(1) ", "rhc:D120(1)",
                                       "rhc:D12(3)", "rhc:D12", "rhc:2(1)"}) {
        EXPECT_EQ(handicap_tekst("D12", deelname(dressuur, rhc)), "") << rhc;
        EXPECT_EQ(handicap_kolom("D12", deelname(dressuur, rhc)), "") << rhc;
    }
    EXPECT_EQ(handicap_kolom("", deelname(dressuur, "rhc:(1)")), "(HC)"); // a rubriek without identifier
}

TEST(Vlaggen, een_vlag_staat_alleen_aan_bij_precies_een_1) {
    for (const std::string_view waarde : {"01", "1 ", " 1", "2", "-1", "True", ""}) {
        const std::string record = "d_sel:" + std::string(waarde);
        EXPECT_EQ(selectie_tekst(deelname(dressuur, record)), "") << record;
    }
    EXPECT_EQ(selectie_tekst(deelname(dressuur, "d_sel:1")), " (Sel)");
    EXPECT_EQ(selectie_tekst(deelname(dressuur, "D_SEL:1")), "");
}

TEST(Vlaggen, de_klasse_en_de_coupe_hebben_een_sleutel_per_groep) {
    const std::string_view record = "dk:L\tsk:B\tmdk:2\tmvk:3\td_coup:d\ts_coup:s\tmd_coup:md\tmv_coup:mv";
    const auto klasse_en_coupe = [&](std::int16_t ringtype) {
        const Deelname gelezen = deelname(ringtype, record);
        return std::string(gelezen[Gegeven::klasse]).append("|").append(gelezen[Gegeven::coupe]);
    };
    EXPECT_EQ(klasse_en_coupe(0), "L|d");
    EXPECT_EQ(klasse_en_coupe(13), "L|d");
    EXPECT_EQ(klasse_en_coupe(1), "B|s");
    EXPECT_EQ(klasse_en_coupe(7), "2|md");
    EXPECT_EQ(klasse_en_coupe(8), "3|mv");
    EXPECT_EQ(klasse_en_coupe(geen), "|");
}

TEST(Vlaggen, wat_een_rubriek_toont_staat_er_zoals_in_het_record_en_de_eerste_telt) {
    const Deelname gelezen = deelname(dressuur, "hnr:7\tco: K1 \tna:Jan\tna:Piet\tpa:Bles\tva:Vonk\tve:De Hoef\tca:B\t"
                                                "rhc:D1(1)");
    EXPECT_EQ(gelezen[Gegeven::hnr], "7");
    EXPECT_EQ(gelezen[Gegeven::co], " K1 ");
    EXPECT_EQ(gelezen[Gegeven::na], "Jan");
    EXPECT_EQ(gelezen[Gegeven::pa], "Bles");
    EXPECT_EQ(gelezen[Gegeven::va], "Vonk");
    EXPECT_EQ(gelezen[Gegeven::ve], "De Hoef");
    EXPECT_EQ(gelezen[Gegeven::ca], "B");
    EXPECT_EQ(gelezen[Gegeven::rhc], "D1(1)");
    EXPECT_EQ(gelezen[Gegeven::klasse], "");
}

TEST(Vlaggen, een_lezer_onthoudt_niets_van_het_vorige_record) {
    const DeelnameLezer lezer(springen);
    Deelname gelezen;
    lezer.lees("na:Jan\ts_res:1", gelezen);
    lezer.lees("pa:Bles", gelezen);
    EXPECT_EQ(gelezen[Gegeven::na], "");
    EXPECT_FALSE(gelezen.staat_aan(Gegeven::resultaat));
}

} // namespace
} // namespace tavelo
