#include "ui/main/frmTavelo.h"

#include "fakes/hoofdvenster.h"
#include "platform/codeWindowPos.h"
#include "platform/qt_text.h"
#include "schedule/record/kolommen.h"
#include "schedule/toeval.h"
#include "ui/display/frmDeelnemer.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <numeric>

namespace tavelo {
namespace {

// A schedule as the suite writes it, with the numbers as start list.
std::string roosterbestand(const std::vector<int>& nummers, const std::string& naam = "Ruiter") {
    std::string tekst = "[Vendalo 3.4]\r\nsinglesignin:0\r\nhoofdstelnummerautomatisch:False\r\n";
    std::string lijst;
    for (const int n : nummers) {
        const std::string nummer = std::to_string(n);
        tekst += "dnr:" + nummer + "\ttype:1\tna:" + naam + " " + nummer + "\tpa:Paard " + nummer + "\r\n";
        lijst += "\tdnr:" + nummer + "\t0\t\t0\t\t0\t";
    }
    tekst += "rnr:1\trid:S1\troms:Proef\trcom:2\trkla:*B*\trcat:*A*" + lijst + "\r\n";
    return tekst;
}

struct FrmTavelo : test::MetHoofdvenster {
    bool muiswiel = true;

    void SetUp() override {
        programma.muiswiel_aanwezig = muiswiel;
        MetHoofdvenster::SetUp();
    }

