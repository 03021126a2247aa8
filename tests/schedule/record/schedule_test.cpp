#include "schedule/record/schedule.h"

#include "fakes/heap.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

TEST(Schedule, een_gewoon_record_laat_zijn_ruimte_aan_het_volgende_bestand_en_een_reusachtig_niet) {
    for (const std::size_t lengte : {4096U, 4097U}) {
        Schedule schedule;
        const std::size_t voor = test::heap_bytes();
        schedule.zet_deelnemer(7, std::string(lengte, 'x'));
        schedule.zet_rubriek(7, std::string(lengte, 'x'));
        schedule.wis_tabellen();
        EXPECT_EQ(test::heap_bytes() > voor, lengte == 4096) << lengte;
        EXPECT_EQ(schedule.deelnemer(7), "");
    }
}

TEST(Schedule, heeft_deelnemers_van_0_tot_4000_en_rubrieken_van_1_tot_2000) {
    Schedule schedule;
    for (const int nummer : {-1, 0, 4000, 4001}) {
        schedule.zet_deelnemer(nummer, "na:Jan");
        schedule.kondig_deelnemer_aan(nummer); // only a hint
        EXPECT_EQ(schedule.deelnemer(nummer), nummer >= 0 && nummer <= 4000 ? "na:Jan" : "") << nummer;
        EXPECT_EQ(schedule.deelnemer_plaats(nummer) != nullptr, nummer >= 0 && nummer <= 4000) << nummer;
    }
    for (const int nummer : {-1, 0, 1, 2000, 2001}) {
        schedule.zet_rubriek(nummer, "oms:Proef");
        EXPECT_EQ(schedule.rubriek_plaats(nummer) != nullptr, nummer >= 1 && nummer <= 2000) << nummer;
        EXPECT_EQ(schedule.rubriek(nummer) == RubriekLijstRecord(), nummer < 1 || nummer > 2000) << nummer;
    }
}

} // namespace
} // namespace tavelo
