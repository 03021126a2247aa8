#include "platform/linux/safe_file.h"

#include "fakes/temp_folder.h"
#include "storing/apparaat.h"
#include "storing/storing.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tavelo {
namespace {

using storing::geraakt;
using storing::stoor;

constexpr std::size_t ruim = 1000;
const std::string oud = "[Files]\nlastfolder=/oud/\n";
const std::string nieuw = "[Files]\nlastfolder=/een/andere/map/\n";

struct SafeFileTest : testing::Test {
    test::TempFolder map;
    std::string bestand = map.write("x.ini", oud);
    ~SafeFileTest() override { stoor(""); }

    [[nodiscard]] static std::string inhoud(const std::string& pad) {
        std::ifstream stream(pad, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    // The names in the folder, sorted, joined by a blank.
    [[nodiscard]] std::string namen() const {
        std::set<std::string> gesorteerd;
        for (const auto& ding : std::filesystem::directory_iterator(map.file("")))
            gesorteerd.insert(ding.path().filename());
        std::string tekst;
        for (const std::string& naam : gesorteerd)
            tekst += (tekst.empty() ? "" : " ") + naam;
        return tekst;
    }
    [[nodiscard]] std::string gelezen() const {
        const auto tekst = read_small_file(bestand, ruim);
        if (!tekst) return std::string(tekst.error().step) + ": " + strerrorname_np(tekst.error().error);
        return tekst->value_or("(geen bestand)");
    }
    // "goed", or the step that failed and why.
    [[nodiscard]] std::string geschreven() const {
        const auto uitkomst = replace_file(bestand, nieuw);
        if (uitkomst) return "goed";
        return std::string(uitkomst.error().step) + ": " + strerrorname_np(uitkomst.error().error);
    }
};

TEST_F(SafeFileTest, een_bestand_wordt_vervangen_of_gemaakt) {
    EXPECT_EQ(gelezen(), oud);
    EXPECT_EQ(geschreven(), "goed");
    EXPECT_EQ(inhoud(bestand), nieuw);
    std::filesystem::remove(bestand);
    EXPECT_EQ(gelezen(), "(geen bestand)");
    EXPECT_EQ(geschreven(), "goed");
    EXPECT_EQ(inhoud(bestand), nieuw);
    EXPECT_EQ(namen(), "x.ini");
}

TEST_F(SafeFileTest, een_fout_in_elke_stap_laat_het_oude_bestand_heel_en_niets_achter) {
    struct Stap {
        std::string regel;
        std::string naam;
    };
    for (const Stap& stap : {Stap{"open *.nieuw", "open"}, Stap{"write *.nieuw", "write"}, Stap{"sync *.nieuw", "sync"},
                             Stap{"close *.nieuw", "close"}, Stap{"rename *x.ini", "rename"}})
        for (const std::string fout : {"ENOSPC", "EIO", "EDQUOT"}) {
            stoor(stap.regel + ' ' + fout);
            EXPECT_EQ(geschreven(), stap.naam + ": " + fout);
            EXPECT_EQ(geraakt(0), 1) << stap.naam;
            stoor("");
            EXPECT_EQ(inhoud(bestand), oud) << stap.naam;
            EXPECT_EQ(namen(), "x.ini") << stap.naam;
        }
}

TEST_F(SafeFileTest, na_een_fout_wordt_geen_volgende_stap_gezet) {
    for (const std::string stap : {"open", "write", "sync", "close"}) {
        stoor("rename * log; " + stap + " *.nieuw EIO");
        EXPECT_EQ(geschreven(), stap + ": EIO");
        EXPECT_EQ(geraakt(0), 0) << stap;
    }
}

TEST_F(SafeFileTest, alles_is_naar_de_schijf_voor_het_de_naam_krijgt_en_de_map_daarna) {
    stoor("sync *.nieuw log; sync * log; close *.nieuw log");
    EXPECT_EQ(geschreven(), "goed");
    EXPECT_EQ(geraakt(0), 1);
    EXPECT_EQ(geraakt(1), 2); // and the folder
    EXPECT_EQ(geraakt(2), 1);
}

TEST_F(SafeFileTest, een_map_die_niet_naar_de_schijf_wil_wordt_gemeld_maar_het_nieuwe_staat_er) {
    stoor("sync /* EIO 2");
    EXPECT_EQ(geschreven(), "sync the folder: EIO");
    EXPECT_EQ(inhoud(bestand), nieuw);
    stoor("sync /* EINVAL 2");
    EXPECT_EQ(geschreven(), "goed"); // a file system that cannot
    EXPECT_EQ(geraakt(0), 1);
}

TEST_F(SafeFileTest, een_schijf_die_onderweg_vol_raakt_laat_het_oude_bestand_heel) {
    stoor("write *.nieuw room10");
    EXPECT_EQ(geschreven(), "write: ENOSPC");
    EXPECT_EQ(inhoud(bestand), oud);
    EXPECT_EQ(namen(), "x.ini");
}

TEST_F(SafeFileTest, een_onderbroken_of_gedeeltelijke_aanroep_gaat_verder) {
    stoor("write *.nieuw EINTR 1-2; write *.nieuw max5; sync *.nieuw EINTR 1; open * EINTR 1; close *.nieuw EINTR");
    EXPECT_EQ(geschreven(), "goed");
    stoor("");
    EXPECT_EQ(inhoud(bestand), nieuw);
    stoor("open * EINTR 1; read *x.ini EINTR 1; read *x.ini max3; read *x.ini EINTR 4");
    EXPECT_EQ(gelezen(), nieuw);
    EXPECT_EQ(geraakt(3), 1);
}

TEST_F(SafeFileTest, lezen_dat_het_einde_niet_haalt_is_geen_lezen) {
    stoor("read *x.ini max5; read *x.ini EIO 2");
    EXPECT_EQ(gelezen(), "read: EIO");
    stoor("open *x.ini EMFILE");
    EXPECT_EQ(gelezen(), "open: EMFILE");
    stoor("stat *x.ini EACCES");
    EXPECT_EQ(gelezen(), "stat: EACCES");
}

TEST_F(SafeFileTest, een_groter_bestand_dan_gevraagd_wordt_niet_gelezen) {
    EXPECT_EQ(read_small_file(bestand, oud.size())->value(), oud);
    stoor("read *x.ini log");
    EXPECT_EQ(read_small_file(bestand, oud.size() - 1).error().error, EFBIG);
    EXPECT_EQ(geraakt(0), 0);
    // One of which the size is not known beforehand.
    EXPECT_EQ(read_small_file("/proc/self/maps", 100).error().error, EFBIG);
}

TEST_F(SafeFileTest, een_koppeling_naar_een_bestand_blijft_en_haar_doel_verandert) {
    const std::string koppeling = map.file("koppeling.ini");
    std::filesystem::create_symlink("x.ini", koppeling);
    EXPECT_EQ(read_small_file(koppeling, ruim)->value(), oud);
    EXPECT_TRUE(replace_file(koppeling, nieuw));
    EXPECT_TRUE(std::filesystem::is_symlink(koppeling));
    EXPECT_FALSE(std::filesystem::is_symlink(bestand));
    EXPECT_EQ(inhoud(bestand), nieuw);
    EXPECT_EQ(namen(), "koppeling.ini x.ini");
}

TEST_F(SafeFileTest, wat_geen_gewoon_bestand_is_wordt_niet_gelezen_en_niet_vervangen) {
    const std::string pijp = map.file("pijp");
    ASSERT_EQ(mkfifo(pijp.c_str(), 0600), 0);
    const std::string apparaat = test::null_device(map.file("nul"));
    std::filesystem::create_symlink(apparaat, map.file("apparaat"));
    std::filesystem::create_symlink("pijp", map.file("naar_pijp"));
    std::filesystem::create_symlink("nergens", map.file("naar_niets"));
    std::filesystem::create_directory(map.file("map"));
    const std::string eerst = namen();
    stoor("open " + apparaat + " log; open *pijp log");
    for (const std::string naam : {"pijp", "apparaat", "naar_pijp", "naar_niets", "map"}) {
        EXPECT_FALSE(read_small_file(map.file(naam), ruim)) << naam;
        EXPECT_FALSE(replace_file(map.file(naam), nieuw)) << naam;
    }
    EXPECT_EQ(geraakt(0) + geraakt(1), 0); // not even opened
    EXPECT_EQ(namen(), eerst);
    EXPECT_TRUE(std::filesystem::is_fifo(pijp));
    EXPECT_TRUE(std::filesystem::is_symlink(map.file("apparaat")));
    EXPECT_TRUE(std::filesystem::is_character_file(apparaat));
    EXPECT_TRUE(std::filesystem::is_symlink(map.file("naar_niets")));
}

TEST_F(SafeFileTest, de_rechten_van_het_oude_bestand_blijven) {
    ASSERT_EQ(chmod(bestand.c_str(), 0640), 0);
    EXPECT_EQ(geschreven(), "goed");
    struct stat over {};
    ASSERT_EQ(stat(bestand.c_str(), &over), 0);
    EXPECT_EQ(over.st_mode & 07777, 0640U);
}

TEST_F(SafeFileTest, een_bestand_waarin_niet_geschreven_mag_worden_blijft) {
    stoor("stat *x.ini EACCES 2"); // whether it may: the administrator, as whom a test may run, always may
    EXPECT_EQ(geschreven(), "not to be written: EACCES");
    EXPECT_EQ(inhoud(bestand), oud);
}

TEST_F(SafeFileTest, na_een_dood_in_elke_stap_staat_het_oude_of_het_nieuwe_er_en_ruimt_de_volgende_start_op) {
    struct Dood {
        std::string regel;
        std::string daarna;
        bool rommel;
    };
    for (const Dood& dood : {Dood{"open *.nieuw kill", oud, false}, Dood{"write *.nieuw kill", oud, true},
                             Dood{"sync *.nieuw kill", oud, true}, Dood{"close *.nieuw kill", oud, true},
                             Dood{"rename *x.ini kill", oud, true}, Dood{"sync /* kill 2", nieuw, false}}) {
        map.write("x.ini", oud);
        const pid_t kind = fork();
        if (kind == 0) {
            stoor(dood.regel);
            static_cast<void>(geschreven());
            _exit(0);
        }
        int einde = 0;
        ASSERT_EQ(waitpid(kind, &einde, 0), kind);
        ASSERT_TRUE(WIFSIGNALED(einde)) << dood.regel;
        EXPECT_EQ(inhoud(bestand), dood.daarna) << dood.regel;
        EXPECT_EQ(namen() != "x.ini", dood.rommel) << dood.regel;
        remove_leftovers(bestand);
        EXPECT_EQ(namen(), "x.ini") << dood.regel;
        EXPECT_EQ(inhoud(bestand), dood.daarna) << dood.regel;
    }
}

TEST_F(SafeFileTest, alleen_eigen_resten_worden_opgeruimd) {
    const std::vector<std::string> van_anderen = {
        ".x.ini.nieuw",
        ".x.ini.0123456789abcde.nieuw",
        ".x.ini.0123456789abcdef0.nieuw",
        ".x.ini.0123456789abcdeg.nieuw",
        ".x.ini.0123456789abcdef.nieuw2",
        ".x.ini.0123456789abcdef",
        ".y.ini.0123456789abcdef.nieuw",
        "x.ini.0123456789abcdef.nieuw",
        "x.ini.AbCdEf",
    };
    for (const std::string& naam : van_anderen)
        map.write(naam, "");
    std::filesystem::create_directory(map.file(".x.ini.ffffffffffffffff.nieuw"));
    std::filesystem::create_symlink("x.ini", map.file(".x.ini.eeeeeeeeeeeeeeee.nieuw"));
    const std::string eerst = namen();
    map.write(".x.ini.0123456789abcdef.nieuw", "half");
    remove_leftovers(bestand);
    EXPECT_EQ(namen(), eerst);
    EXPECT_EQ(inhoud(bestand), oud);
}

TEST_F(SafeFileTest, resten_naast_het_doel_van_een_koppeling_worden_ook_opgeruimd) {
    std::filesystem::create_directory(map.file("ver"));
    map.write("ver/y.ini", oud);
    map.write("ver/.y.ini.0123456789abcdef.nieuw", "half");
    std::filesystem::create_symlink("ver/y.ini", map.file("koppeling.ini"));
    remove_leftovers(map.file("koppeling.ini"));
    EXPECT_FALSE(std::filesystem::exists(map.file("ver/.y.ini.0123456789abcdef.nieuw")));
    EXPECT_TRUE(std::filesystem::exists(map.file("ver/y.ini")));
}

TEST_F(SafeFileTest, wat_een_ander_nu_schrijft_is_geen_rest) {
    // The write of the child waits in the middle; the child is told by a signal that it may be ended.
    const pid_t kind = fork();
    if (kind == 0) {
        stoor("sync *.nieuw 600000ms");
        static_cast<void>(geschreven());
        _exit(0);
    }
    const auto wacht_op = [&](auto voorwaarde) {
        for (int i = 0; i < 3000 && !voorwaarde(); ++i)
            usleep(10000);
        return voorwaarde();
    };
    // Once it is written it is locked as well.
    const auto geschreven_rest = [&] {
        for (const auto& ding : std::filesystem::directory_iterator(map.file("")))
            if (ding.path().extension() == ".nieuw" && inhoud(ding.path()) == nieuw) return true;
        return false;
    };
    EXPECT_TRUE(wacht_op(geschreven_rest));
    remove_leftovers(bestand);
    EXPECT_TRUE(geschreven_rest());
    kill(kind, SIGKILL);
    ASSERT_EQ(waitpid(kind, nullptr, 0), kind);
    remove_leftovers(bestand);
    EXPECT_EQ(namen(), "x.ini");
}

} // namespace
} // namespace tavelo
