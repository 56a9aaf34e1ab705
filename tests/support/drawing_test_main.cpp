// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/own_state.h"

#include <QGuiApplication>

#include <gmock/gmock.h>

/// What draws text is tested without a display, with the fonts of the tests.
int main(int argc, char* argv[]) {
    ::testing::InitGoogleMock(&argc, argv);
    const nubivane::testing::OwnStateFolder state;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", NUBIVANE_TESTS "/support/fonts.conf");
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
