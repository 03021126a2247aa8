#include "platform/dialogs.h"

#include "fakes/temp_folder.h"
#include "platform/linux/dialogs.h"
#include "platform/qt_text.h"
#include "vensters/platform/in_dialoog.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::bij_dialoog;
using test::Dialogs;

constexpr std::string_view filter = "Roosterbestanden (*.rst)|*.rst|Excel bestanden (*.xls;*.xlsx))|*.xls;*.xlsx";

TEST(NameFilters, maakt_van_elk_paar_een_filter_met_het_label_zoals_het_is) {
    EXPECT_EQ(name_filters(filter),
              (QStringList{"Roosterbestanden (*.rst) (*.rst)", "Excel bestanden (*.xls;*.xlsx)) (*.xls *.xlsx)"}));
    EXPECT_EQ(name_filters("alleen een label"), QStringList());
    EXPECT_EQ(name_filters(""), QStringList());
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

} // namespace
} // namespace tavelo
