#include "ui/display/frmTekenvlak.h"

#include "platform/fonts.h"
#include "platform/qt_text.h"
#include "schedule/toeval.h"

#include <QBackingStore>
#include <QCoreApplication>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>

#include <gtest/gtest.h>

#include <iostream>

namespace tavelo {
namespace {

// A window that shows a composition, with what its screen holds after each frame.
struct FrmTekenvlak : testing::Test {
    struct SchilderKijker final : QObject {
        QRegion geschilderd;
        bool eventFilter(QObject*, QEvent* gebeurtenis) override {
            if (gebeurtenis->type() == QEvent::Paint) geschilderd += static_cast<QPaintEvent*>(gebeurtenis)->region();
            return false;
        }
    };

    FontTextMeasure meter;
    Vertoning vertoning;
    VertoningWidget venster{vertoning, nullptr};
    SchilderKijker deelnemer;
    SchilderKijker rubriek;

    void SetUp() override {
        venster.resize(640, 360);
        venster.show();
        QCoreApplication::processEvents();
        venster.neem_maat();
        for (Tekenvlak* vlak : {&vertoning.picDeelnemer, &vertoning.picRubriek})
            vlak->lettertype = "Arial";
        vertoning.picRubriek.breedte = vertoning.picDeelnemer.breedte;
        vertoning.picRubriek.hoogte = twips(60);
    }
    void stel_samen(const std::vector<std::string>& kop, const std::vector<std::string>& regels) {
        for (const auto& [vlak, teksten] :
             {std::pair{&vertoning.picRubriek, &kop}, {&vertoning.picDeelnemer, &regels}}) {
            vlak->wis();
            vlak->zet_punten(20);
            if (vlak == &vertoning.picDeelnemer) vlak->huidige_y = vertoning.picRubriek.hoogte;
            for (const std::string& tekst : *teksten)
                vlak->druk(meter, twips(10), tekst);
        }
    }
    // What the screen's next frame would ask for, without waiting for it.
    void schilder_beeld() {
        deelnemer.geschilderd = rubriek.geschilderd = {};
        QCoreApplication::sendPostedEvents();
        QEvent beeld(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&venster, &beeld);
    }
    void kijk() {
        venster.ververs();
        schilder_beeld();
        venster.installEventFilter(&deelnemer);
        venster.findChild<QWidget*>("picRubriek")->installEventFilter(&rubriek);
    }
    [[nodiscard]] QImage op_het_scherm() {
        const auto* beeld = dynamic_cast<QImage*>(venster.backingStore()->paintDevice());
        return beeld ? beeld->copy(QRect(QPoint(), venster.size() * venster.devicePixelRatio())) : QImage();
    }
    // The same after a frame in which all of it was painted.
    QImage helemaal() {
        venster.update();
        venster.findChild<QWidget*>("picRubriek")->update();
        schilder_beeld();
        return op_het_scherm();
    }
};

// The edge of a large letter comes out a shade lighter or darker from one time to the next, also when all is painted.
// What is left behind or cut off differs by more.
testing::AssertionResult zelfde_beeld(const QImage& een, const QImage& ander) {
    constexpr int tint = 40;
    if (een.size() != ander.size()) return testing::AssertionFailure() << "other sizes";
    for (int y = 0; y < een.height(); ++y)
        for (int x = 0; x < een.width(); ++x) {
            const QRgb a = een.pixel(x, y);
            const QRgb b = ander.pixel(x, y);
            if (std::abs(qRed(a) - qRed(b)) > tint || std::abs(qGreen(a) - qGreen(b)) > tint ||
                std::abs(qBlue(a) - qBlue(b)) > tint)
                return testing::AssertionFailure() << "at " << x << ", " << y << ": " << std::hex << a << ", " << b;
        }
    return testing::AssertionSuccess();
}

TEST_F(FrmTekenvlak, dezelfde_compositie_schildert_niets) {
    stel_samen({"Springen"}, {"72", "Jan de Wit", "Bles"});
    kijk();
    stel_samen({"Springen"}, {"72", "Jan de Wit", "Bles"});
    venster.ververs();
    schilder_beeld();
    EXPECT_TRUE(deelnemer.geschilderd.isEmpty());
    EXPECT_TRUE(rubriek.geschilderd.isEmpty());
}

TEST_F(FrmTekenvlak, een_andere_combinatie_schildert_haar_regels_en_laat_de_kop_staan) {
    stel_samen({"Springen"}, {"72", "Jan de Wit", "Bles"});
    kijk();
    stel_samen({"Springen"}, {"73", "Jan de Wit", "Vonk"});
    venster.ververs();
    schilder_beeld();
    EXPECT_TRUE(rubriek.geschilderd.isEmpty());
    const auto op_regel = [&](std::size_t regel) {
        return QPoint(15, qRound(vertoning.picDeelnemer.regels()[regel].y / twips_per_pixel) + 18);
    };
    EXPECT_TRUE(deelnemer.geschilderd.contains(op_regel(0)));
    EXPECT_FALSE(deelnemer.geschilderd.contains(op_regel(1)));
    EXPECT_TRUE(deelnemer.geschilderd.contains(op_regel(2)));
    const QRect alles = deelnemer.geschilderd.boundingRect();
    EXPECT_LT(alles.right(), 200); // no wider than the texts
    const QImage geschilderd = op_het_scherm();
    EXPECT_TRUE(zelfde_beeld(geschilderd, helemaal()));
}

TEST_F(FrmTekenvlak, andere_kleuren_schilderen_alles) {
    stel_samen({"Springen"}, {"72"});
    kijk();
    vertoning.picDeelnemer.achtergrond = 0x00FF00;
    vertoning.picRubriek.achtergrond = 0xFF0000;
    venster.ververs();
    schilder_beeld();
    EXPECT_EQ(deelnemer.geschilderd + rubriek.geschilderd, QRegion(venster.rect()));
    const QImage geschilderd = op_het_scherm();
    EXPECT_TRUE(zelfde_beeld(geschilderd, helemaal()));
}

TEST_F(FrmTekenvlak, wat_op_het_scherm_staat_is_na_elke_compositie_het_hele_beeld) {
    const std::uint32_t begin = test::beginwaarde(21112026);
    std::cout << "TAVELO_SEED=" << begin << '\n';
    test::Toeval toeval(begin);
    const std::vector<std::string> teksten = {"72",
                                              "Jan de Wit",
                                              "",
                                              "ÅÇ̧ŷjgf",
                                              "Fjord",
                                              "________ x ________",
                                              "\xE9\xA6\xAC\xE5\x8A\x9B",
                                              "W W W",
                                              " ",
                                              "\xF0\x9F\x90\xB4",
                                              "Zu\xCC\x88s",
                                              "AVATAR Toekomst van de hele lange naam die buiten beeld loopt"};
    const std::vector<std::string> lettertypen = {"Arial", "Times New Roman", "onbekend"};
    const auto vul = [&](Tekenvlak& vlak) {
        const int hoogte = static_cast<int>(vlak.hoogte) + 1;
        vlak.wis();
        for (int regels = toeval.onder(6); regels > 0; --regels) {
            vlak.zet_punten(1 + toeval.onder(400) / 8.0);
            vlak.huidige_y = toeval.onder(hoogte) - twips(10);
            vlak.druk(meter, toeval.onder(twips(700)) - twips(60) + 0.3, toeval.uit(teksten));
        }
    };
    // Most of the lines stay, as from one combination to the next.
    const auto wijzig = [&](Tekenvlak& vlak) {
        const std::vector<GeplaatsteTekst> oud = vlak.regels();
        vlak.wis();
        for (const GeplaatsteTekst& regel : oud) {
            if (toeval.een_op(6)) continue;
            vlak.zet_punten(toeval.een_op(6) ? regel.punten * 0.9 : regel.punten);
            vlak.huidige_y = regel.y;
            vlak.druk(meter, regel.x, toeval.een_op(3) ? toeval.uit(teksten) : regel.tekst);
        }
    };
    kijk();

    int gedeeltelijk = 0;
    for (int stap = 0; stap < 400; ++stap) {
        for (Tekenvlak* vlak : {&vertoning.picDeelnemer, &vertoning.picRubriek}) {
            if (toeval.een_op(5))
                vul(*vlak);
            else
                wijzig(*vlak);
            if (toeval.een_op(30)) vlak->achtergrond = toeval.een_op(2) ? 0xFFFFFF : 0x00FFFF;
            if (toeval.een_op(30)) vlak->voorgrond = toeval.een_op(2) ? 0x000000 : 0x800000;
            if (toeval.een_op(30)) vlak->lettertype = toeval.uit(lettertypen);
        }
        if (toeval.een_op(20)) vertoning.picRubriek.zichtbaar = !vertoning.picRubriek.zichtbaar;
        if (toeval.een_op(20)) vertoning.picRubriek.hoogte = twips(toeval.onder(120));
        if (toeval.een_op(40)) {
            venster.resize(500 + toeval.onder(200), 300 + toeval.onder(100));
            QCoreApplication::processEvents();
            venster.neem_maat();
            vertoning.picRubriek.breedte = vertoning.picDeelnemer.breedte;
        }
        venster.ververs();
        if (toeval.een_op(4)) continue; // the next composition comes before the frame
        schilder_beeld();
        if (deelnemer.geschilderd.boundingRect() != venster.rect()) ++gedeeltelijk;
        const QImage gedeeltelijk_geschilderd = op_het_scherm();
        ASSERT_TRUE(zelfde_beeld(gedeeltelijk_geschilderd, helemaal())) << "step " << stap;
    }
    EXPECT_GT(gedeeltelijk, 100);
}

} // namespace
} // namespace tavelo
