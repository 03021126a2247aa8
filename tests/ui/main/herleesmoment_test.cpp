#include "ui/main/herleesmoment.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using namespace std::chrono_literals;

const std::string pad = "/shows/finale.rst";
constexpr Bestandskenmerk oud{100, 1'000};
constexpr Bestandskenmerk nieuw{120, 9'000};
constexpr Bestandskenmerk nog_nieuwer{140, 11'000};

GelezenBestand gelezen() { return {pad, "20260613100000", oud}; }
GezienBestand gezien(std::chrono::nanoseconds leeftijd, Bestandskenmerk kenmerk = nieuw,
                     const std::string& stempel = "20260613100009") {
    return {pad, stempel, kenmerk, leeftijd};
}

TEST(IsNieuwer, een_latere_stempel_is_nieuwer_en_een_eerdere_nooit) {
    EXPECT_TRUE(is_nieuwer({pad, "20260613100001", oud}, gelezen()));
    EXPECT_FALSE(is_nieuwer({pad, "20260613095959", nieuw}, gelezen()));
    EXPECT_TRUE(is_nieuwer({pad, "20260613100000", oud}, {pad, "", std::nullopt}));
}

TEST(IsNieuwer, binnen_dezelfde_seconde_telt_een_andere_grootte_of_een_fijnere_tijd) {
    EXPECT_FALSE(is_nieuwer({pad, "20260613100000", oud}, gelezen()));
    EXPECT_TRUE(is_nieuwer({pad, "20260613100000", {101, 1'000}}, gelezen()));
    EXPECT_TRUE(is_nieuwer({pad, "20260613100000", {100, 1'001}}, gelezen()));
    EXPECT_TRUE(is_nieuwer({pad, "20260613100000", {100, 999}}, gelezen()));
}

TEST(IsNieuwer, zonder_kenmerk_van_de_gelezen_bytes_telt_alleen_de_stempel) {
    EXPECT_FALSE(is_nieuwer({pad, "20260613100000", nieuw}, {pad, "20260613100000", std::nullopt}));
    EXPECT_TRUE(is_nieuwer({pad, "20260613100001", nieuw}, {pad, "20260613100000", std::nullopt}));
}

TEST(IsNieuwer, wat_niet_gelezen_kon_worden_is_nieuw_zodra_het_te_zien_is) {
    EXPECT_TRUE(is_nieuwer({pad, "20260613100000", oud}, {pad, "20260613100000", Bestandskenmerk{}}));
}

TEST(Herleesmoment, een_bestand_in_rust_wordt_meteen_gelezen) {
    EXPECT_EQ(Herleesmoment().beoordeel(true, gezien(2s), gelezen()), Besluit::lees);
    EXPECT_EQ(Herleesmoment().beoordeel(false, gezien(1h), gelezen()), Besluit::lees);
}

TEST(Herleesmoment, een_bestand_dat_niet_nieuwer_is_wordt_niet_gelezen_hoe_vers_ook) {
    Herleesmoment moment;
    EXPECT_EQ(moment.beoordeel(true, gezien(1h, oud, "20260613100000"), gelezen()), Besluit::niets);
    EXPECT_EQ(moment.beoordeel(true, gezien(0s, nieuw, "20260613095959"), gelezen()), Besluit::niets);
}

TEST(Herleesmoment, een_pas_gewijzigd_bestand_wordt_na_twee_seconden_opnieuw_bekeken) {
    Herleesmoment moment;
    EXPECT_EQ(moment.beoordeel(true, gezien(1999ms), gelezen()), Besluit::kijk_straks);
    EXPECT_EQ(moment.beoordeel(false, gezien(3999ms), gelezen()), Besluit::lees);
}

TEST(Herleesmoment, wie_door_blijft_schrijven_wordt_bij_de_volgende_tik_gelezen_zoals_het_er_staat) {
    Herleesmoment moment;
    Bestandskenmerk groeiend = nieuw;
    const auto nog_langer = [&groeiend] { return ++groeiend.grootte, gezien(500ms, groeiend); };
    EXPECT_EQ(moment.beoordeel(true, nog_langer(), gelezen()), Besluit::kijk_straks);
    for (int keer = 0; keer < 4; ++keer)
        EXPECT_EQ(moment.beoordeel(false, nog_langer(), gelezen()), Besluit::kijk_straks);
    EXPECT_EQ(moment.beoordeel(true, nog_langer(), gelezen()), Besluit::lees);
    // And from then on again.
    EXPECT_EQ(moment.beoordeel(true, nog_langer(), gelezen()), Besluit::kijk_straks);
}

TEST(Herleesmoment, een_share_met_een_klok_die_voorloopt_wacht_niet_tot_de_volgende_tik) {
    Herleesmoment moment;
    EXPECT_EQ(moment.beoordeel(true, gezien(-1h), gelezen()), Besluit::kijk_straks);
    EXPECT_EQ(moment.beoordeel(false, gezien(-1h + 2s), gelezen()), Besluit::lees);
    EXPECT_EQ(moment.beoordeel(true, gezien(-1h, nieuw), gelezen()), Besluit::kijk_straks);
    EXPECT_EQ(moment.beoordeel(false, gezien(-1h, nog_nieuwer), gelezen()), Besluit::kijk_straks);
}

TEST(Herleesmoment, het_wachten_op_het_ene_bestand_telt_niet_voor_het_andere) {
    Herleesmoment moment;
    EXPECT_EQ(moment.beoordeel(true, gezien(0s), gelezen()), Besluit::kijk_straks);
    GezienBestand ander = gezien(0s);
    GelezenBestand ander_gelezen = gelezen();
    ander.pad = ander_gelezen.pad = "/shows/ander.rst";
    EXPECT_EQ(moment.beoordeel(true, ander, ander_gelezen), Besluit::kijk_straks);
}

TEST(Herleesmoment, een_bestand_dat_intussen_gelezen_is_wordt_niet_meer_afgewacht) {
    Herleesmoment moment;
    EXPECT_EQ(moment.beoordeel(true, gezien(0s), gelezen()), Besluit::kijk_straks);
    const GelezenBestand door_de_operateur{pad, "20260613100009", nieuw};
    EXPECT_EQ(moment.beoordeel(false, gezien(2s), door_de_operateur), Besluit::niets);
    EXPECT_EQ(moment.beoordeel(true, gezien(0s, nog_nieuwer), door_de_operateur), Besluit::kijk_straks);
}

} // namespace
} // namespace tavelo
