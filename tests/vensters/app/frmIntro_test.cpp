#include "app/frmIntro.h"

#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

TEST(FrmIntro, begint_doorzichtig_en_wordt_helder_voor_hij_vanzelf_sluit) {
    frmIntro intro;
    EXPECT_EQ(intro.windowOpacity(), 0);
    QElapsedTimer klok;
    klok.start();
    intro.open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return intro.windowOpacity() == 1; }, 2500));
    EXPECT_TRUE(intro.isVisible());
    EXPECT_FALSE(intro.findChild<QTimer*>("Timer2")->isActive());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !intro.isVisible(); }, 10000));
    EXPECT_GE(klok.elapsed(), 2990);
}

TEST(FrmIntro, gaat_niet_weg_met_esc_of_het_kruisje) {
    frmIntro intro;
    intro.open();
    QTest::keyClick(&intro, Qt::Key_Escape);
    EXPECT_TRUE(intro.isVisible());
    EXPECT_FALSE(intro.close());
    EXPECT_TRUE(intro.isVisible());
}

TEST(FrmIntro, toont_de_versie_en_het_plaatje_vult_het_venster) {
    frmIntro intro;
    EXPECT_EQ(intro.findChild<QLabel*>("lblVersie")->text(), "versie " TAVELO_VERSION);
    auto* plaatje = intro.findChild<QWidget*>("Image1");
    ASSERT_NE(plaatje, nullptr);
    EXPECT_EQ(plaatje->geometry(), intro.rect());
    const QImage beeld = plaatje->grab().toImage();
    // Sky above, sand below.
    EXPECT_GT(beeld.pixelColor(20, 20).blue(), beeld.pixelColor(20, 20).red());
    EXPECT_GT(beeld.pixelColor(590, 370).red(), beeld.pixelColor(590, 370).blue());
}

TEST(FrmIntro, de_klokken_hebben_hun_naam_en_tijd) {
    frmIntro intro;
    EXPECT_EQ(intro.findChild<QTimer*>("Timer1")->interval(), 3000);
    EXPECT_EQ(intro.findChild<QTimer*>("Timer2")->interval(), 10);
}

} // namespace
} // namespace tavelo
