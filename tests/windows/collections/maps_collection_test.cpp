// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/image_codec.h"
#include "support/dialog_parts.h"
#include "support/fixtures.h"
#include "windows/collections/frm_maps_collection.h"

#include <QDir>
#include <QFile>

#include <memory>

namespace nubivane {

using namespace testing;

/// The window of the maps europe.jpg (in use), italy.jpg and spain.png.
class MapsCollectionWindow : public WorkspaceFixture {
  protected:
    MapsCollectionWindow() {
        useMap("italy.jpg", {300, 240}, Qt::green);
        useMap("spain.png", {400, 300}, Qt::yellow);
        useMap("europe.jpg", {500, 400});
    }
    frmMapsCollection& start() {
        window_ = std::make_unique<frmMapsCollection>(workspace, shell, nullptr);
        showActive(*window_);
        return *window_;
    }
    frmMapsCollection& window() { return *window_; }
    NameList& rows() { return *window_->lvwCollection(); }
    QListWidgetItem& row(const QString& name) { return *rows().rowOf(name); }
    QStringList names() {
        return texts([](const QListWidgetItem&) { return true; });
    }
    QStringList boldNames() {
        return texts([](const QListWidgetItem& item) { return item.font().bold(); });
    }
    template <class Test>
    QStringList texts(Test test) {
        QStringList result;
        for (int i = 0; i < rows().count(); ++i) {
            if (test(*rows().item(i))) {
                result << rows().item(i)->text();
            }
        }
        return result;
    }
    void clickRow(const QString& name) {
        QTest::mouseClick(rows().viewport(), Qt::LeftButton, {},
                          rows().visualItemRect(&row(name)).center());
    }
    void rename(const QString& name, const QString& newName) {
        clickRow(name);
        clickPart(window(), "btnRenameMap");
        typeName(newName);
    }
    QString outside(const QString& name, QSize size) {
        writeFile(temporary.file(name), encodePicture(plainImage(size, Qt::red),
                                                      formatOfExtension(name.section('.', -1))));
        return temporary.file(name).replace(u'/', u'\\');
    }
    void import(const QString& file) {
        shell.expectOpenDialog("Select map", file);
        clickPart(window(), "btnImportMap");
    }
    bool exists(const QString& name) const { return QFile::exists(host("Maps/" + name)); }
    QString tagOf(const QString& name) const { return workspace.folder.path() + "\\maps\\" + name; }

