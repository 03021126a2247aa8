#include "ui/settings/frmInstellingen.h"

#include "app/start.h"
#include "fakes/file_readers.h"
#include "fakes/temp_folder.h"
#include "platform/application.h"
#include "platform/codeWindowPos.h"
#include "platform/qt_text.h"
#include "ui/main/frmTavelo.h"
#include "ui/settings/frmInstellingen_besturing.h"
#include "ui/settings/instellingen_opstelling.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <optional>
#include <set>

namespace tavelo {
namespace {

class FrmInstellingen : public testing::Test {
  protected:
    FrmInstellingen() { instellingen().fontname = utf8(QFontDatabase::families().constFirst()); }

    // Shows the dialog with the settings as they now stand.
    frmInstellingen& open() {
        venster_.emplace(proef.bediening, kleuren, [this] { ++vertoond; });
        venster_->show();
        QCoreApplication::processEvents();
        return *venster_;
    }
    void vernietig() { venster_.reset(); }

    template <class Widget = QWidget>
    Widget& vind(const char* naam) {
        auto* gevonden = venster_->findChild<Widget*>(naam);
        EXPECT_NE(gevonden, nullptr) << naam;
        return *gevonden;
    }
    void kies_blad(int index) { vind<QTabWidget>("tabInstellingen").setCurrentIndex(index); }
    // Near the left edge: a box or option answers on its mark and its text only, however wide it is.
    void klik(const char* naam) {
        QWidget& besturing = vind(naam);
        QTest::mouseClick(&besturing, Qt::LeftButton, {}, QPoint(10, besturing.height() / 2));
    }
    Instellingen& instellingen() { return proef.programma.instellingen; }

    test::InstellingenOpstelling proef;
    test::FakeColourDialog kleuren;
    int vertoond = 0;

