// The windows on two screens of which one has twice as many pixels for the same size: the toolkit's offscreen platform
// with a configuration of its own.
#include "platform/application.h"

#include <QStandardPaths>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TAVELO_SCHERMEN);
    tavelo::Application toepassing(argc, argv);
    QStandardPaths::setTestModeEnabled(true); // never the settings of who runs the tests
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
