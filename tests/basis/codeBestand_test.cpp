#include "basis/codeBestand.h"

#include "fakes/read_faults.h"
#include "fakes/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace tavelo {
namespace {

TEST(Bestand, de_extensie_staat_achter_de_laatste_punt_van_het_laatste_deel) {
    EXPECT_EQ(bestand_extensie("C:\\shows\\plan.XLSX"), "XLSX");
    EXPECT_EQ(bestand_extensie("/shows/dag.1/plan"), "");
    EXPECT_EQ(bestand_extensie("C:\\dag.1\\plan"), "");
    EXPECT_EQ(bestand_extensie("a.b.rst"), "rst");
    EXPECT_EQ(bestand_extensie("a."), "");
    EXPECT_EQ(bestand_extensie(""), "");
}

TEST(Bestand, de_titel_is_de_naam_zonder_map_en_extensie) {
    EXPECT_EQ(bestand_titel("  C:\\shows\\finale.dag1.rst "), "finale.dag1");
    EXPECT_EQ(bestand_titel("/shows/finale"), "finale");
    EXPECT_EQ(bestand_titel("C:finale.rst"), "finale");
    EXPECT_EQ(bestand_titel("/shows.nu/"), "");
    EXPECT_EQ(bestand_titel(""), "");
}

TEST(Bestand, de_map_loopt_tot_en_met_het_laatste_scheidingsteken) {
    EXPECT_EQ(bestand_map(" C:\\shows\\plan.rst "), "C:\\shows\\");
    EXPECT_EQ(bestand_map("/shows/plan.rst"), "/shows/");
    EXPECT_EQ(bestand_map("C:plan.rst"), "C:");
    EXPECT_EQ(bestand_map("plan.rst"), "");
}

constexpr std::uint64_t ruim = 10'000'000; // more than any file here holds

TEST(Bestand, een_bestand_wordt_heel_gelezen) {
    const test::TempFolder map;
    const std::string bytes("a\r\n\0\x1A\xFF", 6);
    EXPECT_EQ(lees_bestand(map.write("é.rst", bytes), ruim), bytes);
    EXPECT_EQ(lees_bestand(map.write("leeg", ""), ruim), "");
    const std::string groot(3'000'001, 'x');
    EXPECT_EQ(lees_bestand(map.write("groot", groot), ruim), groot);
}

TEST(Bestand, wat_geen_gewoon_bestand_is_wordt_niet_gelezen) {
    const test::TempFolder map;
    for (const std::string& pad : {map.file("bestaat niet"), map.file(""), std::string()}) // the second is the folder
        EXPECT_EQ(lees_bestand(pad, ruim), std::unexpected(Leesfout::niet_te_openen)) << pad;
}

TEST(Bestand, een_bestand_met_een_ander_begin_wordt_niet_verder_gelezen) {
    const test::TempFolder map;
    const auto goed = lees_bestand_met_begin(map.write("goed", "[kop]rest"), "[kop]", ruim);
    ASSERT_TRUE(goed);
    EXPECT_TRUE(goed->begin_klopt);
    EXPECT_EQ(goed->bytes, "[kop]rest");
    const auto ander = lees_bestand_met_begin(map.write("ander", "[KOP]" + std::string(1'000'000, 'x')), "[kop]", ruim);
    ASSERT_TRUE(ander);
    EXPECT_FALSE(ander->begin_klopt);
    EXPECT_EQ(ander->bytes.size(), 5U);
    const auto kort = lees_bestand_met_begin(map.write("kort", "[ko"), "[kop]", ruim);
    ASSERT_TRUE(kort);
    EXPECT_FALSE(kort->begin_klopt);
    EXPECT_EQ(kort->bytes, "[ko");
    EXPECT_FALSE(lees_bestand_met_begin(map.file("bestaat niet"), "[kop]", ruim));
}

TEST(Bestand, het_kenmerk_verandert_met_de_grootte_en_met_elk_deel_van_een_seconde) {
    const test::TempFolder map;
    const std::string pad = map.write("proef", "abc");
    const auto zet_tijd = [&pad](std::chrono::nanoseconds tijd) {
        std::filesystem::last_write_time(
            pad, std::chrono::file_clock::from_sys(std::chrono::sys_time<std::chrono::nanoseconds>(tijd)));
    };
    constexpr std::int64_t tijd = 1'781'337'600'250'000'000;
    zet_tijd(std::chrono::nanoseconds(tijd));
    EXPECT_EQ(kenmerk_van(pad), (Bestandskenmerk{3, tijd}));
    EXPECT_EQ(lees_bestand_met_begin(pad, "", ruim)->kenmerk, (Bestandskenmerk{3, tijd}));
    zet_tijd(std::chrono::nanoseconds(tijd + 10'000'000));
    EXPECT_EQ(kenmerk_van(pad), (Bestandskenmerk{3, tijd + 10'000'000}));
    EXPECT_EQ(kenmerk_van(map.file("bestaat niet")), std::nullopt);
}

TEST(Bestand, een_te_groot_bestand_wordt_aan_zijn_grootte_geweigerd) {
    const test::TempFolder map;
    const std::string pad = map.write("groot", "[kop]");
    std::filesystem::resize_file(pad, 2ULL << 30); // all holes: it takes no room
    EXPECT_EQ(lees_bestand(pad, (2ULL << 30) - 1), std::unexpected(Leesfout::te_groot));
    const std::string net = map.write("net", "12345");
    EXPECT_EQ(lees_bestand(net, 5), "12345");
    EXPECT_EQ(lees_bestand(net, 4), std::unexpected(Leesfout::te_groot));
}

#ifndef _WIN32

using test::ReadFaults;

TEST(Bestand, in_een_programma_zonder_invoer_wordt_er_ook_gelezen) {
    const test::TempFolder map;
    const std::string pad = map.write("proef", "inhoud");
    const int invoer = dup(STDIN_FILENO);
    close(STDIN_FILENO); // the file gets its number, which is 0
    EXPECT_EQ(lees_bestand(pad, ruim), "inhoud");
    if (invoer >= 0) {
        dup2(invoer, STDIN_FILENO);
        close(invoer);
    }
}

TEST(Bestand, een_te_groot_bestand_wordt_niet_gelezen) {
    const test::TempFolder map;
    const std::string pad = map.write("groot", "12345");
    const ReadFaults kijker;
    EXPECT_EQ(lees_bestand(pad, 4), std::unexpected(Leesfout::te_groot));
    EXPECT_EQ(kijker.reads(), 0U);
}

TEST(Bestand, een_lezing_die_het_einde_niet_haalt_is_geen_lezing) {
    const test::TempFolder map;
    const std::string pad = map.write("proef", "[kop]en de rest");
    for (std::size_t goede = 0; goede < 3; ++goede) { // the last read only meets the end
        std::vector<test::ReadStep> stappen(goede, {.most = 8});
        stappen.push_back({.error = EIO});
        const ReadFaults storing(stappen);
        EXPECT_EQ(lees_bestand(pad, ruim), std::unexpected(Leesfout::mislukt)) << goede;
    }
    const ReadFaults storing({{}, {.error = EIO}});
    const auto met_begin = lees_bestand_met_begin(pad, "[kop]", ruim);
    ASSERT_FALSE(met_begin);
    EXPECT_EQ(met_begin.error(), Leesfout::mislukt);
    EXPECT_EQ(lees_bestand(pad, ruim), "[kop]en de rest"); // and the next one is
}

TEST(Bestand, een_onderbroken_lezing_gaat_meteen_door) {
    const test::TempFolder map;
    const std::string pad = map.write("proef", "[kop]en de rest");
    const ReadFaults storing({{.error = EINTR}, {.most = 3}, {.error = EINTR}, {.error = EINTR}, {.most = 4}});
    const auto gelezen = lees_bestand_met_begin(pad, "[kop]", ruim);
    ASSERT_TRUE(gelezen);
    EXPECT_EQ(gelezen->bytes, "[kop]en de rest");
}

TEST(Bestand, wat_er_tijdens_het_lezen_bij_komt_wordt_meegelezen_tot_aan_de_grens) {
    const test::TempFolder map;
    const auto groei = [&map] { map.write("proef", "12345" + std::string(20'000, 'x')); };
    {
        const ReadFaults schrijver({{.before = groei}});
        EXPECT_EQ(lees_bestand(map.write("proef", "12345"), ruim), "12345" + std::string(20'000, 'x'));
    }
    const ReadFaults schrijver({{.before = groei}});
    EXPECT_EQ(lees_bestand(map.write("proef", "12345"), 20'004), std::unexpected(Leesfout::te_groot));
}

TEST(Bestand, het_kenmerk_is_van_voor_het_lezen) {
    const test::TempFolder map;
    const ReadFaults schrijver({{.before = [&map] { map.write("proef", "langer"); }}});
    const auto gelezen = lees_bestand_met_begin(map.write("proef", "kort"), "", ruim);
    ASSERT_TRUE(gelezen);
    EXPECT_EQ(gelezen->bytes, "langer");
    EXPECT_EQ(gelezen->kenmerk.grootte, 4U);
}

#endif

TEST(Bestand, bestaan_is_te_openen_zijn_om_te_lezen) {
    const test::TempFolder map;
    EXPECT_TRUE(bestandbestaat(map.write("plan.rst", "")));
    EXPECT_FALSE(bestandbestaat(map.file("ander.rst")));
    EXPECT_FALSE(bestandbestaat(map.file("")));
    EXPECT_FALSE(bestandbestaat(""));
}

} // namespace
} // namespace tavelo
