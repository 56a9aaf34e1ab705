// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/clipboard_fixture.h"

#include <QLabel>
#include <QPainter>
#include <QToolButton>

namespace nubivane {

using testing::isNearly;

/// What takes sprites and drawings away, and what gives a Symbol its own size back.
class ClipboardDelete : public testing::ClipboardFixture {
  protected:
    static constexpr char DeleteAll[] = "Are you sure you want to delete all symbols in the map ?";
    static constexpr char Clear[] = "Are you sure you want to clear map ?";

    void expectQuestion(const char* text, Answer answer) {
        shell.expectMessage(text, Icon::Question, Buttons::YesNo, answer);
    }
    /// Draws a red square on the map, as a tool does that commits.
    void drawOnMap(QRect rect = {200, 200, 40, 40}) {
        QPainter(&workspace.pctMap.persistentLayer()).fillRect(rect, Qt::red);
        workspace.pctPanel.setPicture(workspace.Status.CurrentFrame, workspace.pctMap.image());
        canvas().showPicture();
    }
    QColor panelColor(qint32 number, QPoint position) {
        return workspace.pctPanel.picture(number).image().pixelColor(position);
    }
};

TEST_F(ClipboardDelete, DeleteTakesTheSelectedSymbolFromScreenAndModelWithoutAQuestion) {
    start();
    const QString kept = placeSymbol({200, 100}, "rain.gif");
    const QString key = placeSymbol({100, 100});
    workspace.ProjectChanged = false;
    trigger("mnuDelSymbol");
    EXPECT_FALSE(symbols().contains(key));
    EXPECT_EQ(symbolControl(key), nullptr);
    EXPECT_TRUE(selection().isEmpty());
    EXPECT_EQ(selection().shpSelector(), nullptr);
    EXPECT_TRUE(symbols().contains(kept));
    EXPECT_NE(symbolControl(kept), nullptr);
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_TRUE(isNearly(shown({100, 100}), Qt::cyan));
    EXPECT_FALSE(enabled("mnuDelSymbol"));
}

TEST_F(ClipboardDelete, DeleteLeavesAProjectThatHasChangedAsChanged) {
    start();
    placeSymbol({100, 100});
    ASSERT_TRUE(workspace.ProjectChanged);
    trigger("mnuDelSymbol");
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(ClipboardDelete, DeleteTellsALabelFromASymbolOfTheSameKey) {
    start();
    ASSERT_EQ(placeSymbol({100, 100}), "K-1");
    ASSERT_EQ(placeLabel({300, 100}), "K-1");
    trigger("mnuDelSymbol");
    EXPECT_EQ(labels().Count(), 0);
    EXPECT_EQ(symbols().Count(), 1);
    EXPECT_NE(symbolControl("K-1"), nullptr);
}

TEST_F(ClipboardDelete, TheButtonOfTheBarDeletes) {
    start();
    placeLabel({300, 100});
    auto* button = window().findChild<QToolButton*>("btnStationDelete");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(labels().Count(), 0);
    EXPECT_FALSE(button->isEnabled());
}

TEST_F(ClipboardDelete, DeleteWithoutASelectionDoesNothing) {
    start();
    placeSymbol({100, 100});
    window().clearSelection();
    window().findChild<ClipboardCommands*>()->deleteSprite();
    EXPECT_EQ(symbols().Count(), 1);
}

TEST_F(ClipboardDelete, ASymbolDeletedWhileItIsBeingResizedIsGoneForTheRestOfTheGesture) {
    startActive();
    placeSymbol({100, 100});
    press({123, 123});
    move({130, 130});
    key(Qt::Key_Delete);
    move({150, 150});
    release({150, 150});
    EXPECT_EQ(symbols().Count(), 0);
    EXPECT_TRUE(sprites().controls().empty());
    EXPECT_TRUE(selection().isEmpty());
}

TEST_F(ClipboardDelete, TheHintReturnsWhenTheOnlySpriteGoes) {
    start();
    const QImage empty = window().viewport().grab().toImage();
    placeSymbol({100, 100});
    ASSERT_NE(window().viewport().grab().toImage(), empty);
    trigger("mnuDelSymbol");
    EXPECT_EQ(window().viewport().grab().toImage(), empty);
}

TEST_F(ClipboardDelete, DeleteAllTakesSymbolsAndLabelsOfThisFrameAlone) {
    start();
    placeSymbol({100, 100});
    trigger("mnuFrameInsert");
    placeSymbol({100, 100});
    placeSymbol({200, 100}, "rain.gif");
    placeLabel({300, 100});
    workspace.ProjectChanged = false;
    expectQuestion(DeleteAll, Answer::Yes);
    trigger("mnuDelAllSymbols");
    EXPECT_EQ(frame(2).Sprites().Count(), 0);
    EXPECT_EQ(frame(1).Sprites().Count(), 1);
    EXPECT_TRUE(sprites().controls().empty());
    EXPECT_TRUE(selection().isEmpty());
    EXPECT_EQ(selection().shpSelector(), nullptr);
    EXPECT_FALSE(enabled("mnuDelSymbol"));
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_EQ(placeSymbol({100, 100}), "K-3") << "keys are never issued twice";
}

TEST_F(ClipboardDelete, DeleteAllAfterNoTakesNothing) {
    start();
    const QString key = placeSymbol({100, 100});
    expectQuestion(DeleteAll, Answer::No);
    trigger("mnuDelAllSymbols");
    EXPECT_EQ(symbols().Count(), 1);
    EXPECT_EQ(selection().control(), symbolControl(key));
}

TEST_F(ClipboardDelete, DeleteAllTakesASymbolThatIsNotShownToo) {
    start();
    placeSymbol({100, 100}, addStill("passing.png", {10, 10}));
    trigger("mnuFrameInsert");
    QFile::remove(host("Symbols/set-1/passing.png"));
    selectTab(1);
    ASSERT_TRUE(sprites().controls().empty());
    expectQuestion(DeleteAll, Answer::Yes);
    trigger("mnuDelAllSymbols");
    EXPECT_EQ(symbols().Count(), 0);
}

TEST_F(ClipboardDelete, DeleteAllOnAFrameWithoutSpritesAsksAndDoesNothing) {
    start();
    expectQuestion(DeleteAll, Answer::Yes);
    trigger("mnuDelAllSymbols");
    EXPECT_EQ(frame().Sprites().Count(), 0);
}

TEST_F(ClipboardDelete, ClearTakesTheDrawingsOfTheFrameAndLeavesItsSprites) {
    start();
    drawOnMap();
    ASSERT_EQ(shown({220, 220}), QColor(Qt::red));
    const QString key = placeSymbol({100, 100});
    workspace.ProjectChanged = false;
    expectQuestion(Clear, Answer::Yes);
    trigger("mnuPulisci");
    EXPECT_TRUE(isNearly(shown({220, 220}), Qt::cyan));
    EXPECT_TRUE(isNearly(panelColor(1, {220, 220}), Qt::cyan));
    EXPECT_TRUE(isNearly(workspace.pctMap.image().image().pixelColor(220, 220), Qt::cyan));
    EXPECT_EQ(symbols().Count(), 1);
    EXPECT_EQ(selection().control(), symbolControl(key));
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(ClipboardDelete, ClearTakesWhatIsStillBeingDrawn) {
    start();
    QPainter(&workspace.pctMap.scratchLayer()).fillRect(QRect(200, 200, 40, 40), Qt::red);
    canvas().showPicture();
    ASSERT_EQ(shown({220, 220}), QColor(Qt::red));
    expectQuestion(Clear, Answer::Yes);
    trigger("mnuPulisci");
    EXPECT_TRUE(isNearly(shown({220, 220}), Qt::cyan));
}

TEST_F(ClipboardDelete, ClearLeavesTheDrawingsOfOtherFrames) {
    start();
    drawOnMap();
    trigger("mnuFrameInsert");
    drawOnMap({20, 20, 40, 40});
    expectQuestion(Clear, Answer::Yes);
    trigger("mnuPulisci");
    EXPECT_TRUE(isNearly(shown({30, 30}), Qt::cyan));
    selectTab(1);
    EXPECT_EQ(shown({220, 220}), QColor(Qt::red));
    selectTab(2);
    EXPECT_TRUE(isNearly(shown({30, 30}), Qt::cyan));
}

TEST_F(ClipboardDelete, ClearAfterNoLeavesTheDrawing) {
    start();
    drawOnMap();
    expectQuestion(Clear, Answer::No);
    trigger("mnuPulisci");
    EXPECT_EQ(shown({220, 220}), QColor(Qt::red));
    EXPECT_EQ(panelColor(1, {220, 220}), QColor(Qt::red));
}

TEST_F(ClipboardDelete, ClearWithoutTheMapsFileTellsSoAndLeavesTheDrawing) {
    start();
    drawOnMap();
    QFile::remove(host("Maps/europe.jpg"));
    expectQuestion(Clear, Answer::Yes);
    shell.expectMessage("File not found.", Icon::Critical);
    trigger("mnuPulisci");
    EXPECT_EQ(shown({220, 220}), QColor(Qt::red));
    EXPECT_EQ(panelColor(1, {220, 220}), QColor(Qt::red));
}

TEST_F(ClipboardDelete, RestoreAfterAResizeReturnsToTheFilesOwnSizeAndKeepsThePlace) {
    start();
    const QString key = placeSymbol({100, 100}, addStill("wide.png", {50, 20}));
    ASSERT_EQ(symbolRect(key), QRect(75, 90, 50, 20));
    // The handle at the right lower corner lies 8 pixels outside.
    drag({132, 117}, {162, 157});
    ASSERT_EQ(symbolRect(key), QRect(75, 90, 80, 60));
    workspace.ProjectChanged = false;
    trigger("mnuRestore");
    EXPECT_EQ(symbolRect(key), QRect(75, 90, 50, 20));
    EXPECT_EQ(symbolControl(key)->rect, QRect(75, 90, 50, 20));
    EXPECT_EQ(selection().control(), symbolControl(key));
    EXPECT_EQ(selection().shpSelector()->rect(), QRect(67, 82, 66, 36));
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(ClipboardDelete, RestoreUndoesNoMoveAndNoOtherValue) {
    start();
    const QString key = placeSymbol({100, 100});
    drag({100, 100}, {150, 130});
    symbols().Item(key).Note = "a note";
    trigger("mnuRestore");
    EXPECT_EQ(symbolRect(key), QRect(134, 114, 32, 32));
    EXPECT_EQ(symbols().Item(key).Note, "a note");
}

TEST_F(ClipboardDelete, RestoreOfALabelDoesNothing) {
    start();
    const QString key = placeLabel({100, 100});
    const QRect before = labelControl(key)->rect;
    window().findChild<ClipboardCommands*>()->restoreSprite();
    EXPECT_EQ(labelControl(key)->rect, before);
    EXPECT_EQ(selection().control(), labelControl(key));
}

TEST_F(ClipboardDelete, RestoreOfASymbolWithoutAReadablePictureKeepsItsSize) {
    start();
    const QString key = placeSymbol({100, 100}, addStill("broken.png", {10, 10}));
    trigger("mnuFrameInsert");
    testing::writeFile(host("Symbols/set-1/broken.png"), "no picture");
    selectTab(1);
    click({100, 100});
    ASSERT_EQ(selection().control(), symbolControl(key));
    trigger("mnuRestore");
    EXPECT_EQ(symbolRect(key), QRect(95, 95, 10, 10));
    EXPECT_EQ(selection().control(), symbolControl(key));
}

}  // namespace nubivane
