// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/own_words.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>

namespace nubivane::testing {

TEST(OwnWordsOf, AreThereAgainTheNextTime) {
    const TemporaryFolder folder;
    const QString file = folder.file("new/folder/Words.txt");
    {
        OwnWords words(file);
        EXPECT_FALSE(words.contains("Bologna"));
        words.add("Bologna");
        words.add("föhn");
        EXPECT_TRUE(words.contains("Bologna"));
    }
    EXPECT_EQ(readFile(file), "Bologna\nföhn\n");
    const OwnWords again(file);
    EXPECT_TRUE(again.contains("Bologna"));
    EXPECT_TRUE(again.contains("Föhn"));
    EXPECT_FALSE(again.contains("bologna"));
    EXPECT_FALSE(again.contains(""));
}

TEST(OwnWordsOf, AWordThatIsThereIsNotAddedTwice) {
    const TemporaryFolder folder;
    OwnWords words(folder.file("Words.txt"));
    words.add("fog");
    words.add("fog");
    EXPECT_EQ(readFile(folder.file("Words.txt")), "fog\n");
}

TEST(OwnWordsOf, WhatAnotherEditorHasAddedMeanwhileStays) {
    const TemporaryFolder folder;
    OwnWords one(folder.file("Words.txt"));
    OwnWords other(folder.file("Words.txt"));
    one.add("fog");
    other.add("haze");
    EXPECT_EQ(readFile(folder.file("Words.txt")), "fog\nhaze\n");
    EXPECT_TRUE(other.contains("fog"));
}

TEST(OwnWordsOf, AFileWrittenElsewhereMayHaveOtherLineEnds) {
    const TemporaryFolder folder;
    writeFile(folder.file("Words.txt"), "fog\r\n\r\nhaze");
    OwnWords words(folder.file("Words.txt"));
    EXPECT_TRUE(words.contains("fog"));
    EXPECT_TRUE(words.contains("haze"));
}

TEST(OwnWordsOf, WhatIsNotOurFileIsLeftAlone) {
    const TemporaryFolder folder;
    const QString pipe = folder.file("pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    OwnWords none(pipe);
    EXPECT_FALSE(none.contains("fog"));
    EXPECT_THROW(none.add("fog"), Error);

    const QByteArray large(OwnWords::MaxBytes + 1, 'x');
    writeFile(folder.file("large"), large);
    OwnWords tooMany(folder.file("large"));
    EXPECT_THROW(tooMany.add("fog"), Error);
    EXPECT_EQ(QFileInfo(folder.file("large")).size(), large.size());
}

TEST(OwnWordsOf, OneThatCannotBeKeptIsNoWordOfOurs) {
    const TemporaryFolder folder;
    writeFile(folder.file("file"), "x");
    OwnWords words(folder.file("file/Words.txt"));
    EXPECT_THROW(words.add("fog"), Error);
    EXPECT_FALSE(words.contains("fog"));
}

}  // namespace nubivane::testing
