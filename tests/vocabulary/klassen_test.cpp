#include "vocabulary/klassen.h"

#include "basis/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tavelo {
namespace {

constexpr std::int16_t dressuur = 0;
constexpr std::int16_t springen = 2;
constexpr std::int16_t mennen_dressuur = 7;
constexpr std::int16_t mennen_vaardigheid = 9;
constexpr std::int16_t afdeling = 12;
constexpr std::int16_t onbekend = 19;

using Teksten = std::vector<std::string>;

RubriekRecord rubriek(std::int16_t ringtype, std::string_view klassen = "", std::string_view categorie = "") {
    RubriekRecord r;
    r.rcom = ringtype;
    r.rkla = klassen;
    r.rcat = categorie;
    return r;
}

std::string klasse(std::int16_t ringtype, std::string_view klassen) {
    return klasse_kop(rubriek(ringtype, klassen), Schedule());
}

std::string categorie(std::int16_t ringtype, std::string_view letters) {
    return categorie_kop(rubriek(ringtype, "", letters), Schedule());
}

// A show of four entries in the list of classes, where the file says single sign-in.
struct Selectie {
    Schedule schedule;
    RubriekRecord gekozen;

    explicit Selectie(std::string_view nummers, std::int16_t ringtype = dressuur) : gekozen(rubriek(ringtype)) {
        schedule.singlesignin = 1;
        zet(1, "*M*L*", "*C*A*");
        zet(2, "zz", "B");
        zet(34, "*Z*", "*Q*");
        zet(2000, "B", "E");
        gekozen.rrubi = nummers;
        gekozen.rkla = "*eigen*";
        gekozen.rcat = "*X*";
    }
    void zet(int nummer, std::string_view klassen, std::string_view categorieen) {
        schedule.zet_rubriek(nummer, std::string("klasse:").append(klassen).append("\tcat:").append(categorieen));
    }
    [[nodiscard]] std::string klassen() const { return klasse_kop(gekozen, schedule); }
    [[nodiscard]] std::string categorieen() const { return categorie_kop(gekozen, schedule); }
};

TEST(Klassen, elke_discipline_heeft_haar_lijst) {
    const std::map<std::string, std::string> lijsten = {
        {"D", "AT BX BB B L L1 L2 M M1 M2 Z Z1 Z2 ZZL ZZZ LT ZT CH JUN YR 4J 5J 6J 7J G1 G2 G3 G4 G5 Q1 Q2 Q3 Q4 Q5 Q6 "
              "Q7 Q8 Q9 Q10"},
        {"AD", "B L M Z ZZ Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10"},
        {"S",
         "BX BB BB80 BB90 0.30 0.40 0.50 0.60 0.70 0.80 0.90 1.00 1.10 1.20 1.30 1.35 1.40 1.45 1.50 Q1 Q2 Q3 Q4 Q5 "
         "Q6 Q7 Q8 Q9 Q10"},
        {"MD", "BX BB B L M Z ZZ 0 1 2 3 4 Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10"},
        {"MV", "BX BB L M MM Z ZZ B C 0 1 2 3 4 Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10"},
    };
    for (const auto& [code, lijst] : lijsten)
        EXPECT_EQ(klassen_van_discipline(code), lijst);
    const std::string_view alle =
        "AT BX BB BB80 BB90 0.30 0.40 0.50 0.60 0.70 0.80 0.90 1.00 1.10 1.20 1.30 1.35 1.40 1.45 1.50 B C L L1 L2 M "
        "MM "
        "M1 M2 Z Z1 Z2 ZZ ZZL ZZZ LT ZT CH JUN YR 4J 5J 6J 7J G1 G2 G3 G4 G5 0 1 2 3 4 Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10";
    for (const std::string_view code : {"alle", "", "d", "X"})
        EXPECT_EQ(klassen_van_discipline(code), alle);
    const std::vector<std::string_view> in_alle = split(alle, " ");
    for (const auto& [code, lijst] : lijsten)
        for (const std::string_view k : split(lijst, " "))
            EXPECT_TRUE(std::ranges::count(in_alle, k) == 1) << code << " " << k;
}

TEST(Klassen, de_lijst_van_een_rubriek_is_die_van_haar_discipline_los_of_als_een_groep) {
    RubriekRecord r = rubriek(afdeling);
    r.rpkl = 0;
    EXPECT_EQ(klasse_lijst(r),
              (Teksten{"B", "L", "M", "Z", "ZZ", "Q1", "Q2", "Q3", "Q4", "Q5", "Q6", "Q7", "Q8", "Q9", "Q10"}));
    r.rpkl = 1;
    EXPECT_EQ(klasse_lijst(r), Teksten{"B/L/M/Z/ZZ/Q1/Q2/Q3/Q4/Q5/Q6/Q7/Q8/Q9/Q10"});
}

TEST(Klassen, een_ringtype_zonder_discipline_krijgt_de_hele_lijst) {
    const std::size_t alle = split(klassen_van_discipline("alle"), " ").size();
    EXPECT_EQ(klasse_lijst(rubriek(onbekend)).size(), alle);
    EXPECT_EQ(klasse_lijst(rubriek(-1)).size(), alle);
    EXPECT_EQ(klasse_lijst(rubriek(onbekend)).front(), "AT");
}

TEST(Klassen, een_eigen_lijst_wordt_aan_de_streepjes_gesplitst) {
    RubriekRecord r = rubriek(dressuur);
    r.rpkl = 2;
    r.rpklh = " -L/M---Z- ";
    EXPECT_EQ(klasse_lijst(r), (Teksten{"L/M", "Z"}));
    r.rpklh = " ";
    EXPECT_EQ(klasse_lijst(r).size(), split(klassen_van_discipline("alle"), " ").size());
    r.rpklh = "-";
    EXPECT_EQ(klasse_lijst(r), Teksten());
}

TEST(Klassen, een_lijst_heeft_hoogstens_honderd_delen_en_een_andere_stand_geen) {
    RubriekRecord r = rubriek(dressuur);
    r.rpkl = 2;
    for (int i = 0; i < 150; ++i)
        r.rpklh += std::to_string(i) + "-";
    EXPECT_EQ(klasse_lijst(r).size(), 100U);
    EXPECT_EQ(klasse_lijst(r).back(), "99");
    r.rpkl = 3;
    EXPECT_EQ(klasse_lijst(r), Teksten());
    r.rpkl = -1;
    EXPECT_EQ(klasse_lijst(r), Teksten());
}

TEST(Klassen, bij_springen_staan_letters_voor_hoogten) {
    EXPECT_EQ(klasse(springen, "R*S"), "Klasse 1.30, 1.35");
    EXPECT_EQ(klasse(springen, "*T*U*"), "Klasse 1.40, 1.50");
    EXPECT_EQ(klasse(springen, "JUN"), "Klasse J1.50N"); // wherever they stand
    EXPECT_EQ(klasse(springen, "rstu"), "Klasse rstu");
}

TEST(Klassen, in_andere_disciplines_blijven_de_letters_staan) {
    EXPECT_EQ(klasse(dressuur, "*Z*"), "Klasse Z");
    EXPECT_EQ(klasse(dressuur, "R*S*T*U"), "Klasse R, S, T, U");
    EXPECT_EQ(klasse(onbekend, "R*S"), "Klasse R, S");
    EXPECT_EQ(klasse(-1, "R*S"), "Klasse R, S");
}

TEST(Klassen, zonder_klasse_is_er_geen_kop) {
    EXPECT_EQ(klasse(dressuur, ""), "");
    EXPECT_EQ(klasse(springen, "*"), "");
    EXPECT_EQ(klasse(springen, "**"), "");
}

TEST(Klassen, een_categorie_is_bij_mennen_een_soort_aanspanning) {
    EXPECT_EQ(categorie(mennen_dressuur, "*A*C*"), "Categorie 1sp po, 2sp po");
    EXPECT_EQ(categorie(mennen_vaardigheid, "A, C"), "Categorie 1sp po, 2sp po");
    EXPECT_EQ(categorie(dressuur, "*A*C*"), "Categorie AC");
    EXPECT_EQ(categorie(springen, "A, C"), "Categorie AC");
    EXPECT_EQ(categorie(afdeling, ""), "");
    EXPECT_EQ(categorie(mennen_dressuur, "*"), "");
}

TEST(Klassen, elke_categorieletter_heeft_een_lange_en_een_korte_naam) {
    struct Namen {
        std::string letter, kort, lang;
    };
    for (const Namen& n : std::vector<Namen>{{"A", "1-po", "1sp po"},
                                             {"B", "1-pa", "1sp pa"},
                                             {"C", "2-po", "2sp po"},
                                             {"D", "2-pa", "2sp pa"},
                                             {"E", "h-po", "hob po"},
                                             {"P", "h-pa", "hob pa"},
                                             {"S", "t-po", "tdm po"},
                                             {"T", "t-pa", "tdm pa"},
                                             {"U", "4-po", "4sp po"},
                                             {"V", "4-pa", "4sp pa"},
                                             {"W", "", ""},
                                             {"X", "", ""},
                                             {"Q", "", ""},
                                             {"é", "", ""}}) {
        for (const std::string& letter : {n.letter, lower_case(n.letter)}) {
            for (const std::int16_t ringtype : {mennen_dressuur, mennen_vaardigheid}) {
                EXPECT_EQ(categorie_namen(letter, ringtype, letter), n.lang) << letter;
                EXPECT_EQ(korte_categorie(rubriek(ringtype, "", "*" + letter + "*")), n.kort) << letter;
            }
            EXPECT_EQ(korte_categorie(rubriek(dressuur, "", letter)), "");
        }
    }
}

TEST(Klassen, een_letter_zonder_naam_laat_haar_komma_staan) {
    EXPECT_EQ(categorie(mennen_dressuur, "X"), "Categorie ");
    EXPECT_EQ(categorie(mennen_dressuur, "*A*X*C*"), "Categorie 1sp po, , 2sp po");
    EXPECT_EQ(categorie(mennen_dressuur, "*X*A*"), "Categorie , 1sp po");
}

TEST(Klassen, alleen_letters_van_het_filter_tellen_en_letterlijk) {
    EXPECT_EQ(categorie_namen("A,C B", mennen_dressuur, "BA"), "1sp po, 1sp pa");
    EXPECT_EQ(categorie_namen("aA", mennen_dressuur, "A"), "1sp po");
    EXPECT_EQ(categorie_namen("AC", mennen_dressuur, ""), "");
    EXPECT_EQ(categorie_namen(" A, C ", dressuur, ""), "A, C");
}

TEST(Klassen, een_korte_naam_is_er_alleen_voor_een_enkele_letter) {
    EXPECT_EQ(korte_categorie(rubriek(mennen_dressuur, "", "*A*C*")), "");
    EXPECT_EQ(korte_categorie(rubriek(mennen_dressuur, "", "")), "");
}

TEST(Klassen, bij_single_sign_in_komen_klassen_uit_de_gekozen_rubrieken_in_vaste_volgorde) {
    EXPECT_EQ(Selectie("1,2000").klassen(), "Klasse B, L, M");
    EXPECT_EQ(Selectie("2000 , 1, 1").klassen(), "Klasse B, L, M");
    EXPECT_EQ(Selectie("2").klassen(), "Klasse ZZ");  // compared in upper case
    EXPECT_EQ(Selectie("3/4").klassen(), "Klasse Z"); // the slash goes and 34 is left
    EXPECT_EQ(Selectie("3 4").klassen(), "Klasse Z"); // as does a blank
    EXPECT_EQ(Selectie("").klassen(), "");
    EXPECT_EQ(Selectie("0,-1,2001,1e5,x,,7").klassen(), "");
}

TEST(Klassen, bij_single_sign_in_telt_een_klasse_alleen_als_heel_onderdeel) {
    Selectie selectie("5");
    selectie.zet(5, "*L1*onbekend*MM*", "");
    EXPECT_EQ(selectie.klassen(), "Klasse L1, MM"); // not L, not M
}

TEST(Klassen, bij_single_sign_in_worden_hoogten_ook_in_de_gekozen_klassen_vervangen) {
    Selectie selectie("5", springen);
    selectie.zet(5, "*YR*1.20*", "");
    EXPECT_EQ(selectie.klassen(), "Klasse 1.20, Y1.30");
}

TEST(Klassen, bij_single_sign_in_komen_categorieen_uit_de_gekozen_rubrieken) {
    EXPECT_EQ(Selectie("1,2,34").categorieen(), "Categorie ABCQ");
    EXPECT_EQ(Selectie("1,2", mennen_vaardigheid).categorieen(), "Categorie 1sp po, 1sp pa, 2sp po");
    EXPECT_EQ(Selectie("3").categorieen(), "");
}

TEST(Klassen, alleen_een_1_is_single_sign_in) {
    Selectie selectie("1");
    selectie.schedule.singlesignin = 2;
    EXPECT_EQ(selectie.klassen(), "Klasse eigen");
    EXPECT_EQ(selectie.categorieen(), "Categorie X");
    selectie.schedule.singlesignin = 0;
    EXPECT_EQ(selectie.klassen(), "Klasse eigen");
}

} // namespace
} // namespace tavelo
