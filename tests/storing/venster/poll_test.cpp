// The main window and its poll while the system is slow or fails: the real windows on the real reader.
#include "basis/background_reader.h"
#include "basis/system_time.h"
#include "fakes/hoofdvenster.h"
#include "platform/application.h"
#include "schedule/record/kolommen.h"
#include "storing/storing.h"

#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>

namespace tavelo {
namespace {

using storing::geraakt;
using storing::stoor;
using namespace std::chrono_literals;

std::string rooster(const std::string& naam) {
    std::string tekst = "[Vendalo 3.4]\r\n";
    std::string lijst;
    for (int n = 1; n <= 40; ++n) {
        const std::string nummer = std::to_string(n);
        tekst += "dnr:" + nummer + "\tna:" + naam + " " + nummer + "\r\n";
        lijst += "\tdnr:" + nummer + "\t\t\t\t\t\t";
    }
    return tekst + "rnr:1\troms:Finale" + lijst + "\r\n";
}

struct PollOpEenSlechteShare : test::MetHoofdvenster {
    BackgroundReader draad{post_to_interface};
    FileReader& lezer_van_de_poll() override { return draad; }
    std::string pad = map.write("finale.rst", rooster("Jan"));

    void SetUp() override {
        MetHoofdvenster::SetUp();
        een_uur_geleden();
    }
    ~PollOpEenSlechteShare() override { stoor(""); }

    // At rest, so that the poll does not wait for it to come to rest.
    void een_uur_geleden() const {
        std::filesystem::last_write_time(pad, std::filesystem::file_time_type::clock::now() - 1h);
    }
    void open() { MetHoofdvenster::open(pad); }
    void herschrijf(const std::string& naam) const {
        map.write("finale.rst", rooster(naam));
        een_uur_geleden(); // a finer time than before, and a later stamp than the fakes know
    }
    void tik_en_wacht() {
        tik();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !draad.busy(); }, 60'000));
    }
    [[nodiscard]] std::string naam() const { return std::string(programma.grdRooster.text(1, kolom_naam)); }
    [[nodiscard]] bool staat_op_het_voorbeeld(const std::string& tekst) const {
        const auto& regels = opstelling.bediening.voorbeeld.picDeelnemer.regels();
        return std::ranges::any_of(regels, [&](const GeplaatsteTekst& regel) { return regel.tekst == tekst; });
    }
};

TEST_F(PollOpEenSlechteShare, een_herlezing_die_halverwege_mislukt_laat_de_lijst_staan_tot_ze_wel_lukt) {
    open();
    EXPECT_EQ(naam(), "Jan 1");
    herschrijf("Piet");
    stoor("read *.rst EIO 2");
    tik_en_wacht();
    EXPECT_EQ(geraakt(0), 1);
    EXPECT_EQ(naam(), "Jan 1");
    EXPECT_EQ(programma.grdRooster.rows(), 41);
    EXPECT_EQ(programma.leesfout, GeenRooster::lezen_mislukt);
    stoor("read *.rst EINTR 1-3; read *.rst max7");
    tik_en_wacht();
    EXPECT_EQ(naam(), "Piet 1");
    EXPECT_EQ(programma.grdRooster.rows(), 41);
    EXPECT_EQ(programma.leesfout, std::nullopt);
}

TEST_F(PollOpEenSlechteShare, een_opening_die_mislukt_geeft_een_lege_lijst_die_vanzelf_komt) {
    opstelling.tijdstempels.stamps[pad] = SystemFileStamp().modified(pad).value(); // never later than this
    for (const std::string fout : {"read *.rst EIO 2", "open *.rst EMFILE"}) {
        stoor(fout);
        open();
        EXPECT_EQ(programma.grdRooster.rows(), 1);
        EXPECT_NE(programma.leesfout, std::nullopt);
        EXPECT_EQ(programma.slots[0].bestand, pad);
    }
    stoor("");
    tik_en_wacht();
    EXPECT_EQ(naam(), "Jan 1");
    EXPECT_TRUE(opstelling.berichten.shown.empty());
}

// The share does not answer: an hour is longer than any test.
struct DodeShare : PollOpEenSlechteShare, testing::WithParamInterface<const char*> {};

TEST_P(DodeShare, alles_gaat_door_en_niets_wacht_erop) {
    open();
    herschrijf("Piet");
    stoor(GetParam());
    tik();
    ASSERT_TRUE(QTest::qWaitFor([] { return geraakt(0) > 0; }, 60'000));
    std::chrono::steady_clock::duration langste{};
    for (int n = 1; n <= 40; ++n) {
        const auto begin = std::chrono::steady_clock::now();
        typ(std::to_string(n).c_str());
        QEvent beeld(QEvent::UpdateRequest); // what the screen's next frame would ask for
        QCoreApplication::sendEvent(venster.get(), &beeld);
        langste = std::max(langste, std::chrono::steady_clock::now() - begin);
        EXPECT_TRUE(staat_op_het_voorbeeld("Jan " + std::to_string(n)));
        tik(); // and no other read begins
    }
    std::cout << "longest number while a read hangs: " << langste / 1us << " us\n";
    EXPECT_TRUE(draad.busy());
    EXPECT_EQ(geraakt(0), 1);
    venster->close();
    EXPECT_EQ(opslag.flushes, 1);
    venster.reset();
} // nor does the end of the test's program wait

INSTANTIATE_TEST_SUITE_P(Hangt, DodeShare,
                         testing::Values("stat *finale.rst 3600000ms", "open *finale.rst 3600000ms",
                                         "read *finale.rst 3600000ms 2"));

} // namespace
} // namespace tavelo
