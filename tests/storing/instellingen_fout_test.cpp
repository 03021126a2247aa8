// The settings when the system fails while they are read or written.
#include "app/instellingen.h"
#include "fakes/temp_folder.h"
#include "platform/linux/settings_store.h"
#include "storing/apparaat.h"
#include "storing/storing.h"

#include <QString>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tavelo {
namespace {

using storing::geraakt;
using storing::stoor;

struct InstellingenFout : testing::Test {
    test::TempFolder map;
    QString folder = QString::fromStdString(map.file(""));
    std::string bestand = map.file("Vendalo 3.5 Deelnemer.ini");
    const std::string bewaard = "[Layout]\ntextsize=130\nshowrubric=1\nfontname=Verdana\n[Vreemd]\nsleutel=waarde\n";
    ~InstellingenFout() override { stoor(""); }

    void schrijf(const std::string& tekst) const { map.write("Vendalo 3.5 Deelnemer.ini", tekst); }
    [[nodiscard]] std::string inhoud() const {
        std::ifstream stream(bestand, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    [[nodiscard]] std::optional<std::string> staat_er(std::string_view sectie, std::string_view sleutel) const {
        return IniText(inhoud()).get(sectie, sleutel);
    }
    // A whole run: start, a choice of the operator, the end.
    template <class Keuze>
    void speel(Keuze keuze) const {
        UserSettingsStore opslag(folder);
        Instellingen instellingen = laad_instellingen(opslag);
        keuze(instellingen);
        bewaar_instellingen(instellingen, opslag);
    }
};

const auto niets = [](Instellingen&) {};
const auto groter = [](Instellingen& instellingen) { instellingen.textsize = 200; };

TEST_F(InstellingenFout, een_fout_bij_het_schrijven_laat_alles_zoals_het_was) {
    schrijf(bewaard);
    for (const std::string stap : {"open *.nieuw", "write *.nieuw", "sync *.nieuw", "close *.nieuw", "rename *.ini"})
        for (const std::string fout : {"ENOSPC", "EIO", "EDQUOT"}) {
            stoor(stap + ' ' + fout);
            speel(groter);
            EXPECT_EQ(geraakt(0), 1) << stap;
            EXPECT_EQ(inhoud(), bewaard) << stap;
        }
    stoor("");
    speel(groter);
    EXPECT_EQ(staat_er("Layout", "textsize"), "200");
    EXPECT_EQ(staat_er("Vreemd", "sleutel"), "waarde");
}

TEST_F(InstellingenFout, wat_bij_de_start_een_keer_niet_te_lezen_was_is_er_toch) {
    schrijf(bewaard);
    for (const std::string fout : {"open *.ini EACCES 1", "open *.ini EMFILE 1", "read *.ini EIO 1"}) {
        stoor(fout);
        const UserSettingsStore opslag(folder);
        EXPECT_EQ(laad_instellingen(opslag).textsize, 130) << fout;
        EXPECT_EQ(geraakt(0), 1);
    }
}

TEST_F(InstellingenFout, wat_bij_de_start_niet_te_lezen_was_wordt_niet_door_standaardwaarden_vervangen) {
    schrijf(bewaard);
    for (const std::string fout : {"open *.ini EACCES 1-2", "open *.ini EMFILE 1-2", "read *.ini EIO 1-2"}) {
        stoor(fout);
        speel([](Instellingen& instellingen) {
            EXPECT_EQ(instellingen.textsize, 100);
            EXPECT_EQ(instellingen.fontname, "Arial");
            instellingen.forecolor = 255;
        });
        EXPECT_EQ(geraakt(0), 2);
        stoor("");
        EXPECT_EQ(staat_er("Layout", "textsize"), "130");
        EXPECT_EQ(staat_er("Layout", "showrubric"), "1");
        EXPECT_EQ(staat_er("Layout", "fontname"), "Verdana");
        EXPECT_EQ(staat_er("Layout", "forecolor"), "255");      // chosen
        EXPECT_EQ(staat_er("Layout", "backcolor"), "16777215"); // stood nowhere
        EXPECT_EQ(staat_er("Vreemd", "sleutel"), "waarde");
        schrijf(bewaard);
    }
}

TEST_F(InstellingenFout, een_gelezen_waarde_gaat_terug_naar_de_standaard_als_dat_gekozen_is) {
    schrijf(bewaard);
    speel([](Instellingen& instellingen) { instellingen.textsize = 100; });
    EXPECT_EQ(staat_er("Layout", "textsize"), "100");
    EXPECT_EQ(staat_er("Layout", "fontname"), "Arial");
}

TEST_F(InstellingenFout, wat_aan_het_einde_niet_te_lezen_is_wordt_niet_geschreven) {
    schrijf(bewaard);
    stoor("read *.ini EIO 3+; rename * log"); // the first two meet the text and the end of the file
    speel(groter);
    EXPECT_EQ(geraakt(0), 1);
    EXPECT_EQ(geraakt(1), 0);
    stoor("");
    EXPECT_EQ(inhoud(), bewaard);
}

TEST_F(InstellingenFout, een_pijp_als_instellingenbestand_houdt_niemand_op) {
    ASSERT_EQ(mkfifo(bestand.c_str(), 0600), 0);
    speel([](Instellingen& instellingen) {
        EXPECT_EQ(instellingen.textsize, 100);
        instellingen.textsize = 200;
    });
    EXPECT_TRUE(std::filesystem::is_fifo(bestand));
}

TEST_F(InstellingenFout, een_koppeling_naar_een_apparaat_blijft_en_er_wordt_niets_geschreven) {
    const std::string apparaat = test::null_device(map.file("nul"));
    std::filesystem::create_symlink(apparaat, bestand);
    stoor("open " + apparaat + " log");
    speel(groter);
    EXPECT_EQ(geraakt(0), 0);
    EXPECT_EQ(std::filesystem::read_symlink(bestand), apparaat);
    EXPECT_TRUE(std::filesystem::is_character_file(apparaat));
}

TEST_F(InstellingenFout, een_koppeling_naar_een_bestand_wordt_gevolgd) {
    map.write("echt.ini", bewaard);
    std::filesystem::create_symlink("echt.ini", bestand);
    speel([](Instellingen& instellingen) {
        EXPECT_EQ(instellingen.textsize, 130);
        instellingen.textsize = 200;
    });
    EXPECT_TRUE(std::filesystem::is_symlink(bestand));
    EXPECT_EQ(staat_er("Layout", "textsize"), "200");
}

TEST_F(InstellingenFout, meer_dan_16_mib_wordt_niet_gelezen_en_niet_geschreven) {
    constexpr std::uintmax_t grens = 16 * 1024 * 1024;
    schrijf(bewaard + "; " + std::string(grens - bewaard.size() - 3, 'x') + '\n');
    speel([](Instellingen& instellingen) { EXPECT_EQ(instellingen.textsize, 130); });
    schrijf(bewaard);
    std::filesystem::resize_file(bestand, grens + 1);
    stoor("read *.ini log; rename * log");
    speel([](Instellingen& instellingen) {
        EXPECT_EQ(instellingen.textsize, 100);
        instellingen.textsize = 200;
    });
    EXPECT_EQ(geraakt(0) + geraakt(1), 0);
    EXPECT_EQ(std::filesystem::file_size(bestand), grens + 1);
    EXPECT_EQ(inhoud().substr(0, bewaard.size()), bewaard);
}

TEST_F(InstellingenFout, de_rest_van_een_gedode_schrijver_gaat_bij_de_volgende_start_weg) {
    schrijf(bewaard);
    const std::string rest = map.write(".Vendalo 3.5 Deelnemer.ini.0123456789abcdef.nieuw", "half");
    const std::string vreemd = map.write("Vendalo 3.5 Deelnemer.ini.nieuw", "van een ander");
    EXPECT_EQ(laad_instellingen(UserSettingsStore(folder)).textsize, 130);
    EXPECT_FALSE(std::filesystem::exists(rest));
    EXPECT_TRUE(std::filesystem::exists(vreemd));
}

// A disk that holds the settings and has no room for more. Without the right to mount one, the library plays it.
TEST_F(InstellingenFout, een_volle_schijf_laat_het_bestand_heel) {
    const std::string lang = bewaard + "; " + std::string(3000, 'x') + '\n';
    const pid_t kind = fork();
    if (kind == 0) {
        const bool schijf = unshare(CLONE_NEWNS) == 0 && mount("", "/", "", MS_REC | MS_PRIVATE, nullptr) == 0 &&
                            mount("tmpfs", map.file("").c_str(), "tmpfs", 0, "size=8k") == 0;
        schrijf(lang);
        if (schijf)
            map.write("vulsel", std::string(4096, 'x'));
        else
            stoor("write *.nieuw room0");
        speel(groter);
        const bool heel = inhoud() == lang;
        const bool opgeruimd = !schijf || std::distance(std::filesystem::directory_iterator(map.file("")), {}) == 2;
        if (schijf) std::filesystem::remove(map.file("vulsel"));
        stoor("");
        speel(groter);
        _exit(heel && opgeruimd && staat_er("Layout", "textsize") == "200" ? 0 : 1);
    }
    int einde = 0;
    ASSERT_EQ(waitpid(kind, &einde, 0), kind);
    EXPECT_TRUE(WIFEXITED(einde));
    EXPECT_EQ(WEXITSTATUS(einde), 0);
}

} // namespace
} // namespace tavelo
