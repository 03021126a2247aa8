#include "ui/main/auto_import.h"

#include "basis/codeDatumTijd.h"
#include "fakes/grid_events.h"
#include "fakes/heap.h"
#include "fakes/opstelling.h"
#include "fakes/read_faults.h"
#include "fakes/temp_folder.h"
#include "schedule/lees_rooster.h"
#include "schedule/rij_voor_rij.h"
#include "schedule/toeval.h"
#include "ui/main/open_rooster.h"
#include "vocabulary/rubriek_woorden.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <iostream>
#include <new>

namespace tavelo {
namespace {

namespace fs = std::filesystem;
using test::Texts;
using test::Toeval;

constexpr std::string_view jan = "[Vendalo 3.4]\r\ndnr:1\tna:Jan\r\nrnr:1\trkla:*L*\troms:Finale\truty:9\tdnr:1\r\n";
constexpr std::string_view piet = "[Vendalo 3.4]\r\ndnr:1\tna:Piet\r\nrnr:1\trkla:*M*\troms:Slot\truty:10\tdnr:1\r\n";

// So many seconds past ten in the morning.
LocalTime seconde(int n) {
    const int totaal = 10 * 3600 + n;
    return {2026, 6, 13, totaal / 3600, totaal / 60 % 60, totaal % 60};
}

// A main window that has opened a schedule file.
struct Geopend : test::Opstelling {
    test::TempFolder map;
    std::string pad = map.write("finale.rst", jan);
    std::vector<bool> label_groen; // at every repaint of the description label
    test::Verslag verslag;

