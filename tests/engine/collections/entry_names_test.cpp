// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/entry_names.h"

#include "support/fixtures.h"

#include <QDir>

namespace nubivane {

TEST(EntryNames, OrdinaryNamesAreValid) {
    for (const char* name : {"a", "set-1", "My symbols", "Météo", "天気", "a.b", ".hidden", "~x",
                             "con1", "console", "auxiliary", "com", "com10", "100%", "it's"}) {
        EXPECT_TRUE(isValidEntryName(QString::fromUtf8(name))) << name;
    }
}

TEST(EntryNames, EachForbiddenCharacterIsRefused) {
    for (const char c : std::string("?*:/\\<>|\"")) {
        EXPECT_FALSE(isValidEntryName(QStringLiteral("a%1b").arg(QLatin1Char(c)))) << c;
        EXPECT_FALSE(isValidEntryName(QString(QLatin1Char(c)))) << c;
    }
}

TEST(EntryNames, NamesThatLeaveTheirFolderAreRefused) {
    for (const char* name : {"", ".", "..", "../x", "..\\x", "/x", "C:", "C:\\x"}) {
        EXPECT_FALSE(isValidEntryName(name)) << name;
    }
}

TEST(EntryNames, TrailingDotsAndOuterBlanksAreRefused) {
    for (const char* name : {"a.", "a..", "a ", " ", "   ", " a", "a. ", "..."}) {
        EXPECT_FALSE(isValidEntryName(name)) << name;
    }
}

TEST(EntryNames, NamesOfDevicesAreRefusedInAnyCaseAndWithAnyExtension) {
    for (const char* name : {"con", "PRN", "Aux", "nul", "NUL.txt", "com1", "COM9.x", "lpt1",
                             "Lpt9", "con .x", "conin$", "CONOUT$", "aux.tar.gz", "com¹"}) {
        EXPECT_FALSE(isValidEntryName(QString::fromUtf8(name))) << name;
    }
}

TEST(EntryNames, ControlCharactersAreRefused) {
    for (const char16_t c : {u'\0', u'\t', u'\n', u'\r', u'\x1B', u'\x7F', u'\x85', u'\u2028'}) {
        EXPECT_FALSE(isValidEntryName(QString("a") + QChar(c) + 'b')) << int(c);
    }
}

TEST(EntryNames, HalfACharacterIsRefused) {
    EXPECT_FALSE(isValidEntryName(QString("a") + QChar(0xD800)));
}

TEST(EntryNames, ANameLongerThanFileSystemsTakeIsRefused) {
    EXPECT_TRUE(isValidEntryName(QString(255, u'a')));
    EXPECT_FALSE(isValidEntryName(QString(256, u'a')));
    EXPECT_FALSE(isValidEntryName(QString(128, u'é')));  // two bytes each
}

TEST(EntryNames, AnImportedNameThatIsValidStays) {
    EXPECT_EQ(validFileName("sun.gif"), "sun.gif");
    EXPECT_EQ(validFileName("Météo 1.PNG"), "Météo 1.PNG");
}

TEST(EntryNames, WhatAnImportedNameMayNotHoldIsReplaced) {
    EXPECT_EQ(validFileName("a|b.gif"), "a_b.gif");
    EXPECT_EQ(validFileName("a:b?.gif"), "a_b_.gif");
    EXPECT_EQ(validFileName("a\nb.gif"), "a_b.gif");
    EXPECT_EQ(validFileName(" sun.gif"), "_sun.gif");
    EXPECT_EQ(validFileName("con.gif"), "_con.gif");
    EXPECT_TRUE(isValidEntryName(validFileName(QString("a") + QChar(0xD800) + ".gif")));
}

namespace {

class FreeNames : public testing::WorkspaceFixture {
  protected:
    QString symbols() const { return model("Symbols"); }
    QString set() const { return model("Symbols/set-1"); }
};

}  // namespace

TEST_F(FreeNames, AFreeNameIsKept) {
    EXPECT_EQ(freeFileName(set(), "moon.gif"), "moon.gif");
    EXPECT_EQ(freeFileName(model("Symbols/none"), "sun.gif"), "sun.gif");
}

TEST_F(FreeNames, ATakenNameGetsTheFirstFreeNumber) {
    EXPECT_EQ(freeFileName(set(), "sun.gif"), "sun_1.gif");
    testing::writeFile(host("Symbols/set-1/sun_1.gif"), "x");
    EXPECT_EQ(freeFileName(set(), "sun.gif"), "sun_2.gif");
    testing::writeFile(host("Symbols/set-1/sun_3.gif"), "x");
    EXPECT_EQ(freeFileName(set(), "sun.gif"), "sun_2.gif");
}

TEST_F(FreeNames, CaseDoesNotMakeANameFree) {
    EXPECT_EQ(freeFileName(set(), "SUN.gif"), "SUN_1.gif");
}

TEST_F(FreeNames, AFolderTakesANameToo) {
    ASSERT_TRUE(QDir().mkpath(host("Symbols/set-1/moon.gif")));
    EXPECT_EQ(freeFileName(set(), "moon.gif"), "moon_1.gif");
}

TEST_F(FreeNames, ANewCollectionHasTheFirstFreeNumberWithoutBlanks) {
    EXPECT_EQ(newCollectionName(symbols()), "newCollection1");
    ASSERT_TRUE(QDir().mkpath(host("Symbols/NewCollection1")));
    ASSERT_TRUE(QDir().mkpath(host("Symbols/newCollection3")));
    EXPECT_EQ(newCollectionName(symbols()), "newCollection2");
}

}  // namespace nubivane
