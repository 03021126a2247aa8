// The tests of the windows: real widgets on the toolkit's offscreen platform, so that they need no display.
#include <QApplication>
#include <QStandardPaths>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication toepassing(argc, argv);
    QStandardPaths::setTestModeEnabled(true); // never the settings of who runs the tests
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