  private:
    std::unique_ptr<frmMapsCollection> window_;
};

constexpr char AllSymbolsGo[] =
    "Selecting a new map all symbols will be deleted. Do you want to continue ?";

TEST_F(MapsCollectionWindow, ListsTheMapsWithoutExtension) {
    writeFile(host("Maps/notes.txt"), "x");
    start();
    EXPECT_EQ(window().windowTitle(), "Select map");
    EXPECT_EQ(names(), QStringList({"europe", "italy", "spain"}));
    EXPECT_EQ(NameList::keyOf(&row("spain.png")), "spain.png");
    EXPECT_EQ(NameList::tagOf(&row("spain.png")), tagOf("spain.png"));
    EXPECT_EQ(part<QWidget>(window(), "cmdClose")->property("text").toString().remove('&'),
              "Cancel");
}

TEST_F(MapsCollectionWindow, WithoutASettingEuropeIsBoldAndItalyIsSelected) {
    start();
    EXPECT_EQ(boldNames(), QStringList("europe"));
    EXPECT_EQ(rows().currentItem()->text(), "italy");
    EXPECT_EQ(textOf(window(), "txtMap"), "italy.jpg");
    EXPECT_EQ(textOf(window(), "txtDirectory"), host("Maps"));
    EXPECT_EQ(window().imgMap()->image().size(), QSize(300, 240));
    EXPECT_EQ(part<QLabel>(window(), "lblSize")->text(), "300 x 240 pixels");
}

TEST_F(MapsCollectionWindow, TheMapOfTheSettingIsBoldAndSelected) {
    settings.set(Setting::CurrentMap, "SPAIN.png");
    start();
    EXPECT_EQ(boldNames(), QStringList("spain"));
    EXPECT_EQ(rows().currentItem()->text(), "spain");
}

TEST_F(MapsCollectionWindow, WhereTheMapOfTheSettingIsGoneTheFirstIsSelected) {
    settings.set(Setting::CurrentMap, "atlantis.jpg");
    start();
    EXPECT_EQ(boldNames(), QStringList());
    EXPECT_EQ(rows().currentItem()->text(), "europe");
}

TEST_F(MapsCollectionWindow, AClickOnARowShowsTheMap) {
    start();
    clickRow("spain.png");
    EXPECT_EQ(textOf(window(), "txtMap"), "spain.png");
    EXPECT_EQ(window().imgMap()->image().size(), QSize(400, 300));
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(MapsCollectionWindow, AFileThatIsNoPictureIsShownAsSuch) {
    writeFile(host("Maps/broken.jpg"), "no picture");
    start();
    clickRow("broken.jpg");
    EXPECT_TRUE(window().imgMap()->image().isNull());
    EXPECT_FALSE(window().imgMap()->emptyText().isEmpty());
    EXPECT_EQ(part<QLabel>(window(), "lblSize")->text(), "");
    shell.expectMessage("File is not valid", Icon::Critical);
    clickPart(window(), "cmdOk");
    EXPECT_TRUE(window().isVisible());
}

TEST_F(MapsCollectionWindow, AnEmptyFolderDisablesTheEditingAndOKJustCloses) {
    ASSERT_TRUE(QDir(host("Maps")).removeRecursively());
    start();
    EXPECT_FALSE(part<QWidget>(window(), "btnDeleteMap")->isEnabled());
    EXPECT_FALSE(part<QWidget>(window(), "btnRenameMap")->isEnabled());
    EXPECT_TRUE(part<QWidget>(window(), "btnImportMap")->isEnabled());
    clickPart(window(), "btnSetDefaultMap");
    EXPECT_EQ(settings.text(Setting::CurrentMap), "");
    clickPart(window(), "cmdOk");
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(window().chosenMap(), "");
}

TEST_F(MapsCollectionWindow, AMapIsImportedAndSelected) {
    start();
    const QString greece = outside("greece.png", {220, 220});
    import(greece);
    EXPECT_EQ(shell.lastFileRequest.filter,
              "All image files |*.gif;*.png;*.jpg;*.jpeg;|gif (*.gif)|*.gif|png (*.png)|*.png|"
              "jpg (*.jpg)|*.jpg|jpeg (*.jpeg)|*.jpeg|");
    EXPECT_TRUE(exists("greece.png"));
    EXPECT_EQ(rows().currentItem()->text(), "greece");
    import(greece);
    EXPECT_EQ(rows().currentItem()->text(), "greece_1");
    EXPECT_EQ(readFile(host("Maps/greece_1.png")), readFile(temporary.file("greece.png")));
    EXPECT_EQ(names(), QStringList({"europe", "greece", "greece_1", "italy", "spain"}));
}

TEST_F(MapsCollectionWindow, AMapOfTheWrongSizeIsRefused) {
    start();
    shell.expectMessage(
        "Selected map size is 801 x 100 pixels.\r\nThe maximum size allowed is 800 x 600.",
        Icon::Critical);
    import(outside("wide.png", {801, 100}));
    shell.expectMessage(
        "Selected map size is 300 x 219 pixels.\r\nThe minimum size allowed is 220x220 pixels",
        Icon::Critical);
    import(outside("flat.jpg", {300, 219}));
    import("");
    EXPECT_EQ(names(), QStringList({"europe", "italy", "spain"}));
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(MapsCollectionWindow, AMapIsRenamedInItsRow) {
    settings.set(Setting::CurrentMap, "spain.png");
    start();
    rename("spain.png", "Iberia");
    EXPECT_TRUE(exists("Iberia.png"));
    EXPECT_EQ(rows().currentItem()->text(), "Iberia");
    EXPECT_EQ(NameList::keyOf(rows().currentItem()), "Iberia.png");
    EXPECT_EQ(NameList::tagOf(rows().currentItem()), tagOf("Iberia.png"));
    EXPECT_EQ(textOf(window(), "txtMap"), "Iberia.png");
    // The setting keeps the old name.
    EXPECT_EQ(settings.text(Setting::CurrentMap), "spain.png");
    EXPECT_TRUE(window().isVisible());
}

TEST_F(MapsCollectionWindow, EachRefusedNameGetsItsBoxAndTheRowKeepsItsName) {
    start();
    shell.expectMessage("Name not valid", Icon::Critical);
    rename("spain.png", "a|b");
    shell.expectMessage("A map with the same name already exists.", Icon::Critical);
    rename("italy.jpg", "Europe");
    shell.expectMessage("Cannot rename: the map is currently used into the project.",
                        Icon::Critical);
    rename("europe.jpg", "other");
    rename("italy.jpg", "ITALY");  // case alone: nothing
    EXPECT_EQ(names(), QStringList({"europe", "italy", "spain"}));
    EXPECT_EQ(QDir(host("Maps")).entryList(QDir::Files, QDir::Name),
              QStringList({"europe.jpg", "italy.jpg", "spain.png"}));
}

TEST_F(MapsCollectionWindow, TheMapInUseIsNotDeleted) {
    start();
    clickRow("europe.jpg");
    shell.expectMessage("Cannot delete: the map is in use by the project", Icon::Critical);
    clickPart(window(), "btnDeleteMap");
    EXPECT_TRUE(exists("europe.jpg"));
}

TEST_F(MapsCollectionWindow, ADeletionIsAskedForAndTheFirstMapIsShown) {
    start();
    clickRow("spain.png");
    shell.expectMessage("Delete selected map ?", Icon::Question, Buttons::YesNo, Answer::No);
    clickPart(window(), "btnDeleteMap");
    EXPECT_TRUE(exists("spain.png"));
    shell.expectMessage("Delete selected map ?", Icon::Question, Buttons::YesNo, Answer::Yes);
    clickPart(window(), "btnDeleteMap");
    EXPECT_FALSE(exists("spain.png"));
    EXPECT_EQ(names(), QStringList({"europe", "italy"}));
    EXPECT_EQ(textOf(window(), "txtMap"), "europe.jpg");
    EXPECT_EQ(boldNames(), QStringList("europe"));
}

TEST_F(MapsCollectionWindow, DeletingTheBoldRowMovesTheBoldOnTheScreenOnly) {
    settings.set(Setting::CurrentMap, "spain.png");
    start();
    shell.expectMessage("Delete selected map ?", Icon::Question, Buttons::YesNo, Answer::Yes);
    clickPart(window(), "btnDeleteMap");
    EXPECT_EQ(boldNames(), QStringList("europe"));
    EXPECT_EQ(settings.text(Setting::CurrentMap), "spain.png");
}

TEST_F(MapsCollectionWindow, TheLastMapDeletedDisablesTheEditing) {
    workspace.Status.CurrentMap.clear();
    ASSERT_TRUE(QFile::remove(host("Maps/europe.jpg")) && QFile::remove(host("Maps/italy.jpg")));
    start();
    shell.expectMessage("Delete selected map ?", Icon::Question, Buttons::YesNo, Answer::Yes);
    clickPart(window(), "btnDeleteMap");
    EXPECT_EQ(rows().count(), 0);
    EXPECT_FALSE(part<QWidget>(window(), "btnDeleteMap")->isEnabled());
    EXPECT_EQ(textOf(window(), "txtMap"), "");
}

TEST_F(MapsCollectionWindow, TheDefaultMapIsBoldAloneAndStoredByItsName) {
    start();
    clickRow("spain.png");
    clickPart(window(), "btnSetDefaultMap");
    EXPECT_EQ(boldNames(), QStringList("spain"));
    EXPECT_EQ(settings.text(Setting::CurrentMap), "spain.png");
}

TEST_F(MapsCollectionWindow, TheMapInUseIsTakenWithoutQuestionAndSizeTest) {
    useMap("europe.jpg", {1000, 900});  // beyond what an import takes
    start();
    clickRow("europe.jpg");
    clickPart(window(), "cmdOk");
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(window().chosenMap(), tagOf("europe.jpg"));
}

TEST_F(MapsCollectionWindow, AnotherMapIsTakenAfterTheQuestion) {
    start();
    clickRow("spain.png");
    shell.expectMessage(AllSymbolsGo, Icon::Question, Buttons::YesNo, Answer::No);
    clickPart(window(), "cmdOk");
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().chosenMap(), "");
    shell.expectMessage(AllSymbolsGo, Icon::Question, Buttons::YesNo, Answer::Yes);
    clickPart(window(), "cmdOk");
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(window().chosenMap(), tagOf("spain.png"));
}

TEST_F(MapsCollectionWindow, AFilePutThereByHandIsHeldToTheSizesToo) {
    useMap("huge.png", {801, 600});
    useMap("europe.jpg", {500, 400});
    start();
    clickRow("huge.png");
    shell.expectMessage(
        "Selected map size is 801 x 600 pixels.\r\nThe maximum size allowed is 800 x 600.",
        Icon::Critical);
    clickPart(window(), "cmdOk");
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().chosenMap(), "");
}

TEST_F(MapsCollectionWindow, CancelAndEscapeChooseNoMap) {
    for (const bool escape : {false, true}) {
        start();
        clickRow("spain.png");
        if (escape) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        } else {
            clickPart(window(), "cmdClose");
        }
        EXPECT_FALSE(window().isVisible());
        EXPECT_EQ(window().chosenMap(), "");
    }
}

