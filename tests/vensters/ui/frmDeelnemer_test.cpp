#include "ui/display/frmDeelnemer.h"

#include "fakes/opstelling.h"
#include "platform/codeWindowPos.h"
#include "ui/main/huidige_combinatie.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

Schermvlak als_vlak(const QRect& r) { return {r.x(), r.y(), r.width(), r.height()}; }

struct FrmDeelnemer : testing::Test {
    test::Opstelling opstelling;
    Programma& programma = opstelling.programma;
    QWidget hoofdvenster;
    QWidget nummervak{&hoofdvenster};
    frmDeelnemer* venster = nullptr;
    int samengesteld = 0;

    void SetUp() override {
        hoofdvenster.setGeometry(0, 0, 400, 300);
        nummervak.setGeometry(10, 10, 100, 50);
        hoofdvenster.show();
        venster = new frmDeelnemer(
            programma, opstelling.bediening.deelnemer_venster,
            [this] {
                ++samengesteld;
                toon_deelnemer_venster(opstelling.bediening);
            },
            hoofdvenster, nummervak);
    }
    void open(const std::vector<Scherm>& schermen = aanwezige_schermen()) const {
        venster->open(schermen);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] Schermvlak plaats() const { return als_vlak(venster->geometry()); }
    void klik_op_de_wand() const { QTest::mouseClick(venster->findChild<QWidget*>("picDeelnemer"), Qt::LeftButton); }
    // In such steps the window looks after a click where the keys are.
    [[nodiscard]] static bool wacht_stappen(int aantal) {
        QTimer stap;
        const QSignalSpy stappen(&stap, &QTimer::timeout);
        stap.start(100);
        return QTest::qWaitFor([&] { return stappen.count() >= aantal; }, 60'000);
    }
    [[nodiscard]] bool toetsen_bij_nummervak() const { return hoofdvenster.isActiveWindow() && nummervak.hasFocus(); }
};

const Scherm bureau{"bureau", {0, 0, 1280, 800}};
const Scherm monitor{"monitor", {1280, 0, 1920, 1080}};
const Scherm beamer{"beamer", {0, 800, 1024, 768}};

TEST_F(FrmDeelnemer, zet_de_vlag_bij_openen_en_wist_haar_bij_sluiten) {
    open();
    EXPECT_TRUE(programma.deelnemer_open);
    EXPECT_EQ(venster->windowTitle(), "Toon combinatie (F11 voor beeldvullend)");
    venster->close();
    EXPECT_FALSE(programma.deelnemer_open);
}

TEST_F(FrmDeelnemer, staat_nooit_over_het_nummervak) {
    open();
    const QRect vak(nummervak.mapToGlobal(QPoint(0, 0)), nummervak.size());
    EXPECT_FALSE(venster->frameGeometry().intersects(vak));
}

TEST_F(FrmDeelnemer, bij_een_andere_maat_vullen_de_vlakken_het_venster_en_wordt_opnieuw_samengesteld) {
    open();
    programma.instellingen.backcolor = 0x0000FF; // red
    programma.instellingen.rubricbackcolor = 0xFF0000;
    programma.instellingen.showrubric = 1;
    programma.instellingen.textsize = 100;
    programma.instellingen.rubrictextsize = 100;
    programma.instellingen.fontname = "Arial";
    const int eerder = samengesteld;
    venster->resize(801, 451);
    QCoreApplication::processEvents();
    EXPECT_GT(samengesteld, eerder);
    auto* vlak = venster->findChild<QWidget*>("picDeelnemer");
    auto* band = venster->findChild<QWidget*>("picRubriek");
    ASSERT_TRUE(vlak && band);
    EXPECT_EQ(vlak->geometry(), QRect(0, 0, 801, 451));
    EXPECT_EQ(opstelling.bediening.deelnemer_venster.picDeelnemer.breedte, 801 * 15);
    EXPECT_EQ(opstelling.bediening.deelnemer_venster.picDeelnemer.hoogte, 451 * 15);
    EXPECT_TRUE(band->isVisible());
    EXPECT_EQ(band->width(), 801);
    const QImage beeld = venster->grab().toImage();
    EXPECT_EQ(beeld.pixelColor(790, 440), QColor(Qt::red));
    EXPECT_EQ(beeld.pixelColor(790, 3), QColor(Qt::blue));
}

TEST_F(FrmDeelnemer, f11_wisselt_en_geeft_zijn_eigen_bijschrift_terug) {
    open();
    QTest::keyClick(venster, Qt::Key_F11);
    EXPECT_TRUE(venster->beeldvullend());
    EXPECT_TRUE(venster->isFullScreen());
    EXPECT_TRUE(staat_bovenaan(*venster));
    QTest::keyClick(venster, Qt::Key_F11);
    EXPECT_FALSE(venster->isFullScreen());
    EXPECT_FALSE(staat_bovenaan(*venster));
    EXPECT_EQ(venster->windowTitle(), "Toon combinatie (F11 voor beeldvullend)");
}

TEST_F(FrmDeelnemer, f11_met_een_andere_toets_en_andere_toetsen_doen_niets) {
    open();
    for (const bool beeldvullend : {false, true}) {
        ASSERT_EQ(venster->beeldvullend(), beeldvullend);
        for (const auto toets : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
            QTest::keyClick(venster, Qt::Key_F11, toets);
            EXPECT_EQ(venster->beeldvullend(), beeldvullend) << toets;
        }
        QTest::keyClick(venster, Qt::Key_Escape);
        QTest::keyClick(venster, Qt::Key_F10);
        EXPECT_EQ(venster->beeldvullend(), beeldvullend);
        EXPECT_EQ(venster->isFullScreen(), beeldvullend);
        EXPECT_TRUE(venster->isVisible());
        QTest::keyClick(venster, Qt::Key_F11);
    }
}

TEST_F(FrmDeelnemer, een_klik_op_het_beeldvullende_venster_geeft_de_toetsen_terug_aan_het_nummervak) {
    nummervak.setFocusPolicy(Qt::StrongFocus);
    QWidget lijst(&hoofdvenster); // had the keys last
    lijst.setFocusPolicy(Qt::StrongFocus);
    lijst.show();
    lijst.setFocus();
    open();
    venster->activateWindow();
    QTest::mouseClick(venster, Qt::LeftButton);
    EXPECT_FALSE(nummervak.hasFocus()); // a window like any other
    QTest::keyClick(venster, Qt::Key_F11);
    venster->activateWindow();
    QCoreApplication::processEvents();
    ASSERT_FALSE(hoofdvenster.isActiveWindow());
    klik_op_de_wand();
    EXPECT_TRUE(QTest::qWaitFor([this] { return toetsen_bij_nummervak(); }));
    EXPECT_TRUE(venster->isFullScreen());
}

TEST_F(FrmDeelnemer, ook_als_het_systeem_het_venster_pas_na_de_klik_de_toetsen_geeft_gaan_ze_terug) {
    nummervak.setFocusPolicy(Qt::StrongFocus);
    open();
    QTest::keyClick(venster, Qt::Key_F11);
    hoofdvenster.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return hoofdvenster.isActiveWindow(); }));
    klik_op_de_wand();
    ASSERT_TRUE(wacht_stappen(3));
    const QSignalSpy naar(qApp, &QGuiApplication::focusWindowChanged);
    venster->activateWindow(); // a slow window manager has only now seen the click
    EXPECT_TRUE(QTest::qWaitFor([&] { return naar.count() >= 2 && toetsen_bij_nummervak(); }));
}