    Geopend() {
        stempel(0);
        kies_bestand(bediening, pad, 0);
        laad_rooster(bediening, 0);
        EXPECT_EQ(naam(), "Jan");
    }
    void stempel(int n) { tijdstempels.stamps[pad] = seconde(n); }
    void schrijf(std::string_view tekst, int n) {
        map.write("finale.rst", tekst);
        stempel(n);
    }
    void tik() {
        auto_import(
            bediening, [&] { label_groen.push_back(programma.herlezen_bezig); }, &verslag);
    }
    [[nodiscard]] std::string naam() const { return std::string(programma.grdRooster.text(1, kolom_naam)); }
};

TEST(AutoImport, een_nieuwer_bestand_wordt_herlezen_onder_een_groen_label) {
    Geopend proef;
    proef.schrijf(piet, 1);
    proef.tik();
    EXPECT_EQ(proef.naam(), "Piet");
    EXPECT_EQ(proef.label_groen, (std::vector{true, false}));
    EXPECT_FALSE(proef.programma.herlezen_bezig);
    EXPECT_EQ(proef.programma.rooster_tijdstempel, "20260613100001");
    EXPECT_EQ(proef.programma.slots[0].tijdstempel, "20260613100001");
    EXPECT_EQ(proef.programma.slots[1].tijdstempel, "");
    EXPECT_EQ(proef.programma.bijschrift, "M dres. cat      -     " + proef.pad + "     -     Slot");
    EXPECT_EQ(proef.programma.labels.lblRubriek, "Dressuur, Klasse M");
    EXPECT_EQ(proef.programma.labels.lblRoosterOmschrijving, "Ring, Slot");
    EXPECT_EQ(proef.programma.grdRooster.text(1, kolom_nrtijd), "10:00");
    EXPECT_EQ(proef.muisaanwijzer.depth, 0);
    EXPECT_EQ(proef.muisaanwijzer.times_busy, 2); // once to open, once to read again
    EXPECT_EQ(proef.verslag.regels.size(), 2U);
}

TEST(AutoImport, een_herlezing_die_misgaat_laat_het_label_niet_groen) {
    Geopend proef;
    proef.schrijf(piet, 1);
    EXPECT_THROW(auto_import(proef.bediening, [] { throw std::bad_alloc(); }), std::bad_alloc);
    EXPECT_FALSE(proef.programma.herlezen_bezig);
    EXPECT_EQ(proef.muisaanwijzer.depth, 0);
    proef.tik(); // and the next tick reads
    EXPECT_EQ(proef.naam(), "Piet");
    EXPECT_EQ(proef.label_groen, (std::vector{true, false}));
}

TEST(AutoImport, hetzelfde_of_een_ouder_bestand_wordt_niet_gelezen) {
    Geopend proef;
    for (const int n : {0, -1, -3600}) {
        proef.schrijf(piet, n);
        proef.tik();
        EXPECT_EQ(proef.naam(), "Jan");
    }
    EXPECT_TRUE(proef.label_groen.empty());
    EXPECT_TRUE(proef.verslag.regels.empty());
}

TEST(AutoImport, zonder_open_bestand_gebeurt_er_niets) {
    test::Opstelling proef;
    proef.tijdstempels.stamps[""] = seconde(1);
    auto_import(proef.bediening, [] { FAIL(); });
    EXPECT_EQ(proef.programma.rooster_tijdstempel, "");
}

TEST(AutoImport, een_werkmap_wordt_nooit_herlezen) {
    Geopend proef;
    proef.programma.rooster_extensie = "xls";
    proef.schrijf(piet, 1);
    proef.tik();
    EXPECT_EQ(proef.naam(), "Jan");
    EXPECT_TRUE(proef.label_groen.empty());
}

TEST(AutoImport, een_andere_soort_stopt_bij_de_eerste_regel_zonder_iets_te_wijzigen) {
    for (const std::string_view soort : {"xlsx", "XLS", ""}) {
        Geopend proef;
        const auto voor = test::all_texts(proef.programma.grdRooster);
        proef.programma.rooster_extensie = soort;
        proef.programma.huidige_regel = 1;
        proef.schrijf("PK\x03\x04 een werkmap", 1);
        proef.tik();
        EXPECT_EQ(test::all_texts(proef.programma.grdRooster), voor);
        EXPECT_EQ(proef.label_groen, (std::vector{true, false}));
        EXPECT_EQ(proef.programma.rooster_tijdstempel, "20260613100000"); // so it is tried again at the next tick
        EXPECT_EQ(proef.programma.labels.lblRubriek, "Dressuur, Klasse L");
        EXPECT_TRUE(proef.verslag.regels.empty());
        proef.tik();
        EXPECT_EQ(proef.label_groen.size(), 4U);
    }
}

TEST(AutoImport, een_bestand_dat_weg_of_dicht_is_laat_alles_staan) {
    Geopend proef;
    proef.tijdstempels.stamps.clear();
    proef.tik();
    EXPECT_TRUE(proef.label_groen.empty());
    proef.stempel(5); // a stamp, but nothing to open
    fs::remove(proef.pad);
    proef.tik();
    EXPECT_EQ(proef.naam(), "Jan");
    EXPECT_EQ(proef.programma.rooster_tijdstempel, "20260613100000");
    proef.schrijf(piet, 5);
    proef.tik();
    EXPECT_EQ(proef.naam(), "Piet");
}

#ifndef _WIN32

TEST(AutoImport, een_lezing_die_halverwege_mislukt_laat_alles_staan_en_de_volgende_tik_leest) {
    Geopend proef;
    const auto voor = test::all_texts(proef.programma.grdRooster);
    const std::string bijschrift = proef.programma.bijschrift;
    proef.schrijf(piet, 1);
    for (int keer = 0; keer < 2; ++keer) {
        const test::ReadFaults storing({{}, {.error = EIO}});
        proef.tik();
        EXPECT_EQ(test::all_texts(proef.programma.grdRooster), voor);
        EXPECT_EQ(proef.programma.schedule.deelnemer(1), "na:Jan");
        EXPECT_EQ(proef.programma.rooster_tijdstempel, "20260613100000");
        EXPECT_EQ(proef.programma.bijschrift, bijschrift);
        EXPECT_EQ(proef.programma.labels.lblRoosterOmschrijving, "Ring, Finale");
        EXPECT_EQ(proef.programma.leesfout, GeenRooster::lezen_mislukt);
    }
    ASSERT_EQ(proef.logboek.entries.size(), 1U); // not at every tick
    EXPECT_EQ(proef.logboek.entries[0].key, proef.pad);
    EXPECT_EQ(proef.logboek.entries[0].reason, "lezen is mislukt");
    EXPECT_TRUE(proef.berichten.shown.empty());
    proef.tik();
    EXPECT_EQ(proef.naam(), "Piet");
    EXPECT_EQ(proef.programma.leesfout, std::nullopt);
}

#endif

TEST(AutoImport, het_kenmerk_van_de_gelezen_bytes_wordt_onthouden) {
    Geopend proef;
    EXPECT_EQ(proef.programma.rooster_kenmerk, kenmerk_van(proef.pad));
    proef.schrijf(std::string(piet) + "\r\n", 1);
    proef.tik();
    EXPECT_EQ(proef.programma.rooster_kenmerk, kenmerk_van(proef.pad));
}

TEST(AutoImport, de_stempel_gaat_naar_het_slot_dat_getoond_wordt) {
    Geopend proef;
    proef.programma.rooster_slot = 1;
    proef.schrijf(piet, 1);
    proef.tik();
    EXPECT_EQ(proef.programma.slots[1].tijdstempel, "20260613100001");
    EXPECT_EQ(proef.programma.slots[0].tijdstempel, "20260613100000");
    proef.programma.rooster_slot = 2;
    proef.schrijf(jan, 2);
    proef.tik();
    EXPECT_EQ(proef.programma.rooster_tijdstempel, "20260613100002");
    EXPECT_EQ(proef.programma.slots[1].tijdstempel, "20260613100001");
}

TEST(AutoImport, een_gewijzigde_cel_hertekent_een_cel_en_laat_het_nummervak_staan) {
    Geopend proef;
    proef.programma.txtINR = "12";
    test::GridEvents gehoord;
    proef.programma.grdRooster.set_listener(&gehoord);
    std::string tekst(jan);
    tekst.replace(tekst.find("Jan"), 3, "Kees");
    proef.schrijf(tekst, 1);
    proef.tik();
    proef.programma.grdRooster.set_listener(nullptr);
    EXPECT_EQ(gehoord.cells, (std::vector<std::pair<int, int>>{{1, kolom_naam}}));
    EXPECT_TRUE(gehoord.inserted.empty() && gehoord.removed.empty());
    EXPECT_EQ(gehoord.resets, 0);
    EXPECT_EQ(proef.programma.txtINR, "12");
}

TEST(AutoImport, wat_er_ook_in_het_bestand_staat_er_komt_geen_melding) {
    Geopend proef;
    proef.schrijf("[Vendalo 3.4]\nrubriek:1\tcom:99999\nrnr:1\trcom:99999\trpty:1e300\tdnr:1\t\t\t\t\t\t\tdnr:2", 1);
    proef.tik();
    EXPECT_EQ(proef.programma.grdRooster.rows(), 3);
    EXPECT_TRUE(proef.berichten.shown.empty());
}

// A suite that writes badly: what stands on the disk, and what a reader of every whole write should have made of it.
class SlechteSchrijver : public Geopend {
  public:
    explicit SlechteSchrijver(Toeval& toeval) : toeval_(toeval) {
        lees_rooster(pad, verwacht_doel()).value();
        vul_nr_tijd(verwacht_.grdRooster, verwacht_.schedule.huidige_rubriek, geen_berichten_);
    }

