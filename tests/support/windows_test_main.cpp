// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/own_state.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

/// Windows are tested without a display, on a screen of 1280 x 1024 with the fonts of the tests;
/// with QT_SCALE_FACTOR on one that has at least as much room when its pixels are counted so.
/// QT_QPA_PLATFORM chooses another platform, as for a look at a running test.
int main(int argc, char* argv[]) {
    ::testing::InitGoogleMock(&argc, argv);
    // What tests throw away must not end in the trash of whoever runs them.
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const nubivane::testing::OwnStateFolder state;
    if (qgetenv("QT_QPA_PLATFORM").isEmpty() || qgetenv("QT_QPA_PLATFORM") == "offscreen") {
        const bool dense = qgetenv("QT_SCALE_FACTOR").toDouble() > 1;
        qputenv("QT_QPA_PLATFORM",
                dense ? "offscreen:configfile=" NUBIVANE_TESTS "/support/screen-dense.json"
                      : "offscreen:configfile=" NUBIVANE_TESTS "/support/screen.json");
    }
    qputenv("FONTCONFIG_FILE", NUBIVANE_TESTS "/support/fonts.conf");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
