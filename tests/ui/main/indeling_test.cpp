#include "ui/main/indeling.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

// As drawn at design time; what the window's size decides is filled with a size that may not survive.
Plaatsen ontwerp() {
    Plaatsen plaatsen;
    plaatsen.grdRooster = {120, 840, 7000, 1};
    plaatsen.picDeelnemer = {7200, 3000, 1, 1};
    plaatsen.frameRoosterinstellingen = {7300, 840, 1, 2000};
    plaatsen.labelbreedte = 1;
    return plaatsen;
}

TEST(Indeling, grid_voorbeeld_en_kader_volgen_het_venster) {
    const Plaatsen p = deel_in({15000, 9000}, ontwerp(), 150);
    EXPECT_EQ(p.grdRooster.hoogte, 9000 - 840 - 102);
    EXPECT_EQ(p.picDeelnemer.breedte, 15000 - 7200 - 120);
    EXPECT_EQ(p.picDeelnemer.hoogte, 9000 - 3000 - 120);
    EXPECT_EQ(p.frameRoosterinstellingen.breedte, 15000 - 7300 - 120);
    EXPECT_EQ(p.labelbreedte, 15000 - 7300 - 120 - 150 - 120);
}

TEST(Indeling, wat_het_venster_niet_volgt_blijft_staan) {
    const Plaatsen p = deel_in({15000, 9000}, ontwerp(), 150);
    EXPECT_EQ(p.grdRooster.links, 120);
    EXPECT_EQ(p.grdRooster.boven, 840);
    EXPECT_EQ(p.grdRooster.breedte, 7000);
    EXPECT_EQ(p.picDeelnemer.links, 7200);
    EXPECT_EQ(p.picDeelnemer.boven, 3000);
    EXPECT_EQ(p.frameRoosterinstellingen.links, 7300);
    EXPECT_EQ(p.frameRoosterinstellingen.boven, 840);
    EXPECT_EQ(p.frameRoosterinstellingen.hoogte, 2000);
}

TEST(Indeling, onder_9000_bij_6000_krimpt_er_niets_meer) {
    const Plaatsen kleinste = deel_in({9000, 6000}, ontwerp(), 150);
    EXPECT_EQ(kleinste.grdRooster.hoogte, 6000 - 840 - 102);
    EXPECT_EQ(kleinste.picDeelnemer.breedte, 9000 - 7200 - 120);
    EXPECT_EQ(kleinste.picDeelnemer.hoogte, 6000 - 3000 - 120);
    for (const Maat maat : {Maat{8999, 5999}, Maat{100, 100}, Maat{0, 0}}) {
        const Plaatsen p = deel_in(maat, ontwerp(), 150);
        EXPECT_EQ(p.grdRooster.hoogte, kleinste.grdRooster.hoogte) << maat.breedte;
        EXPECT_EQ(p.picDeelnemer.breedte, kleinste.picDeelnemer.breedte) << maat.breedte;
        EXPECT_EQ(p.picDeelnemer.hoogte, kleinste.picDeelnemer.hoogte) << maat.breedte;
        EXPECT_EQ(p.frameRoosterinstellingen.breedte, kleinste.frameRoosterinstellingen.breedte) << maat.breedte;
        EXPECT_EQ(p.labelbreedte, kleinste.labelbreedte) << maat.breedte;
    }
}

TEST(Indeling, breedte_en_hoogte_hebben_elk_hun_eigen_grens) {
    const Plaatsen smal = deel_in({100, 9000}, ontwerp(), 150);
    EXPECT_EQ(smal.picDeelnemer.breedte, 9000 - 7200 - 120);
    EXPECT_EQ(smal.picDeelnemer.hoogte, 9000 - 3000 - 120);
    const Plaatsen laag = deel_in({15000, 100}, ontwerp(), 150);
    EXPECT_EQ(laag.picDeelnemer.breedte, 15000 - 7200 - 120);
    EXPECT_EQ(laag.grdRooster.hoogte, 6000 - 840 - 102);
}

constexpr int paneel_in_een_rij = 770 * 15;

// The width of the preview in a window of this inner width, in pixels.
int voorbeeldbreedte(int binnen) {
    const Ruimte ruimte = kies_ruimte(binnen * 15, paneel_in_een_rij);
    Plaatsen plaatsen;
    plaatsen.picDeelnemer.links = tussenruimte + gridbreedte(ruimte) + tussenruimte;
    return deel_in({binnen * 15, 9000}, plaatsen, 150).picDeelnemer.breedte / 15;
}

TEST(KiesRuimte, hoe_smaller_het_venster_hoe_smaller_het_ontwerp) {
    EXPECT_EQ(kies_ruimte(1240 * 15, paneel_in_een_rij), Ruimte::ruim);
    EXPECT_EQ(kies_ruimte(1168 * 15, paneel_in_een_rij), Ruimte::ruim);
    EXPECT_EQ(kies_ruimte(1167 * 15, paneel_in_een_rij), Ruimte::krap);
    EXPECT_EQ(kies_ruimte(960 * 15, paneel_in_een_rij), Ruimte::krap); // 1920 x 1080 at scale 2
    EXPECT_EQ(kies_ruimte(853 * 15, paneel_in_een_rij), Ruimte::krap); // 1280 x 800 at scale 1.5
    EXPECT_EQ(kies_ruimte(834 * 15, paneel_in_een_rij), Ruimte::krap);
    EXPECT_EQ(kies_ruimte(833 * 15, paneel_in_een_rij), Ruimte::klein);
    EXPECT_EQ(kies_ruimte(600 * 15, paneel_in_een_rij), Ruimte::klein);
    EXPECT_EQ(kies_ruimte(0, paneel_in_een_rij), Ruimte::klein);
    EXPECT_GT(gridbreedte(Ruimte::ruim), gridbreedte(Ruimte::krap));
    EXPECT_GT(gridbreedte(Ruimte::krap), gridbreedte(Ruimte::klein));
}

