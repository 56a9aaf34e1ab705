// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/symbol_files.h"

#include "engine/collections/scan_collections.h"
#include "support/fixtures.h"

#include <QDir>
#include <QFile>

namespace nubivane {

namespace {

constexpr char InUse[] =
    "Cannot delete: some symbols of the collection are currently used into the project.";

class SymbolFiles : public testing::WorkspaceFixture {
  protected:
    SymbolFiles() { scanCollections(collections(), workspace.folder); }

    cSymbolsCollections& collections() { return workspace.Status.SymbolsCollection(); }
    bool exists(const QString& name) const { return QFile::exists(host("Symbols/" + name)); }
    /// Puts a symbol onto a new Frame.
    void use(const QString& file) {
        workspace.Frames().Add().Sprites().Symbols().add({.Name = "gifSymbol",
                                                          .Frame = 2,
                                                          .Width = 9,
                                                          .Height = 9,
                                                          .FileGif = file,
                                                          .PathFileGif = file,
                                                          .Index = 1});
    }
    QString path(const QString& name) const { return workspace.folder.symbols() + u'\\' + name; }
};

}  // namespace

TEST_F(SymbolFiles, ASymbolOfAnyFrameUsesItsCollection) {
    EXPECT_FALSE(usesCollection(workspace.Frames(), path("set-1")));
    use(path("set-1\\sun.gif"));
    EXPECT_TRUE(usesCollection(workspace.Frames(), path("set-1")));
    EXPECT_FALSE(usesCollection(workspace.Frames(), path("sea")));
    EXPECT_FALSE(usesCollection(workspace.Frames(), path("set")));
    EXPECT_TRUE(usesSymbol(workspace.Frames(), path("set-1\\sun.gif")));
    EXPECT_FALSE(usesSymbol(workspace.Frames(), path("set-1\\rain.gif")));
}

TEST_F(SymbolFiles, CaseCountsInUse) {
    use(path("Set-1\\sun.gif"));
    EXPECT_FALSE(usesCollection(workspace.Frames(), path("set-1")));
    EXPECT_FALSE(usesSymbol(workspace.Frames(), path("set-1\\sun.gif")));
}

TEST_F(SymbolFiles, TheReadPathCountsNotTheOneOfCreation) {
    workspace.Frames().Item(1).Sprites().Symbols().add({.Name = "gifSymbol",
                                                        .Frame = 1,
                                                        .Width = 9,
                                                        .Height = 9,
                                                        .FileGif = path("sea\\wave.png"),
                                                        .PathFileGif = path("set-1\\sun.gif"),
                                                        .Index = 1});
    EXPECT_FALSE(usesCollection(workspace.Frames(), path("sea")));
    EXPECT_TRUE(usesCollection(workspace.Frames(), path("set-1")));
}

TEST_F(SymbolFiles, ANewCollectionIsAFolderAndAnUncheckedElement) {
    EXPECT_EQ(createCollection(workspace), "newCollection1");
    EXPECT_TRUE(exists("newCollection1"));
    EXPECT_EQ(collections().Item("newCollection1").Path, path("newCollection1"));
    EXPECT_FALSE(collections().Item("newCollection1").Checked);
    EXPECT_TRUE(collections().IsChanged);
    EXPECT_EQ(createCollection(workspace), "newCollection2");
}

TEST_F(SymbolFiles, ANewCollectionTakesTheFirstNameThatNothingBears) {
    QDir().mkpath(host("Symbols/NEWcollection1"));
    testing::writeFile(host("Symbols/newCollection2"), "a file");
    EXPECT_EQ(createCollection(workspace), "newCollection3");
    EXPECT_EQ(collections().Item("newCollection3").Path, path("newCollection3"));
}

TEST_F(SymbolFiles, WhereNoFolderCanBeMadeThereIsNoNewCollection) {
    QDir(host("Symbols")).removeRecursively();
    testing::writeFile(host("Symbols"), "a file");
    EXPECT_EQ(createCollection(workspace), "");
    EXPECT_EQ(collections().Count(), 0);
    EXPECT_EQ(testing::readFile(host("Symbols")), "a file");
}

TEST_F(SymbolFiles, RenamingACollectionRenamesItsFolderAndKeepsItsMark) {
    collections().Item("set-1").Checked = true;
    EXPECT_EQ(renameCollection(workspace, "set-1", "My set"), "");
    EXPECT_FALSE(exists("set-1"));
    EXPECT_TRUE(exists("My set/sun.gif"));
    EXPECT_FALSE(collections().contains("set-1"));
    EXPECT_EQ(collections().Item("My set").Path, path("My set"));
    EXPECT_EQ(collections().Item("My set").Name, "My set");
    EXPECT_TRUE(collections().Item("My set").Checked);
    EXPECT_TRUE(collections().IsChanged);
}

TEST_F(SymbolFiles, AChangeOfCaseAloneDoesNothing) {
    use(path("set-1\\sun.gif"));  // not even that is looked at
    EXPECT_EQ(renameCollection(workspace, "set-1", "SET-1"), "");
    EXPECT_EQ(testing::folderNames(host("Symbols")), QStringList({"sea", "set-1"}));
    EXPECT_TRUE(collections().contains("set-1"));
    EXPECT_FALSE(collections().IsChanged);
}

TEST_F(SymbolFiles, ANameThatIsNotValidIsRefused) {
    for (const char* name : {"", "a\"b", "a?", "a*", "a:b", "a/b", "a\\b", "<a", "a>", "a|b", "..",
                             "con", "a.", "a ", "..\\..\\elsewhere"}) {
        EXPECT_EQ(renameCollection(workspace, "set-1", name), "Directory name not valid.") << name;
    }
    EXPECT_EQ(testing::folderNames(host("Symbols")), QStringList({"sea", "set-1"}));
    EXPECT_FALSE(collections().IsChanged);
}

TEST_F(SymbolFiles, TheNameOfAnotherCollectionIsRefusedInAnyCase) {
    for (const char* name : {"sea", "SEA"}) {
        EXPECT_EQ(renameCollection(workspace, "set-1", name),
                  "A collection with the same name already exist.")
            << name;
    }
}

TEST_F(SymbolFiles, ACollectionInUseKeepsItsName) {
    use(path("set-1\\sun.gif"));
    EXPECT_EQ(renameCollection(workspace, "set-1", "other"), InUse);
    EXPECT_TRUE(exists("set-1/sun.gif"));
    EXPECT_EQ(renameCollection(workspace, "sea", "ocean"), "");
}

TEST_F(SymbolFiles, TheChecksStandInTheirOrder) {
    use(path("set-1\\sun.gif"));
    EXPECT_EQ(renameCollection(workspace, "set-1", "a?"), "Directory name not valid.");
    EXPECT_EQ(renameCollection(workspace, "set-1", "sea"),
              "A collection with the same name already exist.");
}

TEST_F(SymbolFiles, AFolderThatIsGoneIsForgottenAtItsRenamingAndNothingIsSaid) {
    ASSERT_TRUE(QDir(host("Symbols/sea")).removeRecursively());
    EXPECT_EQ(renameCollection(workspace, "sea", "ocean"), "");
    EXPECT_FALSE(collections().contains("sea"));
    EXPECT_FALSE(collections().contains("ocean"));
    EXPECT_FALSE(collections().IsChanged);
}

TEST_F(SymbolFiles, DeletingACollectionRemovesItsFilesAndItsFolder) {
    EXPECT_EQ(deleteCollection(workspace, "sea"), "");
    EXPECT_FALSE(exists("sea"));
    EXPECT_FALSE(collections().contains("sea"));
    EXPECT_TRUE(collections().IsChanged);
    EXPECT_TRUE(exists("set-1/sun.gif"));
}

TEST_F(SymbolFiles, ACollectionInUseIsNotDeleted) {
    use(path("sea\\wave.png"));
    EXPECT_EQ(deleteCollection(workspace, "sea"), InUse);
    EXPECT_TRUE(exists("sea/wave.png"));
    EXPECT_TRUE(collections().contains("sea"));
    EXPECT_FALSE(collections().IsChanged);
    EXPECT_EQ(deleteCollection(workspace, "set-1"), "");
}

TEST_F(SymbolFiles, AFolderWithFoldersInItStaysAndSoDoesItsElement) {
    testing::writeFile(host("Symbols/sea/deep/x.txt"), "x");
    EXPECT_EQ(deleteCollection(workspace, "sea"), "");
    EXPECT_TRUE(exists("sea/deep/x.txt"));
    EXPECT_FALSE(exists("sea/wave.png"));
    EXPECT_TRUE(collections().contains("sea"));
}

TEST_F(SymbolFiles, OfALinkToAFolderElsewhereTheLinkAloneIsDeleted) {
    testing::writeFile(temporary.file("elsewhere/precious.png"), "x");
    ASSERT_TRUE(QFile::link(temporary.file("elsewhere"), host("Symbols/link")));
    scanCollections(collections(), workspace.folder);
    EXPECT_EQ(deleteCollection(workspace, "link"), "");
    EXPECT_FALSE(exists("link"));
    EXPECT_FALSE(collections().contains("link"));
    EXPECT_TRUE(QFile::exists(temporary.file("elsewhere/precious.png")));
}

TEST_F(SymbolFiles, ASymbolThatNobodyUsesIsDeleted) {
    EXPECT_EQ(deleteSymbol(workspace, path("set-1\\sun.gif")), "");
    EXPECT_FALSE(exists("set-1/sun.gif"));
    EXPECT_TRUE(collections().IsChanged);
}

TEST_F(SymbolFiles, ASymbolInUseIsNotDeleted) {
    use(path("set-1\\sun.gif"));
    EXPECT_EQ(deleteSymbol(workspace, path("set-1\\sun.gif")),
              "Cannot delete: the symbol is currently used into the project.");
    EXPECT_TRUE(exists("set-1/sun.gif"));
    EXPECT_FALSE(collections().IsChanged);
    EXPECT_EQ(deleteSymbol(workspace, path("set-1\\rain.gif")), "");
}

}  // namespace nubivane
