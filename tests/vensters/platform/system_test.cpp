#include "platform/application.h"
#include "platform/codeWindowPos.h"
#include "platform/icons.h"
#include "platform/qt_text.h"
#include "platform/special_folders.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDir>
#include <QEvent>
#include <QGuiApplication>
#include <QPixmapCache>
#include <QStandardPaths>
#include <QWidget>

#include <gtest/gtest.h>

#include <stdexcept>

namespace tavelo {
namespace {

TEST(ZetBovenaan, verandert_alleen_de_orde_niet_plaats_maat_of_zichtbaarheid) {
    QWidget venster;
    venster.setGeometry(40, 50, 300, 200);
    venster.show();
    const WId eerder = venster.winId();
    zet_bovenaan(venster, true);
    EXPECT_TRUE(staat_bovenaan(venster));
    EXPECT_TRUE(venster.isVisible());
    EXPECT_EQ(venster.geometry(), QRect(40, 50, 300, 200));
    EXPECT_EQ(venster.winId(), eerder); // not made anew
    zet_bovenaan(venster, false);
    EXPECT_FALSE(staat_bovenaan(venster));
    EXPECT_TRUE(venster.isVisible());
}

TEST(Application, wat_het_toolkit_aan_plaatjes_bewaart_heeft_een_grens) {
    EXPECT_LE(QPixmapCache::cacheLimit(), 512); // KiB
}

TEST(QtPointer, de_zandloper_gaat_per_paar_aan_en_uit) {
    QtPointer aanwijzer;
    aanwijzer.busy();
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    aanwijzer.busy();
    aanwijzer.normal();
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    aanwijzer.normal();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(SystemFolders, de_mappen_van_de_gebruiker_hebben_een_pad_zonder_streep_aan_het_einde) {
    const SystemFolders mappen;
    for (const int csidl : {5, 16, 26, 28, 39, 23, 35, 46, 38}) {
        const std::optional<std::string> pad = mappen.path(csidl);
        ASSERT_TRUE(pad) << csidl;
        EXPECT_TRUE(QDir::isAbsolutePath(qt_text(*pad))) << *pad;
        EXPECT_FALSE(pad->ends_with('/') || pad->ends_with('\\')) << *pad;
    }
    const QString documenten = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_EQ(mappen.path(5), utf8(QDir::toNativeSeparators(documenten)));
}

TEST(Kleuren, het_laagste_byte_is_rood_heen_en_terug) {
    EXPECT_EQ(qt_colour(0x0000FF), QColor(255, 0, 0));
    EXPECT_EQ(qt_colour(0xBBFFBB), QColor(0xBB, 0xFF, 0xBB));
    EXPECT_EQ(qt_colour(-1), QColor(255, 255, 255)); // beyond the colours there are
    for (const std::int32_t kleur : {0, 0x123456, 0xFFFFFF, 0xFF, 0xFF0000})
        EXPECT_EQ(kern_colour(qt_colour(kleur)), kleur);
}

TEST(Teksten, komen_ongeschonden_heen_en_terug) {
    for (const std::string& tekst :
         {std::string(), std::string("Zoë Ÿ €"), std::string("a\0b", 3), std::string("\xC2\x81")})
        EXPECT_EQ(utf8(qt_text(tekst)), tekst);
}

TEST(Icon, elk_plaatje_is_getekend_in_elke_maat) {
    for (const Picture plaatje : {Picture::open, Picture::settings, Picture::monitor, Picture::previous, Picture::next,
                                  Picture::clear, Picture::program}) {
        for (const int zijde : {16, 32, 64}) {
            const QImage beeld = icon(plaatje).pixmap(zijde, zijde).toImage();
            ASSERT_EQ(beeld.size(), QSize(zijde, zijde));
            int getekend = 0;
            for (int y = 0; y < zijde; ++y)
                for (int x = 0; x < zijde; ++x)
                    getekend += beeld.pixelColor(x, y).alpha() > 128;
            EXPECT_GT(getekend, zijde * zijde / 12);
        }
    }
}

TEST(Application, een_fout_in_een_gebeurtenis_stopt_bij_die_gebeurtenis) {
    struct Struikelaar final : QObject {
        int gebeurtenissen = 0;
        bool event(QEvent* /*event*/) override {
            ++gebeurtenissen;
            throw std::runtime_error("gestruikeld");
        }
    } struikelaar;
    QCoreApplication::postEvent(&struikelaar, new QEvent(QEvent::User));
    QCoreApplication::processEvents();
    EXPECT_EQ(struikelaar.gebeurtenissen, 1);
}

} // namespace
} // namespace tavelo