TEST(KiesRuimte, het_voorbeeld_is_in_geen_venster_smaller_dan_2400_twips) {
    EXPECT_EQ(voorbeeldbreedte(0), 160); // laid out for 9,000 twips at least
    for (int binnen = 600; binnen <= 1400; ++binnen)
        EXPECT_GE(voorbeeldbreedte(binnen), 160) << binnen;
}

TEST(KiesRuimte, met_grote_letters_heeft_de_rij_meer_nodig) {
    EXPECT_EQ(kies_ruimte(1240 * 15, 900 * 15), Ruimte::krap);
    EXPECT_EQ(kies_ruimte(1284 * 15, 900 * 15), Ruimte::ruim);
}

// The preview that the rules of resizing make of that place.
Rechthoek voorbeeld_op(Plek plek, Maat binnenmaat) {
    Plaatsen plaatsen = ontwerp();
    plaatsen.picDeelnemer.links = plek.links;
    plaatsen.picDeelnemer.boven = plek.boven;
    return deel_in(binnenmaat, plaatsen, 150).picDeelnemer;
}

TEST(PlekVoorbeeld, het_voorbeeld_krijgt_de_vorm_van_de_muur) {
    constexpr Plek uiterste{12000, 2000};
    for (const Maat muur : {Maat{1920, 1080}, Maat{1024, 768}, Maat{1080, 1920}, Maat{3840, 1080}}) {
        for (const Maat binnen : {Maat{20490, 10400}, Maat{28800, 15100}, Maat{19200, 10900}}) {
            const Plek plek = plek_voorbeeld(binnen, binnen, uiterste, muur);
            const Rechthoek r = voorbeeld_op(plek, binnen);
            EXPECT_GE(plek.links, uiterste.links);
            EXPECT_GE(plek.boven, uiterste.boven);
            // Within one twip of the shape.
            EXPECT_NEAR(1.0 * r.breedte / r.hoogte, 1.0 * muur.breedte / muur.hoogte,
                        2.0 * muur.breedte / muur.hoogte / r.hoogte);
            // And as large as the room allows: one of the two stands where it may not go further.
            EXPECT_TRUE(plek.links == uiterste.links || plek.boven == uiterste.boven);
        }
    }
}

TEST(PlekVoorbeeld, zonder_ruimte_of_zonder_muur_blijft_hij_op_zijn_uiterste) {
    constexpr Maat muur{1920, 1080};
    for (const Plek plek : {plek_voorbeeld({20000, 10000}, {20000, 10000}, {12000, 2000}, {0, 1080}),
                            plek_voorbeeld({20000, 10000}, {20000, 10000}, {12000, 2000}, {1920, 0}),
                            plek_voorbeeld({12120, 10000}, {30000, 20000}, {12000, 2000}, muur),
                            plek_voorbeeld({100, 10000}, {100, 10000}, {12000, 2000}, muur)}) {
        EXPECT_EQ(plek.links, 12000);
        EXPECT_EQ(plek.boven, 2000);
    }
}

TEST(PlekVoorbeeld, zonder_hoogte_in_het_bedoelde_venster_blijft_hij_op_zijn_uiterste) {
    const Plek plek = plek_voorbeeld({20000, 8000}, {30000, 20000}, {12000, 7880}, {1920, 1080});
    EXPECT_EQ(plek.links, 12000);
    EXPECT_EQ(plek.boven, 7880);
}

TEST(PlekVoorbeeld, in_een_venster_dat_er_te_klein_voor_is_staat_hij_op_zijn_uiterste) {
    constexpr Maat muur{1920, 1080};
    constexpr Maat bedoeld{20490, 10400};
    constexpr Plek uiterste{12000, 2000};
    const int boven = plek_voorbeeld(bedoeld, bedoeld, uiterste, muur).boven;
    ASSERT_GT(boven, uiterste.boven);
    EXPECT_EQ(plek_voorbeeld(bedoeld, {20490, boven + 1350 + 120}, uiterste, muur).boven, boven);
    EXPECT_EQ(plek_voorbeeld(bedoeld, {20490, boven + 1350 + 119}, uiterste, muur).boven, uiterste.boven);
    constexpr Maat staand{1080, 1920};
    const int links = plek_voorbeeld(bedoeld, bedoeld, uiterste, staand).links;
    EXPECT_EQ(links, 15713);
    EXPECT_EQ(plek_voorbeeld(bedoeld, {links + 2400 + 120, 10400}, uiterste, staand).links, links);
    EXPECT_EQ(plek_voorbeeld(bedoeld, {links + 2400 + 119, 10400}, uiterste, staand).links, uiterste.links);
}

} // namespace
} // namespace tavelo
