#include "app/codeBepaalPaden.h"
#include "fakes/seams.h"
#include "fakes/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavelo {
namespace {

constexpr char scheiding = static_cast<char>(std::filesystem::path::preferred_separator);

// A path as it is on this system.
std::string pad(std::string tekst) {
    std::ranges::replace(tekst, '\\', scheiding);
    return tekst;
}

bool is_map(const std::string& naam) {
    return std::filesystem::is_directory(std::filesystem::path(std::u8string(naam.begin(), naam.end())));
}

struct BepaalPaden : testing::Test {
    test::TempFolder map;
    test::FakeSettings opslag;
    test::FakeSpecialFolders mappen;

    BepaalPaden() {
        // Of two different users' trees, so that a wrong choice shows.
        mappen.folders[5] = map.file("gebruiker");
        mappen.folders[46] = map.file("iedereen");
        mappen.folders[38] = map.file("programmas");
        std::filesystem::create_directory(map.file("gebruiker"));
        std::filesystem::create_directory(map.file("iedereen"));
    }

    void zet(const std::string& sleutel, const std::string& waarde) {
        opslag.values[{"Vendalo 3.5", "Database", sleutel}] = waarde;
    }
    [[nodiscard]] Paden paden() const { return bepaal_paden(map.file("programma"), opslag, mappen); }
    [[nodiscard]] std::string onder_map(const std::string& rest) const { return map.file("") + pad(rest); }
};

TEST_F(BepaalPaden, de_programmamappen_staan_onder_de_map_van_het_programma) {
    const Paden p = paden();
    const std::string app = onder_map("programma\\");
    EXPECT_EQ(p.app_pad, app);
    EXPECT_EQ(p.support_pad, app + pad("SUPPORT\\"));
    EXPECT_EQ(p.bin_pad, app + pad("SUPPORT\\BIN\\"));
    EXPECT_EQ(p.flags_pad, app + pad("SUPPORT\\FLAGS\\"));
    EXPECT_EQ(p.handleidingen_pad, app + pad("SUPPORT\\HANDLEIDINGEN\\"));
    EXPECT_EQ(p.help_pad, app + pad("SUPPORT\\HELP\\"));
    EXPECT_EQ(p.html_pad, app + pad("SUPPORT\\HTML\\"));
    EXPECT_EQ(p.sjablonen_pad, app + pad("SUPPORT\\HTML\\SJABLONEN\\"));
    EXPECT_EQ(p.stylesheets_pad, app + pad("SUPPORT\\HTML\\STYLESHEETS\\"));
    EXPECT_EQ(p.lijsten_pad, app + pad("SUPPORT\\LIJSTEN\\"));
    EXPECT_EQ(p.cggfiles_pad, app + pad("SUPPORT\\CGGFILES\\"));
    EXPECT_EQ(p.programfiles_pad, onder_map("programmas\\"));
}

TEST_F(BepaalPaden, de_gegevensmappen_staan_onder_mijn_bestanden) {
    const Paden p = paden();
    const std::string mijn = onder_map("gebruiker\\Mijn Vendalo 3.5 bestanden\\");
    EXPECT_EQ(p.mijn_bestanden, mijn);
    EXPECT_EQ(p.gedeeld_pad, mijn + pad("GEDEELD\\"));
    EXPECT_EQ(p.data_html_pad, mijn + pad("HTML\\"));
    EXPECT_EQ(p.zipfiles_pad, mijn + pad("ZIPFILES\\"));
    EXPECT_EQ(p.data_support_pad, mijn + pad("SUPPORT\\"));
    EXPECT_EQ(p.data_cggfiles_pad, mijn + pad("SUPPORT\\CGGFILES\\"));
    EXPECT_EQ(p.data_lijsten_pad, mijn + pad("SUPPORT\\LIJSTEN\\"));
}

TEST_F(BepaalPaden, een_map_die_al_op_een_scheiding_eindigt_krijgt_er_geen_bij) {
    mappen.folders[5] = map.file("gebruiker") + scheiding;
    mappen.folders[38] = map.file("programmas") + scheiding;
    const Paden p = bepaal_paden(pad("\\"), opslag, mappen);
    EXPECT_EQ(p.app_pad, pad("\\"));
    EXPECT_EQ(p.support_pad, pad("\\SUPPORT\\"));
    EXPECT_EQ(p.programfiles_pad, onder_map("programmas\\"));
    EXPECT_EQ(p.mijn_bestanden, onder_map("gebruiker\\Mijn Vendalo 3.5 bestanden\\"));
}

TEST_F(BepaalPaden, index_1_kiest_de_documenten_van_iedereen) {
    zet("InstallPathIndex", "1");
    EXPECT_EQ(paden().mijn_bestanden, onder_map("iedereen\\Mijn Vendalo 3.5 bestanden\\"));
}

TEST_F(BepaalPaden, een_index_buiten_0_tot_2_is_0) {
    for (const char* index : {"7", "-1", "3", "99999", "", "map", "0.5"}) {
        zet("InstallPathIndex", index);
        zet("InstallPath", map.file("eigen"));
        EXPECT_EQ(paden().mijn_bestanden, onder_map("gebruiker\\Mijn Vendalo 3.5 bestanden\\")) << index;
    }
}

TEST_F(BepaalPaden, de_index_is_een_getal_dat_wordt_afgerond) {
    zet("InstallPathIndex", " 1.5 (eigen map)");
    zet("InstallPath", map.file("eigen"));
    EXPECT_EQ(paden().mijn_bestanden, onder_map("eigen\\"));
}

TEST_F(BepaalPaden, index_2_neemt_de_eigen_map_zoals_zij_is_en_maakt_haar_mappen) {
    zet("InstallPathIndex", "2");
    zet("InstallPath", map.file("Data"));
    EXPECT_EQ(paden().mijn_bestanden, onder_map("Data\\"));
    EXPECT_TRUE(is_map(onder_map("Data")));
    EXPECT_TRUE(is_map(onder_map("Data\\ZIPFILES")));
    EXPECT_TRUE(is_map(onder_map("Data\\SUPPORT")));
    EXPECT_TRUE(is_map(onder_map("Data\\SUPPORT\\CGGFILES")));
    EXPECT_TRUE(is_map(onder_map("Data\\SUPPORT\\LIJSTEN")));

    zet("InstallPath", map.file("Data") + scheiding);
    EXPECT_EQ(paden().mijn_bestanden, onder_map("Data\\"));
}

TEST_F(BepaalPaden, index_2_zonder_eigen_map_is_de_wortel) {
    zet("InstallPathIndex", "2");
    // Not made by a test: who runs it as root would find folders in the root of the file system.
    EXPECT_EQ(paden_van(map.file("programma"), opslag, mappen).mijn_bestanden, pad("\\"));
}

TEST_F(BepaalPaden, alleen_vijf_gegevensmappen_worden_gemaakt) {
    std::filesystem::create_directory(map.file("programma"));
    const Paden p = paden();
    std::vector<std::string> gemaakt;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(map.file("gebruiker")))
        gemaakt.push_back(entry.path().filename().string());
    std::ranges::sort(gemaakt);
    EXPECT_EQ(gemaakt,
              (std::vector<std::string>{"CGGFILES", "LIJSTEN", "Mijn Vendalo 3.5 bestanden", "SUPPORT", "ZIPFILES"}));
    EXPECT_FALSE(is_map(p.gedeeld_pad));
    EXPECT_FALSE(is_map(p.data_html_pad));
    EXPECT_TRUE(std::filesystem::is_empty(map.file("programma")));
    EXPECT_FALSE(is_map(onder_map("programmas")));
}