TEST_F(MapsCollectionWindow, HelpOpensItsTopicOrSaysThatThereIsNone) {
    start();
    shell.expectMessage("Help file not found", Icon::Critical);
    clickPart(window(), "cmdHelp");
    writeFile(host("Help/Nubivane.chm"), "x");
    clickPart(window(), "cmdHelp");
    EXPECT_EQ(shell.opened, QStringList(host("Help/Nubivane.chm")));
    EXPECT_EQ(shell.helpTopics, QStringList("MapSelection.htm"));
}

TEST_F(MapsCollectionWindow, TheToolsStandInTheirOrder) {
    start();
    QStringList order;
    for (const QAction* action : part<QToolBar>(window(), "tlbMap")->actions()) {
        if (!action->isSeparator()) {
            order << action->objectName();
        }
    }
    EXPECT_EQ(order, QStringList({"btnDeleteMap", "btnRenameMap", "btnImportMap",
                                  "btnSetDefaultMap", "cmdHelp"}));
}

TEST_F(MapsCollectionWindow, TheKeyboardReachesEverything) {
    start();
    const QStringList reached = tabOrder(window());
    for (const char* name : {"btnDeleteMap", "btnRenameMap", "btnImportMap", "btnSetDefaultMap",
                             "cmdHelp", "lvwCollection", "cmdOk", "cmdClose"}) {
        EXPECT_TRUE(reached.contains(name)) << name << " in " << reached.join(' ').toStdString();
    }
}

