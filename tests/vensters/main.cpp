// The tests of the windows: real widgets on the toolkit's offscreen platform, so that they need no display.
#include "platform/application.h"

#include <QStandardPaths>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    tavelo::Application toepassing(argc, argv);
    QStandardPaths::setTestModeEnabled(true); // never the settings of who runs the tests
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
