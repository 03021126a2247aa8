#include "platform/codeTransparency.h"
#include "platform/special_folders.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace tavelo {
namespace {

TEST(ZetTransparantie, gaat_van_onzichtbaar_naar_ondoorzichtig) {
    QWidget venster;
    zet_transparantie(venster, 0);
    EXPECT_EQ(venster.windowOpacity(), 0);
    zet_transparantie(venster, 51);
    EXPECT_NEAR(venster.windowOpacity(), 0.2, 0.005);
    zet_transparantie(venster, 255);
    EXPECT_EQ(venster.windowOpacity(), 1);
}

TEST(SystemFolders, een_map_die_het_systeem_niet_kent_is_er_niet) {
    const SystemFolders mappen;
    EXPECT_EQ(mappen.path(18), std::nullopt);
    EXPECT_EQ(mappen.path(19), std::nullopt);
    EXPECT_EQ(mappen.path(-1), std::nullopt);
}

} // namespace
} // namespace tavelo