TEST_F(FrmDeelnemer, wie_na_een_klik_daar_zelf_naar_het_beeldvullende_venster_gaat_houdt_de_toetsen) {
    open();
    QTest::keyClick(venster, Qt::Key_F11);
    venster->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return venster->isActiveWindow(); }));
    klik_op_de_wand();
    ASSERT_TRUE(QTest::qWaitFor([this] { return hoofdvenster.isActiveWindow(); }));
    ASSERT_TRUE(wacht_stappen(3)); // seen to have worked
    venster->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return venster->isActiveWindow(); }));
    ASSERT_TRUE(wacht_stappen(7));
    EXPECT_TRUE(venster->isActiveWindow());
}

TEST_F(FrmDeelnemer, alt_f4_sluit_het_gewone_venster_maar_niet_het_beeldvullende) {
    open();
    QTest::keyClick(venster, Qt::Key_F11);
    QTest::keyClick(venster, Qt::Key_F4, Qt::AltModifier);
    EXPECT_TRUE(venster->isVisible());
    venster->close(); // as the window manager asks, which takes the key itself
    EXPECT_TRUE(venster->isVisible());
    EXPECT_TRUE(programma.deelnemer_open);
    QTest::keyClick(venster, Qt::Key_F11);
    QTest::keyClick(venster, Qt::Key_F4, Qt::AltModifier);
    EXPECT_FALSE(venster->isVisible());
    EXPECT_FALSE(programma.deelnemer_open);
}

TEST_F(FrmDeelnemer, het_programma_sluit_het_ook_beeldvullend) {
    open();
    QTest::keyClick(venster, Qt::Key_F11);
    venster->sluit();
    EXPECT_FALSE(venster->isVisible());
    EXPECT_FALSE(programma.deelnemer_open);
}

