// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/animation_cache.h"
#include "engine/picture/image_codec.h"
#include "support/dialog_parts.h"
#include "support/fixtures.h"
#include "windows/collections/frm_symbols_collection.h"

#include <QDir>
#include <QFile>
#include <QLabel>

#include <memory>

namespace nubivane {

using namespace testing;

/// The window of the collections, over "sea" (wave.png) and "set-1" (rain, snow, sun.gif).
class SymbolsCollectionWindow : public WorkspaceFixture {
  protected:
    frmSymbolsCollection& start() {
        window_ = std::make_unique<frmSymbolsCollection>(workspace, animations, shell, nullptr);
        showActive(*window_);
        return *window_;
    }
    frmSymbolsCollection& window() { return *window_; }
    NameList& rows() { return *window_->pane().lvwCollection(); }
    ListImage& thumbnails() { return *window_->pane().listImageSymbols(); }
    cSymbolsCollections& collections() { return workspace.Status.SymbolsCollection(); }

    QStringList names() {
        QStringList result;
        for (int i = 0; i < rows().count(); ++i) {
            result << rows().item(i)->text();
        }
        return result;
    }
    QListWidgetItem& row(const QString& name) { return *rows().rowOf(name); }
    void clickRow(const QString& name) {
        QTest::mouseClick(rows().viewport(), Qt::LeftButton, {},
                          rows().visualItemRect(&row(name)).center());
    }
    /// Clicks into the box of a row.
    void tick(const QString& name) {
        const QRect rect = rows().visualItemRect(&row(name));
        QTest::mouseClick(rows().viewport(), Qt::LeftButton, {},
                          QPoint(rect.left() + 10, rect.center().y()));
    }
    void rename(const QString& name, const QString& newName) {
        clickRow(name);
        clickPart(window(), "btnRenameCollection");
        typeName(newName);
    }
    void use(const QString& file) {
        workspace.Frames().Item(1).Sprites().Symbols().add({.Name = "gifSymbol",
                                                            .Frame = 1,
                                                            .Width = 9,
                                                            .Height = 9,
                                                            .FileGif = file,
                                                            .PathFileGif = file,
                                                            .Index = 1});
    }
    QString symbol(const QString& name) const { return workspace.folder.symbols() + u'\\' + name; }
    bool exists(const QString& name) const { return QFile::exists(host("Symbols/" + name)); }
    /// A picture outside the program folder, as a path with backslashes.
    QString outside(const QString& name, QSize size = {32, 32}) {
        writeFile(temporary.file(name), encodePicture(plainImage(size, Qt::red),
                                                      formatOfExtension(name.section('.', -1))));
        return temporary.file(name).replace(u'/', u'\\');
    }
    void import(const QString& file) {
        shell.expectOpenDialog("Select file", file);
        clickPart(window(), "btnImportSymbol");
    }

    AnimationCache animations;

