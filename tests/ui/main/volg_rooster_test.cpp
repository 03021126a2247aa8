#include "ui/main/volg_rooster.h"

#include "basis/codeDatumTijd.h"
#include "basis/system_time.h"
#include "fakes/file_readers.h"
#include "fakes/grid_events.h"
#include "fakes/opstelling.h"
#include "fakes/temp_folder.h"
#include "schedule/record/kolommen.h"
#include "ui/main/open_rooster.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using namespace std::chrono_literals;

std::string rooster(const std::string& naam) {
    return "[Vendalo 3.4]\r\ndnr:1\tna:" + naam + "\r\nrnr:1\trkla:*L*\troms:Finale\tdnr:1\t\t\t\t\t\t\r\n";
}

constexpr std::int64_t seconde = 1'000'000'000;
constexpr std::int64_t begin = 1'781'337'600 * seconde; // an hour of a Saturday in June

// A main window with an open schedule, and a share that answers when the test says so.
struct VolgRooster : testing::Test, test::Opstelling {
    test::TempFolder map;
    Programma& p = programma;
    test::FakeReader lezer;
    std::vector<bool> label_groen;
    int getoond = 0;
    int straks = 0;
    RoosterVolger volger{
        bediening,
        lezer,
        {[this] { label_groen.push_back(p.herlezen_bezig); }, [this] { ++getoond; }, [this] { ++straks; }}};
    std::string pad = map.write("finale.rst", rooster("Jan"));

    VolgRooster() {
        kies_bestand(bediening, pad, 0);
        laad_rooster(bediening, 0);
        EXPECT_EQ(naam(), "Jan");
        p.rooster_tijdstempel = stempel(begin);
        p.rooster_kenmerk = Bestandskenmerk{100, begin};
    }
    [[nodiscard]] static std::string stempel(std::int64_t tijd) {
        return datum_tijd_tekst(local_time(tijd), tijdstempel_vorm);
    }
    [[nodiscard]] std::string naam() const { return std::string(p.grdRooster.text(1, kolom_naam)); }

    // The share tells of a file that was changed at this time, and then gives its bytes.
    void toont(std::int64_t gewijzigd, std::chrono::nanoseconds leeftijd = 1h, std::uint64_t grootte = 100) {
        lezer.answer(FileReader::Blik(Bestandsblik{{grootte, gewijzigd}, leeftijd}));
    }
    void geeft(const std::string& bytes, std::int64_t gewijzigd, std::uint64_t grootte = 100) {
        lezer.answer(
            FileReader::Inhoud(BestandInhoud{bytes, bytes.starts_with(eerste_regel_rooster), {grootte, gewijzigd}}));
    }
    void verwacht_onveranderd() const {
        EXPECT_EQ(naam(), "Jan");
        EXPECT_EQ(p.schedule.deelnemer(1), "na:Jan");
        EXPECT_EQ(p.rooster_tijdstempel, stempel(begin));
        EXPECT_EQ(p.rooster_kenmerk, (Bestandskenmerk{100, begin}));
        EXPECT_TRUE(label_groen.empty());
    }
};

TEST_F(VolgRooster, een_nieuwer_bestand_wordt_bekeken_gelezen_en_samengevoegd_onder_een_groen_label) {
    volger.tik();
    EXPECT_EQ(lezer.looks_at, pad);
    toont(begin + seconde);
    EXPECT_EQ(lezer.reads, pad);
    verwacht_onveranderd(); // as long as the share has not answered
    geeft(rooster("Piet"), begin + seconde);
    EXPECT_EQ(naam(), "Piet");
    EXPECT_EQ(p.rooster_tijdstempel, stempel(begin + seconde));
    EXPECT_EQ(p.slots[0].tijdstempel, stempel(begin + seconde));
    EXPECT_EQ(p.rooster_kenmerk, (Bestandskenmerk{100, begin + seconde}));
    EXPECT_EQ(label_groen, (std::vector{true, false}));
    EXPECT_EQ(getoond, 1);
    EXPECT_FALSE(lezer.busy());
    EXPECT_EQ(muisaanwijzer.depth, 0);
}

