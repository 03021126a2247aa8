// The merge against its plain row-by-row version, on random pairs of start lists.
#include "fakes/grid_events.h"
#include "schedule/rij_voor_rij.h"
#include "schedule/toeval.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <set>

namespace tavelo {
namespace {

using test::Toeval;

struct Rij {
    test::Texts cellen = test::Texts(kolom_laatste + 1);
    std::int32_t waarde = 0;
};
using Lijst = std::vector<Rij>;

const std::vector<std::string> vreemde_nummers = {"P",         "p",    "",     "0",      "-3",  " 7",  "7.0",
                                                  "7x",        "0.3",  "2.5",  "&H5",    "1e1", "1e9", "1e999",
                                                  "999999999", "4000", "4001", "4000.4", "-0",  "\t5"};
const std::vector<std::string> teksten = {
    "",           "Jan", "JAN", "jan (HC)", "Jan  de Wit", "Jan   de Wit", "Jan (HC) de Wit",
    "Jan de Wit", "é",   "É",   "  ",       "L",           "(HC)"};

std::string nummer(Toeval& toeval, int bereik) {
    return toeval.een_op(5) ? toeval.uit(vreemde_nummers) : std::to_string(1 + toeval.onder(bereik));
}

Rij willekeurige_rij(Toeval& toeval, int bereik) {
    Rij rij;
    for (std::string& cel : rij.cellen)
        cel = toeval.uit(teksten);
    rij.cellen[kolom_inr] = nummer(toeval, bereik);
    rij.waarde = toeval.onder(50);
    return rij;
}

Lijst willekeurige_lijst(Toeval& toeval, int rijen, int bereik) {
    Lijst lijst;
    for (int i = 0; i < rijen; ++i)
        lijst.push_back(willekeurige_rij(toeval, bereik));
    return lijst;
}

// What the suite does between two writes, a few times over.
Lijst gewijzigd(Toeval& toeval, Lijst lijst, int bereik) {
    for (int keer = toeval.onder(8); keer > 0; --keer) {
        const auto plaats = [&] { return lijst.begin() + toeval.onder(static_cast<int>(lijst.size()) + 1); };
        const int soort = toeval.onder(6);
        if (soort == 0 || lijst.empty()) {
            lijst.insert(plaats(), willekeurige_rij(toeval, bereik));
            continue;
        }
        const auto gekozen = lijst.begin() + toeval.onder(static_cast<int>(lijst.size()));
        if (soort == 1) lijst.erase(gekozen);
        if (soort == 2)
            gekozen->cellen[static_cast<std::size_t>(toeval.onder(kolom_laatste + 1))] = toeval.uit(teksten);
        if (soort == 3) gekozen->cellen[kolom_inr] = nummer(toeval, bereik);
        if (soort == 4)
            std::swap(*gekozen, lijst[static_cast<std::size_t>(toeval.onder(static_cast<int>(lijst.size())))]);
        if (soort == 5) {
            const Rij dubbel = *gekozen;
            lijst.insert(plaats(), dubbel);
        }
    }
    return lijst;
}

Grid grid_van(const Lijst& lijst) {
    Grid grid;
    grid.set_columns(kolom_laatste + 1);
    grid.set_rows(1);
    for (const Rij& rij : lijst) {
        const int plaats = grid.append_row(test::Views(rij.cellen.begin(), rij.cellen.end()));
        grid.set_row_value(plaats, rij.waarde);
    }
    return grid;
}

Schedule schedule_met(int bereik) {
    Schedule schedule;
    for (int n = 0; n <= bereik; ++n)
        schedule.zet_deelnemer(n, "na: n" + std::to_string(n) + " \tco:" + std::to_string(n) + "\tpa:Bles");
    schedule.zet_deelnemer(4000, "co:laatste");
    return schedule;
}

std::vector<std::int32_t> waarden(const Grid& grid) {
    std::vector<std::int32_t> lijst;
    for (int rij = 0; rij < grid.rows(); ++rij)
        lijst.push_back(grid.row_value(rij));
    return lijst;
}

void vergelijk(const Lijst& oud, const Lijst& nieuw, int bereik) {
    const Grid bron = grid_van(nieuw);
    Grid verwacht = grid_van(oud);
    Schedule verwachte_schedule = schedule_met(bereik);
    test::Verslag verwacht_verslag;
    test::voeg_rij_voor_rij_samen(verwacht, bron, verwachte_schedule, verwacht_verslag);

    Grid doel = grid_van(oud);
    Schedule schedule = schedule_met(bereik);
    test::Verslag verslag;
    voeg_rooster_samen(doel, bron, schedule, &verslag);

    ASSERT_EQ(test::all_texts(doel), test::all_texts(verwacht));
    ASSERT_EQ(waarden(doel), waarden(verwacht));
    ASSERT_EQ(verslag.regels, verwacht_verslag.regels);
    for (int n = 0; n <= bereik; ++n)
        ASSERT_EQ(schedule.deelnemer(n), verwachte_schedule.deelnemer(n)) << n;
    ASSERT_EQ(schedule.deelnemer(hoogste_deelnemer), verwachte_schedule.deelnemer(hoogste_deelnemer));

    // Nobody needs to listen.
    Grid zonder_verslag = grid_van(oud);
    Schedule nog_een = schedule_met(bereik);
    voeg_rooster_samen(zonder_verslag, bron, nog_een);
    ASSERT_EQ(test::all_texts(zonder_verslag), test::all_texts(verwacht));
}

TEST(SamenvoegenEigenschap, elke_samenvoeging_heeft_de_uitkomst_van_rij_voor_rij_zoeken) {
    const std::uint32_t begin = test::beginwaarde(20260613);
    std::cout << "TAVELO_SEED=" << begin << '\n';
    Toeval toeval(begin);
    for (int paar = 0; paar < 6000; ++paar) {
        const int bereik = 2 + toeval.onder(25);
        const Lijst oud = willekeurige_lijst(toeval, toeval.onder(30), bereik);
        const Lijst nieuw =
            toeval.een_op(3) ? willekeurige_lijst(toeval, toeval.onder(30), bereik) : gewijzigd(toeval, oud, bereik);
        ASSERT_NO_FATAL_FAILURE(vergelijk(oud, nieuw, bereik)) << "pair " << paar;
        if (testing::Test::HasFatalFailure()) FAIL() << "seed " << begin << ", pair " << paar;
    }
}

TEST(SamenvoegenEigenschap, tweemaal_hetzelfde_samenvoegen_wijzigt_de_tweede_keer_geen_cel) {
    const std::uint32_t begin = test::beginwaarde(4711);
    std::cout << "TAVELO_SEED=" << begin << '\n';
    Toeval toeval(begin);
    for (int paar = 0; paar < 1000; ++paar) {
        Lijst nieuw = willekeurige_lijst(toeval, 1 + toeval.onder(30), 40);
        std::set<double> gezien; // no number twice: the later row would change the earlier one again and again
        std::erase_if(nieuw, [&](const Rij& rij) {
            const double n = leading_number(rij.cellen[kolom_inr]);
            return n > 0 && !gezien.insert(n).second;
        });
        const Grid bron = grid_van(nieuw);
        Grid doel = grid_van(willekeurige_lijst(toeval, toeval.onder(30), 40));
        Schedule schedule = schedule_met(40);
        voeg_rooster_samen(doel, bron, schedule);
        if (doel.rows() != bron.rows()) continue; // rows without a number were in the way
        const auto na_eerste = test::all_texts(doel);
        bool alles_gevonden = true;
        for (const Rij& rij : nieuw)
            alles_gevonden &= leading_number(rij.cellen[kolom_inr]) <= 0 ||
                              std::ranges::any_of(na_eerste, [&](const test::Texts& cellen) {
                                  return leading_number(cellen[kolom_inr]) == leading_number(rij.cellen[kolom_inr]);
                              });
        if (!alles_gevonden) continue; // cut off at the end, by position
        test::GridEvents gehoord;
        doel.set_listener(&gehoord);
        test::Verslag verslag;
        voeg_rooster_samen(doel, bron, schedule, &verslag);
        doel.set_listener(nullptr);
        ASSERT_EQ(test::all_texts(doel), na_eerste) << "pair " << paar;
        ASSERT_TRUE(gehoord.cells.empty() && gehoord.inserted.empty() && gehoord.removed.empty());
        ASSERT_EQ(gehoord.current + gehoord.resets, 0);
        for (std::size_t i = 0; i < verslag.regels.size(); i += 2) { // pairs with nothing changed
            ASSERT_TRUE(verslag.regels[i].starts_with("gewijzigd\tvan\t"));
            ASSERT_EQ(verslag.regels[i].substr(std::string_view("gewijzigd\tvan").size()),
                      verslag.regels[i + 1].substr(std::string_view("\tnaar").size()));
        }
    }
}

} // namespace
} // namespace tavelo
