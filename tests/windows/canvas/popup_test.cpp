// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

namespace nubivane {

/// The menu of sprites, with a command for properties that does nothing but can be enabled.
class Popup : public testing::CanvasFixture {
  protected:
    void startWithSprites() {
        start();
        window().commands().handle(Command::mnuProperty, [] {});
        symbol = placeSymbol({100, 100});
        label = placeLabel({300, 100});
        window().clearSelection();
    }
    void TearDown() override { popup().close(); }

    void rightClick(QPoint position) {
        popup().close();
        press(position, Qt::RightButton);
    }
    bool enabled(const char* name) { return window().findChild<QAction*>(name)->isEnabled(); }
    void expectSpriteEntries(bool expected) {
        for (const char* name : {"subCut", "subCopy", "subDelete", "subProperty", "mnuCut",
                                 "mnuCopy", "mnuDelSymbol", "mnuProperty"}) {
            EXPECT_EQ(enabled(name), expected) << name;
        }
    }

    QString symbol;
    QString label;
};

TEST_F(Popup, HoldsItsEntriesInOrder) {
    start();
    QStringList entries;
    for (const QAction* entry : popup().actions()) {
        const QObject* named = entry->menu() ? static_cast<const QObject*>(entry->menu()) : entry;
        entries << (entry->isSeparator() ? QString("-")
                                         : named->objectName() + ' ' + entry->text());
    }
    EXPECT_EQ(entries, QStringList({"subRestore Restore", "-", "subCut Cut", "subCopy Copy",
                                    "subPaste Paste", "subDelete Delete", "-",
                                    "subProperty Property", "-", "subUndo Undo", "subRedo Redo",
                                    "-", "subDuplicate Duplicate", "mnuArrange Arrange"}));
}

TEST_F(Popup, ARightPressOnASymbolSelectsItAndShowsTheMenu) {
    startWithSprites();
    rightClick({100, 100});
    EXPECT_TRUE(popup().isVisible());
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Symbol);
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, symbol);
    EXPECT_NE(selection().shpSelector(), nullptr);
    expectSpriteEntries(true);
    EXPECT_TRUE(enabled("subRestore"));
}

TEST_F(Popup, ARightPressOnALabelOffersNoRestore) {
    startWithSprites();
    rightClick({300, 100});
    EXPECT_TRUE(popup().isVisible());
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Label);
    expectSpriteEntries(true);
    EXPECT_FALSE(enabled("subRestore"));
    EXPECT_FALSE(enabled("mnuRestore"));
}

TEST_F(Popup, ARightPressTakesTheSelectionFromAnotherSprite) {
    startWithSprites();
    click({300, 100});
    rightClick({100, 100});
    EXPECT_EQ(selection().control(), symbolControl(symbol));
    EXPECT_EQ(selection().shpSelector()->rect(), QRect(76, 76, 48, 48));
}

TEST_F(Popup, ARightPressWithADrawingToolSelectsTheSpriteAndShowsTheMenu) {
    startWithSprites();
    workspace.Status.CurrentTool = Tool::draw;
    rightClick({100, 100});
    EXPECT_TRUE(popup().isVisible());
    EXPECT_EQ(selection().control(), symbolControl(symbol));
}

TEST_F(Popup, ARightPressOnALockedMapSelectsTheSpriteAndShowsTheMenu) {
    startWithSprites();
    trigger("mnuLock");
    rightClick({100, 100});
    EXPECT_TRUE(popup().isVisible());
    EXPECT_EQ(selection().control(), symbolControl(symbol));
}

TEST_F(Popup, ARightPressStartsNoDrag) {
    startWithSprites();
    rightClick({100, 100});
    popup().close();
    move({150, 150});
    release({150, 150}, Qt::RightButton);
    EXPECT_EQ(symbolControl(symbol)->rect, QRect(84, 84, 32, 32));
}

TEST_F(Popup, ARightPressOnTheBareMapDropsTheSelectionAndOffersNothingOfASprite) {
    startWithSprites();
    click({100, 100});
    rightClick({400, 300});
    EXPECT_TRUE(popup().isVisible());
    EXPECT_TRUE(selection().isEmpty());
    expectSpriteEntries(false);
    EXPECT_FALSE(enabled("subRestore"));
}

TEST_F(Popup, ARightPressOnTheBareMapWithADrawingToolShowsNoMenu) {
    startWithSprites();
    workspace.Status.CurrentTool = Tool::draw;
    rightClick({400, 300});
    EXPECT_FALSE(popup().isVisible());
}

TEST_F(Popup, CommandsFollowTheSelectionMadeByAClick) {
    startWithSprites();
    expectSpriteEntries(false);
    click({100, 100});
    expectSpriteEntries(true);
    EXPECT_TRUE(enabled("mnuRestore"));
    click({300, 100});
    expectSpriteEntries(true);
    EXPECT_FALSE(enabled("mnuRestore"));
    window().clearSelection();
    expectSpriteEntries(false);
}

TEST_F(Popup, TheDeleteButtonFollowsTheSelection) {
    startWithSprites();
    const auto* button = window().findChild<QWidget*>("btnStationDelete");
    ASSERT_NE(button, nullptr);
    EXPECT_FALSE(button->isEnabled());
    click({100, 100});
    EXPECT_TRUE(button->isEnabled());
    trigger("mnuFrameInsert");
    EXPECT_FALSE(button->isEnabled());
}

TEST_F(Popup, PasteIsNotEnabledByASelection) {
    startWithSprites();
    click({100, 100});
    EXPECT_FALSE(enabled("subPaste"));
    EXPECT_FALSE(enabled("mnuPaste"));
}

}  // namespace nubivane