    void stap() {
        switch (toeval_.onder(14)) {
        case 0:
            return vergrendel();
        case 1:
            return kap_af();
        case 2:
            return vervang_door_hernoemen();
        case 3:
            return wis_en_maak_opnieuw();
        case 4:
            return schrijf_twee_keer_in_een_seconde();
        case 5:
            return zet_terug_in_de_tijd();
        case 6:
            return laat_de_map_verdwijnen();
        case 7:
            return schrijf_een_ander_soort_bestand();
        case 8:
            return tik_en_verwacht_niets();
        default:
            return schrijf_heel();
        }
    }

    void vergelijk() const {
        ASSERT_EQ(test::all_texts(programma.grdRooster), test::all_texts(verwacht_.grdRooster));
        for (int rij = 0; rij < verwacht_.grdRooster.rows(); ++rij)
            ASSERT_EQ(programma.grdRooster.row_value(rij), verwacht_.grdRooster.row_value(rij));
        for (int n = 0; n <= meeste_combinaties; ++n)
            ASSERT_EQ(programma.schedule.deelnemer(n), verwacht_.schedule.deelnemer(n));
        ASSERT_EQ(programma.schedule.huidige_rubriek.roms, verwacht_.schedule.huidige_rubriek.roms);
        ASSERT_TRUE(berichten.shown.empty());
        ASSERT_EQ(muisaanwijzer.depth, 0);
        ASSERT_FALSE(programma.herlezen_bezig);
        // Nothing piles up: the grids hold what one file holds.
        ASSERT_LE(programma.grdRooster.rows(), meeste_rijen + 1);
        ASSERT_LE(programma.grdImport.rows(), meeste_rijen + 1);
    }