TEST_F(BepaalPaden, een_map_zonder_bestaande_ouder_wordt_niet_gemaakt) {
    zet("InstallPathIndex", "2");
    zet("InstallPath", onder_map("weg\\Data"));
    EXPECT_EQ(paden().mijn_bestanden, onder_map("weg\\Data\\"));
    EXPECT_FALSE(is_map(onder_map("weg")));
}

TEST_F(BepaalPaden, een_map_die_niet_te_maken_is_houdt_de_andere_niet_tegen) {
    zet("InstallPathIndex", "2");
    zet("InstallPath", map.file("Data"));
    std::filesystem::create_directory(map.file("Data"));
    map.write(pad("Data\\ZIPFILES"), "geen map");
    static_cast<void>(paden());
    EXPECT_FALSE(is_map(onder_map("Data\\ZIPFILES")));
    EXPECT_TRUE(is_map(onder_map("Data\\SUPPORT\\LIJSTEN")));
    static_cast<void>(paden()); // what exists is passed over
    EXPECT_TRUE(is_map(onder_map("Data\\SUPPORT\\CGGFILES")));
}

TEST_F(BepaalPaden, zonder_speciale_map_beginnen_de_paden_bij_de_wortel) {
    mappen.folders = {{46, map.file("iedereen")}};
    const Paden p = paden_van(map.file("programma"), opslag, mappen);
    EXPECT_EQ(p.programfiles_pad, pad("\\"));
    EXPECT_EQ(p.mijn_bestanden, pad("\\Mijn Vendalo 3.5 bestanden\\"));
    EXPECT_EQ(bepaal_map(mappen, "USER_DOCUMENTS"), "");
}

TEST_F(BepaalPaden, alleen_de_instellingen_van_de_suite_tellen) {
    opslag.values[{"Vendalo 3.5 Deelnemer", "Database", "InstallPathIndex"}] = "1";
    EXPECT_EQ(paden().mijn_bestanden, onder_map("gebruiker\\Mijn Vendalo 3.5 bestanden\\"));
}

TEST(BepaalMap, elke_naam_staat_voor_zijn_eigen_map) {
    constexpr std::pair<const char*, int> namen[] = {
        {"USER_DESKTOP", 16},   {"USER_APPDATA", 26},     {"USER_LOCAL_APPDATA", 28},
        {"USER_DOCUMENTS", 5},  {"USER_PICTURES", 39},    {"COMMON_PROGRAMS", 23},
        {"COMMON_APPDATA", 35}, {"COMMON_DOCUMENTS", 46}, {"PROGRAM_FILES", 38},
        {"NETWORK", 18},        {"NETHOOD", 19},
    };
    test::FakeSpecialFolders mappen;
    for (int csidl = 0; csidl < 64; ++csidl)
        mappen.folders[csidl] = "map " + std::to_string(csidl);
    for (const auto& [naam, csidl] : namen)
        EXPECT_EQ(bepaal_map(mappen, naam), "map " + std::to_string(csidl)) << naam;
}

TEST(BepaalMap, hoofdletters_maken_geen_verschil_en_een_vreemde_naam_is_het_bureaublad) {
    test::FakeSpecialFolders mappen;
    mappen.folders = {{5, "documenten"}, {16, "bureaublad"}};
    EXPECT_EQ(bepaal_map(mappen, "user_Documents"), "documenten");
    EXPECT_EQ(bepaal_map(mappen, " USER_DOCUMENTS"), "bureaublad");
    EXPECT_EQ(bepaal_map(mappen, ""), "bureaublad");
    EXPECT_EQ(bepaal_map(mappen, "NETWORK"), "");
}

} // namespace
} // namespace tavelo
