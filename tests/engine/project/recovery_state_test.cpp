// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/recovery_state.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

#include <QFile>

namespace nubivane::testing {

namespace {

/// The state of a copy with a map and one Frame.
class RecoveryStates : public ::testing::Test {
  protected:
    RecoveryStates() {
        for (const RecoveryPart& part :
             {state.map, state.frames[0].text, state.frames[0].picture}) {
            writeFile(temporary.file(part.name), QByteArray(part.size, '.'));
        }
        writeRecoveryState(temporary.path(), state);
    }

    TemporaryFolder temporary;
    RecoveryState state{
        .project = "C:\\Documents\\a week's weather.nvpf",
        .opened = {},
        .time = QDateTime::fromString("2026-03-29T12:30:00.500Z", Qt::ISODateWithMs),
        .head = {"a map of some part of the world.jpg", {"sky", "sea"}},
        .map = {"map-1", 10},
        .frames = {{{"text-2", 20}, {"picture-3", 30}}},
    };
};

}  // namespace

TEST_F(RecoveryStates, AreReadAsTheyWereWritten) {
    const RecoveryState read = readRecoveryState(temporary.path());
    EXPECT_EQ(read.project, state.project);
    EXPECT_EQ(read.opened, std::nullopt);
    EXPECT_EQ(read.time, state.time);
    EXPECT_EQ(read.head, state.head);
    EXPECT_EQ(read.map, state.map);
    ASSERT_EQ(read.frames.size(), 1U);
    EXPECT_EQ(read.frames[0].text, state.frames[0].text);
    EXPECT_EQ(read.frames[0].picture, state.frames[0].picture);
}

TEST_F(RecoveryStates, TellHowTheProjectLayOnTheDiskWhenItWasOpened) {
    state.opened = {{1, 2, 300, 4'000'000'000}, {1, 5, 600, 7'000'000'000}};
    writeRecoveryState(temporary.path(), state);
    EXPECT_EQ(readRecoveryState(temporary.path()).opened, state.opened);
}

TEST_F(RecoveryStates, WithoutOneOfTheirPartsAreRefused) {
    for (const char* part : {"map-1", "text-2", "picture-3"}) {
        const QByteArray content = readFile(temporary.file(part));
        QFile::remove(temporary.file(part));
        EXPECT_THROW(readRecoveryState(temporary.path()), Error) << part;
        writeFile(temporary.file(part), content);
    }
    EXPECT_NO_THROW(readRecoveryState(temporary.path()));
}

}  // namespace nubivane::testing
