#include "ui/main/dagverslag.h"

#include "fakes/opstelling.h"
#include "schedule/record/kolommen.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavelo {
namespace {

using Teksten = decltype(VerslagRij::teksten);

constexpr LocalTime twee_over_twee{2026, 6, 13, 14, 2, 59};
constexpr std::string_view jan = "1\tJan\t\tBles\tVader\tClub\tL\tA";
constexpr std::string_view jan_op_moor = "1\tJan\t\tMoor\tVader\tClub\tL\tA";

void meld_rij(Dagverslag& verslag, std::string_view van, std::string_view naar) {
    verslag.regel("gewijzigd\tvan\t" + std::string(van));
    verslag.regel("\tnaar\t" + std::string(naar));
}

TEST(Dagverslag, een_herlezing_telt_gewijzigde_toegevoegde_en_verwijderde_rijen) {
    Dagverslag verslag;
    EXPECT_EQ(verslag.samenvatting(), "");
    verslag.begin(twee_over_twee);
    meld_rij(verslag, jan, jan);
    meld_rij(verslag, jan, jan_op_moor);
    verslag.regel("toegevoegd\t\tPiet\t\tBles\tVader\tClub\tL\tA");
    verslag.regel("toegevoegd\t\tKees\t\tBles\tVader\tClub\tL\tA");
    verslag.regel("verwijderd\t\tKlaas\t\tBles\tVader\tClub\tL\tA");
    verslag.einde();
    EXPECT_EQ(verslag.samenvatting(), "14:02: gewijzigd 1, toegevoegd 2, verwijderd 1");
    EXPECT_EQ(verslag.rijen().size(), 5U); // the row without a change is not kept
}

TEST(Dagverslag, een_gewijzigde_cel_is_gemerkt_op_beide_regels_van_haar_rij) {
    Dagverslag verslag;
    verslag.begin(twee_over_twee);
    meld_rij(verslag, jan, jan_op_moor);
    verslag.einde();
    ASSERT_EQ(verslag.rijen().size(), 2U);
    EXPECT_EQ(verslag.rijen()[0].teksten,
              (Teksten{"14:02", "gewijzigd", "van", "1", "Jan", "", "Bles", "Vader", "Club", "L", "A"}));
    EXPECT_EQ(verslag.rijen()[1].teksten,
              (Teksten{"14:02", "", "naar", "1", "Jan", "", "Moor", "Vader", "Club", "L", "A"}));
    for (const VerslagRij& rij : verslag.rijen())
        for (std::size_t i = 0; i < rij.anders.size(); ++i)
            EXPECT_EQ(rij.anders[i], i == 6) << i;
}

TEST(Dagverslag, een_hele_rij_staat_onder_dezelfde_titels) {
    Dagverslag verslag;
    verslag.begin(twee_over_twee);
    verslag.regel("verwijderd\t\tKlaas\tHC\tBles\tVader\tClub\tL\tA");
    verslag.einde();
    EXPECT_EQ(verslag.rijen()[0].teksten,
              (Teksten{"14:02", "verwijderd", "", "", "Klaas", "HC", "Bles", "Vader", "Club", "L", "A"}));
}

TEST(Dagverslag, wat_achter_de_laatste_kolom_staat_valt_weg) {
    Dagverslag verslag;
    verslag.begin(twee_over_twee);
    verslag.regel("verwijderd\t\tKlaas\tHC\tBles\tVader\tClub\tL\tA\tte veel\tveel te veel");
    verslag.einde();
    ASSERT_EQ(verslag.rijen().size(), 1U);
    EXPECT_EQ(verslag.rijen()[0].teksten,
              (Teksten{"14:02", "verwijderd", "", "", "Klaas", "HC", "Bles", "Vader", "Club", "L", "A"}));
    EXPECT_EQ(verslag.rijen()[0].anders, decltype(VerslagRij::anders){});
}

TEST(Dagverslag, de_nieuwste_herlezing_staat_boven) {
    Dagverslag verslag;
    verslag.begin({2026, 6, 13, 9, 5, 0});
    verslag.regel("toegevoegd\t\tPiet");
    verslag.einde();
    verslag.begin({2026, 6, 13, 9, 7, 0});
    verslag.regel("toegevoegd\t\tKees");
    verslag.regel("toegevoegd\t\tKlaas");
    verslag.einde();
    std::vector<std::string> gelezen;
    for (const VerslagRij& rij : verslag.rijen())
        gelezen.push_back(rij.teksten[0] + " " + rij.teksten[4]);
    EXPECT_EQ(gelezen, (std::vector<std::string>{"09:07 Kees", "09:07 Klaas", "09:05 Piet"}));
    EXPECT_EQ(verslag.herlezingen(), 2);
    verslag.wis();
    EXPECT_EQ(verslag.herlezingen(), 0);
    EXPECT_EQ(verslag.samenvatting(), "");
    EXPECT_TRUE(verslag.rijen().empty());
}

TEST(Dagverslag, een_herlezing_zonder_wijziging_zegt_dat_en_laat_het_verslag_staan) {
    Dagverslag verslag;
    verslag.begin(twee_over_twee);
    verslag.regel("toegevoegd\t\tPiet");
    verslag.einde();
    verslag.begin({2026, 6, 13, 14, 3, 0});
    meld_rij(verslag, jan, jan);
    verslag.einde();
    EXPECT_EQ(verslag.samenvatting(), "14:03: herlezen, niets gewijzigd");
    EXPECT_EQ(verslag.rijen().size(), 1U);
}

TEST(Dagverslag, een_herlezing_die_afbreekt_telt_niet_mee) {
    Dagverslag verslag;
    verslag.begin(twee_over_twee);
    verslag.regel("toegevoegd\t\tPiet");
    verslag.begin({2026, 6, 13, 14, 3, 0});
    verslag.einde();
    EXPECT_EQ(verslag.samenvatting(), "14:03: herlezen, niets gewijzigd");
    EXPECT_TRUE(verslag.rijen().empty());
}

TEST(Dagverslag, wat_het_oudst_is_gaat_het_eerst_uit_het_geheugen) {
    Dagverslag verslag;
    const std::string naam(100'000, 'x');
    for (int minuut = 0; minuut < 40; ++minuut) {
        verslag.begin({2026, 6, 13, 14, minuut, 0});
        verslag.regel("toegevoegd\t\t" + std::to_string(minuut) + naam);
        verslag.einde();
    }
    std::size_t omvang = 0;
    for (const VerslagRij& rij : verslag.rijen())
        omvang += rij.teksten[4].size();
    EXPECT_LE(omvang, Dagverslag::hoogste_omvang);
    EXPECT_GE(verslag.rijen().size(), 5U);
    EXPECT_EQ(verslag.rijen().front().teksten[0], "14:39");
}

TEST(Dagverslag, als_tekst_heeft_elke_rij_een_regel_en_elke_cel_een_tab) {
    Dagverslag verslag;
    verslag.begin(twee_over_twee);
    meld_rij(verslag, jan, jan_op_moor);
    verslag.einde();
    const std::vector<VerslagRij> rijen(verslag.rijen().begin(), verslag.rijen().end());
    EXPECT_EQ(als_tekst(rijen), "Tijd\tWijziging\t\tCnr\tNaam\tHC\tPaard\tVader\tVereniging\tKl.\tCat.\n"
                                "14:02\tgewijzigd\tvan\t1\tJan\t\tBles\tVader\tClub\tL\tA\n"
                                "14:02\t\tnaar\t1\tJan\t\tMoor\tVader\tClub\tL\tA\n");
}

Grid lijst_van(const std::vector<std::pair<std::string, std::string>>& rijen) {
    Grid grid;
    richt_grid_in(grid);
    for (const auto& [nummer, naam] : rijen) {
        const int rij = grid.append_row();
        grid.set_text(rij, kolom_inr, nummer);
        grid.set_text(rij, kolom_naam, naam);
    }
    return grid;
}

TEST(WijktAf, leden_en_volgorde_tellen_en_de_teksten_van_een_rij_niet) {
    const Grid lijst = lijst_van({{"1", "Jan"}, {"", "pauze"}, {"2", "Piet"}});
    EXPECT_FALSE(wijkt_af(lijst, lijst_van({{"1", "Jan"}, {"", "pauze"}, {"2", "Piet"}})));
    EXPECT_FALSE(wijkt_af(lijst, lijst_van({{"01", "Johan"}, {"", "pauze"}, {"2", "Piet"}})));
    EXPECT_TRUE(wijkt_af(lijst, lijst_van({{"2", "Piet"}, {"", "pauze"}, {"1", "Jan"}})));
    EXPECT_TRUE(wijkt_af(lijst, lijst_van({{"1", "Jan"}, {"", "pauze"}, {"3", "Piet"}})));
    EXPECT_TRUE(wijkt_af(lijst, lijst_van({{"1", "Jan"}, {"", "pauze"}})));
    EXPECT_TRUE(wijkt_af(lijst, lijst_van({{"1", "Jan"}, {"", "lunch"}, {"2", "Piet"}})));
}

} // namespace
} // namespace tavelo
