#include <QApplication>

#include <gmock/gmock.h>

/// Windows are tested without a display, on a screen of 1280 x 1024 with the fonts of the tests.
/// QT_QPA_PLATFORM chooses another platform, as for a look at a running test.
int main(int argc, char* argv[]) {
    ::testing::InitGoogleMock(&argc, argv);
    if (qgetenv("QT_QPA_PLATFORM").isEmpty() || qgetenv("QT_QPA_PLATFORM") == "offscreen") {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" NUBIVANE_TESTS "/support/screen.json");
    }
    qputenv("FONTCONFIG_FILE", NUBIVANE_TESTS "/support/fonts.conf");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
