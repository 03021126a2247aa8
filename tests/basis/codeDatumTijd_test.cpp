#include "basis/codeDatumTijd.h"

#include "basis/system_time.h"
#include "fakes/seams.h"
#include "fakes/temp_folder.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr LocalTime moment{2026, 3, 7, 9, 5, 2};

TEST(DatumTijd, een_stempel_heeft_veertien_cijfers) {
    EXPECT_EQ(datum_tijd_tekst(moment, tijdstempel_vorm), "20260307090502");
    EXPECT_EQ(datum_tijd_tekst({999, 12, 31, 23, 59, 59}, tijdstempel_vorm), "09991231235959");
}

TEST(DatumTijd, een_enkele_letter_geeft_een_getal_zonder_nul) {
    EXPECT_EQ(datum_tijd_tekst(moment, "d-m-yyyy"), "7-3-2026");
    EXPECT_EQ(datum_tijd_tekst({2026, 11, 23}, "d-m-yyyy"), "23-11-2026");
    EXPECT_EQ(datum_tijd_tekst(moment, "dd/mm hh:nn"), "07/03 09:05");
}

TEST(DatumTijd, stempels_als_tekst_staan_op_volgorde_van_tijd) {
    const auto stempel = [](LocalTime tijd) { return datum_tijd_tekst(tijd, tijdstempel_vorm); };
    EXPECT_LT(stempel({2025, 12, 31, 23, 59, 59}), stempel({2026, 1, 1, 0, 0, 0}));
    EXPECT_LT(stempel({2026, 1, 1, 9, 59, 59}), stempel({2026, 1, 1, 10, 0, 0}));
}

TEST(DatumTijd, een_bestand_dat_niet_te_bevragen_is_heeft_een_lege_stempel) {
    test::FakeFileStamp stempels;
    stempels.stamps["plan.rst"] = moment;
    EXPECT_EQ(bestand_tijdstempel(stempels, "plan.rst", tijdstempel_vorm), "20260307090502");
    EXPECT_EQ(bestand_tijdstempel(stempels, "weg.rst", tijdstempel_vorm), "");
}

TEST(DatumTijd, de_stempel_van_een_echt_bestand_is_de_tijd_van_schrijven) {
    const test::TempFolder map;
    const SystemFileStamp stempels;
    const SystemClock klok;
    const std::string voor = datum_tijd_tekst(klok.now(), tijdstempel_vorm);
    const std::string pad = map.write("plan.rst", "x");
    const std::string stempel = bestand_tijdstempel(stempels, pad, tijdstempel_vorm);
    EXPECT_EQ(stempel.size(), 14U);
    EXPECT_LE(stempel, datum_tijd_tekst(klok.now(), tijdstempel_vorm));
    std::filesystem::last_write_time(pad, std::filesystem::last_write_time(pad) - std::chrono::hours(48));
    EXPECT_LT(bestand_tijdstempel(stempels, pad, tijdstempel_vorm), voor);
    EXPECT_EQ(bestand_tijdstempel(stempels, map.file("weg.rst"), tijdstempel_vorm), "");
}

} // namespace
} // namespace tavelo
