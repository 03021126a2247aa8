#include "schedule/codeCombinaties.h"

#include "fakes/seams.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

CombinatieRecord gelezen(int n, std::string_view record) {
    Schedule schedule;
    schedule.zet_deelnemer(n, std::string(record));
    CombinatieRecord entry;
    lees_combinatie(entry, n, schedule, test::FakeClock());
    return entry;
}

TEST(Combinatie, elke_tekst_komt_van_haar_eigen_sleutel) {
    struct Veld {
        std::string sleutel;
        std::string CombinatieRecord::*veld;
    };
    using C = CombinatieRecord;
    const std::vector<Veld> velden = {
        {"type", &C::type},   {"hnr", &C::hnr},         {"co", &C::co},           {"pe_nr", &C::pe_nr},
        {"na", &C::na},       {"gebdat", &C::gebdat},   {"gesl", &C::gesl},       {"ad", &C::ad},
        {"pc", &C::pc},       {"wp", &C::wp},           {"ld", &C::ld},           {"di_nr", &C::di_nr},
        {"pa", &C::pa},       {"va", &C::va},           {"mo", &C::mo},           {"di_kl", &C::di_kl},
        {"di_gs", &C::di_gs}, {"di_gb", &C::di_gb},     {"ei", &C::ei},           {"di_fok", &C::di_fok},
        {"di_st", &C::di_st}, {"di_stna", &C::di_stna}, {"di_stnr", &C::di_stnr}, {"di_chip", &C::di_chip},
        {"ca", &C::ca},       {"ve_nr", &C::ve_nr},     {"ve", &C::ve},           {"ve_pl", &C::ve_pl},
        {"kr", &C::kr}};
    for (const Veld& gezet : velden) {
        const CombinatieRecord entry = gelezen(12, gezet.sleutel + ": Waarde ");
        for (const Veld& veld : velden) {
            const std::string anders = veld.sleutel == "hnr" ? "12" : "";
            EXPECT_EQ(entry.*veld.veld, veld.sleutel == gezet.sleutel ? " Waarde " : anders) << gezet.sleutel;
        }
        EXPECT_EQ(entry.nr, "12");
    }
}

TEST(Combinatie, elke_groep_van_disciplines_heeft_haar_eigen_getallen_en_teksten) {
    using C = CombinatieRecord;
    using Getallen = std::array<std::int16_t, 4>;
    const std::vector<std::pair<std::array<std::string, 4>, C::PerDiscipline<std::int16_t> C::*>> velden = {
        {{"da", "sa", "mda", "mva"}, &C::a},
        {{"dh", "sh", "mdh", "mvh"}, &C::handicap},
        {{"d_coup", "s_coup", "md_coup", "mv_coup"}, &C::coup},
        {{"d_af", "s_af", "md_af", "mv_af"}, &C::af},
        {{"d_res", "s_res", "md_res", "mv_res"}, &C::res},
        {{"d_sel", "s_sel", "md_sel", "mv_sel"}, &C::sel},
        {{"d_gr", "s_gr", "md_gr", "mv_gr"}, &C::gr},
        {{"d_kur", "s_kur", "md_kur", "mv_kur"}, &C::kur},
        {{"d_flex", "s_flex", "md_flex", "mv_flex"}, &C::flex}};
    for (const auto& [sleutels, gezet] : velden) {
        std::string record;
        for (const std::string& sleutel : sleutels)
            record += sleutel + ":" + std::to_string(&sleutel - sleutels.data() + 1) + "\t";
        const CombinatieRecord entry = gelezen(12, record);
        for (const auto& [ongebruikt, veld] : velden)
            EXPECT_EQ(entry.*veld, veld == gezet ? (Getallen{1, 2, 3, 4}) : Getallen{}) << sleutels[0];
    }
    const CombinatieRecord entry =
        gelezen(12, "dr_dagen:a\tsp_dagen:b\tmedr_dagen:c\tmeva_dagen:d\tdk:l\tsk:m1\tmdk:é\tmvk:Z");
    EXPECT_EQ(entry.dagen, (std::array<std::string, 4>{"a", "b", "c", "d"}));
    EXPECT_EQ(entry.klasse, (std::array<std::string, 4>{"L", "M1", "É", "Z"}));
}

TEST(Combinatie, klassen_worden_hoofdletters_en_namen_blijven_zoals_ze_zijn) {
    const CombinatieRecord entry = gelezen(12, "dk:l\tna:jan de Boer");
    EXPECT_EQ(entry.klasse[0], "L");
    EXPECT_EQ(entry.na, "jan de Boer");
}

TEST(Combinatie, een_getal_dat_geen_getal_is_of_niet_past_is_0) {
    const CombinatieRecord entry = gelezen(12, "da:x\tsa:40000\tmda:1.5\tmva:-3");
    EXPECT_EQ(entry.a, (std::array<std::int16_t, 4>{0, 0, 2, -3}));
}

TEST(Combinatie, een_nummer_buiten_de_lijst_laat_de_combinatie_leeg) {
    const Schedule schedule;
    for (const int n : {-1, 4001, 40000}) {
        CombinatieRecord entry;
        entry.na = "van de vorige";
        lees_combinatie(entry, n, schedule, test::FakeClock());
        EXPECT_EQ(entry.nr, "");
        EXPECT_EQ(entry.hnr, "");
        EXPECT_EQ(entry.na, "");
    }
    EXPECT_EQ(gelezen(4000, "na:Laatste").na, "Laatste");
    EXPECT_EQ(gelezen(0, "na:Nul\thnr:7").na, "Nul");
    EXPECT_EQ(gelezen(0, "na:Nul\thnr:7").hnr, "");
}