  private:
    std::optional<frmInstellingen> venster_;
};

TEST_F(FrmInstellingen, staat_voor_een_venster_dat_bovenaan_staat_en_anders_tussen_de_rest) {
    EXPECT_FALSE(staat_bovenaan(open()));
    vernietig();
    QWidget monitor;
    zet_bovenaan(monitor, true);
    monitor.show();
    EXPECT_TRUE(staat_bovenaan(open()));
}

TEST_F(FrmInstellingen, een_toets_van_een_vinkje_en_meteen_enter_houdt_de_wijziging) {
    instellingen().showhorsecolor = 0;
    frmInstellingen& venster = open();
    QTest::keyClick(&venster, Qt::Key_K, Qt::AltModifier);
    QTest::keyClick(venster.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(venster.isVisible());
    EXPECT_EQ(instellingen().showhorsecolor, 1);
}

TEST_F(FrmInstellingen, heeft_elke_besturing_onder_haar_naam) {
    open();
    vind<QComboBox>("CmbFontName");
    for (const char* naam : {"btnKleur_0", "btnKleur_1", "btnKleur_2", "btnKleur_3", "btnOK", "btnCancel"})
        vind<QPushButton>(naam);
    for (const char* naam : {"HScrollRubriekTekstGrootte", "HScrollDeelnemerTekstGrootte"}) {
        const auto& balk = vind<QScrollBar>(naam);
        EXPECT_EQ(balk.orientation(), Qt::Horizontal);
        EXPECT_EQ(balk.minimum(), 50);
        EXPECT_EQ(balk.maximum(), 400);
        EXPECT_EQ(balk.singleStep(), 5);
        EXPECT_EQ(balk.pageStep(), 25);
        EXPECT_EQ(balk.value(), 100);
    }
    for (const QString groep : {"optRubriekUitlijning_%1", "optDeelnemerUitlijning_%1", "optNummer_%1"})
        for (int index = 0; index < 3; ++index)
            vind<QRadioButton>(utf8(groep.arg(index)).c_str());
    for (const char* naam : {"chkRubriek", "chkRuiterNaam", "chkDierNaam", "chkDierVader", "chkDierVaderMoeder",
                             "chkDierKleur", "chkDierGeslacht", "chkDierLeeftijd", "chkDierStamboek", "chkDierFokker",
                             "chkVerenigingNaam", "chkVeldnamen"})
        vind<QCheckBox>(naam);
    EXPECT_EQ(vind<QCheckBox>("chkVeldnamen").text().remove('&'), "Er is een veldnamenrij");
    for (int index = 0; index < 12; ++index) {
        const auto& lijst = vind<QComboBox>(utf8(QString("cmbExcel_%1").arg(index)).c_str());
        ASSERT_EQ(lijst.count(), 52);
        EXPECT_EQ(lijst.itemText(0), "A");
        EXPECT_EQ(lijst.itemText(51), "AZ");
    }
}

TEST_F(FrmInstellingen, laden_schrijft_niets_terug_en_toont_niets_opnieuw) {
    instellingen().textsize = 30;
    instellingen().showridername = 2;
    instellingen().col_hnr = "BB";
    instellingen().rubricalignment = 2;
    const Instellingen begin = instellingen();
    open();
    EXPECT_EQ(instellingen(), begin);
    EXPECT_EQ(vertoond, 0);
    EXPECT_TRUE(proef.bediening.voorbeeld.picDeelnemer.regels().empty());
}

TEST_F(FrmInstellingen, toont_de_instellingen) {
    instellingen().rubricbackcolor = 0x803000;
    instellingen().rubrictextsize = 175;
    instellingen().alignment = 2;
    instellingen().shownumber = 1;
    instellingen().col_union_name = "AC";
    open();
    EXPECT_EQ(utf8(vind<QComboBox>("CmbFontName").currentText()), instellingen().fontname);
    EXPECT_EQ(vind("btnKleur_2").palette().color(QPalette::Button), QColor(0x00, 0x30, 0x80));
    EXPECT_EQ(vind<QScrollBar>("HScrollRubriekTekstGrootte").value(), 175);
    EXPECT_EQ(vind<QLabel>("lblRubriekTekstGrootte").text(), "175");
    EXPECT_EQ(vind<QLabel>("lblDeelnemerTekstGrootte").text(), "100");
    EXPECT_TRUE(vind<QRadioButton>("optDeelnemerUitlijning_2").isChecked());
    EXPECT_TRUE(vind<QRadioButton>("optRubriekUitlijning_0").isChecked());
    EXPECT_TRUE(vind<QRadioButton>("optNummer_1").isChecked());
    EXPECT_TRUE(vind<QCheckBox>("chkRuiterNaam").isChecked());
    EXPECT_FALSE(vind<QCheckBox>("chkRubriek").isChecked());
    EXPECT_EQ(vind<QComboBox>("cmbExcel_11").currentText(), "AC");
    EXPECT_EQ(vind<QComboBox>("cmbExcel_0").currentText(), "");
}

TEST_F(FrmInstellingen, balk_naar_400_en_annuleren_laat_de_grootte_en_het_beeld_zoals_ze_waren) {
    toon_overal(proef.bediening);
    const auto beeld = proef.bediening.voorbeeld.picDeelnemer.regels();
    open();
    vind<QScrollBar>("HScrollDeelnemerTekstGrootte").setValue(400);
    EXPECT_EQ(instellingen().textsize, 400);
    EXPECT_NE(proef.bediening.voorbeeld.picDeelnemer.regels(), beeld);
    klik("btnCancel");
    EXPECT_EQ(instellingen().textsize, 100);
    EXPECT_EQ(proef.bediening.voorbeeld.picDeelnemer.regels(), beeld);
    EXPECT_EQ(vertoond, 2);
}

TEST_F(FrmInstellingen, ok_zonder_wijziging_laat_ook_staan_wat_niet_te_tonen_is) {
    instellingen().fontname = "Niet aanwezig";
    instellingen().backcolor = -1;
    instellingen().textsize = 30;
    instellingen().rubrictextsize = 900;
    instellingen().showridername = 2;
    instellingen().alignment = 5;
    instellingen().shownumber = -1;
    instellingen().col_rider_name = "c";
    const Instellingen begin = instellingen();
    frmInstellingen& venster = open();
    EXPECT_EQ(vind<QComboBox>("CmbFontName").currentIndex(), -1);
    EXPECT_EQ(vind<QScrollBar>("HScrollDeelnemerTekstGrootte").value(), 100);
    EXPECT_EQ(vind<QCheckBox>("chkRuiterNaam").checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(vind<QComboBox>("cmbExcel_2").currentText(), "");
    for (const char* optie : {"optDeelnemerUitlijning_0", "optDeelnemerUitlijning_1", "optDeelnemerUitlijning_2",
                              "optNummer_0", "optNummer_1", "optNummer_2"})
        EXPECT_FALSE(vind<QRadioButton>(optie).isChecked()) << optie;
    klik("btnOK");
    EXPECT_FALSE(venster.isVisible());
    EXPECT_EQ(instellingen(), begin);
}

TEST_F(FrmInstellingen, een_wijziging_elders_laat_staan_wat_niet_te_tonen_is_maar_niet_een_vreemde_grootte) {
    instellingen().fontname = "Niet aanwezig";
    instellingen().backcolor = -1;
    instellingen().textsize = 30;
    instellingen().showridername = 2;
    instellingen().alignment = 5;
    instellingen().col_rider_name = "c";
    Instellingen verwacht = instellingen();
    verwacht.textsize = 100;
    verwacht.showhorsebreed = 1;
    open();
    klik("chkDierStamboek");
    klik("btnOK");
    EXPECT_EQ(instellingen(), verwacht);
}

TEST_F(FrmInstellingen, een_half_vinkje_gaat_bij_de_eerste_klik_aan_en_komt_niet_terug) {
    instellingen().showridername = 2;
    open();
    klik("chkRuiterNaam");
    EXPECT_EQ(instellingen().showridername, 1);
    klik("chkRuiterNaam");
    EXPECT_EQ(instellingen().showridername, 0);
    klik("chkRuiterNaam");
    EXPECT_EQ(instellingen().showridername, 1);
}

TEST_F(FrmInstellingen, elk_vinkje_werkt_meteen_en_alleen_op_zijn_eigen_instelling) {
    open();
    int wijzigingen = 0;
    for (const InstellingBesturing& besturing : instelling_besturingen()) {
        if (besturing.soort != BesturingSoort::vinkje) continue;
        kies_blad(besturing.naam == "chkVeldnamen" ? 1 : 0);
        Instellingen verwacht = instellingen();
        auto& veld = verwacht.*std::get<std::int16_t Instellingen::*>(besturing.veld);
        veld = veld == 0 ? 1 : 0;
        klik(std::string(besturing.naam).c_str());
        EXPECT_EQ(instellingen(), verwacht) << besturing.naam;
        EXPECT_EQ(vertoond, ++wijzigingen) << besturing.naam;
    }
    EXPECT_EQ(wijzigingen, 12);
}

TEST_F(FrmInstellingen, elke_optie_zet_haar_index_en_toont_een_keer_opnieuw) {
    open();
    for (const char* groep : {"optRubriekUitlijning", "optDeelnemerUitlijning", "optNummer"})
        for (const int index : {1, 2, 0}) {
            const int eerder = vertoond;
            klik((std::string(groep) + "_" + std::to_string(index)).c_str());
            const auto veld = instelling_besturingen()[besturing_index(groep)].veld;
            EXPECT_EQ(instellingen().*std::get<std::int16_t Instellingen::*>(veld), index) << groep;
            EXPECT_EQ(vertoond, eerder + 1) << groep;
        }
}

TEST_F(FrmInstellingen, de_pijltjes_lopen_door_de_opties) {
    open();
    vind("optNummer_0").setFocus();
    QTest::keyClick(&vind("optNummer_0"), Qt::Key_Down);
    EXPECT_EQ(instellingen().shownumber, 1);
    QTest::keyClick(&vind("optNummer_1"), Qt::Key_Down);
    EXPECT_EQ(instellingen().shownumber, 2);
}

TEST_F(FrmInstellingen, elke_stap_van_een_schuifbalk_werkt_meteen_en_zet_het_getal_ernaast) {
    open();
    auto& balk = vind<QScrollBar>("HScrollRubriekTekstGrootte");
    const auto& label = vind<QLabel>("lblRubriekTekstGrootte");
    const auto verwacht = [&](int grootte, int keer) {
        EXPECT_EQ(instellingen().rubrictextsize, grootte);
        EXPECT_EQ(label.text(), QString::number(grootte));
        EXPECT_EQ(vertoond, keer);
    };
    QTest::keyClick(&balk, Qt::Key_Right);
    verwacht(105, 1);
    QTest::keyClick(&balk, Qt::Key_PageUp);
    verwacht(130, 2);
    QTest::keyClick(&balk, Qt::Key_Left);
    verwacht(125, 3);
    // A drag tells its positions while the button is still down.
    balk.setSliderDown(true);
    balk.setSliderPosition(213);
    verwacht(213, 4);
    balk.setSliderPosition(214);
    verwacht(214, 5);
    balk.setSliderDown(false);
    verwacht(214, 5);
    QTest::keyClick(&balk, Qt::Key_End);
    verwacht(400, 6);
    QTest::keyClick(&balk, Qt::Key_Right);
    verwacht(400, 6);
    QTest::keyClick(&balk, Qt::Key_Home);
    verwacht(50, 7);
    EXPECT_EQ(instellingen().textsize, 100);
}

TEST_F(FrmInstellingen, een_stap_stelt_beide_vensters_opnieuw_samen) {
    proef.programma.deelnemer_open = true;
    open();
    vind<QScrollBar>("HScrollDeelnemerTekstGrootte").triggerAction(QAbstractSlider::SliderSingleStepAdd);
    // 16 and 32 points at 100 %.
    EXPECT_EQ(proef.bediening.voorbeeld.picDeelnemer.punten(), 17);
    EXPECT_EQ(proef.bediening.deelnemer_venster.picDeelnemer.punten(), 34);
}

TEST_F(FrmInstellingen, een_bevestigde_kleur_wordt_het_staal_en_werkt_meteen) {
    instellingen().forecolor = 0x0000C0;
    open();
    kleuren.answer = 0x332211;
    klik("btnKleur_1");
    EXPECT_EQ(kleuren.preselected, std::vector<std::int32_t>{0x0000C0});
    EXPECT_EQ(instellingen().forecolor, 0x332211);
    EXPECT_EQ(vind("btnKleur_1").palette().color(QPalette::Button), QColor(0x11, 0x22, 0x33));
    EXPECT_EQ(vertoond, 1);
    const QImage beeld = vind("btnKleur_1").grab().toImage();
    EXPECT_EQ(beeld.pixelColor(beeld.rect().center()), QColor(0x11, 0x22, 0x33));
    klik("btnKleur_1");
    EXPECT_EQ(kleuren.preselected.back(), 0x332211);
}

TEST_F(FrmInstellingen, een_geannuleerde_kleur_verandert_niets) {
    instellingen().textsize = 30;
    const Instellingen begin = instellingen();
    open();
    klik("btnKleur_0");
    EXPECT_EQ(kleuren.preselected.size(), 1U);
    EXPECT_EQ(instellingen(), begin);
    EXPECT_EQ(vertoond, 0);
}

TEST_F(FrmInstellingen, elke_kleurknop_bewerkt_zijn_eigen_kleur) {
    open();
    for (std::int32_t index = 0; index < 4; ++index) {
        kleuren.answer = 0x40 + index;
        klik(("btnKleur_" + std::to_string(index)).c_str());
    }
    EXPECT_EQ(instellingen().backcolor, 0x40);
    EXPECT_EQ(instellingen().forecolor, 0x41);
    EXPECT_EQ(instellingen().rubricbackcolor, 0x42);
    EXPECT_EQ(instellingen().rubricforecolor, 0x43);
}

TEST_F(FrmInstellingen, de_lettertypen_staan_in_de_volgorde_van_het_systeem) {
    open();
    const auto& lijst = vind<QComboBox>("CmbFontName");
    QStringList namen;
    for (int i = 0; i < lijst.count(); ++i)
        namen.append(lijst.itemText(i));
    EXPECT_EQ(namen, QFontDatabase::families());
}

TEST_F(FrmInstellingen, een_ander_lettertype_werkt_meteen) {
    open();
    auto& lijst = vind<QComboBox>("CmbFontName");
    ASSERT_GT(lijst.count(), 1);
    QTest::keyClick(&lijst, Qt::Key_Down);
    EXPECT_EQ(instellingen().fontname, utf8(QFontDatabase::families().at(1)));
    EXPECT_EQ(proef.bediening.voorbeeld.picDeelnemer.lettertype, instellingen().fontname);
    EXPECT_EQ(vertoond, 1);
}

TEST_F(FrmInstellingen, elke_naam_in_de_lijst_is_in_zijn_eigen_letter_getekend_en_een_symboolletter_leesbaar) {
    open();
    auto& lijst = vind<QComboBox>("CmbFontName");
    const auto getekend = [&](const QAbstractItemDelegate& tekenaar, const QFont& letter, int regel) {
        QStyleOptionViewItem optie;
        optie.rect = QRect(0, 0, 400, 40);
        optie.font = letter;
        optie.fontMetrics = QFontMetrics(letter);
        QImage beeld(optie.rect.size(), QImage::Format_RGB32);
        beeld.fill(Qt::white);
        QPainter schilder(&beeld);
        tekenaar.paint(&schilder, optie, lijst.model()->index(regel, 0));
        return beeld;
    };
    const QStyledItemDelegate gewoon;
    for (int regel = 0; regel < lijst.count(); ++regel) {
        const QString naam = lijst.itemText(regel);
        QFont verwacht = lijst.font();
        if (!QFontDatabase::writingSystems(naam).contains(QFontDatabase::Symbol)) verwacht.setFamily(naam);
        EXPECT_EQ(getekend(*lijst.itemDelegate(), lijst.font(), regel), getekend(gewoon, verwacht, regel))
            << utf8(naam);
    }
}

TEST_F(FrmInstellingen, een_lettertype_dat_er_niet_is_staat_alleen_als_wenk_in_de_lijst) {
    instellingen().fontname = "Niet aanwezig";
    open();
    EXPECT_EQ(vind<QComboBox>("CmbFontName").currentText(), "");
    EXPECT_EQ(vind<QComboBox>("CmbFontName").placeholderText(), "Niet aanwezig");
}

TEST_F(FrmInstellingen, een_letter_uit_de_lijst_vult_het_rooster) {
    proef.open_werkblad();
    proef.programma.grdRooster.highlight_row(4);
    proef.programma.grdRooster.set_top_row(2);
    open();
    kies_blad(1);
    vind<QComboBox>("cmbExcel_2").setCurrentIndex(1);
    EXPECT_EQ(instellingen().col_rider_name, "B");
    EXPECT_EQ(proef.programma.grdRooster.text(4, kolom_naam), "B4");
    EXPECT_EQ(proef.programma.grdRooster.row(), 4);
    EXPECT_EQ(proef.programma.grdRooster.top_row(), 2);
    EXPECT_EQ(vertoond, 1);
}

TEST_F(FrmInstellingen, een_getypte_letter_wordt_een_hoofdletter_en_wissen_geeft_geen_kolom) {
    instellingen().col_hnr = "BB";
    open();
    kies_blad(1);
    auto& lijst = vind<QComboBox>("cmbExcel_1");
    lijst.setFocus();
    QTest::keyClicks(lijst.lineEdit(), "a");
    EXPECT_EQ(instellingen().col_hnr, "A");
    QTest::keyClicks(lijst.lineEdit(), "c");
    EXPECT_EQ(instellingen().col_hnr, "AC");
    QTest::keyClicks(lijst.lineEdit(), "x1");
    EXPECT_EQ(lijst.currentText(), "AC");
    EXPECT_EQ(instellingen().col_hnr, "AC");
    lijst.clearEditText();
    EXPECT_EQ(instellingen().col_hnr, "");
    EXPECT_EQ(vertoond, 3);
}

TEST_F(FrmInstellingen, enter_is_ok_ook_vanuit_een_lijst_of_kleurknop) {
    for (const char* naam : {"CmbFontName", "btnKleur_0", "HScrollRubriekTekstGrootte", "chkRubriek", "optNummer_0",
                             "cmbExcel_0", "btnOK"}) {
        instellingen().showrubric = 0;
        frmInstellingen& venster = open();
        klik("chkRubriek");
        kies_blad(std::string_view(naam).starts_with("cmb") ? 1 : 0);
        vind(naam).setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(venster.isVisible()) << naam;
        EXPECT_EQ(instellingen().showrubric, 1) << naam;
        EXPECT_EQ(venster.result(), QDialog::Accepted) << naam;
    }
    EXPECT_TRUE(kleuren.preselected.empty());
}

TEST_F(FrmInstellingen, esc_annuleren_en_het_sluitvak_zetten_terug) {
    const std::vector<std::function<void(frmInstellingen&)>> manieren = {
        [](frmInstellingen& venster) { QTest::keyClick(&venster, Qt::Key_Escape); },
        [this](frmInstellingen&) { klik("btnCancel"); },
        [](frmInstellingen& venster) { venster.close(); },
    };
    for (const auto& sluit : manieren) {
        const Instellingen begin = instellingen();
        vertoond = 0;
        frmInstellingen& venster = open();
        klik("chkRubriek");
        klik("optDeelnemerUitlijning_2");
        EXPECT_NE(instellingen(), begin);
        sluit(venster);
        EXPECT_FALSE(venster.isVisible());
        EXPECT_EQ(instellingen(), begin);
        EXPECT_EQ(vertoond, 3);
    }
}

TEST_F(FrmInstellingen, ok_houdt_wat_er_gekozen_is) {
    open();
    klik("chkDierKleur");
    vind<QScrollBar>("HScrollRubriekTekstGrootte").setValue(300);
    klik("btnOK");
    vernietig();
    EXPECT_EQ(instellingen().showhorsecolor, 1);
    EXPECT_EQ(instellingen().rubrictextsize, 300);
}

TEST_F(FrmInstellingen, een_dialoog_die_met_het_programma_verdwijnt_zet_terug) {
    const Instellingen begin = instellingen();
    open();
    klik("chkRubriek");
    vernietig();
    EXPECT_EQ(instellingen(), begin);
    EXPECT_EQ(vertoond, 1);
}

TEST_F(FrmInstellingen, het_muiswiel_draait_alleen_aan_wat_de_focus_heeft) {
    open();
    auto& balk = vind<QScrollBar>("HScrollDeelnemerTekstGrootte");
    const auto draai = [&] {
        const QPointF midden(balk.rect().center());
        QWheelEvent wiel(midden, balk.mapToGlobal(midden), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&balk, &wiel);
    };
    vind("chkRubriek").setFocus();
    draai();
    EXPECT_EQ(instellingen().textsize, 100);
    balk.setFocus();
    draai();
    EXPECT_NE(instellingen().textsize, 100);
}

// The letters behind the & of everything that can be seen, the pages' titles included.
TEST_F(FrmInstellingen, een_sneltoets_staat_op_elk_blad_maar_een_keer) {
    const frmInstellingen& venster = open();
    const QRegularExpression letter("&(\\w)");
    for (const int blad : {0, 1}) {
        kies_blad(blad);
        std::multiset<QString> letters;
        const auto tel = [&](const QString& tekst) {
            if (const auto gevonden = letter.match(tekst); gevonden.hasMatch())
                letters.insert(gevonden.captured(1).toUpper());
        };
        const auto& bladen = vind<QTabWidget>("tabInstellingen");
        tel(bladen.tabText(0));
        tel(bladen.tabText(1));
        for (const QWidget* widget : venster.findChildren<QWidget*>()) {
            if (!widget->isVisible()) continue;
            if (const auto* label = qobject_cast<const QLabel*>(widget)) tel(label->text());
            if (const auto* knop = qobject_cast<const QAbstractButton*>(widget)) tel(knop->text());
            if (const auto* groep = qobject_cast<const QGroupBox*>(widget)) tel(groep->title());
        }
        EXPECT_GE(letters.size(), 15U);
        for (const QString& l : letters)
            EXPECT_EQ(letters.count(l), 1U) << utf8(l) << " op blad " << blad;
    }
}

TEST_F(FrmInstellingen, elke_besturing_heeft_een_naam_voor_de_schermlezer) {
    const frmInstellingen& venster = open();
    int gezien = 0;
    for (QWidget* widget : venster.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || qobject_cast<QTabBar*>(widget->parentWidget())) continue;
        if (!qobject_cast<QComboBox*>(widget) && !qobject_cast<QAbstractButton*>(widget) &&
            !qobject_cast<QScrollBar*>(widget))
            continue;
        QAccessibleInterface* toegang = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(toegang, nullptr);
        EXPECT_FALSE(toegang->text(QAccessible::Name).isEmpty()) << utf8(widget->objectName());
        ++gezien;
    }
    EXPECT_EQ(gezien, 1 + 4 + 2 + 9 + 12 + 12 + 2);
}

TEST_F(FrmInstellingen, tab_loopt_met_het_oog_mee) {
    frmInstellingen& venster = open();
    const auto loop = [&](int blad) {
        kies_blad(blad);
        std::vector<std::string> namen;
        auto* tabs = vind<QTabWidget>("tabInstellingen").findChild<QWidget*>("qt_tabwidget_tabbar");
        tabs->setFocus();
        for (int stap = 0; stap < 60; ++stap) {
            QWidget* focus = venster.focusWidget();
            QTest::keyClick(focus, Qt::Key_Tab);
            focus = venster.focusWidget();
            if (focus == tabs) break;
            namen.push_back(utf8(focus->objectName()));
        }
        return namen;
    };
    EXPECT_EQ(loop(0), (std::vector<std::string>{"CmbFontName",
                                                 "btnKleur_2",
                                                 "btnKleur_3",
                                                 "HScrollRubriekTekstGrootte",
                                                 "optRubriekUitlijning_0",
                                                 "btnKleur_0",
                                                 "btnKleur_1",
                                                 "HScrollDeelnemerTekstGrootte",
                                                 "optDeelnemerUitlijning_0",
                                                 "optNummer_0",
                                                 "chkRubriek",
                                                 "chkRuiterNaam",
                                                 "chkDierNaam",
                                                 "chkDierVader",
                                                 "chkDierVaderMoeder",
                                                 "chkDierKleur",
                                                 "chkDierGeslacht",
                                                 "chkDierLeeftijd",
                                                 "chkDierStamboek",
                                                 "chkDierFokker",
                                                 "chkVerenigingNaam",
                                                 "btnOK",
                                                 "btnCancel"}));
    std::vector<std::string> excel = {"chkVeldnamen"};
    for (int i = 0; i < 12; ++i)
        excel.push_back("cmbExcel_" + std::to_string(i));
    excel.insert(excel.end(), {"btnOK", "btnCancel"});
    EXPECT_EQ(loop(1), excel);
}

TEST_F(FrmInstellingen, niets_is_afgesneden_en_het_past_op_een_half_scherm_van_1920_bij_1080) {
    const frmInstellingen& venster = open();
    EXPECT_LE(venster.sizeHint().width(), 960);
    EXPECT_LE(venster.sizeHint().height(), 510);
    for (const int blad : {0, 1}) {
        kies_blad(blad);
        QCoreApplication::processEvents();
        for (const QWidget* widget : venster.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->objectName().startsWith("qt_")) continue;
            if (!qobject_cast<const QAbstractButton*>(widget) && !qobject_cast<const QLabel*>(widget) &&
                !qobject_cast<const QComboBox*>(widget))
                continue;
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << utf8(widget->objectName());
            EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << utf8(widget->objectName());
            const QRect plaats(widget->mapTo(&venster, QPoint(0, 0)), widget->size());
            EXPECT_TRUE(venster.rect().contains(plaats)) << utf8(widget->objectName());
            EXPECT_EQ(widget->visibleRegion().boundingRect(), widget->rect()) << utf8(widget->objectName());
        }
    }
}

TEST_F(FrmInstellingen, opent_naast_het_voorbeeld_van_het_hoofdvenster) {
    QWidget hoofdvenster;
    const QRect scherm = hoofdvenster.screen()->availableGeometry();
    hoofdvenster.setGeometry(scherm);
    QWidget voorbeeld(&hoofdvenster);
    voorbeeld.setObjectName("picDeelnemer");
    voorbeeld.setGeometry(scherm.width() - 40, 0, 40, scherm.height());
    // The participant window belongs to the main window and has a picture of the same name.
    QWidget deelnemer(&hoofdvenster, Qt::Window);
    QWidget beeld(&deelnemer);
    beeld.setObjectName("picDeelnemer");
    hoofdvenster.show();

    const frmInstellingen venster(
        proef.bediening, kleuren, [] {}, &hoofdvenster);
    const QRect vlak(voorbeeld.mapToGlobal(QPoint(0, 0)), voorbeeld.size());
    EXPECT_FALSE(venster.geometry().intersects(vlak));
    EXPECT_TRUE(scherm.contains(venster.pos()));
}

TEST_F(FrmInstellingen, geeft_f1_uit_elke_besturing_aan_wie_de_handleiding_toont) {
    auto& toepassing = static_cast<Application&>(*qApp);
    const frmInstellingen& venster = open();
    int gevraagd = 0;
    toepassing.bij_f1([&](const QWidget& waarin) { gevraagd += &waarin == &venster ? 1 : 0; });
    for (const char* naam : {"CmbFontName", "HScrollRubriekTekstGrootte", "chkRubriek", "optNummer_0", "btnOK"})
        QTest::keyClick(&vind(naam), Qt::Key_F1);
    EXPECT_EQ(gevraagd, 5);
    EXPECT_TRUE(venster.isVisible());
    toepassing.bij_f1([](const QWidget&) {});
}

// The first pixel of a picture area as it is painted.
QColor eerste_beeldpunt(QWidget& vlak) { return vlak.grab().toImage().pixelColor(0, 0); }

class Schilderteller final : public QObject {
  public:
    explicit Schilderteller(QWidget& vlak) { vlak.installEventFilter(this); }
    bool eventFilter(QObject* /*vlak*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++aantal;
        return false;
    }
    int aantal = 0;
};

TEST(FrmInstellingenMetHoofdvenster, voorbeeld_en_deelnemersvenster_volgen_elke_wijziging_en_komen_terug) {
    test::InstellingenOpstelling proef;
    test::FakeColourDialog kleuren;
    test::FakeSettings opslag;
    const test::TempFolder map;
    test::FakeSpecialFolders mappen;
    mappen.folders[5] = map.file(""); // the documents; without them the folders of the suite stand in the root
    test::DirectReader lezer;
    test::FakeBrowser browser;
    frmTavelo hoofdvenster(proef.bediening, {opslag, mappen, lezer, browser, ".", [] {}, [](frmTavelo&) {}});
    Main(
        proef.programma, opslag, [] { return false; }, hoofdvenster);
    hoofdvenster.findChild<QAction*>("mnuPopup")->trigger();
    auto& voorbeeld = *hoofdvenster.centralWidget()->findChild<QWidget*>("picDeelnemer");
    auto& monitor = *hoofdvenster.findChild<QWidget*>("frmDeelnemer")->findChild<QWidget*>("picDeelnemer");
    ASSERT_EQ(eerste_beeldpunt(voorbeeld), QColor(Qt::white));

    frmInstellingen venster(
        proef.bediening, kleuren, [&] { hoofdvenster.toon_vertoningen(); }, &hoofdvenster);
    venster.show();
    QCoreApplication::processEvents();
    const Schilderteller op_voorbeeld(voorbeeld);
    const Schilderteller op_monitor(monitor);
    kleuren.answer = 0x00FF00;
    QTest::mouseClick(venster.findChild<QWidget*>("btnKleur_0"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return op_voorbeeld.aantal > 0 && op_monitor.aantal > 0; }));
    EXPECT_EQ(eerste_beeldpunt(voorbeeld), QColor(Qt::green));
    EXPECT_EQ(eerste_beeldpunt(monitor), QColor(Qt::green));
    kleuren.answer = 0x0000FF;
    QTest::mouseClick(venster.findChild<QWidget*>("btnKleur_2"), Qt::LeftButton);
    QTest::mouseClick(venster.findChild<QWidget*>("chkRubriek"), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(eerste_beeldpunt(voorbeeld), QColor(Qt::red)); // the heading lies over the top
    EXPECT_EQ(eerste_beeldpunt(monitor), QColor(Qt::red));

    venster.reject();
    EXPECT_EQ(eerste_beeldpunt(voorbeeld), QColor(Qt::white));
    EXPECT_EQ(eerste_beeldpunt(monitor), QColor(Qt::white));
}

TEST_F(FrmInstellingen, een_kolomlijst_heet_naar_haar_veld_en_toont_de_eerste_gevulde_cel) {
    Grid& werkblad = proef.programma.grdExcel;
    werkblad.set_columns(3);
    werkblad.set_rows(3);
    werkblad.set_text(1, 1, "Elise Dijkgraaf");
    werkblad.set_text(0, 2, "Moor");
    instellingen().col_rider_name = "B";
    open();
    auto& lijst = vind<QComboBox>("cmbExcel_2");
    EXPECT_EQ(lijst.accessibleName(), "Ruiter Naam");
    EXPECT_EQ(vind<QLabel>("lblExcel_2").text(), "Elise Dijkgraaf");
    EXPECT_EQ(lijst.accessibleDescription(), "Elise Dijkgraaf");
    lijst.setCurrentText("C");
    EXPECT_EQ(vind<QLabel>("lblExcel_2").text(), "Moor");
    lijst.setCurrentText("");
    EXPECT_EQ(vind<QLabel>("lblExcel_2").text(), "");
}

TEST_F(FrmInstellingen, een_lettertype_dat_hier_ontbreekt_staat_niet_in_het_grijs_van_wat_uit_is) {
    instellingen().fontname = "Bestaat Nergens";
    open();
    const QPalette& kleuren_van_lijst = vind<QComboBox>("CmbFontName").palette();
    EXPECT_EQ(kleuren_van_lijst.color(QPalette::PlaceholderText), kleuren_van_lijst.color(QPalette::ButtonText));
    EXPECT_NE(kleuren_van_lijst.color(QPalette::PlaceholderText),
              kleuren_van_lijst.color(QPalette::Disabled, QPalette::ButtonText));
}

} // namespace
} // namespace tavelo
