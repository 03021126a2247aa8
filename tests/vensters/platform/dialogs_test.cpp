#include "platform/dialogs.h"

#include "platform/codeWindowPos.h"
#include "platform/dutch_texts.h"
#include "platform/qt_text.h"
#include "vensters/platform/in_dialoog.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::bij_dialoog;
using test::Dialogs;

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
