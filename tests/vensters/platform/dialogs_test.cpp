#include "platform/dialogs.h"

#include "fakes/temp_folder.h"
#include "platform/codeWindowPos.h"
#include "platform/dutch_texts.h"
#include "platform/qt_text.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

#include <functional>

namespace tavelo {
namespace {

constexpr std::string_view filter = "Roosterbestanden (*.rst)|*.rst|Excel bestanden (*.xls;*.xlsx))|*.xls;*.xlsx";

// Does something with the dialog that `vraag` waits for.
template <class Dialoog>
void bij_dialoog(const std::function<void(Dialoog&)>& doe, const std::function<void()>& vraag) {
    bool gezien = false;
    QTimer kijker;
    QObject::connect(&kijker, &QTimer::timeout, &kijker, [&] {
        auto* dialoog = dynamic_cast<Dialoog*>(QApplication::activeModalWidget());
        if (!dialoog || gezien) return;
        gezien = true;
        kijker.stop();
        doe(*dialoog);
    });
    kijker.start(5);
    vraag();
    EXPECT_TRUE(gezien);
}

struct Dialogs : testing::Test {
    QWidget venster;
    DialogOwner eigenaar{&venster};
    void SetUp() override { venster.show(); }
};

TEST(NameFilters, maakt_van_elk_paar_een_filter_met_het_label_zoals_het_is) {
    EXPECT_EQ(name_filters(filter),
              (QStringList{"Roosterbestanden (*.rst) (*.rst)", "Excel bestanden (*.xls;*.xlsx)) (*.xls *.xlsx)"}));
    EXPECT_EQ(name_filters("alleen een label"), QStringList());
    EXPECT_EQ(name_filters(""), QStringList());
}

TEST_F(Dialogs, een_bericht_heeft_de_titel_van_het_programma_en_alleen_ok) {
    QtMessageBox berichten(eigenaar);
    bij_dialoog<QMessageBox>(
        [this](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), "Vendalo 3.5 Tavelo");
            EXPECT_EQ(box.text(), "Vul rooster error 1: <b>Overloop</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
            EXPECT_EQ(box.parentWidget(), &venster);
            EXPECT_FALSE(staat_bovenaan(box));
            box.accept();
        },
        [&] { berichten.show("Vul rooster error 1: <b>Overloop</b>"); });
}

TEST_F(Dialogs, een_bericht_komt_boven_een_venster_dat_bovenaan_staat) {
    QWidget monitor;
    monitor.show();
    zet_bovenaan(monitor, true);
    QtMessageBox berichten(eigenaar);
    bij_dialoog<QMessageBox>(
        [](QMessageBox& box) {
            EXPECT_TRUE(staat_bovenaan(box));
            box.accept();
        },
        [&] { berichten.show("x"); });
}

TEST_F(Dialogs, zonder_eigenaar_komt_er_ook_een_bericht) {
    const DialogOwner niemand;
    QtMessageBox berichten(niemand);
    bij_dialoog<QMessageBox>([](QMessageBox& box) { box.reject(); }, [&] { berichten.show("x"); });
}

TEST_F(Dialogs, het_openvenster_begint_in_de_map_met_het_gevraagde_filter) {
    const test::TempFolder map;
    map.write("a.rst", "");
    map.write("plan.XLSX", "");
    QtOpenDialog vraag(eigenaar);
    std::optional<std::string> antwoord;
    bij_dialoog<QFileDialog>(
        [&](QFileDialog& dialoog) {
            EXPECT_EQ(dialoog.directory(), QDir(qt_text(map.file(""))));
            EXPECT_EQ(dialoog.findChild<QFileSystemModel*>()->nameFilters(), (QStringList{"*.xls", "*.xlsx"}));
            EXPECT_EQ(dialoog.findChild<QComboBox*>("fileTypeCombo")->currentText(), "Excel bestanden (*.xls;*.xlsx))");
            auto* naam = dialoog.findChild<QLineEdit*>("fileNameEdit");
            EXPECT_EQ(naam->text(), "");
            QTest::keyClicks(naam, "plan.XLSX");
            QTest::keyClick(naam, Qt::Key_Return);
        },
        [&] {
            antwoord = vraag.ask({map.file(""), std::string(filter), 2});
        });
    EXPECT_EQ(antwoord, map.file("plan.XLSX"));
}

TEST_F(Dialogs, een_bestand_met_een_andere_extensie_is_met_de_hand_te_typen) {
    const test::TempFolder map;
    map.write("lijst.txt", "");
    QtOpenDialog vraag(eigenaar);
    std::optional<std::string> antwoord;
    bij_dialoog<QFileDialog>(
        [&](QFileDialog& dialoog) {
            auto* naam = dialoog.findChild<QLineEdit*>("fileNameEdit");
            QTest::keyClicks(naam, "lijst.txt");
            QTest::keyClick(naam, Qt::Key_Return);
        },
        [&] {
            antwoord = vraag.ask({map.file(""), std::string(filter), 1});
        });
    EXPECT_EQ(antwoord, map.file("lijst.txt"));
}

TEST_F(Dialogs, de_lijst_van_bestanden_is_nederlands_en_niets_is_afgesneden) {
    const test::TempFolder map;
    map.write("springen.rst", std::string(9000, 'x'));
    map.write("zonder", "x");
    const std::string pad = map.file("springen.rst");
    QFile bestand(qt_text(pad));
    ASSERT_TRUE(bestand.open(QIODevice::ReadWrite));
    const QDateTime tijd(QDate(2026, 5, 3), QTime(9, 7));
    ASSERT_TRUE(bestand.setFileTime(tijd, QFileDevice::FileModificationTime));
    bestand.close();
    QDir(qt_text(map.file(""))).mkdir("oud");

    const QLocale hiervoor;
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    QtOpenDialog vraag(eigenaar);
    bij_dialoog<QFileDialog>(
        [&](QFileDialog& dialoog) {
            dialoog.setNameFilter("*");
            auto& lijst = *dialoog.findChild<QTreeView*>("treeView");
            auto& bestanden = *dialoog.findChild<QFileSystemModel*>();
            ASSERT_TRUE(QTest::qWaitFor([&] { return bestanden.rowCount(lijst.rootIndex()) == 3; }));
            const auto teksten = [&](const char* naam) {
                QList<QString> gevonden;
                for (int kolom = 1; kolom <= 3; ++kolom) {
                    const QModelIndex cel = bestanden.index(qt_text(map.file(naam)), kolom);
                    // What the list draws, and how wide that is.
                    struct Kijker : QStyledItemDelegate {
                        using QStyledItemDelegate::initStyleOption;
                    };
                    QStyleOptionViewItem optie;
                    optie.initFrom(&lijst);
                    const auto* tekenaar = static_cast<const QStyledItemDelegate*>(lijst.itemDelegateForColumn(kolom));
                    (tekenaar->*&Kijker::initStyleOption)(&optie, cel);
                    EXPECT_LE(tekenaar->sizeHint(optie, cel).width(), lijst.columnWidth(kolom)) << naam << kolom;
                    gevonden += optie.text;
                }
                return gevonden;
            };
            EXPECT_EQ(teksten("springen.rst"), (QList<QString>{"8,8 kB", "RST-bestand", "03-05-2026 09:07"}));
            EXPECT_EQ(teksten("zonder")[1], "Bestand");
            EXPECT_EQ(teksten("oud")[0], "");
            EXPECT_EQ(teksten("oud")[1], "Map");
            dialoog.reject();
        },
        [&] {
            static_cast<void>(vraag.ask({map.file(""), std::string(filter), 1}));
        });
    QLocale::setDefault(hiervoor);
}

TEST_F(Dialogs, annuleren_geeft_niets) {
    QtOpenDialog vraag(eigenaar);
    std::optional<std::string> antwoord = "x";
    bij_dialoog<QFileDialog>([](QFileDialog& dialoog) { dialoog.reject(); },
                             [&] {
                                 antwoord = vraag.ask({"/bestaat/niet", std::string(filter), 9});
                             });
    EXPECT_EQ(antwoord, std::nullopt);
}

TEST_F(Dialogs, de_kleurkiezer_begint_met_de_kleur_en_geeft_de_gekozene_met_rood_onderaan) {
    QtColourDialog vraag(eigenaar);
    std::optional<std::int32_t> antwoord;
    bij_dialoog<QColorDialog>(
        [](QColorDialog& dialoog) {
            EXPECT_EQ(dialoog.currentColor(), QColor(0x11, 0x22, 0x33));
            dialoog.setCurrentColor(QColor(0xFF, 0x80, 0x01));
            dialoog.accept();
        },
        [&] { antwoord = vraag.ask(0x332211); });
    EXPECT_EQ(antwoord, 0x0180FF);
    bij_dialoog<QColorDialog>([](QColorDialog& dialoog) { dialoog.reject(); }, [&] { antwoord = vraag.ask(0); });
    EXPECT_EQ(antwoord, std::nullopt);
}

TEST(DutchTexts, de_dialogen_van_het_systeem_spreken_nederlands) {
    DutchTexts nederlands;
    QCoreApplication::installTranslator(&nederlands);
    {
        QFileDialog openen;
        openen.setOption(QFileDialog::DontUseNativeDialog);
        QColorDialog kleur;
        kleur.setOption(QColorDialog::DontUseNativeDialog);
        for (const QDialog* dialoog : std::initializer_list<const QDialog*>{&openen, &kleur}) {
            for (const auto* knop : dialoog->findChildren<QAbstractButton*>())
                EXPECT_FALSE(knop->text().contains("Cancel") || knop->text().contains("Pick")) << utf8(knop->text());
            for (const auto* label : dialoog->findChildren<QLabel*>())
                EXPECT_FALSE(label->text().contains("colors") || label->text().contains("Look in"))
                    << utf8(label->text());
        }
    }
    QCoreApplication::removeTranslator(&nederlands);
    EXPECT_TRUE(nederlands.translate("x", "geen tekst van het systeem", nullptr, -1).isNull());
    EXPECT_TRUE(nederlands.translate("x", nullptr, nullptr, -1).isNull());
}

} // namespace
} // namespace tavelo