    // The same two files every time, so that the memory that is held afterwards can be compared.
    void schrijf_vast_bestand() {
        schrijf(jan, later());
        tik_en_verwacht(std::string(jan));
        schrijf(piet, later());
        tik_en_verwacht(std::string(piet));
    }

    // A grid keeps room for what changes; as it was made just now it holds no more than its texts.
    void zet_rasters_opnieuw_neer() {
        for (Grid* const grid : {&programma.grdRooster, &programma.grdImport, &verwacht_.grdRooster}) {
            grid->set_columns(grid->columns() + 1);
            grid->set_columns(grid->columns() - 1);
        }
    }

    [[nodiscard]] int hele_keren() const { return hele_keren_; }

  private:
    static constexpr int meeste_combinaties = 30;
    static constexpr int meeste_rijen = 40;

    RoosterDoel verwacht_doel() {
        return {verwacht_.grdRooster, verwacht_.schedule, verwacht_.labels, geen_berichten_, logboek};
    }
    int later() { return ++klok_; }

    std::string willekeurig_bestand() {
        std::string tekst = "[Vendalo 3.4]\r\n";
        const auto woord = [&] {
            return toeval_.uit(std::vector<std::string>{"", "Jan", "JAN", "Ren\xE9 (HC)", "Piet  Vos", "*Kees"});
        };
        for (int n = 1; n <= meeste_combinaties; ++n)
            if (!toeval_.een_op(6))
                tekst +=
                    "dnr:" + std::to_string(n) + "\tna:" + woord() + "\tpa:" + woord() + "\tco:" + woord() + "\r\n";
        tekst += "rnr:1\trtvko:3\truty:9\trpty:5\troms:" + woord();
        for (int rijen = toeval_.onder(meeste_rijen); rijen > 0; --rijen)
            tekst += toeval_.een_op(8)
                         ? "\tdnr:P\t15\tKoffie\t\t\t\t"
                         : "\tdnr:" + std::to_string(1 + toeval_.onder(meeste_combinaties)) + "\t\t\t\t\t\t";
        return tekst + "\r\n";
    }

    // The plain version of what a reader makes of this text.
    void verwacht_samenvoeging(const std::string& tekst) {
        SilentMessages stil;
        verwacht_.schedule.wis_tabellen();
        lees_regels(std::string_view(tekst).substr(tekst.find('\n') + 1), verwacht_.schedule, stil, logboek);
        Grid bron;
        vul_rooster({bron, verwacht_.schedule, verwacht_.labels, stil, logboek}, verwacht_.schedule.rubriek_record);
        test::Verslag genegeerd;
        test::voeg_rij_voor_rij_samen(verwacht_.grdRooster, bron, verwacht_.schedule, genegeerd);
        vul_nr_tijd(verwacht_.grdRooster, verwacht_.schedule.huidige_rubriek, stil);
        logboek.entries.clear();
    }
    void tik_en_verwacht(const std::string& tekst) {
        verwacht_samenvoeging(tekst);
        tik();
        verslag.regels.clear();
        label_groen.clear();
    }
    void tik_en_verwacht_niets() {
        tik();
        label_groen.clear();
    }

