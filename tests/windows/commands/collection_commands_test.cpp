// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/image_codec.h"
#include "support/dialog_parts.h"
#include "support/editor_fixture.h"
#include "windows/collections/frm_maps_collection.h"
#include "windows/collections/frm_symbols_collection.h"

#include <QDir>
#include <QTimer>

namespace nubivane {

/// What the menu entries of symbols and maps do with what their windows leave.
class CollectionCommandsOfTheMenu : public testing::EditorFixture {
  protected:
    void SetUp() override {
        testing::writeFile(
            host("Maps/italy.png"),
            encodePicture(testing::plainImage({300, 240}, Qt::green), PictureFormat::Png));
        start();
        placeSymbol({100, 100});
    }
    void TearDown() override { workspace.ProjectChanged = false; }

    /// Triggers a command and works in the window that it opens until that is closed.
    template <class Window>
    void inWindow(const char* command, const std::function<void(Window&)>& work) {
        bool opened = false;
        QTimer::singleShot(0, &window(), [&] {
            auto* dialog = qobject_cast<Window*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            opened = true;
            work(*dialog);
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
        trigger(command);
        EXPECT_TRUE(opened);
    }
    QStringList tabs() {
        QStringList captions;
        for (int i = 0; i < window().palette().tabSymbols()->count(); ++i) {
            captions << window().palette().tabSymbols()->tabText(i);
        }
        return captions;
    }
    void chooseMap(const QString& name) {
        inWindow<frmMapsCollection>("mnuOpenMap", [&](frmMapsCollection& maps) {
            maps.fillMapList(name);
            testing::clickPart(maps, "cmdOk");
        });
    }
};

TEST_F(CollectionCommandsOfTheMenu, ThePaletteShowsWhatWasChecked) {
    ASSERT_EQ(tabs(), QStringList("set-1"));
    inWindow<frmSymbolsCollection>("mnuCollection", [](frmSymbolsCollection& dialog) {
        dialog.pane().lvwCollection()->rowOf("sea")->setCheckState(Qt::Checked);
        testing::clickPart(dialog, "cmdOK");
    });
    EXPECT_EQ(tabs(), QStringList({"sea", "set-1"}));
    EXPECT_FALSE(workspace.Status.SymbolsCollection().IsChanged);
    EXPECT_EQ(settings.list(SettingList::CheckedCollections), QStringList({"sea", "set-1"}));
}

TEST_F(CollectionCommandsOfTheMenu, ThePaletteIsLeftAloneWhereNothingChanged) {
    const ListImage* list = window().palette().currentList();
    inWindow<frmSymbolsCollection>(
        "mnuCollection", [](frmSymbolsCollection& dialog) { testing::clickPart(dialog, "cmdOK"); });
    EXPECT_EQ(window().palette().currentList(), list);
}

TEST_F(CollectionCommandsOfTheMenu, WhatWasDoneToFoldersShowsEvenAfterClose) {
    ASSERT_EQ(window().palette().currentList()->symbols().rowCount(), 3);
    shell.expectMessage("Are you sure you want to delete the selected symbol ?", Icon::Question,
                        Buttons::YesNo, Answer::Yes);
    inWindow<frmSymbolsCollection>("mnuCollection", [](frmSymbolsCollection& dialog) {
        dialog.pane().fillCollectionList("set-1");  // rain.gif is selected
        testing::clickPart(dialog, "btnDeleteSymbol");
        testing::clickPart(dialog, "cmdClose");
    });
    EXPECT_EQ(window().palette().currentList()->symbols().rowCount(), 2);
}

TEST_F(CollectionCommandsOfTheMenu, AMapChosenTakesThePlaceOfTheProject) {
    shell.expectMessage(
        "Selecting a new map all symbols will be deleted. Do you want to continue ?",
        Icon::Question, Buttons::YesNo, Answer::Yes);
    chooseMap("italy.png");
    EXPECT_EQ(workspace.Status.CurrentMap, workspace.folder.path() + "\\maps\\italy.png");
    EXPECT_EQ(settings.text(Setting::CurrentMap), workspace.Status.CurrentMap);
    EXPECT_EQ(canvas().size(), QSize(302, 242));
    EXPECT_EQ(workspace.Frames().NumSprite(), 0);
}

TEST_F(CollectionCommandsOfTheMenu, TheMapInUseChangesNothingHoweverItsFolderIsWritten) {
    for (const char* folder : {"\\maps\\", "\\Maps\\"}) {
        workspace.Status.CurrentMap = workspace.folder.path() + folder + "europe.jpg";
        chooseMap("europe.jpg");
        EXPECT_EQ(workspace.Status.CurrentMap, workspace.folder.path() + folder + "europe.jpg");
        EXPECT_EQ(workspace.Frames().NumSprite(), 1);
        EXPECT_EQ(window().canvas().sprites().controls().size(), 1U);
    }
}

TEST_F(CollectionCommandsOfTheMenu, CancelLeavesTheProjectAsItIs) {
    inWindow<frmMapsCollection>("mnuOpenMap", [](frmMapsCollection& maps) {
        maps.fillMapList("italy.png");
        testing::clickPart(maps, "cmdClose");
    });
    EXPECT_TRUE(workspace.Status.CurrentMap.endsWith("europe.jpg"));
    EXPECT_EQ(workspace.Frames().NumSprite(), 1);
}

TEST_F(CollectionCommandsOfTheMenu, TheBarsButtonsAreTheSameCommands) {
    for (const auto& [button, command] :
         {std::pair("btnSymbols", "mnuCollection"), std::pair("btnMap", "mnuOpenMap")}) {
        const auto* shown = window().findChild<ToolStrip*>()->findChild<QToolButton*>(button);
        ASSERT_TRUE(shown);
        EXPECT_EQ(shown->defaultAction(), window().commands().action(command));
        EXPECT_TRUE(shown->isEnabled());
    }
}

}  // namespace nubivane
