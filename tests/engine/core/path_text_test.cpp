// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/path_text.h"

#include "support/fixtures.h"

namespace nubivane {

TEST(PathText, FileNameAndFolderOfABareName) {
    EXPECT_EQ(getFileName("sun.gif"), "sun.gif");
    EXPECT_EQ(getFolder("sun.gif"), "");
}

TEST(PathText, FileNameAndFolderPartAtTheLastBackslash) {
    EXPECT_EQ(getFileName("C:\\a\\sun.gif"), "sun.gif");
    EXPECT_EQ(getFolder("C:\\a\\sun.gif"), "C:\\a");
    EXPECT_EQ(getFileName("C:\\a\\"), "");
    EXPECT_EQ(getFolder("C:\\a\\"), "C:\\a");
    EXPECT_EQ(getFolder("\\a"), "");
}

TEST(PathText, AForwardSlashIsAnOrdinaryCharacter) {
    EXPECT_EQ(getFileName("a/b.gif"), "a/b.gif");
    EXPECT_EQ(getFolder("a/b.gif"), "");
    EXPECT_EQ(getFileName("C:\\a/b.gif"), "a/b.gif");
    EXPECT_EQ(getLastFolder("a/b/c.gif"), "a/b/c.gif");
}

TEST(PathText, EmptyTextsStayEmpty) {
    EXPECT_EQ(getFileName(""), "");
    EXPECT_EQ(getFolder(""), "");
    EXPECT_EQ(stripExtension(""), "");
    EXPECT_EQ(getExtension(""), "");
    EXPECT_EQ(getLastFolder(""), "");
    EXPECT_EQ(getField("", 1), "");
    EXPECT_EQ(getField("", 2), "");
    EXPECT_EQ(uniqueFileName("", 1), "");
}

TEST(PathText, ExtensionAndStripExtensionAreNoComplements) {
    EXPECT_EQ(getExtension("noext"), "noext");
    EXPECT_EQ(stripExtension("noext"), "");
    EXPECT_EQ(stripExtension("C:\\a\\b.nvpf"), "C:\\a\\b");
}

TEST(PathText, TheSearchForThePointDoesNotStopAtASeparator) {
    EXPECT_EQ(getExtension("a.b\\file"), "b\\file");
    EXPECT_EQ(stripExtension("a.b\\file"), "a");
}

TEST(PathText, OnlyTheLastPointCounts) {
    EXPECT_EQ(getExtension("a.b.gif"), "gif");
    EXPECT_EQ(stripExtension("a.b.gif"), "a.b");
    EXPECT_EQ(getExtension("a."), "");
    EXPECT_EQ(stripExtension(".gif"), "");
}

TEST(PathText, LastFolderIsTheFolderOfTheFile) {
    EXPECT_EQ(getLastFolder("C:\\x\\Symbols\\set-1\\sun.gif"), "set-1");
    EXPECT_EQ(getLastFolder("sun.gif"), "sun.gif");
    EXPECT_EQ(getLastFolder("set-1\\sun.gif"), "set-1\\sun.gif");
    EXPECT_EQ(getLastFolder("C:\\sun.gif"), "C:\\sun.gif");
    EXPECT_EQ(getLastFolder("C:\\x\\sun.gif"), "x");
}

TEST(PathText, LeadingBlanksMoveTheCut) {
    // The position is found in the trimmed text and applied to the text as given.
    EXPECT_EQ(getFileName("  a\\b"), "a\\b");
    EXPECT_EQ(getFolder("  a\\b"), " ");
}

TEST(PathText, TrailingBlanksStayInThePartBehindTheCut) {
    EXPECT_EQ(getFileName("a\\b  "), "b  ");
    EXPECT_EQ(getFolder("a\\b  "), "a");
    EXPECT_EQ(getExtension("a.gif "), "gif ");
}

TEST(PathText, TrimmingTakesBlanksAloneFromBothEnds) {
    EXPECT_EQ(trimBlanks("  a b  "), "a b");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks("\ta\r\n"), "\ta\r\n");
}

TEST(PathText, FieldsOfATag) {
    EXPECT_EQ(getField("1|K-3|", 1), "1");
    EXPECT_EQ(getField("1|K-3|", 2), "K-3");
    EXPECT_EQ(getField("1", 1), "1");
    EXPECT_EQ(getField("1|K-3", 2), "K-3");
}

TEST(PathText, AskingForTooManyFieldsStartsOver) {
    EXPECT_EQ(getField("1|K-3|", 4), "1");
    EXPECT_EQ(getField("1|K-3|", 5), "K-3");
    EXPECT_EQ(getField("1", 2), "1");
}

TEST(PathText, TheFieldBehindTheLastSeparatorIsEmpty) {
    EXPECT_EQ(getField("1|K-3|", 3), "");
    EXPECT_EQ(getField("||x|", 1), "");
    EXPECT_EQ(getField("||x|", 2), "");
    EXPECT_EQ(getField("||x|", 3), "x");
}

TEST(PathText, UniqueFileNamePutsTheNumberBeforeTheLastPoint) {
    EXPECT_EQ(uniqueFileName("sun.gif", 1), "sun_1.gif");
    EXPECT_EQ(uniqueFileName("a.b.gif", 2), "a.b_2.gif");
    EXPECT_EQ(uniqueFileName("noext", 3), "noext");
    EXPECT_EQ(uniqueFileName(".gif", 4), "_4.gif");
    EXPECT_EQ(uniqueFileName("sun.", 5), "sun_5.");
}

}  // namespace nubivane
