#include "fakes/hoofdvenster.h"
#include "ui/display/frmDeelnemer.h"

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace tavelo {
namespace {

QScreen& scherm(const char* naam) {
    const QList<QScreen*> schermen = QGuiApplication::screens();
    const auto gevonden = std::ranges::find(schermen, QString::fromUtf8(naam), &QScreen::name);
    if (gevonden == schermen.end()) throw std::runtime_error(std::string("geen scherm ") + naam);
    return **gevonden;
}

// The smallest area of a picture with what is not white, in its own pixels.
QRect inkt(const QImage& beeld) {
    QRect vlak;
    for (int y = 0; y < beeld.height(); ++y)
        for (int x = 0; x < beeld.width(); ++x)
            if (qGray(beeld.pixel(x, y)) < 128) vlak |= QRect(x, y, 1, 1);
    return vlak;
}

struct GemengdeSchalen : test::MetHoofdvenster {
    QWidget* monitor = nullptr;

    void SetUp() override {
        MetHoofdvenster::SetUp();
        open(map.write("proef.rst", "[Vendalo 3.4]\r\nsinglesignin:0\r\nhoofdstelnummerautomatisch:False\r\n"
                                    "dnr:7\ttype:1\tna:Hendrika Hamersma\tpa:Hilde\r\n"
                                    "rnr:1\trid:S1\trcom:2\trkla:*B*\trcat:*A*\tdnr:7\t0\t\t0\t\t0\t\r\n"));
        typ("7");
        wissel_monitor();
        monitor = &vind("frmDeelnemer");
        QCoreApplication::processEvents();
    }
};

TEST(Schermen, zijn_twee_en_hebben_elk_hun_schaal) {
    EXPECT_EQ(QGuiApplication::screens().size(), 2);
    EXPECT_EQ(scherm("bureau").devicePixelRatio(), 1);
    EXPECT_EQ(scherm("wand").devicePixelRatio(), 2);
}

TEST_F(GemengdeSchalen, elk_venster_staat_op_zijn_scherm_en_f11_vult_de_wand) {
    EXPECT_TRUE(scherm("bureau").geometry().contains(venster->geometry()));
    EXPECT_TRUE(scherm("wand").geometry().contains(monitor->geometry()));
    EXPECT_EQ(monitor->devicePixelRatio(), 2);
    QTest::keyClick(venster.get(), Qt::Key_F11);
    QCoreApplication::processEvents();
    EXPECT_EQ(monitor->windowHandle()->screen(), &scherm("wand"));
    EXPECT_EQ(monitor->geometry(), scherm("wand").geometry());
    EXPECT_EQ(opstelling.bediening.deelnemer_venster.picDeelnemer.breedte, 1920 * 15);
    EXPECT_EQ(opstelling.bediening.deelnemer_venster.picDeelnemer.hoogte, 1080 * 15);
}

TEST_F(GemengdeSchalen, op_de_wand_staan_de_letters_op_dezelfde_plaats_in_tweemaal_zoveel_beeldpunten) {
    auto* vlak = monitor->findChild<QWidget*>("picDeelnemer");
    ASSERT_NE(vlak, nullptr);
    const QImage fijn = vlak->grab().toImage();
    ASSERT_EQ(fijn.devicePixelRatio(), 2);
    ASSERT_EQ(fijn.size(), vlak->size() * 2);
    const QRect op_wand = inkt(fijn);

    monitor->setGeometry({{200, 200}, monitor->size()}); // the same size among the operator's own pixels
    QCoreApplication::processEvents();
    const QImage grof = vlak->grab().toImage();
    ASSERT_EQ(grof.devicePixelRatio(), 1);
    const QRect bij_operateur = inkt(grof);
    ASSERT_GT(bij_operateur.width(), 100);
    EXPECT_NEAR(op_wand.left(), 2 * bij_operateur.left(), 3);
    EXPECT_NEAR(op_wand.right(), 2 * bij_operateur.right(), 3);
    EXPECT_NEAR(op_wand.top(), 2 * bij_operateur.top(), 3);
    EXPECT_NEAR(op_wand.bottom(), 2 * bij_operateur.bottom(), 3);
}

TEST_F(GemengdeSchalen, voorbeeld_en_wand_tonen_dezelfde_regels) {
    const auto teksten = [](const Tekenvlak& vlak) {
        std::vector<std::string> gevonden;
        for (const auto& regel : vlak.regels())
            gevonden.push_back(regel.tekst);
        return gevonden;
    };
    const auto op_wand = teksten(opstelling.bediening.deelnemer_venster.picDeelnemer);
    EXPECT_EQ(op_wand.front(), "Hendrika Hamersma");
    EXPECT_EQ(op_wand, teksten(opstelling.bediening.voorbeeld.picDeelnemer));
}

} // namespace
} // namespace tavelo