    [[nodiscard]] frmDeelnemer* deelnemer() const {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* gevonden = dynamic_cast<frmDeelnemer*>(w); gevonden && gevonden->isVisible()) return gevonden;
        return nullptr;
    }
    void open_nummers(const std::vector<int>& nummers) { open(map.write("proef.rst", roosterbestand(nummers))); }
};

TEST_F(FrmTavelo, een_bestand_dat_bij_de_start_genoemd_is_komt_in_het_eerste_rooster) {
    const std::string bestand = map.write("genoemd.rst", roosterbestand({3, 1}));
    venster->open_genoemd(bestand);
    EXPECT_EQ(programma.slots[0].bestand, bestand);
    EXPECT_EQ(programma.rooster_slot, 0);
    EXPECT_EQ(programma.grdRooster.rows(), 3);
    EXPECT_EQ(utf8(venster->windowTitle()), programma.bijschrift);
}

TEST_F(FrmTavelo, toont_na_het_laden_een_leeg_rooster_onder_zijn_titel) {
    EXPECT_EQ(intros, 1);
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ(venster->windowTitle(), "Vendalo 3.5 Tavelo - [naamloos]");
    EXPECT_EQ(grdRooster().model()->rowCount(), 0);
    EXPECT_EQ(grdRooster().model()->columnCount(), 11);
    EXPECT_TRUE(grdRooster().isColumnHidden(kolom_cnr));
    EXPECT_EQ(grdRooster().columnWidth(kolom_naam), 160);
    EXPECT_EQ(venster->focusWidget(), &txtINR());
}

TEST_F(FrmTavelo, elke_besturing_heeft_haar_naam_en_een_nederlandse_naam_voor_de_schermlezer) {
    for (const char* naam :
         {"txtINR", "btnBlader_0", "btnBlader_1", "btnBlader_2", "btnFast_0", "btnFast_1", "btnFast_2", "btnRooster_0",
          "btnRooster_1", "grdRooster", "picDeelnemer", "lblRubriek", "lblRoosterOmschrijving", "lblRingType",
          "lblRingNaam", "lblDagTijd", "lblRubriekLijsten", "lblJury"})
        EXPECT_FALSE(vind(naam).accessibleName().isEmpty()) << naam;
    EXPECT_EQ(vind("picRubriek").parentWidget(), &vind("picDeelnemer"));
    EXPECT_EQ(vind<QLabel>("lblNummer").buddy(), &txtINR());
    for (const char* naam : {"btnFast_0", "btnFast_1", "btnFast_2", "btnRooster_0", "btnBlader_0"})
        EXPECT_FALSE(vind(naam).toolTip().isEmpty()) << naam;
}

TEST_F(FrmTavelo, het_menu_staat_in_zijn_volgorde_met_zijn_teksten) {
    QList<QString> namen;
    for (const QAction* actie : vind<QMenu>("mnuBestand").actions())
        namen += actie->objectName() + (actie->isSeparator() ? "-" : ":" + actie->text());
    EXPECT_EQ(namen, (QList<QString>{"mnuBestand0:&Openen", "mnuBestand1-", "mnuBestand2:&Instellingen", "mnuBestand3-",
                                     "mnuBestand4:&Afsluiten\tAlt+F4"}));
    EXPECT_EQ(venster->menuBar()->objectName(), "MenuBar1");
    EXPECT_EQ(vind<QMenu>("mnuBestand").title(), "&Bestand");
    EXPECT_EQ(vind<QAction>("mnuBestand0").shortcut(), QKeySequence("Ctrl+O"));
    EXPECT_EQ(vind<QAction>("mnuBestand0").data().toString(), "bestandopenen");
    EXPECT_EQ(vind<QAction>("mnuBestand2").data().toString(), "instellingen");
    EXPECT_EQ(vind<QAction>("mnuPopup").text(), "&Popup");
}

TEST_F(FrmTavelo, een_geopend_rooster_staat_in_de_lijst_en_in_de_titel) {
    open_nummers({3, 1, 2});
    EXPECT_EQ(grdRooster().model()->rowCount(), 3);
    EXPECT_EQ(grdRooster().model()->index(0, kolom_inr).data().toString(), "3");
    EXPECT_TRUE(venster->windowTitle().contains("proef.rst")) << utf8(venster->windowTitle());
    EXPECT_TRUE(vind("btnRooster_0").toolTip().contains("proef.rst"));
    EXPECT_EQ(vind<QLabel>("lblRoosterOmschrijving").text().toStdString(), programma.labels.lblRoosterOmschrijving);
    EXPECT_EQ(vind("lblRingType").accessibleName().toStdString(), "Ringtype: " + programma.labels.lblRingType);
}

TEST_F(FrmTavelo, van_een_tekst_zonder_einde_komt_het_begin_op_het_scherm) {
    const std::string begin(1000, 'y');
    const std::string lang(100'000, 'y');
    open(map.write("lang.rst", "[Vendalo 3.4]\r\ndnr:1\tna:" + lang + "\r\nrnr:1\troms:" + lang + "\tdnr:1\r\n"));
    EXPECT_EQ(venster->windowTitle(), QString::fromStdString(programma.bijschrift).left(1000));
    EXPECT_EQ(utf8(vind<QLabel>("lblRoosterOmschrijving").text()), "Ring, " + begin.substr(6));
    EXPECT_EQ(utf8(grdRooster().model()->index(0, kolom_naam).data().toString()), begin);
    EXPECT_EQ(programma.grdRooster.text(1, kolom_naam), lang);
}

TEST_F(FrmTavelo, de_openknop_en_ctrl_o_vragen_om_een_bestand_voor_het_huidige_slot) {
    QTest::mouseClick(&vind("btnFast_0"), Qt::LeftButton);
    EXPECT_EQ(opstelling.open_dialoog.requests.size(), 1U);
    QTest::keyClick(venster.get(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(opstelling.open_dialoog.requests.size(), 2U);
}

TEST_F(FrmTavelo, instellingen_komen_uit_het_menu_en_onder_de_knop) {
    vind<QAction>("mnuBestand2").trigger();
    QTest::mouseClick(&vind("btnFast_1"), Qt::LeftButton);
    EXPECT_EQ(instellingen_getoond, 2);
}

TEST_F(FrmTavelo, een_getypt_nummer_licht_op_en_staat_op_het_voorbeeld) {
    open_nummers({3, 1, 12});
    typ("1");
    EXPECT_EQ(programma.huidige_regel, 2);
    typ("12");
    EXPECT_EQ(programma.huidige_regel, 3);
    EXPECT_EQ(grdRooster().currentIndex().row(), 2);
    const auto& regels = opstelling.bediening.voorbeeld.picDeelnemer.regels();
    EXPECT_TRUE(std::ranges::any_of(regels, [](const GeplaatsteTekst& r) { return r.tekst == "Ruiter 12"; }));
    QTest::keyClick(&txtINR(), Qt::Key_Return);
    EXPECT_EQ(txtINR().selectedText(), "12");
}

TEST_F(FrmTavelo, hetzelfde_nummer_over_zichzelf_getypt_toont_het_in_een_ander_rooster) {
    open_nummers({1, 7});
    typ("7");
    open(map.write("ander.rst", roosterbestand({7}, "Amazone")));
    typ("7");
    EXPECT_EQ(programma.huidig_naam, "Amazone 7");
}

TEST_F(FrmTavelo, het_nummervak_neemt_elke_tekst) {
    open_nummers({7});
    typ("abc");
    EXPECT_EQ(programma.txtINR, "abc");
    EXPECT_EQ(programma.huidig_nummer, 0);
    typ("99999");
    EXPECT_EQ(programma.huidig_nummer, 0);
    typ(" 7");
    EXPECT_EQ(programma.huidige_regel, 1);
    EXPECT_EQ(txtINR().text(), " 7");
}

TEST_F(FrmTavelo, een_nummer_buiten_beeld_wordt_in_beeld_gebracht) {
    std::vector<int> nummers(200);
    for (int i = 0; i < 200; ++i)
        nummers[static_cast<std::size_t>(i)] = i + 1;
    open_nummers(nummers);
    typ("150");
    const QRect rij = grdRooster().visualRect(grdRooster().model()->index(149, kolom_naam));
    EXPECT_TRUE(grdRooster().viewport()->rect().contains(rij));
}

TEST_F(FrmTavelo, een_klik_in_de_lijst_toont_precies_die_rij) {
    open_nummers({5, 6, 5});
    typ("5");
    EXPECT_EQ(programma.huidige_regel, 3);
    QTest::mouseClick(grdRooster().viewport(), Qt::LeftButton, {},
                      grdRooster().visualRect(grdRooster().model()->index(0, kolom_naam)).center());
    EXPECT_EQ(programma.huidige_regel, 1);
    EXPECT_EQ(txtINR().text(), "5");
}

TEST_F(FrmTavelo, na_wissen_kiest_een_klik_op_rij_1_die_rij_weer) {
    open_nummers({5, 6});
    typ("6");
    QTest::mouseClick(&vind("btnBlader_2"), Qt::LeftButton);
    EXPECT_EQ(txtINR().text(), "");
    EXPECT_EQ(programma.huidige_regel, 0);
    QTest::mouseClick(grdRooster().viewport(), Qt::LeftButton, {},
                      grdRooster().visualRect(grdRooster().model()->index(0, kolom_naam)).center());
    EXPECT_EQ(programma.huidige_regel, 1);
    EXPECT_EQ(txtINR().text(), "5");
}

TEST_F(FrmTavelo, bladeren_gaat_met_de_knoppen_en_met_hun_toetsen) {
    open_nummers({5, 6, 7});
    typ("6");
    QTest::mouseClick(&vind("btnBlader_1"), Qt::LeftButton);
    EXPECT_EQ(txtINR().text(), "7");
    QTest::mouseClick(&vind("btnBlader_1"), Qt::LeftButton);
    EXPECT_EQ(txtINR().text(), "7");
    QTest::mouseClick(&vind("btnBlader_0"), Qt::LeftButton);
    QTest::mouseClick(&vind("btnBlader_0"), Qt::LeftButton);
    QTest::mouseClick(&vind("btnBlader_0"), Qt::LeftButton);
    EXPECT_EQ(txtINR().text(), "5");
    QTest::keyClick(venster.get(), Qt::Key_O, Qt::AltModifier); // at once, as every key
    EXPECT_EQ(txtINR().text(), "6");
    QTest::keyClick(venster.get(), Qt::Key_V, Qt::AltModifier);
    EXPECT_EQ(txtINR().text(), "5");
    QTest::keyClick(venster.get(), Qt::Key_W, Qt::AltModifier);
    EXPECT_EQ(txtINR().text(), "");
    EXPECT_EQ(venster->focusWidget(), &txtINR());
}

TEST_F(FrmTavelo, een_cijfer_in_de_lijst_begint_een_nieuw_nummer) {
    open_nummers({5, 6, 16});
    typ("5");
    grdRooster().setFocus();
    QTest::keyClick(&grdRooster(), Qt::Key_1);
    EXPECT_EQ(venster->focusWidget(), &txtINR());
    EXPECT_EQ(txtINR().text(), "1");
    QTest::keyClick(&txtINR(), Qt::Key_6);
    EXPECT_EQ(programma.huidige_regel, 3);
    grdRooster().setFocus();
    QTest::sendKeyEvent(QTest::Press, &grdRooster(), Qt::Key_section, QStringLiteral("6"), Qt::ShiftModifier);
    EXPECT_EQ(txtINR().text(), "6");
    EXPECT_EQ(programma.huidige_regel, 2);
}

TEST_F(FrmTavelo, een_cijfer_in_de_lijst_kiest_zijn_nummer_ook_als_het_al_in_het_vak_staat) {
    open_nummers({5, 6});
    typ("5");
    open(map.write("ander.rst", roosterbestand({6, 5}, "Amazone")));
    grdRooster().setFocus();
    QTest::keyClick(&grdRooster(), Qt::Key_5);
    EXPECT_EQ(txtINR().text(), "5");
    EXPECT_EQ(programma.huidige_regel, 2);
    EXPECT_EQ(programma.huidig_naam, "Amazone 5");
}

TEST_F(FrmTavelo, na_bladeren_kiezen_of_openen_begint_een_cijfer_een_nieuw_nummer) {
    open_nummers({5, 6, 7});
    const std::vector<std::pair<const char*, std::function<void()>>> handelingen = {
        {"next", [this] { QTest::mouseClick(&vind("btnBlader_1"), Qt::LeftButton); }},
        {"previous", [this] { QTest::mouseClick(&vind("btnBlader_0"), Qt::LeftButton); }},
        {"row",
         [this] {
             QTest::mouseClick(grdRooster().viewport(), Qt::LeftButton, {},
                               grdRooster().visualRect(grdRooster().model()->index(1, kolom_naam)).center());
             EXPECT_EQ(txtINR().selectedText(), "6");
             txtINR().setFocus();
         }},
        {"slot", [this] { QTest::mouseClick(&vind("btnRooster_0"), Qt::LeftButton); }},
        {"file",
         [this] {
             open_nummers({5, 6, 7});
         }},
    };
    for (const auto& [naam, handel] : handelingen) {
        typ("6");
        ASSERT_FALSE(txtINR().hasSelectedText()) << naam;
        handel();
        EXPECT_EQ(txtINR().selectedText(), txtINR().text()) << naam;
        QTest::keyClick(&txtINR(), Qt::Key_7);
        EXPECT_EQ(txtINR().text(), "7") << naam;
        EXPECT_EQ(programma.huidige_regel, 3) << naam;
    }
}

TEST_F(FrmTavelo, het_nummervak_is_uitgekozen_zodra_het_de_focus_krijgt) {
    open_nummers({5, 6});
    typ("6");
    for (const Qt::FocusReason reden : {Qt::OtherFocusReason, Qt::TabFocusReason, Qt::ActiveWindowFocusReason}) {
        grdRooster().setFocus();
        txtINR().deselect();
        txtINR().setFocus(reden);
        EXPECT_EQ(txtINR().selectedText(), "6") << reden;
    }
    grdRooster().setFocus();
    QTest::mouseClick(&txtINR(), Qt::LeftButton);
    EXPECT_EQ(txtINR().selectedText(), "6");
    QTest::mouseClick(&txtINR(), Qt::LeftButton); // a second click goes to a place in it
    EXPECT_FALSE(txtINR().hasSelectedText());
    QTest::keyClick(venster.get(), Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(venster->focusWidget(), &txtINR());
}

TEST_F(FrmTavelo, pijltjes_bladzijden_plus_en_min_bladeren_in_het_nummervak) {
    open_nummers({5, 6, 7});
    typ("6");
    const auto druk = [this](Qt::Key toets, const char* verwacht, Qt::KeyboardModifiers met = Qt::NoModifier) {
        QTest::keyClick(&txtINR(), toets, met);
        EXPECT_EQ(txtINR().text(), verwacht) << toets;
        EXPECT_EQ(txtINR().selectedText(), verwacht) << toets;
    };
    druk(Qt::Key_Down, "7");
    druk(Qt::Key_Up, "6");
    druk(Qt::Key_PageDown, "7");
    druk(Qt::Key_PageUp, "6");
    druk(Qt::Key_Plus, "7", Qt::ShiftModifier);
    druk(Qt::Key_Minus, "6");
    druk(Qt::Key_Plus, "7", Qt::KeypadModifier);
    druk(Qt::Key_Minus, "6", Qt::KeypadModifier);
    druk(Qt::Key_Minus, "5");
    druk(Qt::Key_Minus, "5"); // the first one stays, and no sign is typed
    EXPECT_EQ(programma.huidige_regel, 1);
    typ("");
    QTest::keyClick(&txtINR(), Qt::Key_Backspace);
    QTest::keyClick(&txtINR(), Qt::Key_Minus);
    QTest::keyClick(&txtINR(), Qt::Key_Plus);
    EXPECT_EQ(txtINR().text(), "");
}

TEST_F(FrmTavelo, na_een_pauze_begint_een_cijfer_dat_niet_kan_vervolgen_een_nieuw_nummer) {
    open_nummers({72, 1, 17});
    quint64 nu = 1000;
    const auto druk = [&](char cijfer, quint64 na) {
        nu += na;
        QKeyEvent toets(QEvent::KeyPress, Qt::Key_0 + (cijfer - '0'), Qt::NoModifier, QString(QLatin1Char(cijfer)));
        toets.setTimestamp(nu);
        QApplication::sendEvent(&txtINR(), &toets);
        return txtINR().text();
    };
    EXPECT_EQ(druk('7', 0), "7");
    EXPECT_EQ(druk('2', 300), "72");
    EXPECT_EQ(druk('1', 1500), "1");
    EXPECT_EQ(programma.huidige_regel, 2);
    EXPECT_EQ(druk('7', 60'000), "17"); // goes on with a number of the list
    EXPECT_EQ(programma.huidige_regel, 3);
    EXPECT_EQ(druk('2', 1499), "172"); // no pause yet
    EXPECT_EQ(druk('7', 2000), "7");
}

TEST_F(FrmTavelo, shift_en_functietoetsen_zijn_niet_getypt_en_bekorten_de_pauze_niet) {
    open_nummers({72, 1});
    quint64 nu = 1000;
    const auto druk = [&](Qt::Key toets, const char* tekst, quint64 na) {
        nu += na;
        QKeyEvent event(QEvent::KeyPress, toets, Qt::NoModifier, tekst);
        event.setTimestamp(nu);
        QApplication::sendEvent(&txtINR(), &event);
        return txtINR().text();
    };
    for (const Qt::Key tussendoor : {Qt::Key_Shift, Qt::Key_F1, Qt::Key_F11}) {
        typ("");
        druk(Qt::Key_7, "7", 0);
        EXPECT_EQ(druk(Qt::Key_2, "2", 300), "72");
        EXPECT_EQ(druk(tussendoor, "", 1450), "72");
        EXPECT_EQ(druk(Qt::Key_1, "1", 50), "1") << tussendoor;
    }
}

TEST_F(FrmTavelo, wissen_met_zijn_toets_en_meteen_een_nummer_typen_verliest_geen_cijfer) {
    open_nummers({12, 124});
    typ("12");
    grdRooster().setFocus();
    QTest::keyClick(venster.get(), Qt::Key_W, Qt::AltModifier);
    for (const Qt::Key cijfer : {Qt::Key_1, Qt::Key_2, Qt::Key_4})
        QTest::keyClick(venster->focusWidget(), cijfer);
    EXPECT_EQ(txtINR().text(), "124");
    QCoreApplication::processEvents();
    EXPECT_EQ(txtINR().text(), "124");
    EXPECT_EQ(programma.huidige_regel, 2);
}

TEST_F(FrmTavelo, de_slotknoppen_staan_in_en_uit_en_rechts_vraagt_een_ander_bestand) {
    auto& slot0 = vind<QToolButton>("btnRooster_0");
    auto& slot1 = vind<QToolButton>("btnRooster_1");
    EXPECT_TRUE(slot0.isChecked());
    open_nummers({1});
    opstelling.open_dialoog.answer = map.write("tweede.rst", roosterbestand({8, 9}));
    QTest::mouseClick(&slot1, Qt::LeftButton); // no file yet: asks
    EXPECT_TRUE(slot1.isChecked());
    EXPECT_FALSE(slot0.isChecked());
    EXPECT_EQ(grdRooster().model()->rowCount(), 2);
    QTest::mouseClick(&slot0, Qt::LeftButton); // has one: reloads
    EXPECT_TRUE(slot0.isChecked());
    EXPECT_FALSE(slot1.isChecked());
    EXPECT_EQ(grdRooster().model()->rowCount(), 1);
    EXPECT_EQ(opstelling.open_dialoog.requests.size(), 2U);
    QTest::mouseClick(&slot0, Qt::LeftButton);
    EXPECT_TRUE(slot0.isChecked()); // stays down

    opstelling.open_dialoog.answer = map.write("derde.rst", roosterbestand({1, 2, 3}));
    QContextMenuEvent rechts(QContextMenuEvent::Mouse, QPoint(5, 5), slot1.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&slot1, &rechts);
    EXPECT_EQ(opstelling.open_dialoog.requests.size(), 3U);
    EXPECT_TRUE(slot1.isChecked());
    EXPECT_EQ(grdRooster().model()->rowCount(), 3);
}

struct FrmTaveloZonderWiel : FrmTavelo {
    FrmTaveloZonderWiel() { muiswiel = false; }
};

TEST_F(FrmTaveloZonderWiel, kiest_een_andere_muisknop_een_slot_evengoed) {
    QTest::mouseClick(&vind("btnRooster_1"), Qt::MiddleButton);
    EXPECT_EQ(programma.rooster_slot, 1);
    EXPECT_TRUE(vind<QToolButton>("btnRooster_1").isChecked());
}

TEST_F(FrmTavelo, een_andere_muisknop_maakt_een_slot_het_huidige_zonder_te_laden) {
    auto& slot0 = vind<QToolButton>("btnRooster_0");
    auto& slot1 = vind<QToolButton>("btnRooster_1");
    open_nummers({1});
    for (const Qt::MouseButton knop : {Qt::MiddleButton, Qt::BackButton}) {
        QTest::mouseClick(&slot1, knop);
        EXPECT_EQ(programma.rooster_slot, 1);
        EXPECT_EQ(programma.rooster_bestand, "");
        EXPECT_TRUE(slot1.isChecked());
        EXPECT_FALSE(slot0.isChecked());
        QTest::mouseClick(&slot0, knop);
        EXPECT_EQ(programma.rooster_slot, 0);
        EXPECT_TRUE(slot0.isChecked());
        EXPECT_FALSE(slot1.isChecked());
    }
    EXPECT_EQ(opstelling.open_dialoog.requests.size(), 1U); // of the list that is open
    EXPECT_EQ(grdRooster().model()->rowCount(), 1);
}

TEST_F(FrmTavelo, afsluiten_met_de_muis_doet_niets_en_alt_f4_sluit) {
    vind<QAction>("mnuBestand4").trigger();
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ(opslag.flushes, 0);
    QTest::keyClick(venster.get(), Qt::Key_F4, Qt::AltModifier);
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ(opslag.flushes, 1);
}

TEST_F(FrmTavelo, sluiten_sluit_het_monitorvenster_en_bewaart_een_keer) {
    vind<QAction>("mnuPopup").trigger();
    ASSERT_NE(deelnemer(), nullptr);
    venster->close();
    EXPECT_EQ(deelnemer(), nullptr);
    EXPECT_FALSE(programma.deelnemer_open);
    EXPECT_EQ(opslag.flushes, 1);
    EXPECT_EQ(opstelling.muisaanwijzer.depth, 0);
    EXPECT_EQ(opslag.get("Vendalo 3.5 Deelnemer", "Layout", "backcolor"), "16777215");
    venster->close();
    EXPECT_EQ(opslag.flushes, 1);
}

TEST_F(FrmTavelo, popup_twee_keer_opent_en_sluit_het_monitorvenster) {
    vind<QAction>("mnuPopup").trigger();
    ASSERT_NE(deelnemer(), nullptr);
    EXPECT_TRUE(programma.deelnemer_open);
    EXPECT_EQ(deelnemer()->windowTitle(), "Toon combinatie (F11 voor beeldvullend)");
    vind<QAction>("mnuPopup").trigger();
    EXPECT_EQ(deelnemer(), nullptr);
    EXPECT_FALSE(programma.deelnemer_open);
    QTest::mouseClick(&vind("btnFast_2"), Qt::LeftButton);
    EXPECT_NE(deelnemer(), nullptr);
    deelnemer()->close(); // by its own close box
    QTest::mouseClick(&vind("btnFast_2"), Qt::LeftButton);
    EXPECT_NE(deelnemer(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(programma.deelnemer_open);
}

TEST_F(FrmTavelo, f11_zonder_monitorvenster_doet_niets) {
    const auto druk = [this] {
        for (const auto toetsen : {Qt::NoModifier, Qt::ShiftModifier})
            QTest::keyClick(&txtINR(), Qt::Key_F11, toetsen);
        EXPECT_EQ(deelnemer(), nullptr);
        EXPECT_EQ(txtINR().text(), "");
        EXPECT_EQ(venster->windowTitle(), "Vendalo 3.5 Tavelo - [naamloos]");
        EXPECT_EQ(venster->windowState(), Qt::WindowNoState);
        EXPECT_FALSE(staat_bovenaan(*venster));
    };
    druk();
    vind<QAction>("mnuPopup").trigger();
    const QPointer<frmDeelnemer> gesloten = deelnemer();
    vind<QAction>("mnuPopup").trigger();
    druk(); // the window is not gone yet, but closed
    ASSERT_TRUE(gesloten);
    EXPECT_EQ(gesloten->windowTitle(), "Toon combinatie (F11 voor beeldvullend)");
}

TEST_F(FrmTavelo, f11_maakt_het_monitorvenster_beeldvullend_en_weer_gewoon) {
    vind<QAction>("mnuPopup").trigger();
    frmDeelnemer& monitor = *deelnemer();
    QTest::keyClick(&txtINR(), Qt::Key_F11);
    EXPECT_EQ(monitor.windowTitle(), "");
    EXPECT_TRUE(monitor.isFullScreen());
    EXPECT_TRUE(staat_bovenaan(monitor));
    EXPECT_EQ(monitor.cursor().shape(), Qt::BlankCursor);
    QTest::keyClick(&txtINR(), Qt::Key_F11);
    EXPECT_EQ(monitor.windowTitle(), "Monitor venster (F11 voor beeldvullend)");
    EXPECT_EQ(monitor.windowState(), Qt::WindowNoState);
    EXPECT_FALSE(staat_bovenaan(monitor));
    EXPECT_EQ(monitor.cursor().shape(), Qt::ArrowCursor);
    for (const auto toets : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        QTest::keyClick(&txtINR(), Qt::Key_F11, toets);
        EXPECT_FALSE(monitor.isFullScreen());
        EXPECT_EQ(monitor.windowTitle(), "Monitor venster (F11 voor beeldvullend)");
    }
}

TEST_F(FrmTavelo, een_getypt_nummer_staat_ook_op_het_open_monitorvenster) {
    open_nummers({4});
    vind<QAction>("mnuPopup").trigger();
    EXPECT_TRUE(opstelling.bediening.deelnemer_venster.picDeelnemer.regels().empty());
    typ("4");
    EXPECT_FALSE(opstelling.bediening.deelnemer_venster.picDeelnemer.regels().empty());
}

TEST_F(FrmTavelo, kleiner_dan_9000_bij_6000_twips_krimpen_lijst_en_voorbeeld_niet_verder) {
    venster->resize(600, 400 + venster->menuBar()->height());
    const QRect lijst = grdRooster().geometry();
    const QRect voorbeeld = vind("picDeelnemer").geometry();
    venster->resize(500, 200);
    EXPECT_EQ(grdRooster().geometry(), lijst);
    EXPECT_EQ(vind("picDeelnemer").geometry(), voorbeeld);
    EXPECT_LT(venster->height(), 300);
}

TEST_F(FrmTavelo, in_een_klein_venster_zijn_nummervak_en_knoppen_heel_en_is_het_voorbeeld_nog_te_zien) {
    const QWidget& binnen = *grdRooster().parentWidget();
    for (const QSize maat : {QSize(600, 400), QSize(853, 480), QSize(960, 500), QSize(1300, 700), QSize(600, 400)}) {
        const QSize rand = venster->size() - binnen.size(); // menu and status line
        venster->resize(maat + rand);
        QCoreApplication::processEvents();
        ASSERT_EQ(binnen.size(), maat);
        QRegion bezet;
        for (const char* naam : {"lblNummer", "txtINR", "btnBlader_0", "btnBlader_1", "btnBlader_2", "btnRooster_0",
                                 "btnRooster_1", "btnFast_0", "btnFast_1", "btnFast_2"}) {
            const QWidget& besturing = vind(naam);
            const QRect plaats(besturing.mapTo(&binnen, QPoint(0, 0)), besturing.size());
            EXPECT_TRUE(binnen.rect().contains(plaats)) << naam << " at " << maat.width();
            EXPECT_TRUE(besturing.parentWidget()->rect().contains(besturing.geometry())) << naam;
            EXPECT_GE(plaats.width(), besturing.minimumSizeHint().width()) << naam << " at " << maat.width();
            EXPECT_FALSE(bezet.intersects(plaats)) << naam << " at " << maat.width();
            bezet += plaats;
        }
        for (const char* naam : {"grdRooster", "picDeelnemer", "frameRoosterinstellingen", "lblRoosterOmschrijving"}) {
            EXPECT_TRUE(binnen.rect().contains(vind(naam).geometry())) << naam << " at " << maat.width();
            EXPECT_FALSE(bezet.intersects(vind(naam).geometry())) << naam << " at " << maat.width();
        }
        EXPECT_GE(vind("picDeelnemer").width(), 160) << maat.width(); // 2,400 twips
        EXPECT_GE(vind("frameRoosterinstellingen").width(), 100) << maat.width();
    }
}

TEST_F(FrmTavelo, lijst_en_voorbeeld_groeien_mee_met_het_venster) {
    venster->resize(1300, 800);
    const QWidget& binnen = *grdRooster().parentWidget();
    EXPECT_EQ(binnen.height() - (grdRooster().y() + grdRooster().height()), 7); // 102 twips
    const QWidget& voorbeeld = vind("picDeelnemer");
    EXPECT_EQ(binnen.width() - (voorbeeld.x() + voorbeeld.width()), 8); // 120 twips
    EXPECT_EQ(binnen.height() - (voorbeeld.y() + voorbeeld.height()), 8);
    const QWidget& frame = vind("frameRoosterinstellingen");
    EXPECT_EQ(binnen.width() - (frame.x() + frame.width()), 8);
    EXPECT_EQ(vind("lblJury").x() + vind("lblJury").width() + 8, frame.width());
    EXPECT_EQ(opstelling.bediening.voorbeeld.picDeelnemer.breedte, voorbeeld.width() * 15);
}

TEST_F(FrmTavelo, de_tabvolgorde_volgt_het_oog) {
    QList<QString> volgorde;
    QWidget* w = &txtINR();
    do {
        if (!w->objectName().isEmpty() && (w->focusPolicy() & Qt::TabFocus)) volgorde += w->objectName();
        w = w->nextInFocusChain();
    } while (w != &txtINR());
    EXPECT_EQ(volgorde, (QList<QString>{"txtINR", "btnBlader_0", "btnBlader_1", "btnBlader_2", "btnRooster_0",
                                        "btnRooster_1", "btnFast_0", "btnFast_1", "btnFast_2", "grdRooster"}));
}

TEST_F(FrmTavelo, knoppen_nemen_bij_een_klik_de_focus_niet_van_het_nummervak) {
    open_nummers({1, 2});
    for (const char* naam : {"btnBlader_0", "btnBlader_1", "btnBlader_2", "btnRooster_0"}) {
        QTest::mouseClick(&vind(naam), Qt::LeftButton);
        EXPECT_EQ(venster->focusWidget(), &txtINR()) << naam;
    }
}

// With a file that the poll watches.
struct FrmTaveloTik : FrmTavelo {
    std::string pad;
    void SetUp() override {
        FrmTavelo::SetUp();
        pad = map.write("volg.rst", roosterbestand({1, 2, 3}));
        zet_tijd({2026, 6, 13, 9, 0, 0});
        open(pad);
    }
    void zet_tijd(const LocalTime& tijd) { MetHoofdvenster::zet_tijd(pad, tijd); }
    void een_minuut_later() {
        LocalTime tijd = opstelling.tijdstempels.stamps[pad];
        ++tijd.minute;
        zet_tijd(tijd);
    }
    void herschrijf(const std::vector<int>& nummers, const std::string& naam = "Ruiter") {
        map.write("volg.rst", roosterbestand(nummers, naam));
        een_minuut_later();
    }
    // What the screen's next frame would ask for, without waiting for it.
    void schilder() const {
        QCoreApplication::sendPostedEvents();
        QEvent beeld(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(venster.get(), &beeld);
    }
};

TEST_F(FrmTaveloTik, de_klok_staat_op_tien_seconden_en_loopt) {
    EXPECT_EQ(vind<QTimer>("Timer1").interval(), 10000);
    EXPECT_TRUE(vind<QTimer>("Timer1").isActive());
}

TEST_F(FrmTaveloTik, een_gewijzigd_bestand_wijzigt_de_lijst_zonder_wat_getypt_is_te_storen) {
    typ("2");
    txtINR().setCursorPosition(0);
    QSignalSpy resets(grdRooster().model(), &QAbstractItemModel::modelReset);
    herschrijf({1, 2, 3}, "Amazone");
    tik();
    EXPECT_EQ(grdRooster().model()->index(1, kolom_naam).data().toString(), "Amazone 2");
    EXPECT_EQ(resets.size(), 0);
    EXPECT_EQ(txtINR().text(), "2");
    EXPECT_EQ(txtINR().cursorPosition(), 0);
    EXPECT_EQ(venster->focusWidget(), &txtINR());
    EXPECT_EQ(grdRooster().currentIndex().row(), 0); // where filling the times ends
}

TEST_F(FrmTaveloTik, drie_gewijzigde_cellen_hertekenen_drie_cellen_en_laten_lijst_en_monitor_staan) {
    venster->resize(1300, 760); // wide enough for all columns
    std::vector<int> nummers(60);
    std::iota(nummers.begin(), nummers.end(), 1);
    herschrijf(nummers);
    tik();
    vind<QAction>("mnuPopup").trigger();
    typ("22");
    grdRooster().verticalScrollBar()->setValue(19);
    programma.grdRooster.set_row(1); // where filling the times ends
    programma.grdRooster.set_column(3);
    schilder();

    struct SchilderKijker final : QObject {
        QRegion geschilderd;
        bool eventFilter(QObject*, QEvent* gebeurtenis) override {
            if (gebeurtenis->type() == QEvent::Paint) geschilderd += static_cast<QPaintEvent*>(gebeurtenis)->region();
            return false;
        }
    } kijker;
    grdRooster().viewport()->installEventFilter(&kijker);
    QSignalSpy gemeld(grdRooster().model(), &QAbstractItemModel::dataChanged);
    QSignalSpy resets(grdRooster().model(), &QAbstractItemModel::modelReset);
    const std::vector<GeplaatsteTekst> monitor = opstelling.bediening.deelnemer_venster.picDeelnemer.regels();

    std::string tekst = roosterbestand(nummers);
    for (const char* paard : {"Paard 21\r", "Paard 22\r", "Paard 24\r"})
        tekst.replace(tekst.find(paard), 5, "Pony");
    map.write("volg.rst", tekst);
    een_minuut_later();
    tik();
    schilder();

    QRegion drie_cellen;
    for (const int rij : {20, 21, 23})
        drie_cellen += grdRooster().visualRect(grdRooster().model()->index(rij, kolom_paard));
    drie_cellen &= grdRooster().viewport()->rect(); // the list may be narrower than its columns
    EXPECT_EQ(kijker.geschilderd, drie_cellen);
    EXPECT_EQ(gemeld.size(), 3);
    EXPECT_EQ(resets.size(), 0);
    EXPECT_EQ(grdRooster().verticalScrollBar()->value(), 19);
    EXPECT_EQ(txtINR().text(), "22");
    EXPECT_FALSE(monitor.empty());
    EXPECT_EQ(opstelling.bediening.deelnemer_venster.picDeelnemer.regels(), monitor);
}

TEST_F(FrmTaveloTik, de_lijst_op_het_scherm_volgt_duizenden_herschreven_en_gehavende_bestanden) {
    const std::uint32_t begin = test::beginwaarde(21112026);
    std::cout << "TAVELO_SEED=" << begin << '\n';
    test::Toeval toeval(begin);
    typ("2");
    txtINR().setCursorPosition(0);
    QAbstractItemModel& model = *grdRooster().model();
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    constexpr int stappen = 2000;
    for (int stap = 0; stap < stappen; ++stap) {
        std::vector<int> nummers;
        for (int rijen = toeval.onder(60); rijen > 0; --rijen)
            nummers.push_back(1 + toeval.onder(70));
        std::string tekst = roosterbestand(nummers, toeval.uit(std::vector<std::string>{"Ruiter", "Amazone"}));
        if (toeval.een_op(4)) tekst.resize(static_cast<std::size_t>(toeval.onder(static_cast<int>(tekst.size()))));
        if (toeval.een_op(4)) std::filesystem::remove(pad);
        if (!toeval.een_op(5)) std::filesystem::rename(map.write("volg.nieuw", tekst), pad);
        if (toeval.een_op(3)) programma.grdRooster.set_top_row(1 + toeval.onder(60));
        zet_tijd({2026, 6, 13, 10 + stap / 3600, stap / 60 % 60, stap % 60});
        tik();

        const Grid& grid = programma.grdRooster;
        ASSERT_EQ(model.rowCount(), grid.rows() - 1) << "step " << stap;
        for (int rij = 1; rij < grid.rows(); ++rij)
            for (int kolom = 0; kolom < grid.columns(); ++kolom)
                ASSERT_EQ(utf8(model.index(rij - 1, kolom).data().toString()), grid.text(rij, kolom));
        ASSERT_EQ(grdRooster().verticalScrollBar()->value() + 1, grid.top_row()) << "step " << stap;
        ASSERT_EQ(txtINR().text(), "2");
        ASSERT_EQ(txtINR().cursorPosition(), 0);
        ASSERT_EQ(venster->focusWidget(), &txtINR());
    }
    EXPECT_EQ(resets.size(), 0);
    EXPECT_TRUE(opstelling.berichten.shown.empty());
    EXPECT_EQ(opstelling.muisaanwijzer.depth, 0);
}

TEST_F(FrmTaveloTik, het_label_wordt_groen_zodra_het_lezen_begint_lang_genoeg_om_te_zien) {
    struct KleurKijker final : QObject {
        QList<QColor> kleuren;
        bool eventFilter(QObject* label, QEvent* gebeurtenis) override {
            if (gebeurtenis->type() == QEvent::Paint)
                kleuren += static_cast<QWidget*>(label)->palette().color(QPalette::Window);
            return false;
        }
    } kijker;
    auto& label = vind("lblRoosterOmschrijving");
    const QColor gewoon = label.palette().color(QPalette::Window);
    label.installEventFilter(&kijker);
    herschrijf({1, 2, 3, 4});
    tik();
    const QColor lichtgroen(0xBB, 0xFF, 0xBB);
    ASSERT_FALSE(kijker.kleuren.empty());
    EXPECT_EQ(kijker.kleuren, QList<QColor>(kijker.kleuren.size(), lichtgroen));
    EXPECT_EQ(grdRooster().model()->rowCount(), 4);

    // The step itself is over long before anybody could have seen it.
    auto& groen = vind<QTimer>("TimerGroen");
    EXPECT_TRUE(groen.isActive());
    groen.stop();
    QMetaObject::invokeMethod(&groen, "timeout", Qt::DirectConnection);
    EXPECT_EQ(label.palette().color(QPalette::Window), gewoon);
}

TEST_F(FrmTaveloTik, een_pas_gewijzigd_bestand_wordt_twee_seconden_later_nog_eens_bekeken) {
    auto& nog_eens = vind<QTimer>("TimerNogeens");
    EXPECT_EQ(nog_eens.interval(), 2000);
    map.write("volg.rst", roosterbestand({1, 2, 3, 4}));
    const auto morgen = std::filesystem::file_time_type::clock::now() + std::chrono::hours(24);
    std::filesystem::last_write_time(pad, morgen); // newer, and not older than two seconds however slow the test is
    tik();
    EXPECT_EQ(grdRooster().model()->rowCount(), 3);
    EXPECT_TRUE(nog_eens.isActive());
    nog_eens.stop();
    QMetaObject::invokeMethod(&nog_eens, "timeout", Qt::DirectConnection);
    EXPECT_EQ(grdRooster().model()->rowCount(), 4);
    std::filesystem::last_write_time(pad, morgen + std::chrono::seconds(1));
    tik();
    EXPECT_TRUE(nog_eens.isActive());
    venster->close();
    EXPECT_FALSE(nog_eens.isActive());
}

// A share that has not answered yet.
struct FrmTaveloTraag : FrmTavelo {
    test::FakeReader share;
    FileReader& lezer_van_de_poll() override { return share; }
};

TEST_F(FrmTaveloTraag, zolang_de_share_niet_antwoordt_gaat_het_werk_door_en_het_programma_dicht) {
    open_nummers({3, 1, 12});
    const std::string pad = programma.rooster_bestand;
    tik();
    ASSERT_EQ(share.looks_at, pad);
    typ("12");
    EXPECT_EQ(programma.huidige_regel, 3);
    EXPECT_EQ(grdRooster().currentIndex().row(), 2);
    EXPECT_EQ(opstelling.muisaanwijzer.depth, 0); // no hourglass: nobody waits
    venster->close();
    EXPECT_EQ(opslag.flushes, 1);
    venster.reset();
    EXPECT_EQ(share.forgotten, 1);
}

TEST_F(FrmTaveloTik, midden_in_het_lezen_gebeurt_er_niets) {
    herschrijf({1, 2, 3, 4});
    programma.grdRooster.set_redraw(false); // a reader waits for the answer to its message
    tik();
    EXPECT_EQ(programma.grdRooster.rows(), 4);
    programma.grdRooster.set_redraw(true);
    tik();
    EXPECT_EQ(programma.grdRooster.rows(), 5);
}

struct FrmTaveloWiel : FrmTavelo {
    void SetUp() override {
        FrmTavelo::SetUp();
        std::vector<int> nummers(200);
        for (int i = 0; i < 200; ++i)
            nummers[static_cast<std::size_t>(i)] = i + 1;
        open_nummers(nummers);
    }
    // The event arrives at `ontvanger`; the pointer is over `onder`.
    void draai(QWidget& ontvanger, const QWidget& onder, int eenheden) const {
        const QPoint punt = onder.mapToGlobal(onder.rect().center());
        QWheelEvent gebeurtenis(ontvanger.mapFromGlobal(punt), punt, {}, QPoint(0, eenheden), Qt::NoButton,
                                Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&ontvanger, &gebeurtenis);
    }
    [[nodiscard]] int bovenste() const { return programma.grdRooster.top_row(); }
};

TEST_F(FrmTaveloWiel, een_klik_van_het_wiel_is_een_rij_hoe_groot_de_draai_ook_is) {
    draai(*grdRooster().viewport(), grdRooster(), -120);
    EXPECT_EQ(bovenste(), 2);
    EXPECT_EQ(grdRooster().verticalScrollBar()->value(), 1);
    draai(*grdRooster().viewport(), grdRooster(), -600);
    EXPECT_EQ(bovenste(), 3);
    draai(*grdRooster().viewport(), grdRooster(), 120);
    draai(*grdRooster().viewport(), grdRooster(), 120);
    draai(*grdRooster().viewport(), grdRooster(), 120);
    EXPECT_EQ(bovenste(), 1);
}

TEST_F(FrmTaveloWiel, kleine_draaien_van_een_plaat_tellen_op_tot_een_klik) {
    for (int i = 0; i < 7; ++i)
        draai(*grdRooster().viewport(), grdRooster(), -15);
    EXPECT_EQ(bovenste(), 1);
    draai(*grdRooster().viewport(), grdRooster(), -15);
    EXPECT_EQ(bovenste(), 2);
}

TEST_F(FrmTaveloWiel, het_wiel_gaat_naar_wat_onder_de_aanwijzer_staat) {
    draai(vind("picDeelnemer"), grdRooster(), -120); // the picture gets it, the pointer is over the list
    EXPECT_EQ(bovenste(), 2);
    draai(*grdRooster().viewport(), vind("picDeelnemer"), -120); // swallowed
    EXPECT_EQ(bovenste(), 2);
    grdRooster().setFocus();
    draai(vind("picDeelnemer"), txtINR(), -120);
    EXPECT_EQ(venster->focusWidget(), &txtINR());
    grdRooster().setFocus();
    txtINR().setEnabled(false);
    draai(vind("picDeelnemer"), txtINR(), -120);
    EXPECT_EQ(venster->focusWidget(), &grdRooster());
}

TEST_F(FrmTaveloWiel, na_het_sluiten_is_het_wiel_los) {
    venster->close();
    venster->show();
    draai(vind("picDeelnemer"), grdRooster(), -120);
    EXPECT_EQ(bovenste(), 1);
}

TEST_F(FrmTaveloWiel, met_de_laatste_rij_in_beeld_gaat_het_niet_verder) {
    grdRooster().verticalScrollBar()->setValue(grdRooster().verticalScrollBar()->maximum());
    const int einde = bovenste();
    for (int i = 0; i < 5; ++i)
        draai(*grdRooster().viewport(), grdRooster(), -120);
    EXPECT_EQ(bovenste(), einde);
    draai(*grdRooster().viewport(), grdRooster(), 120);
    EXPECT_EQ(bovenste(), einde - 1);
}

} // namespace
} // namespace tavelo