  private:
    std::unique_ptr<frmSymbolsCollection> window_;
};

TEST_F(SymbolsCollectionWindow, ListsTheFoldersWithTheirBoxesAndShowsTheFirst) {
    collections().Add(symbol("set-1"), "set-1").Checked = true;
    start();
    EXPECT_EQ(names(), QStringList({"sea", "set-1"}));
    EXPECT_EQ(row("sea").checkState(), Qt::Unchecked);
    EXPECT_EQ(row("set-1").checkState(), Qt::Checked);
    EXPECT_EQ(NameList::keyOf(&row("set-1")), "set-1");
    EXPECT_EQ(NameList::tagOf(&row("set-1")), symbol("set-1"));
    EXPECT_EQ(rows().currentItem()->text(), "sea");
    EXPECT_EQ(textOf(window(), "txtCollection"), "sea");
    EXPECT_EQ(textOf(window(), "txtFile"), host("Symbols/sea/wave.png"));
    EXPECT_EQ(thumbnails().selectedIndex(), 1);
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(SymbolsCollectionWindow, AFolderThatIsGoneVanishesAndANewOneComesUpUnchecked) {
    start();
    tick("set-1");
    clickPart(window(), "cmdOK");
    ASSERT_TRUE(QDir(host("Symbols/sea")).removeRecursively());
    ASSERT_TRUE(QDir().mkpath(host("Symbols/alps")));
    start();
    EXPECT_EQ(names(), QStringList({"alps", "set-1"}));
    EXPECT_EQ(row("alps").checkState(), Qt::Unchecked);
    EXPECT_EQ(row("set-1").checkState(), Qt::Checked);
}

TEST_F(SymbolsCollectionWindow, WithoutCollectionsOnlyTheButtonsThatNeedNoneWork) {
    ASSERT_TRUE(QDir(host("Symbols")).removeRecursively());
    start();
    EXPECT_EQ(rows().count(), 0);
    EXPECT_EQ(textOf(window(), "txtCollection"), "");
    EXPECT_EQ(textOf(window(), "txtFile"), "");
    for (const char* name : {"btnDeleteCollection", "btnRenameCollection", "btnImportSymbol"}) {
        EXPECT_FALSE(part<QWidget>(window(), name)->isEnabled()) << name;
    }
    clickPart(window(), "btnNewCollection");
    EXPECT_EQ(names(), QStringList("newCollection1"));
    for (const char* name : {"btnDeleteCollection", "btnRenameCollection", "btnImportSymbol"}) {
        EXPECT_TRUE(part<QWidget>(window(), name)->isEnabled()) << name;
    }
}

TEST_F(SymbolsCollectionWindow, AClickOnARowShowsItsSymbols) {
    start();
    clickRow("set-1");
    EXPECT_EQ(textOf(window(), "txtCollection"), "set-1");
    EXPECT_EQ(thumbnails().symbols().rowCount(), 3);
    EXPECT_EQ(textOf(window(), "txtFile"), host("Symbols/set-1/rain.gif"));
}

TEST_F(SymbolsCollectionWindow, AClickOnAThumbnailShowsItsPathAndItsPicture) {
    start();
    clickRow("set-1");
    const QModelIndex sun = thumbnails().symbols().index(2);
    QTest::mouseClick(thumbnails().viewport(), Qt::LeftButton, {},
                      thumbnails().visualRect(sun).center());
    EXPECT_EQ(textOf(window(), "txtFile"), host("Symbols/set-1/sun.gif"));
    EXPECT_EQ(thumbnails().selectedIndex(), 3);
    thumbnails().symbols().waitUntilLoaded();
    QApplication::processEvents();
    EXPECT_EQ(part<PictureBox>(window(), "gifSymbol")->image().size(),
              animations.get(symbol("set-1\\sun.gif"))->size());
}

TEST_F(SymbolsCollectionWindow, AnEmptyCollectionEmptiesTheField) {
    ASSERT_TRUE(QDir().mkpath(host("Symbols/empty")));
    start();
    clickRow("empty");
    EXPECT_EQ(textOf(window(), "txtCollection"), "empty");
    EXPECT_EQ(textOf(window(), "txtFile"), "");
    EXPECT_EQ(thumbnails().selectedIndex(), 0);
    EXPECT_TRUE(part<PictureBox>(window(), "gifSymbol")->image().isNull());
}

TEST_F(SymbolsCollectionWindow, ANewCollectionIsMadeAndSelected) {
    start();
    clickPart(window(), "btnNewCollection");
    EXPECT_TRUE(exists("newCollection1"));
    EXPECT_EQ(rows().currentItem()->text(), "newCollection1");
    EXPECT_EQ(textOf(window(), "txtCollection"), "newCollection1");
    EXPECT_TRUE(collections().IsChanged);
    clickPart(window(), "btnNewCollection");
    EXPECT_EQ(rows().currentItem()->text(), "newCollection2");
}

TEST_F(SymbolsCollectionWindow, ACollectionIsRenamedInItsRow) {
    start();
    rename("set-1", "Winter");
    EXPECT_TRUE(exists("Winter/sun.gif"));
    EXPECT_EQ(names(), QStringList({"sea", "Winter"}));
    EXPECT_EQ(NameList::keyOf(&row("Winter")), "Winter");
    EXPECT_EQ(NameList::tagOf(&row("Winter")), symbol("Winter"));
    EXPECT_EQ(textOf(window(), "txtCollection"), "Winter");
    EXPECT_EQ(textOf(window(), "txtFile"), host("Symbols/Winter/rain.gif"));
    EXPECT_TRUE(window().isVisible());  // Enter ended the edit, not the window
}

TEST_F(SymbolsCollectionWindow, EscapeLeavesTheNameAndTheWindow) {
    start();
    clickRow("set-1");
    clickPart(window(), "btnRenameCollection");
    typeName("Winter", Qt::Key_Escape);
    EXPECT_EQ(names(), QStringList({"sea", "set-1"}));
    EXPECT_TRUE(exists("set-1"));
    EXPECT_TRUE(window().isVisible());
}

TEST_F(SymbolsCollectionWindow, EachRefusedNameGetsItsBoxAndTheRowKeepsItsName) {
    start();
    shell.expectMessage("Directory name not valid.", Icon::Critical);
    rename("set-1", "a\"b");
    shell.expectMessage("A collection with the same name already exist.", Icon::Critical);
    rename("set-1", "SEA");
    use(symbol("set-1\\sun.gif"));
    shell.expectMessage(
        "Cannot delete: some symbols of the collection are currently used into the project.",
        Icon::Critical);
    rename("set-1", "Winter");
    EXPECT_EQ(names(), QStringList({"sea", "set-1"}));
    EXPECT_TRUE(exists("set-1/sun.gif"));
    EXPECT_FALSE(collections().IsChanged);
    EXPECT_TRUE(window().isVisible());
}

TEST_F(SymbolsCollectionWindow, AChangeOfCaseAloneChangesNothing) {
    start();
    rename("set-1", "SET-1");
    EXPECT_EQ(names(), QStringList({"sea", "set-1"}));
    EXPECT_TRUE(exists("set-1"));
}

TEST_F(SymbolsCollectionWindow, ANameBeingTypedIsTakenByOK) {
    start();
    clickRow("set-1");
    clickPart(window(), "btnRenameCollection");
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(field);
    field->setText("Winter");
    window().accept();
    EXPECT_TRUE(exists("Winter/sun.gif"));
}

TEST_F(SymbolsCollectionWindow, ADeletionIsAskedForAndMayBeRefused) {
    start();
    clickRow("sea");
    shell.expectMessage("Are you sure you want to delete the collection ?", Icon::Question,
                        Buttons::YesNo, Answer::No);
    clickPart(window(), "btnDeleteCollection");
    EXPECT_TRUE(exists("sea/wave.png"));
    EXPECT_FALSE(collections().IsChanged);
}

TEST_F(SymbolsCollectionWindow, ADeletedCollectionGoesWithItsRowAndTheFirstIsShown) {
    start();
    clickRow("sea");
    shell.expectMessage("Are you sure you want to delete the collection ?", Icon::Question,
                        Buttons::YesNo, Answer::Yes);
    clickPart(window(), "btnDeleteCollection");
    EXPECT_FALSE(exists("sea"));
    EXPECT_EQ(names(), QStringList("set-1"));
    EXPECT_EQ(textOf(window(), "txtCollection"), "set-1");
    EXPECT_EQ(collections().Count(), 1);
    EXPECT_TRUE(collections().IsChanged);
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(SymbolsCollectionWindow, ACollectionInUseIsNotDeleted) {
    use(symbol("sea\\wave.png"));
    start();
    clickRow("sea");
    shell.expectMessage("Are you sure you want to delete the collection ?", Icon::Question,
                        Buttons::YesNo, Answer::Yes);
    shell.expectMessage(
        "Cannot delete: some symbols of the collection are currently used into the project.",
        Icon::Critical);
    clickPart(window(), "btnDeleteCollection");
    EXPECT_TRUE(exists("sea/wave.png"));
    EXPECT_EQ(names(), QStringList({"sea", "set-1"}));
}

TEST_F(SymbolsCollectionWindow, ImportingTheSameFileThreeTimesNumbersTheCopies) {
    start();
    clickRow("sea");
    const QString sun = outside("sun.gif");
    import(sun);
    EXPECT_EQ(shell.lastFileRequest.folder, workspace.folder.symbols());
    EXPECT_EQ(shell.lastFileRequest.filter,
              "All image files |*.gif;*.png;*.jpg;*.jpeg;|gif (*.gif)|*.gif|png (*.png)|*.png|"
              "jpg (*.jpg)|*.jpg|jpeg (*.jpeg)|*.jpeg|");
    import(sun);
    import(sun);
    EXPECT_EQ(QDir(host("Symbols/sea")).entryList(QDir::Files, QDir::Name),
              QStringList({"sun.gif", "sun_1.gif", "sun_2.gif", "wave.png"}));
    EXPECT_EQ(readFile(host("Symbols/sea/sun_2.gif")), readFile(temporary.file("sun.gif")));
    EXPECT_TRUE(collections().IsChanged);
}

TEST_F(SymbolsCollectionWindow, AnImportedSymbolIsSeenWhereItCameTo) {
    start();
    clickRow("set-1");
    import(outside("zenith.png"));
    EXPECT_EQ(textOf(window(), "txtCollection"), "set-1");
    EXPECT_EQ(textOf(window(), "txtFile"), host("Symbols/set-1/zenith.png"));
    EXPECT_EQ(thumbnails().symbols().rowCount(), 4);
}

TEST_F(SymbolsCollectionWindow, TheCopyRunsUnderItsProgressWindow) {
    start();
    import(outside("moon.gif"));
    EXPECT_EQ(shell.waits, QList<int>({300, 300, 500}));
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(SymbolsCollectionWindow, AnImportOfNothingDoesNothing) {
    start();
    import("");
    import("   ");
    EXPECT_FALSE(collections().IsChanged);
}

TEST_F(SymbolsCollectionWindow, APictureThatIsRefusedIsNotCopied) {
    start();
    shell.expectMessage(
        "Selected symbol size is 251 x 10 pixels.\r\nThe maximum size allowed is 250 x 250",
        Icon::Critical);
    import(outside("wide.png", {251, 10}));
    writeFile(temporary.file("bad.gif"), "no picture");
    shell.expectMessage("File is not valid", Icon::Critical);
    import(temporary.file("bad.gif").replace(u'/', u'\\'));
    shell.expectMessage("Unsupported format file", Icon::Critical);
    import(outside("sun.bmp"));
    EXPECT_EQ(QDir(host("Symbols/sea")).entryList(QDir::Files), QStringList("wave.png"));
    EXPECT_FALSE(collections().IsChanged);
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(SymbolsCollectionWindow, ANameThatNoProjectCouldHoldIsMendedOnImport) {
    start();
    clickRow("sea");
    import(outside("a|b?.gif"));
    EXPECT_TRUE(exists("sea/a_b_.gif"));
}

TEST_F(SymbolsCollectionWindow, BoxesTickedInThisVisitOutliveAnImport) {
    start();
    tick("set-1");
    ASSERT_EQ(row("set-1").checkState(), Qt::Checked);
    clickRow("sea");
    import(outside("moon.gif"));
    EXPECT_EQ(row("set-1").checkState(), Qt::Checked);
    EXPECT_FALSE(collections().Item("set-1").Checked);  // until OK
}

TEST_F(SymbolsCollectionWindow, WithoutASymbolThereIsNothingToDelete) {
    ASSERT_TRUE(QFile::remove(host("Symbols/sea/wave.png")));
    start();
    clickRow("sea");
    shell.expectMessage("No symbol selected", Icon::Exclamation);
    clickPart(window(), "btnDeleteSymbol");
}

TEST_F(SymbolsCollectionWindow, ASymbolIsDeletedAfterAQuestion) {
    start();
    clickRow("set-1");
    shell.expectMessage("Are you sure you want to delete the selected symbol ?", Icon::Question,
                        Buttons::YesNo, Answer::No);
    clickPart(window(), "btnDeleteSymbol");
    EXPECT_TRUE(exists("set-1/rain.gif"));
    shell.expectMessage("Are you sure you want to delete the selected symbol ?", Icon::Question,
                        Buttons::YesNo, Answer::Yes);
    clickPart(window(), "btnDeleteSymbol");
    EXPECT_FALSE(exists("set-1/rain.gif"));
    EXPECT_EQ(thumbnails().symbols().rowCount(), 2);
    EXPECT_EQ(textOf(window(), "txtFile"), host("Symbols/set-1/snow.gif"));
    EXPECT_TRUE(collections().IsChanged);
}

TEST_F(SymbolsCollectionWindow, ASymbolInUseIsNotDeleted) {
    use(symbol("set-1\\rain.gif"));
    start();
    clickRow("set-1");
    shell.expectMessage("Are you sure you want to delete the selected symbol ?", Icon::Question,
                        Buttons::YesNo, Answer::Yes);
    shell.expectMessage("Cannot delete: the symbol is currently used into the project.",
                        Icon::Critical);
    clickPart(window(), "btnDeleteSymbol");
    EXPECT_TRUE(exists("set-1/rain.gif"));
    EXPECT_FALSE(collections().IsChanged);
}

TEST_F(SymbolsCollectionWindow, OKTakesTheBoxesAndStoresTheCheckedNames) {
    settings.setList(SettingList::CheckedCollections, {"x", "y", "z"});
    start();
    tick("set-1");
    clickPart(window(), "cmdOK");
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(collections().Item("set-1").Checked);
    EXPECT_FALSE(collections().Item("sea").Checked);
    EXPECT_TRUE(collections().IsChanged);
    EXPECT_EQ(settings.list(SettingList::CheckedCollections), QStringList("set-1"));
}

TEST_F(SymbolsCollectionWindow, OKWithoutAChangeMarksNothing) {
    collections().Add(symbol("sea"), "sea").Checked = true;
    start();
    clickPart(window(), "cmdOK");
    EXPECT_FALSE(collections().IsChanged);
    EXPECT_EQ(settings.list(SettingList::CheckedCollections), QStringList("sea"));
}

TEST_F(SymbolsCollectionWindow, CloseAndEscapeLoseTheBoxesButNotTheFolders) {
    for (const bool escape : {false, true}) {
        start();
        tick("set-1");
        clickPart(window(), "btnNewCollection");
        if (escape) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        } else {
            clickPart(window(), "cmdClose");
        }
        EXPECT_FALSE(window().isVisible());
        EXPECT_FALSE(collections().Item("set-1").Checked);
        EXPECT_TRUE(collections().contains(escape ? "newCollection2" : "newCollection1"));
        EXPECT_TRUE(collections().IsChanged);
    }
    EXPECT_EQ(settings.list(SettingList::CheckedCollections), QStringList());
}

TEST_F(SymbolsCollectionWindow, HelpOpensItsTopicOrSaysThatThereIsNone) {
    start();
    shell.expectMessage("Help not found.", Icon::Critical);
    clickPart(window(), "cmdHelp");
    writeFile(host("Help/Nubivane.chm"), "x");
    clickPart(window(), "cmdHelp");
    EXPECT_EQ(shell.opened, QStringList(host("Help/Nubivane.chm")));
    EXPECT_EQ(shell.helpTopics, QStringList("SymbolCollections.htm"));
}

TEST_F(SymbolsCollectionWindow, TheToolsStandInTheirOrder) {
    start();
    QStringList order;
    for (const QAction* action : part<QToolBar>(window(), "tlbSymbols")->actions()) {
        if (!action->isSeparator()) {
            order << action->objectName();
        }
    }
    EXPECT_EQ(order, QStringList({"btnNewCollection", "btnDeleteCollection", "btnRenameCollection",
                                  "btnImportSymbol", "btnDeleteSymbol", "cmdHelp"}));
}

TEST_F(SymbolsCollectionWindow, TheKeyboardReachesEverything) {
    start();
    const QStringList reached = tabOrder(window());
    for (const char* name :
         {"btnNewCollection", "btnDeleteCollection", "btnRenameCollection", "btnImportSymbol",
          "btnDeleteSymbol", "cmdHelp", "lvwCollection", "listImageSymbols", "cmdOK", "cmdClose"}) {
        EXPECT_TRUE(reached.contains(name)) << name << " in " << reached.join(' ').toStdString();
    }
}

TEST_F(SymbolsCollectionWindow, AThousandSymbolsAreListedBeforeTheyAreDecoded) {
    const QByteArray sun = readFile(host("Symbols/set-1/sun.gif"));
    for (int i = 0; i < 1000; ++i) {
        writeFile(host(QStringLiteral("Symbols/many/s%1.gif").arg(i, 4, 10, QLatin1Char('0'))),
                  sun);
    }
    start();
    clickRow("many");
    // The window answers at once: what has come in until now came in while it was answering.
    EXPECT_EQ(thumbnails().symbols().rowCount(), 1000);
    EXPECT_EQ(thumbnails().symbols().animation(999), nullptr);
    clickRow("sea");  // and does not wait for the rest
    EXPECT_EQ(textOf(window(), "txtCollection"), "sea");
    clickRow("many");
    thumbnails().symbols().waitUntilLoaded();
    QApplication::processEvents();
    for (const int symbolRow : {0, 500, 999}) {
        EXPECT_TRUE(thumbnails().symbols().animation(symbolRow)) << symbolRow;
    }
}

TEST_F(SymbolsCollectionWindow, RenamingToTheNameOfAFolderThatHasGoneMeanwhile) {
    start();
    QDir(host("Symbols/sea")).removeRecursively();
    rename("set-1", "sea");
    EXPECT_EQ(names(), QStringList({"sea"}));
    EXPECT_TRUE(exists("sea/sun.gif"));
    clickPart(window(), "cmdOK");
    EXPECT_TRUE(collections().contains("sea"));
}

TEST_F(SymbolsCollectionWindow, NamesThatDifferInCaseAloneKeepTheirRows) {
    QDir(host("Symbols")).mkdir("SEA");
    start();
    ASSERT_EQ(rows().count(), 3);
    rename("sea", "coast");
    EXPECT_TRUE(exists("SEA"));
    EXPECT_TRUE(exists("coast/wave.png"));
    EXPECT_TRUE(names().contains("SEA"));
    EXPECT_TRUE(names().contains("coast"));
    clickPart(window(), "cmdOK");
}

TEST_F(SymbolsCollectionWindow, RenamingToTheNameOfATwinInCapitalsDoesNothing) {
    QDir(host("Symbols")).mkdir("SEA");
    start();
    rename("sea", "SEA");
    EXPECT_EQ(names(), QStringList({"SEA", "sea", "set-1"}));
    // What is deleted next is the collection of the row.
    shell.expectMessage("Are you sure you want to delete the collection ?", Icon::Question,
                        Buttons::YesNo, Answer::Yes);
    clickRow("sea");
    clickPart(window(), "btnDeleteCollection");
    EXPECT_TRUE(exists("SEA"));
    EXPECT_FALSE(exists("sea"));
}

TEST_F(SymbolsCollectionWindow, OKRightAfterTypingKeepsTheName) {
    start();
    clickRow("sea");
    clickPart(window(), "btnRenameCollection");
    QTest::keyClicks(QApplication::focusWidget(), "coast");
    // Both before the loop of events comes round again, as a quick click is.
    auto* ok = part<QAbstractButton>(window(), "cmdOK");
    ok->setFocus(Qt::MouseFocusReason);
    ok->click();
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(exists("coast/wave.png"));
    EXPECT_TRUE(collections().contains("coast"));
}

TEST_F(SymbolsCollectionWindow, ToolsWorkOnTheNameThatWasTyped) {
    start();
    clickRow("sea");
    clickPart(window(), "btnRenameCollection");
    QTest::keyClicks(QApplication::focusWidget(), "coast");
    shell.expectMessage("Are you sure you want to delete the collection ?", Icon::Question,
                        Buttons::YesNo, Answer::No);
    clickPart(window(), "btnDeleteCollection");
    EXPECT_EQ(names(), QStringList({"coast", "set-1"}));
    EXPECT_TRUE(exists("coast/wave.png"));
    EXPECT_EQ(shell.destroying, QStringList("Are you sure you want to delete the collection ?"));
}

TEST_F(SymbolsCollectionWindow, ACollectionWithASubFolderSaysThatItIsStillThere) {
    QDir(host("Symbols/sea")).mkdir("deep");
    start();
    const auto notice = [this] { return part<QLabel>(window(), "lblNotice"); };
    EXPECT_FALSE(notice()->isVisible());
    clickRow("sea");
    shell.expectMessage("Are you sure you want to delete the collection ?", Icon::Question,
                        Buttons::YesNo, Answer::Yes);
    clickPart(window(), "btnDeleteCollection");
    EXPECT_TRUE(exists("sea/deep"));
    EXPECT_TRUE(notice()->isVisible());
    EXPECT_TRUE(notice()->text().contains("sea")) << notice()->text().toStdString();
    clickPart(window(), "btnNewCollection");
    EXPECT_FALSE(notice()->isVisible());
}

}  // namespace nubivane