TEST(Combinatie, het_hoofdnummer_is_dat_van_het_grid) {
    Schedule schedule;
    schedule.hoofdstelnummerautomatisch = true;
    schedule.zet_deelnemer(12, "co:A-1234");
    CombinatieRecord entry;
    lees_combinatie(entry, 12, schedule, test::FakeClock());
    EXPECT_EQ(entry.hnr, "234");
}

TEST(Combinatie, de_naam_zonder_ster_heeft_er_geen_een) {
    const CombinatieRecord entry = gelezen(12, "na:*Jan* de *Boer");
    EXPECT_EQ(entry.naam_zonder_ster, "Jan de Boer");
    EXPECT_EQ(entry.na, "*Jan* de *Boer");
}

TEST(Combinatie, het_geslacht_van_het_paard_is_een_woord) {
    const auto woord = [](const std::string& code) { return gelezen(12, "di_gs:" + code).geslacht; };
    EXPECT_EQ(woord("H"), "Hengst");
    EXPECT_EQ(woord("S"), "Hengst");
    EXPECT_EQ(woord("M"), "Merrie");
    EXPECT_EQ(woord("R"), "Ruin");
    EXPECT_EQ(woord("G"), "Ruin");
    for (const std::string code : {"h", "", "X", "HM", " H"})
        EXPECT_EQ(woord(code), "") << code;
}

TEST(Combinatie, de_leeftijd_telt_tot_vandaag) {
    // Today is 13 June 2026.
    EXPECT_EQ(gelezen(12, "di_gb:13-6-2015").leeftijd, "11");
    EXPECT_EQ(gelezen(12, "di_gb:14-6-2015").leeftijd, "10");
    EXPECT_EQ(gelezen(12, "na:Jan").leeftijd, "");
}

TEST(Leeftijd, een_dag_voor_de_verjaardag_is_het_een_jaar_minder) {
    EXPECT_EQ(leeftijd_van("13-6-2015", "13-6-2026"), "11");
    EXPECT_EQ(leeftijd_van("14-6-2015", "13-6-2026"), "10");
    EXPECT_EQ(leeftijd_van("12-6-2015", "13-6-2026"), "11");
    EXPECT_EQ(leeftijd_van("13-7-2015", "13-6-2026"), "10");
    EXPECT_EQ(leeftijd_van("14-5-2015", "13-6-2026"), "11");
    EXPECT_EQ(leeftijd_van("31-12-2015", "1-1-2026"), "10");
    EXPECT_EQ(leeftijd_van("13-6-2026", "13-6-2026"), "0");
}

TEST(Leeftijd, een_ontbrekende_dag_of_maand_is_de_eerste) {
    EXPECT_EQ(leeftijd_van("2015", "1-1-2026"), "11");
    EXPECT_EQ(leeftijd_van("2015", "31-12-2026"), "11");
    EXPECT_EQ(leeftijd_van("6-2015", "1-6-2026"), "11");
    EXPECT_EQ(leeftijd_van("6-2015", "31-5-2026"), "10");
    EXPECT_EQ(leeftijd_van("13-6-2015", "2026"), "10"); // both dates are read alike
}

TEST(Leeftijd, zonder_datum_is_er_geen_leeftijd) {
    EXPECT_EQ(leeftijd_van("", "13-6-2026"), "");
    EXPECT_EQ(leeftijd_van("13-6-2015", ""), "");
}

TEST(Leeftijd, een_rare_datum_wordt_gelezen_zo_ver_het_gaat) {
    EXPECT_EQ(leeftijd_van("--2015", "1-1-2026"), "11"); // empty day and month are 0
    EXPECT_EQ(leeftijd_van("13-6-2015-9", "13-6-2026"), "11");
    EXPECT_EQ(leeftijd_van("13-6-2030", "13-6-2026"), "-4");
    EXPECT_EQ(leeftijd_van("x", "1-1-2026"), "2026");
    EXPECT_EQ(leeftijd_van("05-06-2015", "13-6-2026"), "11");
    EXPECT_EQ(leeftijd_van("1e999", "13-6-2026"), "");
}

TEST(Leeftijd, ook_van_vandaag_is_een_ontbrekende_dag_of_maand_de_eerste) {
    EXPECT_EQ(leeftijd_van("1-1-2015", "2026"), "11");
    EXPECT_EQ(leeftijd_van("2-1-2015", "2026"), "10");
    EXPECT_EQ(leeftijd_van("1-6-2015", "6-2026"), "11");
    EXPECT_EQ(leeftijd_van("2-6-2015", "6-2026"), "10");
}

TEST(Leeftijd, is_ook_bij_een_breuk_in_de_datum_in_hele_jaren) {
    EXPECT_EQ(leeftijd_van("5.2", "1-1-2026"), "2021");
    EXPECT_EQ(leeftijd_van("1-1-2015.8", "13-6-2026"), "10");
    EXPECT_EQ(leeftijd_van("1-1-2015.5", "13-6-2026"), "10"); // halves to the even year
    EXPECT_EQ(leeftijd_van("1-1-2014.5", "13-6-2026"), "12");
    EXPECT_EQ(leeftijd_van("1-1-2026.4", "13-6-2026"), "0");
}

} // namespace
} // namespace tavelo
