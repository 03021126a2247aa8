// What the operator is told by the main window, and what the public never sees of it.
#include "fakes/hoofdvenster.h"
#include "platform/application.h"
#include "platform/dialogs.h"
#include "platform/elided_label.h"
#include "platform/qt_text.h"
#include "schedule/record/kolommen.h"
#include "ui/display/frmDeelnemer.h"
#include "ui/main/frmStatus.h"
#include "ui/main/frmWijzigingen.h"

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace tavelo {
namespace {

struct Combinatie {
    int nummer = 0;
    std::string naam;
    std::string paard = "Bles";
};

std::string bestand_met(const std::vector<Combinatie>& combinaties) {
    std::string tekst = "[Vendalo 3.4]\r\n";
    std::string lijst;
    for (const Combinatie& c : combinaties) {
        const std::string nummer = std::to_string(c.nummer);
        tekst += "dnr:" + nummer + "\tna:" + c.naam + "\tpa:" + c.paard + "\r\n";
        lijst += "\tdnr:" + nummer + "\t0\t\t0\t\t0\t";
    }
    return tekst + "rnr:1\trid:S1\troms:Proef\trcom:2" + lijst + "\r\n";
}

const std::vector<Combinatie> drie = {{80, "Elise Dijkgraaf"}, {7, "Jan"}, {8, "Kees"}};

struct Operateur : test::MetHoofdvenster {
    std::string pad;
    int minuut = 0;

    void SetUp() override {
        opstelling.klok.time = {2026, 6, 13, 14, 2, 0};
        MetHoofdvenster::SetUp();
    }
    [[nodiscard]] StatusBalk& status() const { return vind<StatusBalk>("statusregel"); }
    [[nodiscard]] QString tekst(const char* label) const {
        const auto& gevonden = vind<QLabel>(label);
        return gevonden.isHidden() ? QString() : gevonden.text();
    }
    [[nodiscard]] bool amber(const char* label) const {
        const auto& gevonden = vind<QLabel>(label);
        return gevonden.autoFillBackground() && gevonden.palette().color(QPalette::Window) == QColor(0xFF, 0xBF, 0x3C);
    }
    void zet_minuut(int nu) {
        minuut = nu;
        zet_tijd(pad, {2026, 6, 13, 9, nu, 0});
    }
    void open_tekst(const std::string& inhoud, const char* naam = "proef.rst") {
        pad = map.write(naam, inhoud);
        zet_minuut(0);
        MetHoofdvenster::open(pad);
    }
    void open(const std::vector<Combinatie>& combinaties) { open_tekst(bestand_met(combinaties)); }
    void herlees(const std::vector<Combinatie>& combinaties) {
        map.write("proef.rst", bestand_met(combinaties));
        zet_minuut(++minuut);
        tik();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] frmDeelnemer& deelnemer() const { return vind<frmDeelnemer>("frmDeelnemer"); }
    [[nodiscard]] bool is_gemerkt(int rij) const {
        return grdRooster().model()->index(rij - 1, 0).data(RoosterModel::merk_role).toBool();
    }
    [[nodiscard]] QTableView& wijzigingen() const { return vind<QTableView>("grdWijzigingen"); }
};

// With the manual beside the program, and the key that asks for it.
struct OperateurMetHandleiding : Operateur {
    void SetUp() override {
        std::filesystem::create_directories(map.file("programma/handleiding"));
        map.write("programma/handleiding/handleiding.html", "<html>");
        Operateur::SetUp();
        toepassing().bij_f1([this](const QWidget& waarin) { venster->toon_handleiding(waarin); });
    }
    void TearDown() override {
        toepassing().bij_f1([](const QWidget&) {});
        Operateur::TearDown();
    }
    static Application& toepassing() { return static_cast<Application&>(*qApp); }
    // How many pages the key opened in this window.
    std::size_t na_f1(QWidget& waarin, Qt::KeyboardModifiers met = Qt::NoModifier) {
        browser.opened.clear();
        QTest::keyClick(&waarin, Qt::Key_F1, met);
        return browser.opened.size();
    }
    // The same key in the next dialog, which waits until it is answered; then closes it.
    void beantwoord_met_f1() {
        QTimer::singleShot(0, venster.get(), [this] {
            QWidget* vraag = QApplication::activeModalWidget();
            ASSERT_NE(vraag, nullptr);
            in_vragen += na_f1(vraag->focusWidget() ? *vraag->focusWidget() : *vraag);
            vraag->close();
        });
    }
    std::size_t in_vragen = 0;
};

TEST_F(Operateur, het_nummervak_kleurt_en_zegt_het_als_zijn_nummer_niet_in_de_lijst_staat) {
    open(drie);
    typ("7");
    const QColor gewoon = txtINR().palette().color(QPalette::Base);
    EXPECT_EQ(txtINR().accessibleDescription(), "");
    typ("9");
    EXPECT_NE(txtINR().palette().color(QPalette::Base), gewoon);
    EXPECT_EQ(txtINR().accessibleDescription(), "Dit nummer staat niet in de lijst");
    QTest::keyClick(&txtINR(), Qt::Key_Backspace);
    EXPECT_EQ(txtINR().palette().color(QPalette::Base), gewoon);
    EXPECT_EQ(txtINR().accessibleDescription(), "");
    EXPECT_TRUE(opstelling.berichten.shown.empty());
}

TEST_F(Operateur, de_statusregel_zegt_in_woorden_wat_er_op_de_monitor_staat) {
    open(drie);
    typ("80");
    EXPECT_EQ(tekst("lblOpMonitor"), "Op het voorbeeld: 80 Elise Dijkgraaf, rooster 1");
    EXPECT_EQ(tekst("lblVenster"), "monitorvenster gesloten");
    wissel_monitor();
    EXPECT_EQ(tekst("lblOpMonitor"), "Op de monitor: 80 Elise Dijkgraaf, rooster 1");
    EXPECT_EQ(tekst("lblVenster"), "gewoon venster");
    QTest::keyClick(&txtINR(), Qt::Key_F11);
    EXPECT_EQ(tekst("lblVenster"), "beeldvullend");
    EXPECT_TRUE(status().accessibleName().startsWith("Op de monitor: 80 Elise Dijkgraaf, rooster 1; beeldvullend"));
    QTest::keyClick(&txtINR(), Qt::Key_F11);
    deelnemer().close();
    EXPECT_EQ(tekst("lblVenster"), "monitorvenster gesloten");
}

TEST_F(Operateur, de_statusregel_zegt_dat_de_monitor_weg_is_tot_hij_terug_is) {
    const std::vector<Scherm> twee = {{"een", {0, 0, 800, 800}}, {"twee", {800, 0, 800, 600}}};
    wissel_monitor();
    deelnemer().open(twee);
    QTest::keyClick(&txtINR(), Qt::Key_F11);
    deelnemer().pas_schermen_toe({twee[0]});
    EXPECT_EQ(tekst("lblVenster"), "de monitor is weg");
    EXPECT_TRUE(amber("lblVenster"));
    deelnemer().pas_schermen_toe(twee);
    EXPECT_EQ(tekst("lblVenster"), "beeldvullend");
    EXPECT_FALSE(amber("lblVenster"));
}

TEST_F(Operateur, de_statusregel_wordt_amber_als_de_lijst_verder_is_dan_de_monitor) {
    open(drie);
    wissel_monitor();
    typ("80");
    EXPECT_FALSE(amber("lblOpMonitor"));
    herlees({{80, "Elise Dijkgraaf", "Moor"}, {7, "Jan"}, {8, "Kees"}});
    EXPECT_TRUE(amber("lblOpMonitor"));
    EXPECT_EQ(tekst("lblOpMonitor"),
              "Op de monitor: 80 Elise Dijkgraaf, rooster 1 (sindsdien gewijzigd in het bestand)");
    EXPECT_EQ(tekst("lblHerlezen"), "14:02: gewijzigd 1, toegevoegd 0, verwijderd 0");
    typ("80");
    EXPECT_FALSE(amber("lblOpMonitor"));
}

TEST_F(Operateur, regels_die_buiten_het_beeld_vallen_worden_gemeld) {
    open(drie);
    wissel_monitor();
    typ("80");
    EXPECT_EQ(tekst("lblBuitenBeeld"), "");
    deelnemer().resize(960, 30);
    EXPECT_TRUE(tekst("lblBuitenBeeld").contains("buiten beeld")) << utf8(status().accessibleName());
    EXPECT_TRUE(amber("lblBuitenBeeld"));
    deelnemer().resize(960, 540);
    EXPECT_EQ(tekst("lblBuitenBeeld"), "");
}

TEST_F(Operateur, de_statusregel_neemt_de_focus_niet_en_verplaatst_niets) {
    open(drie);
    wissel_monitor();
    typ("80");
    QTest::mouseClick(&vind("btnBlader_0"), Qt::LeftButton);
    const auto plaatsen = [this] {
        std::vector<QRect> gevonden;
        for (const char* naam : {"txtINR", "btnFast_2", "grdRooster", "picDeelnemer", "frameRoosterinstellingen"})
            gevonden.push_back(vind(naam).geometry());
        gevonden.push_back(venster->geometry());
        gevonden.push_back(status().geometry());
        return gevonden;
    };
    const auto voor = plaatsen();
    herlees({{7, "Jan"}, {8, std::string(500, 'x')}});
    open_tekst("Geachte jury,", "een brief met een hele lange naam die nergens past.rst");
    QCoreApplication::processEvents();
    EXPECT_EQ(plaatsen(), voor);
    EXPECT_EQ(venster->focusWidget(), &txtINR());
    for (const QWidget* deel : status().findChildren<QWidget*>())
        EXPECT_EQ(deel->focusPolicy(), Qt::NoFocus) << utf8(deel->objectName());
    EXPECT_EQ(status().focusPolicy(), Qt::NoFocus);
    EXPECT_FALSE(
        vind("grdRooster").geometry().intersects(status().geometry().translated(0, -venster->menuBar()->height())));
}

TEST_F(Operateur, in_geen_venster_ligt_het_kader_over_de_lijst_of_het_voorbeeld) {
    for (const QSize maat : {QSize(620, 460), QSize(860, 560), QSize(1000, 600), QSize(1300, 760), QSize(1900, 1000)}) {
        venster->resize(maat);
        QCoreApplication::processEvents();
        const QRect kader = vind("frameRoosterinstellingen").geometry();
        EXPECT_FALSE(kader.intersects(vind("grdRooster").geometry())) << maat.width();
        EXPECT_FALSE(kader.intersects(vind("picDeelnemer").geometry())) << maat.width();
        EXPECT_FALSE(vind("grdRooster").geometry().intersects(vind("picDeelnemer").geometry())) << maat.width();
    }
}

TEST_F(Operateur, een_lang_detail_krijgt_de_regels_die_er_over_zijn_en_een_kort_een) {
    venster->resize(1300, 760);
    programma.labels.lblRingNaam = "Ring 2";
    programma.labels.lblRubriekLijsten = "L";
    venster->toon();
    const int een = vind("lblRingNaam").height();
    EXPECT_EQ(vind("lblRubriekLijsten").height(), een);
    const int jury = vind("lblJury").y();

    for (int i = 0; i < 60; ++i)
        programma.labels.lblRubriekLijsten += ", M" + std::to_string(i);
    venster->toon();
    EXPECT_EQ(vind("lblRingNaam").height(), een);
    EXPECT_GE(vind("lblRubriekLijsten").height(), 3 * een);
    EXPECT_EQ(vind("lblJury").y() - jury, vind("lblRubriekLijsten").height() - een);
    EXPECT_LE(vind("lblJury").geometry().bottom(), vind("frameRoosterinstellingen").height());

    programma.labels.lblRubriekLijsten += std::string(5000, 'x') + std::string(5000, ' ') + "x";
    for (int i = 0; i < 2000; ++i)
        programma.labels.lblRubriekLijsten += ", M" + std::to_string(i);
    venster->toon();
    EXPECT_LE(vind("lblJury").geometry().bottom(), vind("frameRoosterinstellingen").height());
}

TEST_F(Operateur, een_lijst_die_van_het_bestand_verschilt_is_met_een_klik_of_een_toets_heropend) {
    for (const bool met_toets : {false, true}) {
        open(drie);
        EXPECT_TRUE(vind("btnHeropenen").isHidden());
        herlees({{7, "Jan"}, {8, "Kees"}}); // the row of 80 stays, that of 8 goes: by position
        EXPECT_EQ(tekst("lblLijst"), "de lijst verschilt van het bestand");
        ASSERT_FALSE(vind("btnHeropenen").isHidden());
        if (met_toets)
            QTest::keyClick(&txtINR(), Qt::Key_F5);
        else
            QTest::mouseClick(&vind("btnHeropenen"), Qt::LeftButton);
        EXPECT_EQ(programma.grdRooster.rows(), 3);
        EXPECT_EQ(programma.grdRooster.text(1, kolom_naam), "Jan");
        EXPECT_EQ(tekst("lblLijst"), "");
        EXPECT_TRUE(vind("btnHeropenen").isHidden());
    }
}

TEST_F(Operateur, zonder_bestand_vraagt_f5_niets) {
    QTest::keyClick(&txtINR(), Qt::Key_F5);
    EXPECT_TRUE(opstelling.open_dialoog.requests.empty());
}

TEST_F(Operateur, een_bestand_dat_geen_rooster_is_staat_in_de_statusregel_en_niet_in_een_bericht) {
    open_tekst("Geachte jury,", "brief.rst");
    EXPECT_EQ(tekst("lblLijst"), "brief.rst: is geen roosterbestand");
    EXPECT_TRUE(amber("lblLijst"));
    EXPECT_TRUE(opstelling.berichten.shown.empty());
}

TEST_F(Operateur, een_leeg_rooster_zegt_in_grijs_wat_er_te_doen_valt) {
    const auto inkt = [this] {
        const QImage beeld = grdRooster().viewport()->grab().toImage();
        const QColor leeg = beeld.pixelColor(1, beeld.height() - 2);
        int anders = 0;
        for (int y = beeld.height() / 2 - 12; y < beeld.height() / 2 + 12; ++y)
            for (int x = 0; x < beeld.width(); ++x)
                anders += beeld.pixelColor(x, y) != leeg;
        return anders;
    };
    EXPECT_GT(inkt(), 100);
    open(drie);
    EXPECT_EQ(inkt(), 0);
}

TEST_F(Operateur, de_rij_op_de_monitor_is_vet_achter_een_gekleurde_rand) {
    open(drie);
    wissel_monitor();
    typ("7");
    EXPECT_TRUE(is_gemerkt(2));
    EXPECT_FALSE(is_gemerkt(1));
    const QModelIndex cel = grdRooster().model()->index(1, 0);
    EXPECT_EQ(cel.data(Qt::AccessibleDescriptionRole).toString(), "Op de monitor");
    const auto rand = [this](int rij) {
        const QRect vlak = grdRooster().visualRect(grdRooster().model()->index(rij - 1, 0));
        return grdRooster().viewport()->grab().toImage().pixelColor(vlak.left() + 2, vlak.center().y());
    };
    EXPECT_EQ(rand(2), QColor(0x1F, 0x8A, 0x2F));
    EXPECT_NE(rand(1), rand(2));

    const auto inkt = [this](int rij) {
        const QRect vlak = grdRooster().visualRect(grdRooster().model()->index(rij - 1, kolom_naam));
        const QImage beeld = grdRooster().viewport()->grab(vlak).toImage();
        int anders = 0;
        for (int y = 0; y < beeld.height(); ++y)
            for (int x = 0; x < beeld.width(); ++x)
                anders += beeld.pixelColor(x, y).lightness() < 110;
        return anders;
    };
    open({{1, "Hilversum"}, {2, "Hilversum"}});
    typ("1");
    programma.grdRooster.set_row(0); // no highlight to disturb the count
    const int vet = inkt(1);
    EXPECT_GT(vet, inkt(2));
}

TEST_F(Operateur, het_merk_is_iets_anders_dan_de_cursor_en_volgt_het_nummer) {
    open(drie);
    wissel_monitor();
    typ("7");
    herlees({{5, "Piet"}, {80, "Elise Dijkgraaf"}, {7, "Jan"}, {8, "Kees"}});
    EXPECT_EQ(grdRooster().currentIndex().row(), 0); // where filling the times ends
    EXPECT_TRUE(is_gemerkt(3));
    EXPECT_FALSE(is_gemerkt(2));
    typ("99");
    for (int rij = 1; rij <= 4; ++rij)
        EXPECT_FALSE(is_gemerkt(rij)) << rij;
    typ("7");
    wissel_monitor(); // closed: nothing is on the wall
    EXPECT_FALSE(is_gemerkt(3));
}

TEST_F(Operateur, zonder_gekozen_rij_beginnen_de_pijltjes_bij_de_rij_op_de_monitor) {
    open({{1, "Jan"}, {2, "Piet"}, {3, "Kees"}, {4, "Klaas"}});
    wissel_monitor();
    typ("3");
    open({{1, "Jan"}, {2, "Piet"}, {3, "Kees"}, {4, "Klaas"}});
    grdRooster().setFocus();
    QTest::keyClick(&grdRooster(), Qt::Key_Down);
    EXPECT_EQ(txtINR().text(), "4");
    QTest::keyClick(&grdRooster(), Qt::Key_Up);
    EXPECT_EQ(txtINR().text(), "3");
}

TEST_F(Operateur, de_knop_van_de_monitor_is_ingedrukt_zolang_het_venster_open_is) {
    auto& knop = vind<QToolButton>("btnFast_2");
    EXPECT_FALSE(knop.isChecked());
    QTest::mouseClick(&knop, Qt::LeftButton);
    EXPECT_TRUE(knop.isChecked());
    deelnemer().close(); // by its own close box
    EXPECT_FALSE(knop.isChecked());
    wissel_monitor();
    EXPECT_TRUE(knop.isChecked());
    QTest::mouseClick(&knop, Qt::LeftButton);
    EXPECT_FALSE(knop.isChecked());
}

TEST_F(Operateur, een_klik_op_de_statusregel_of_f6_toont_de_wijzigingen_van_vandaag) {
    open(drie);
    herlees({{80, "Elise Dijkgraaf", "Moor"}, {7, "Jan"}, {8, "Kees"}});
    for (const bool met_toets : {false, true}) {
        if (met_toets)
            QTest::keyClick(&txtINR(), Qt::Key_F6);
        else
            QTest::mouseClick(&vind("lblOpMonitor"), Qt::LeftButton);
        ASSERT_TRUE(wijzigingen().isVisible());
        EXPECT_TRUE(wijzigingen().window()->isWindow());
        EXPECT_NE(wijzigingen().window(), venster.get());
        EXPECT_EQ(wijzigingen().model()->rowCount(), 2);
        QTest::keyClick(&wijzigingen(), Qt::Key_Escape);
        EXPECT_FALSE(wijzigingen().isVisible());
    }
}

TEST_F(OperateurMetHandleiding, f1_opent_de_handleiding_uit_elk_venster_van_de_operateur) {
    open(drie);
    EXPECT_EQ(na_f1(txtINR()), 1U);
    EXPECT_EQ(na_f1(grdRooster()), 1U);
    EXPECT_EQ(na_f1(vind("btnBlader_0")), 1U);
    QTest::keyClick(&txtINR(), Qt::Key_F6);
    EXPECT_EQ(na_f1(wijzigingen()), 1U);
    DialogOwner eigenaar{venster.get()};
    beantwoord_met_f1();
    QtMessageBox(eigenaar).show("Geef op in welke kolommen");
    EXPECT_EQ(in_vragen, 1U);
}

#ifndef _WIN32 // there that dialog is the system's, and so is the key in it
TEST_F(OperateurMetHandleiding, f1_opent_de_handleiding_ook_uit_het_venster_waarin_hij_een_bestand_kiest) {
    DialogOwner eigenaar{venster.get()};
    beantwoord_met_f1();
    EXPECT_EQ(QtOpenDialog(eigenaar).ask({map.file(""), "Roosters|*.rst"}), std::nullopt);
    EXPECT_EQ(in_vragen, 1U);
}
#endif

TEST_F(OperateurMetHandleiding, f1_laat_een_half_getypt_nummer_staan) {
    open({{72, "Jan"}, {7, "Kees"}});
    typ("7");
    EXPECT_EQ(na_f1(txtINR()), 1U);
    EXPECT_EQ(txtINR().text(), "7");
    EXPECT_EQ(venster->focusWidget(), &txtINR());
    QTest::keyClicks(&txtINR(), "2");
    EXPECT_EQ(txtINR().text(), "72");
    EXPECT_EQ(programma.huidige_regel, 1);
}

TEST_F(OperateurMetHandleiding, f1_op_de_monitor_opent_niets_daar_zou_het_publiek_het_zien) {
    open(drie);
    wissel_monitor();
    EXPECT_EQ(na_f1(deelnemer()), 0U);
    deelnemer().wissel_weergave(deelnemer_bijschrift);
    ASSERT_TRUE(deelnemer().beeldvullend());
    EXPECT_EQ(na_f1(deelnemer()), 0U);
    EXPECT_TRUE(deelnemer().beeldvullend());
}

TEST_F(OperateurMetHandleiding, f1_met_een_andere_toets_ingehouden_of_onder_een_menu_opent_niets) {
    for (const auto met : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        EXPECT_EQ(na_f1(txtINR(), met), 0U) << met;
    QKeyEvent ingehouden(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&txtINR(), &ingehouden);
    EXPECT_TRUE(browser.opened.empty());
    auto& menu = vind<QMenu>("mnuBestand");
    menu.popup(QPoint(0, 0));
    EXPECT_EQ(na_f1(menu), 0U);
    menu.close();
}

TEST_F(OperateurMetHandleiding, de_statusregel_vertelt_een_poos_hoe_het_met_de_handleiding_is) {
    open(drie);
    na_f1(txtINR());
    EXPECT_EQ(tekst("lblHandleiding"), "de handleiding opent in de browser");
    EXPECT_FALSE(amber("lblHandleiding"));
    EXPECT_TRUE(status().accessibleName().contains("handleiding"));
    browser.fail();
    EXPECT_EQ(tekst("lblHandleiding"), "geen browser gevonden om de handleiding te tonen");
    EXPECT_TRUE(amber("lblHandleiding"));
    auto& poos = vind<QTimer>("TimerHandleiding");
    EXPECT_TRUE(poos.isActive());
    QMetaObject::invokeMethod(&poos, "timeout", Qt::DirectConnection);
    EXPECT_EQ(tekst("lblHandleiding"), "");
    browser.fail();
    EXPECT_EQ(tekst("lblHandleiding"), "");
}

TEST_F(Operateur, het_verslag_merkt_gewijzigde_cellen_en_volgt_een_nieuwe_herlezing) {
    open(drie);
    QTest::keyClick(&txtINR(), Qt::Key_F6);
    EXPECT_EQ(wijzigingen().model()->rowCount(), 0);
    herlees({{80, "Elise Dijkgraaf", "Moor"}, {7, "Jan"}, {8, "Kees"}});
    opstelling.klok.time.minute = 3;
    herlees({{80, "Elise Dijkgraaf", "Moor"}, {7, "Jan"}, {8, "Kees"}, {9, "Klaas"}});
    const QAbstractItemModel& model = *wijzigingen().model();
    ASSERT_EQ(model.rowCount(), 3);
    const auto cel = [&](int rij, int kolom) { return model.index(rij, kolom).data().toString(); };
    EXPECT_EQ(cel(0, 0), "14:03");
    EXPECT_EQ(cel(0, 1), "toegevoegd");
    EXPECT_EQ(cel(0, 4), "Klaas");
    EXPECT_EQ(cel(2, 6), "Moor");
    EXPECT_EQ(model.headerData(6, Qt::Horizontal, Qt::DisplayRole).toString(), "Paard");
    for (int kolom = 0; kolom < model.columnCount(); ++kolom)
        EXPECT_EQ(model.index(2, kolom).data(Qt::BackgroundRole).isValid(), kolom == 6) << kolom;
}

TEST_F(Operateur, ctrl_c_kopieert_de_gekozen_rijen_en_anders_alle) {
    open(drie);
    herlees({{80, "Elise Dijkgraaf", "Moor"}, {7, "Jan"}, {8, "Kees"}, {9, "Klaas"}});
    QTest::keyClick(&txtINR(), Qt::Key_F6);
    QTest::keyClick(&wijzigingen(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 4); // the titles and three rows
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("\tMoor\t"));
    wijzigingen().selectRow(2);
    QTest::keyClick(&wijzigingen(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 2);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("toegevoegd"));
}

TEST_F(Operateur, niets_hiervan_komt_op_de_monitor) {
    open(drie);
    wissel_monitor();
    typ("80");
    const auto regels = opstelling.bediening.deelnemer_venster.picDeelnemer.regels();
    const QImage beeld = deelnemer().grab().toImage();
    herlees({{80, "Elise Dijkgraaf", "Moor"}, {7, "Jan"}});
    QTest::keyClick(&txtINR(), Qt::Key_F6);
    EXPECT_EQ(opstelling.bediening.deelnemer_venster.picDeelnemer.regels(), regels);
    EXPECT_EQ(deelnemer().grab().toImage(), beeld);
    EXPECT_TRUE(venster->screen()->geometry().contains(wijzigingen().window()->geometry()));
}

// The whole text of what the mouse rests on.
QString uitleg(QWidget& waarover, QPoint plaats) {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent vraag(QEvent::ToolTip, plaats, waarover.mapToGlobal(plaats));
    QApplication::sendEvent(&waarover, &vraag);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

TEST_F(Operateur, een_afgebroken_cel_vertelt_haar_hele_tekst) {
    const std::string lang = "Een ruiter met een naam die in geen enkele kolom van het rooster past";
    open({{1, lang}, {2, "Jan"}});
    const auto cel = [this](int rij) { return grdRooster().visualRect(grdRooster().model()->index(rij, kolom_naam)); };
    EXPECT_TRUE(uitleg(*grdRooster().viewport(), cel(0).center()).contains(qt_text(lang)));
    EXPECT_EQ(uitleg(*grdRooster().viewport(), cel(1).center()), "");
}

TEST(Regelhoogte, is_die_van_het_schilderen_ook_waar_letters_niet_op_hele_pixels_staan) {
    QFont letter(QStringLiteral("Arial"));
    letter.setHintingPreference(QFont::PreferNoHinting);
    const QString tien_regels = QStringLiteral("x\n").repeated(9) + 'x';
    for (int maat = 8; maat <= 24; ++maat) {
        letter.setPixelSize(maat);
        const QFontMetrics meter(letter);
        const int geschilderd = meter.boundingRect(QRect(), 0, tien_regels).height();
        EXPECT_LE(geschilderd, 10 * line_height(meter)) << maat;
        EXPECT_GT(geschilderd, 10 * (line_height(meter) - 1)) << maat;
    }
}

TEST(LangeTekst, staat_op_twee_regels_waar_er_plaats_voor_is) {
    ElidedLabel label;
    label.setAlignment(Qt::AlignTop);
    const QString tekst = QStringLiteral("H: mevrouw Van der Meer, C: de heer De Vries, M: mevrouw Jansen");
    label.setText(tekst);
    const int regel = label.fontMetrics().lineSpacing();
    label.resize(label.fontMetrics().horizontalAdvance(tekst) * 2 / 3, regel + 3);
    EXPECT_TRUE(uitleg(label, {5, 5}).contains(tekst)); // cut on one line
    label.resize(label.width(), 2 * regel + 3);
    EXPECT_EQ(uitleg(label, {5, 5}), "");
    const QImage beeld = label.grab().toImage();
    const auto inkt = [&](int van, int tot) {
        int anders = 0;
        for (int y = van; y < tot; ++y)
            for (int x = 0; x < beeld.width(); ++x)
                anders += beeld.pixelColor(x, y) != beeld.pixelColor(beeld.width() - 1, beeld.height() - 1);
        return anders;
    };
    EXPECT_GT(inkt(regel + 2, 2 * regel), 20);
    label.setText(tekst + tekst + tekst);
    EXPECT_TRUE(uitleg(label, {5, 5}).contains(tekst)); // cut on two
}

} // namespace
} // namespace tavelo