TEST_F(VolgRooster, wat_niet_nieuwer_is_wordt_niet_gelezen) {
    for (const std::int64_t tijd : {begin, begin - seconde}) {
        volger.tik();
        toont(tijd);
        EXPECT_FALSE(lezer.busy());
    }
    volger.tik();
    lezer.answer(FileReader::Blik()); // gone, or not to be asked
    EXPECT_FALSE(lezer.busy());
    verwacht_onveranderd();
}

TEST_F(VolgRooster, zonder_rooster_of_met_een_werkmap_wordt_er_niet_gekeken) {
    p.rooster_extensie = "xls";
    volger.tik();
    p.rooster_extensie = "rst";
    p.rooster_bestand.clear();
    volger.tik();
    volger.kijk_nog_eens();
    EXPECT_EQ(lezer.looks, 0);
}

TEST_F(VolgRooster, de_stempel_is_die_van_voor_het_lezen_niet_die_van_de_blik) {
    volger.tik();
    toont(begin + seconde);
    geeft(rooster("Piet"), begin + 3 * seconde, 120);
    EXPECT_EQ(p.rooster_tijdstempel, stempel(begin + 3 * seconde));
    EXPECT_EQ(p.rooster_kenmerk, (Bestandskenmerk{120, begin + 3 * seconde}));
}

TEST_F(VolgRooster, wie_klaar_is_binnen_de_seconde_waarin_gelezen_werd_wordt_alsnog_gelezen) {
    volger.tik();
    toont(begin + 5, 1h, 140);
    geeft(rooster("Piet"), begin + 5, 140);
    EXPECT_EQ(naam(), "Piet");
    EXPECT_EQ(p.rooster_tijdstempel, stempel(begin));
    volger.tik();
    toont(begin + 5, 1h, 140);
    EXPECT_FALSE(lezer.busy()); // once
}

TEST_F(VolgRooster, een_pas_gewijzigd_bestand_wordt_pas_na_een_tweede_blik_gelezen) {
    volger.tik();
    toont(begin + seconde, 1s);
    EXPECT_FALSE(lezer.busy());
    EXPECT_EQ(straks, 1);
    volger.kijk_nog_eens();
    toont(begin + seconde, 3s);
    EXPECT_EQ(lezer.reads, pad);
}

TEST_F(VolgRooster, wie_door_blijft_schrijven_wordt_bij_de_volgende_tik_gelezen) {
    volger.tik();
    toont(begin + seconde, 1s);
    volger.kijk_nog_eens();
    toont(begin + 3 * seconde, 1s);
    EXPECT_EQ(straks, 2);
    volger.tik();
    toont(begin + 10 * seconde, 1s);
    EXPECT_EQ(lezer.reads, pad);
}

TEST_F(VolgRooster, een_tik_tijdens_een_trage_blik_telt_mee) {
    volger.tik();
    toont(begin + seconde, 1s);
    volger.kijk_nog_eens();
    volger.tik();
    EXPECT_EQ(lezer.looks, 2);
    toont(begin + 3 * seconde, 1s);
    EXPECT_EQ(lezer.reads, pad);
}

TEST_F(VolgRooster, zolang_een_lezing_hangt_begint_er_geen_andere) {
    volger.tik();
    toont(begin + seconde);
    for (int tik = 0; tik < 5; ++tik)
        volger.tik();
    volger.kijk_nog_eens();
    EXPECT_EQ(lezer.looks, 1);
    verwacht_onveranderd();
    geeft(rooster("Piet"), begin + seconde);
    EXPECT_EQ(naam(), "Piet");
    volger.tik();
    EXPECT_EQ(lezer.looks, 2);
}