TEST_F(FrmDeelnemer, f11_maakt_ook_een_gemaximaliseerd_of_verborgen_venster_beeldvullend_en_daarna_gewoon) {
    open();
    for (const Qt::WindowState stand : {Qt::WindowMaximized, Qt::WindowMinimized}) {
        venster->setWindowState(stand);
        QTest::keyClick(venster, Qt::Key_F11);
        EXPECT_EQ(venster->windowState(), Qt::WindowFullScreen) << stand;
        QTest::keyClick(venster, Qt::Key_F11);
        EXPECT_EQ(venster->windowState(), Qt::WindowNoState) << stand;
    }
}

TEST_F(FrmDeelnemer, is_een_eigen_venster_dat_boven_het_hoofdvenster_blijft) {
    open();
    EXPECT_EQ(venster->windowHandle()->transientParent(), hoofdvenster.windowHandle());
    EXPECT_EQ(venster->windowType(), Qt::Dialog); // any other type goes behind its owner when that is clicked
    EXPECT_FALSE(venster->isModal());
    EXPECT_TRUE(venster->windowFlags().testFlags(Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint));
}

TEST_F(FrmDeelnemer, opent_op_het_scherm_waar_het_hoofdvenster_niet_is) {
    open({bureau, monitor});
    EXPECT_EQ(plaats(), (Schermvlak{1760, 270, 960, 540}));
}

TEST_F(FrmDeelnemer, wijkt_uit_naar_een_ander_scherm_en_blijft_daar_beeldvullend) {
    open({bureau, monitor, beamer});
    venster->setGeometry(1500, 200, 960, 540); // dragged to the monitor
    QTest::keyClick(venster, Qt::Key_F11);
    venster->pas_schermen_toe({bureau, beamer});
    EXPECT_TRUE(venster->beeldvullend());
    EXPECT_GT(overlap({venster->normalGeometry().x(), venster->normalGeometry().y(), 960, 540}, beamer.vlak), 0);
    venster->pas_schermen_toe({bureau, monitor, beamer});
    EXPECT_TRUE(venster->beeldvullend());
    EXPECT_EQ(venster->normalGeometry(), QRect(1500, 200, 960, 540));
}

TEST_F(FrmDeelnemer, met_alleen_het_scherm_van_de_operateur_gaat_hij_uit_beeldvullend_en_daarna_terug) {
    open({bureau, monitor});
    venster->setGeometry(1500, 200, 960, 540);
    QTest::keyClick(venster, Qt::Key_F11);
    venster->pas_schermen_toe({bureau});
    EXPECT_FALSE(venster->beeldvullend());
    EXPECT_FALSE(staat_bovenaan(*venster));
    EXPECT_EQ(overlap(plaats(), bureau.vlak), 1LL * venster->width() * venster->height());
    EXPECT_EQ(overlap(plaats(), {0, 0, 400, 300}), 0); // beside the operator's window
    venster->pas_schermen_toe({bureau});               // told once more: nothing happens
    EXPECT_FALSE(venster->beeldvullend());
    venster->pas_schermen_toe({bureau, monitor});
    EXPECT_TRUE(venster->beeldvullend());
    EXPECT_TRUE(staat_bovenaan(*venster));
    EXPECT_EQ(venster->normalGeometry(), QRect(1500, 200, 960, 540));
}

TEST_F(FrmDeelnemer, een_gewoon_venster_gaat_ook_mee_en_komt_terug_op_zijn_plaats) {
    open({bureau, monitor});
    venster->setGeometry(1500, 200, 640, 360);
    venster->pas_schermen_toe({bureau});
    EXPECT_GT(overlap(plaats(), bureau.vlak), 0);
    venster->pas_schermen_toe({bureau, monitor});
    EXPECT_EQ(plaats(), (Schermvlak{1500, 200, 640, 360}));
}

TEST_F(FrmDeelnemer, een_monitor_die_elders_terugkomt_krijgt_het_venster_in_zijn_midden) {
    open({bureau, monitor});
    venster->setGeometry(1500, 200, 640, 360);
    venster->pas_schermen_toe({bureau});
    const Scherm verhuisd{"monitor", {-1920, 0, 1920, 1080}};
    venster->pas_schermen_toe({bureau, verhuisd});
    EXPECT_EQ(plaats(), (Schermvlak{-1440, 270, 960, 540}));
}

TEST_F(FrmDeelnemer, een_andere_monitor_dan_de_verdwenen_krijgt_het_venster_beeldvullend) {
    open({bureau, monitor});
    QTest::keyClick(venster, Qt::Key_F11);
    venster->pas_schermen_toe({bureau});
    EXPECT_FALSE(venster->beeldvullend());
    venster->pas_schermen_toe({bureau, beamer}); // the same wall on another socket
    EXPECT_TRUE(venster->beeldvullend());
    EXPECT_GT(overlap(als_vlak(venster->normalGeometry()), beamer.vlak), 0);
}

