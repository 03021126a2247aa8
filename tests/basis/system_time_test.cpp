#include "basis/system_time.h"

#include "basis/codeDatumTijd.h"
#include "fakes/temp_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <ctime>

namespace tavelo {
namespace {

constexpr std::string_view vorm = "yyyymmddhhnnss";

// By the library's own formatting, which counts years and months for itself.
std::string lokaal(std::time_t tijd) {
    std::array<char, 15> tekst{};
    std::strftime(tekst.data(), tekst.size(), "%Y%m%d%H%M%S", std::localtime(&tijd));
    return tekst.data();
}

TEST(SystemTime, een_bestand_geeft_in_elke_maand_de_tijd_van_zijn_laatste_wijziging) {
    const test::TempFolder map;
    const std::string pad = map.write("rooster.rst", "x");
    for (unsigned maand = 1; maand <= 12; ++maand) {
        using namespace std::chrono;
        const sys_seconds tijd = sys_days(year(2026) / month(maand) / day(28)) + 23h + 59min + 58s;
        std::filesystem::last_write_time(pad, file_clock::from_sys(tijd));
        EXPECT_EQ(bestand_tijdstempel(SystemFileStamp(), pad, vorm), lokaal(system_clock::to_time_t(tijd))) << maand;
    }
}

TEST(SystemTime, een_deel_van_een_seconde_telt_niet_mee) {
    const test::TempFolder map;
    const std::string pad = map.write("rooster.rst", "x");
    using namespace std::chrono;
    const sys_seconds tijd = sys_days(year(2026) / June / day(13)) + 9h;
    std::filesystem::last_write_time(pad, file_clock::from_sys(tijd + 999ms));
    EXPECT_EQ(bestand_tijdstempel(SystemFileStamp(), pad, vorm), lokaal(system_clock::to_time_t(tijd)));
}

TEST(SystemTime, een_bestand_dat_er_niet_is_heeft_geen_tijd) {
    const test::TempFolder map;
    EXPECT_FALSE(SystemFileStamp().modified(map.file("weg.rst")));
    EXPECT_FALSE(SystemFileStamp().modified(""));
    EXPECT_EQ(bestand_tijdstempel(SystemFileStamp(), map.file("weg.rst"), vorm), "");
}

TEST(SystemTime, de_klok_geeft_het_ogenblik_van_nu) {
    const std::string voor = lokaal(std::time(nullptr));
    const std::string nu = datum_tijd_tekst(SystemClock().now(), vorm);
    const std::string na = lokaal(std::time(nullptr));
    EXPECT_LE(voor, nu);
    EXPECT_LE(nu, na);
}

} // namespace
} // namespace tavelo