TEST_F(VolgRooster, een_lezing_die_mislukt_laat_alles_staan_en_de_volgende_tik_probeert_het_weer) {
    for (const Leesfout fout : {Leesfout::mislukt, Leesfout::niet_te_openen, Leesfout::te_groot}) {
        volger.tik();
        toont(begin + seconde);
        lezer.answer(FileReader::Inhoud(std::unexpected(fout)));
        verwacht_onveranderd();
        EXPECT_NE(p.leesfout, std::nullopt);
    }
    EXPECT_EQ(logboek.entries.size(), 3U);
    EXPECT_TRUE(berichten.shown.empty());
    EXPECT_EQ(getoond, 3);
    volger.tik();
    toont(begin + seconde);
    geeft(rooster("Piet"), begin + seconde);
    EXPECT_EQ(naam(), "Piet");
    EXPECT_EQ(p.leesfout, std::nullopt);
}

TEST_F(VolgRooster, een_ander_soort_bestand_wijzigt_niets_en_wordt_elke_tik_weer_gelezen) {
    for (int tik = 0; tik < 2; ++tik) {
        label_groen.clear();
        volger.tik();
        toont(begin + seconde);
        geeft("PK", begin + seconde);
        EXPECT_EQ(label_groen, (std::vector{true, false}));
        label_groen.clear();
        verwacht_onveranderd();
    }
}

TEST_F(VolgRooster, een_opening_waarvan_het_lezen_mislukte_komt_vanzelf_goed) {
    p.rooster_kenmerk = Bestandskenmerk{};
    volger.tik();
    toont(begin);
    geeft(rooster("Piet"), begin);
    EXPECT_EQ(naam(), "Piet");
}

TEST_F(VolgRooster, wat_de_operateur_intussen_opent_wordt_niet_door_oudere_bytes_vervangen) {
    volger.tik();
    toont(begin + seconde);
    map.write("finale.rst", rooster("Kees"));
    laad_rooster(bediening, 0);
    p.rooster_kenmerk = Bestandskenmerk{130, begin + 2 * seconde};
    geeft(rooster("Piet"), begin + seconde);
    EXPECT_EQ(naam(), "Kees");
    EXPECT_EQ(p.rooster_tijdstempel, stempel(begin));
}

TEST_F(VolgRooster, het_antwoord_over_een_ander_bestand_telt_niet) {
    const std::string ander = map.write("ander.rst", rooster("Klaas"));
    volger.tik();
    kies_bestand(bediening, ander, 1);
    laad_rooster(bediening, 1);
    toont(begin + seconde);
    EXPECT_FALSE(lezer.busy());
    EXPECT_EQ(naam(), "Klaas");

    kies_bestand(bediening, pad, 0);
    laad_rooster(bediening, 0);
    p.rooster_tijdstempel = stempel(begin);
    volger.tik();
    toont(begin + seconde);
    kies_bestand(bediening, ander, 1);
    laad_rooster(bediening, 1);
    geeft(rooster("Piet"), begin + seconde);
    EXPECT_EQ(naam(), "Klaas");
}

TEST_F(VolgRooster, midden_in_een_opening_wacht_het_antwoord_op_de_volgende_tik) {
    volger.tik();
    toont(begin + seconde);
    p.grdRooster.set_redraw(false); // a reader waits for the answer to its message
    geeft(rooster("Piet"), begin + seconde);
    verwacht_onveranderd();
    p.grdRooster.set_redraw(true);
    volger.tik();
    toont(begin + seconde);
    geeft(rooster("Piet"), begin + seconde);
    EXPECT_EQ(naam(), "Piet");
}

TEST_F(VolgRooster, bytes_die_intussen_door_oudere_vervangen_zijn_worden_niet_samengevoegd) {
    volger.tik();
    toont(begin + seconde);
    geeft(rooster("Piet"), begin - seconde);
    verwacht_onveranderd();
}

TEST_F(VolgRooster, aan_het_einde_wacht_er_niemand_meer_op_een_antwoord) {
    { const RoosterVolger ander(bediening, lezer, {}); }
    EXPECT_EQ(lezer.forgotten, 1);
}

} // namespace
} // namespace tavelo
