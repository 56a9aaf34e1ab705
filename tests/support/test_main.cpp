// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/own_state.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

int main(int argc, char* argv[]) {
    ::testing::InitGoogleMock(&argc, argv);
    // What tests throw away must not end in the trash of whoever runs them.
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const nubivane::testing::OwnStateFolder state;
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
