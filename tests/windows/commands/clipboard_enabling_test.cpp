// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/clipboard_fixture.h"

#include <QMimeData>

namespace nubivane {

/// Which commands can be given, by the selection and by what the clipboard holds.
class ClipboardEnabling : public testing::ClipboardFixture {
  protected:
    void expectOfSelection(bool expected) {
        for (const char* name :
             {"mnuCut", "subCut", "mnuCopy", "subCopy", "mnuDelSymbol", "subDelete"}) {
            EXPECT_EQ(enabled(name), expected) << name;
        }
        EXPECT_EQ(window().findChild<QWidget*>("btnStationDelete")->isEnabled(), expected);
    }
    void expectRestore(bool expected) {
        EXPECT_EQ(enabled("mnuRestore"), expected);
        EXPECT_EQ(enabled("subRestore"), expected);
    }
    void expectPaste(bool expected) {
        EXPECT_EQ(enabled("mnuPaste"), expected);
        EXPECT_EQ(enabled("subPaste"), expected);
    }
};

TEST_F(ClipboardEnabling, NothingIsOfferedAtTheStartButWhatEmptiesTheMap) {
    start();
    expectOfSelection(false);
    expectRestore(false);
    expectPaste(false);
    EXPECT_TRUE(enabled("mnuDelAllSymbols"));
    EXPECT_TRUE(enabled("mnuPulisci"));
}

TEST_F(ClipboardEnabling, ASelectedSymbolCanBeCutCopiedDeletedAndRestored) {
    start();
    placeSymbol({100, 100});
    expectOfSelection(true);
    expectRestore(true);
    expectPaste(false);
}

TEST_F(ClipboardEnabling, ASelectedLabelCanBeCutCopiedAndDeletedOnly) {
    start();
    placeLabel({100, 100});
    expectOfSelection(true);
    expectRestore(false);
    expectPaste(false);
}

TEST_F(ClipboardEnabling, PasteComesWithACopyAndStaysWithoutASelection) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCopy");
    expectPaste(true);
    window().clearSelection();
    expectOfSelection(false);
    expectRestore(false);
    expectPaste(true);
}

TEST_F(ClipboardEnabling, PasteComesWithACutAndStaysAfterThePaste) {
    start();
    placeLabel({100, 100});
    trigger("mnuCut");
    expectPaste(true);
    trigger("mnuPaste");
    expectPaste(true);
}

TEST_F(ClipboardEnabling, AnotherProgramsTextEndsThePaste) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCopy");
    clipboard().setText("Sunny intervals");
    expectPaste(false);
    EXPECT_FALSE(window().findChild<ClipboardCommands*>()->clipboardHasSprite());
    // The copy is kept, but the road to it is closed.
    window().findChild<ClipboardCommands*>()->pasteSprite();
    EXPECT_EQ(symbols().Count(), 1);
}

TEST_F(ClipboardEnabling, AnotherProgramsPictureEndsThePaste) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCopy");
    clipboard().setImage(testing::plainImage({3, 3}, Qt::red));
    expectPaste(false);
}

TEST_F(ClipboardEnabling, AnEmptiedClipboardEndsThePaste) {
    start();
    placeLabel({100, 100});
    trigger("mnuCopy");
    clipboard().clear();
    expectPaste(false);
}

TEST_F(ClipboardEnabling, AMarkerThatWasThereBeforeTheStartOffersAPasteThatDoesNothing) {
    clipboard().setText(SpriteMarker{SpriteKind::Symbol, false}.text());
    start();
    expectPaste(true);
    trigger("mnuPaste");
    EXPECT_EQ(frame().Sprites().Count(), 0);
    EXPECT_TRUE(selection().isEmpty());
}

TEST_F(ClipboardEnabling, ARightPressOnTheBareMapOffersThePasteAlone) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCopy");
    press({400, 300}, Qt::RightButton);
    EXPECT_TRUE(popup().isVisible());
    expectOfSelection(false);
    expectPaste(true);
    popup().close();
}

TEST_F(ClipboardEnabling, TheMenusEntriesDoWhatTheCommandsDo) {
    start();
    placeSymbol({100, 100});
    window().findChild<QAction*>("subCopy")->trigger();
    EXPECT_EQ(marker(), "S<4><5>");
    window().findChild<QAction*>("subCut")->trigger();
    EXPECT_EQ(marker(), "S<4><5><6>");
    window().findChild<QAction*>("subPaste")->trigger();
    EXPECT_EQ(marker(), "S<4><5>");
    ASSERT_EQ(symbols().Count(), 1);
    EXPECT_EQ(symbols().Item(1).PosX, 6);
    symbols().Item(1).Width = 99;
    window().findChild<QAction*>("subRestore")->trigger();
    EXPECT_EQ(symbols().Item(1).Width, 32);
    window().findChild<QAction*>("subDelete")->trigger();
    EXPECT_EQ(symbols().Count(), 0);
}

}  // namespace nubivane