TEST_F(MapsCollectionWindow, RenamingToTheNameOfATwinInCapitalsDoesNothing) {
    useMap("ITALY.jpg", {310, 240});
    useMap("europe.jpg", {500, 400});
    start();
    rename("italy.jpg", "ITALY");
    EXPECT_TRUE(exists("italy.jpg"));
    shell.expectMessage("Delete selected map ?", Icon::Question, Buttons::YesNo, Answer::Yes);
    clickRow("italy.jpg");
    clickPart(window(), "btnDeleteMap");
    EXPECT_TRUE(exists("ITALY.jpg"));
    EXPECT_FALSE(exists("italy.jpg"));
    EXPECT_EQ(shell.destroying, QStringList("Delete selected map ?"));
}

TEST_F(MapsCollectionWindow, CancelRightAfterTypingKeepsTheNameAsLeavingTheFieldDoes) {
    start();
    clickRow("spain.png");
    clickPart(window(), "btnRenameMap");
    QTest::keyClicks(QApplication::focusWidget(), "iberia");
    auto* cancel = part<QAbstractButton>(window(), "cmdClose");
    cancel->setFocus(Qt::MouseFocusReason);
    cancel->click();
    EXPECT_TRUE(exists("iberia.png"));
}

TEST_F(MapsCollectionWindow, MapsAreSortedByNameWithoutCase) {
    useMap("Alps.png", {400, 300}, Qt::gray);
    useMap("Zealand.png", {400, 300}, Qt::gray);
    useMap("europe.jpg", {500, 400});
    start();
    EXPECT_EQ(names(), QStringList({"Alps", "europe", "italy", "spain", "Zealand"}));
}

}  // namespace nubivane