    void schrijf_heel() {
        const std::string tekst = willekeurig_bestand();
        schrijf(tekst, later());
        tik_en_verwacht(tekst);
        ++hele_keren_;
    }
    // The reader meets a file that it cannot open, whatever its stamp.
    void vergrendel() {
        fs::remove(pad);
        fs::create_directory(pad);
        stempel(klok_ + 1);
        tik_en_verwacht_niets();
        fs::remove(pad);
        schrijf_heel();
    }
    void kap_af() {
        const std::string tekst = willekeurig_bestand();
        const std::string begin =
            tekst.substr(0, static_cast<std::size_t>(toeval_.onder(static_cast<int>(tekst.size()))));
        schrijf(begin, klok_ + 1);
        constexpr std::string_view eerste = "[Vendalo 3.4]";
        const bool is_rooster = begin.size() == eerste.size() || begin.starts_with("[Vendalo 3.4]\r");
        if (!is_rooster) return tik_en_verwacht_niets();
        later();
        tik_en_verwacht(begin.size() <= eerste.size() + 1 ? "[Vendalo 3.4]\r\n" : begin);
        if (toeval_.een_op(2)) { // finished a moment later
            schrijf(tekst, later());
            tik_en_verwacht(tekst);
        }
    }
    void vervang_door_hernoemen() {
        const std::string tekst = willekeurig_bestand();
        fs::rename(map.write("finale.nieuw", tekst), pad);
        stempel(later());
        tik_en_verwacht(tekst);
    }
    void wis_en_maak_opnieuw() {
        fs::remove(pad);
        tijdstempels.stamps.clear();
        tik_en_verwacht_niets();
        schrijf_heel();
    }
    void schrijf_twee_keer_in_een_seconde() {
        schrijf_heel();
        map.write("finale.rst", willekeurig_bestand()); // the same stamp: it is not seen until the next write
        tik_en_verwacht_niets();
    }
    void zet_terug_in_de_tijd() {
        schrijf(willekeurig_bestand(), klok_ - 1 - toeval_.onder(klok_ + 1));
        tik_en_verwacht_niets();
        stempel(klok_);
        tik_en_verwacht_niets();
    }
    void laat_de_map_verdwijnen() {
        const fs::path plaats = fs::path(pad).parent_path();
        const fs::path weg = plaats.string() + "-weg";
        fs::rename(plaats, weg);
        if (toeval_.een_op(2)) tijdstempels.stamps.clear();
        tik_en_verwacht_niets();
        fs::rename(weg, plaats);
        stempel(klok_);
        tik_en_verwacht_niets();
    }
    void schrijf_een_ander_soort_bestand() {
        schrijf(
            toeval_.uit(std::vector<std::string>{"", "PK\x03\x04", "[Vendalo 3.4] \r\ndnr:1\tna:x\r\n", "[Vendalo"}),
            klok_ + 1);
        tik_en_verwacht_niets();
        stempel(klok_);
    }

    Toeval& toeval_;
    int klok_ = 0;
    int hele_keren_ = 0;
    Programma verwacht_;
    SilentMessages geen_berichten_;
};

TEST(AutoImport, het_grid_volgt_een_slechte_schrijver_door_duizenden_storingen) {
    const std::uint32_t begin = test::beginwaarde(13062026);
    std::cout << "TAVELO_SEED=" << begin << '\n';
    Toeval toeval(begin);
    SlechteSchrijver schrijver(toeval);
    constexpr int stappen = 3000;
    constexpr int ronde = 500;
    constexpr std::size_t speling = 4096; // room that vectors and records keep
    std::size_t geheugen = 0;             // after the first round
    for (int stap = 0; stap < stappen; ++stap) {
        schrijver.stap();
        ASSERT_NO_FATAL_FAILURE(schrijver.vergelijk()) << "step " << stap;
        if (stap % ronde != ronde - 1) continue;
        schrijver.schrijf_vast_bestand();
        ASSERT_NO_FATAL_FAILURE(schrijver.vergelijk()) << "step " << stap;
        schrijver.zet_rasters_opnieuw_neer();
        schrijver.bediening.dagverslag.wis();
        if (geheugen == 0) geheugen = test::heap_bytes();
        EXPECT_LE(test::heap_bytes(), geheugen + speling) << "step " << stap;
    }
    EXPECT_GT(schrijver.hele_keren(), stappen / 3);
}

} // namespace
} // namespace tavelo
