// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/chm_file.h"

#include "engine/core/error.h"
#include "support/built_help.h"
#include "support/processes.h"

#include <QDir>
#include <QRandomGenerator>
#include <QStandardPaths>

namespace nubivane::testing {

namespace {

/// Reads everything in a file; what cannot be read may raise `Error` and nothing else.
void readAll(const QByteArray& bytes) {
    try {
        const ChmFile file(bytes);
        for (const QString& name : file.names()) {
            try {
                file.read(name);
            } catch (const Error&) {
                continue;
            }
        }
    } catch (const Error&) {
        return;
    }
}

/// Where a text stands in some bytes.
qsizetype placeOf(const QByteArray& bytes, const char* text) {
    const qsizetype place = bytes.indexOf(text);
    EXPECT_GE(place, 0) << text;
    return place;
}

QByteArray withNumber(QByteArray bytes, qsizetype place, quint32 number) {
    for (int i = 0; i < 4; ++i) {
        bytes[place + i] = static_cast<char>(number >> 8 * i);
    }
    return bytes;
}

}  // namespace

TEST(ChmFile, HoldsWhatAnotherReaderFindsInIt) {
    if (QStandardPaths::findExecutable("extract_chmLib").isEmpty()) {
        GTEST_SKIP() << "extract_chmLib is missing";
    }
    const TemporaryFolder folder;
    const ProcessResult result = runProgram("extract_chmLib", {builtHelp(), folder.file("out")});
    ASSERT_EQ(result.exitCode, 0) << result.err.toStdString();
    const ChmFile file(readFile(builtHelp()));
    EXPECT_GT(file.names().size(), 40);
    for (const QString& name : file.names()) {
        EXPECT_EQ(file.read(name), readFile(folder.file("out/" + name))) << name.toStdString();
    }
}

TEST(ChmFile, HoldsThePagesAndPicturesOfTheTreeByteForByte) {
    const ChmFile file(readFile(builtHelp()));
    const QDir sources(NUBIVANE_SOURCES "/help");
    for (const QString& name : sources.entryList({"*.htm", "*.css"}, QDir::Files)) {
        EXPECT_EQ(file.read(name), readFile(sources.filePath(name))) << name.toStdString();
    }
    for (const QString& name : QDir(sources.filePath("pictures")).entryList({"*.png"})) {
        EXPECT_EQ(file.read("pictures/" + name), readFile(sources.filePath("pictures/" + name)))
            << name.toStdString();
    }
}

TEST(ChmFile, FindsNamesWithoutRegardToCase) {
    const ChmFile file(readFile(builtHelp()));
    EXPECT_TRUE(file.contains("PAGESETTINGS.HTM"));
    EXPECT_EQ(file.read("Index.HTM"), file.read("index.htm"));
    EXPECT_FALSE(file.contains("missing.htm"));
    EXPECT_FALSE(file.contains(""));
    EXPECT_THROW(file.read("missing.htm"), Error);
}

TEST(ChmFile, NamesThatLeaveTheFolderAreOnlyNames) {
    const ChmFile file(readFile(builtHelp()));
    for (const char* name :
         {"../index.htm", "/etc/passwd", "..\\index.htm", "pictures/../index.htm"}) {
        EXPECT_FALSE(file.contains(name)) << name;
    }
}

TEST(ChmFile, WhatIsNoHelpFileIsRefused) {
    EXPECT_THROW(ChmFile(""), Error);
    EXPECT_THROW(ChmFile("ITSF"), Error);
    EXPECT_THROW(ChmFile(QByteArray(10000, 'x')), Error);
    EXPECT_THROW(ChmFile("ITSF" + QByteArray(10000, '\0')), Error);
}

TEST(ChmFile, AFileCutOffAnywhereRaisesErrorsAndNothingElse) {
    const QByteArray whole = readFile(builtHelp());
    for (qsizetype length = 0; length < 400; ++length) {
        EXPECT_THROW(ChmFile(whole.first(length)), Error) << length;
    }
    for (qsizetype length = 400; length < whole.size(); length += whole.size() / 40) {
        readAll(whole.first(length));
    }
}

TEST(ChmFile, DamagedBytesRaiseErrorsAndNothingElse) {
    const QByteArray whole = readFile(builtHelp());
    QRandomGenerator chance(7);
    for (int round = 0; round < 30; ++round) {
        QByteArray damaged = whole;
        // The first bytes say how the rest is to be read.
        const int range = round % 2 == 0 ? 12000 : static_cast<int>(whole.size());
        for (int i = 0; i < 8; ++i) {
            damaged[chance.bounded(range)] = static_cast<char>(chance.bounded(256));
        }
        readAll(damaged);
    }
}

TEST(ChmFile, SizesWithoutBoundsCostNothing) {
    const QByteArray whole = readFile(builtHelp());
    const qsizetype control = placeOf(whole, "LZXC");
    constexpr int ResetInterval = 8;
    constexpr int WindowSize = 12;
    constexpr int WindowsPerReset = 16;
    for (const quint32 number : {0U, 3U, 0x10000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        EXPECT_THROW(ChmFile(withNumber(whole, control + WindowSize, number)), Error) << number;
    }
    for (const quint32 number : {0U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        EXPECT_THROW(ChmFile(withNumber(whole, control + ResetInterval, number)), Error) << number;
        EXPECT_THROW(ChmFile(withNumber(whole, control + WindowsPerReset, number)), Error)
            << number;
    }
    const qsizetype directory = placeOf(whole, "ITSP");
    constexpr int ChunkLength = 16;
    for (const quint32 number : {0U, 19U, 0xFFFFFFFFU}) {
        EXPECT_THROW(ChmFile(withNumber(whole, directory + ChunkLength, number)), Error) << number;
    }
}

}  // namespace nubivane::testing