TEST_F(FrmDeelnemer, een_gast_bij_de_operateur_blijft_staan_waar_die_hem_neerzet) {
    open({bureau, monitor});
    venster->pas_schermen_toe({bureau});
    venster->setGeometry(600, 400, 640, 360);
    venster->pas_schermen_toe({bureau}); // a panel that changes the room on the screen
    EXPECT_EQ(plaats(), (Schermvlak{600, 400, 640, 360}));
}

TEST_F(FrmDeelnemer, gaat_vanzelf_naar_een_monitor_die_later_wordt_aangezet) {
    open({bureau});
    ASSERT_EQ(overlap(plaats(), monitor.vlak), 0);
    venster->pas_schermen_toe({bureau, monitor});
    EXPECT_EQ(plaats(), (Schermvlak{1760, 270, 960, 540}));
    EXPECT_FALSE(venster->beeldvullend());
    // From now on it belongs there.
    venster->pas_schermen_toe({bureau});
    venster->pas_schermen_toe({bureau, monitor});
    EXPECT_EQ(plaats(), (Schermvlak{1760, 270, 960, 540}));
}

TEST_F(FrmDeelnemer, gaat_ook_gemaximaliseerd_naar_een_monitor_die_later_wordt_aangezet) {
    open({bureau});
    venster->setWindowState(Qt::WindowMaximized);
    venster->pas_schermen_toe({bureau, monitor});
    EXPECT_EQ(venster->windowState(), Qt::WindowNoState);
    EXPECT_EQ(plaats(), (Schermvlak{1760, 270, 960, 540}));
}

TEST_F(FrmDeelnemer, gaat_pas_naar_een_monitor_als_die_iets_anders_toont_dan_het_scherm_van_de_operateur) {
    open({bureau});
    const Schermvlak eerst = plaats();
    venster->pas_schermen_toe({bureau, {"monitor", bureau.vlak}});
    EXPECT_EQ(plaats(), eerst);
    venster->pas_schermen_toe({bureau, monitor});
    EXPECT_EQ(plaats(), (Schermvlak{1760, 270, 960, 540}));
}

TEST_F(FrmDeelnemer, beeldvullend_op_het_enige_scherm_blijft_staan_als_er_een_monitor_bij_komt) {
    open({bureau});
    QTest::keyClick(venster, Qt::Key_F11);
    const QRect gewoon = venster->normalGeometry();
    venster->pas_schermen_toe({bureau, monitor});
    EXPECT_TRUE(venster->beeldvullend());
    EXPECT_EQ(venster->normalGeometry(), gewoon);
}

TEST_F(FrmDeelnemer, f11_bij_de_operateur_gaat_naar_het_vrije_scherm) {
    for (const Qt::WindowState stand : {Qt::WindowNoState, Qt::WindowMaximized}) {
        open({bureau, monitor});
        venster->setGeometry(100, 100, 640, 360);
        venster->setWindowState(stand);
        QTest::keyClick(venster, Qt::Key_F11);
        EXPECT_TRUE(venster->beeldvullend());
        EXPECT_EQ(venster->normalGeometry(), QRect(1760, 270, 960, 540)) << stand;
        QTest::keyClick(venster, Qt::Key_F11); // it stays where the public looks
        EXPECT_EQ(plaats(), (Schermvlak{1760, 270, 960, 540})) << stand;
    }
}

TEST_F(FrmDeelnemer, f11_blijft_waar_het_publiek_kijkt_of_waar_alleen_de_operateur_een_scherm_heeft) {
    open({bureau, monitor, beamer});
    venster->setGeometry(100, 900, 640, 360); // on the beamer, not the first free screen
    QTest::keyClick(venster, Qt::Key_F11);
    EXPECT_EQ(venster->normalGeometry(), QRect(100, 900, 640, 360));
    QTest::keyClick(venster, Qt::Key_F11);
    open({bureau});
    venster->setGeometry(100, 100, 640, 360);
    QTest::keyClick(venster, Qt::Key_F11);
    EXPECT_EQ(venster->normalGeometry(), QRect(100, 100, 640, 360));
}

TEST_F(FrmDeelnemer, een_scherm_erbij_verplaatst_niets) {
    open({bureau, monitor});
    venster->setGeometry(1500, 200, 640, 360);
    venster->pas_schermen_toe({bureau, monitor, beamer});
    EXPECT_EQ(plaats(), (Schermvlak{1500, 200, 640, 360}));
    venster->pas_schermen_toe({}); // for a moment no screen at all
    EXPECT_EQ(plaats(), (Schermvlak{1500, 200, 640, 360}));
    venster->setGeometry(100, 100, 640, 360); // the operator wants it here
    venster->pas_schermen_toe({});
    venster->pas_schermen_toe({bureau, monitor, beamer}); // none of them is new
    EXPECT_EQ(plaats(), (Schermvlak{100, 100, 640, 360}));
}

} // namespace
} // namespace tavelo
