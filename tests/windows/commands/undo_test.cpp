// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/project_edits.h"
#include "support/modal.h"
#include "support/project_snapshot.h"
#include "windows/canvas/canvas_fixture.h"

#include <QListWidget>
#include <QToolButton>

namespace nubivane {

using testing::partOf;
using testing::withModal;

/// Undo and redo as a person meets them: by key, menu, bar and list.
class Undo : public testing::CanvasFixture {
  protected:
    void startActive(const QString& project = {}) {
        start(project);
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        canvas().setFocus();
    }
    ~Undo() override { workspace.ProjectChanged = false; }

    ProjectEdits& edits() { return workspace.edits(); }
    void undo() { QTest::keyClick(&canvas(), Qt::Key_Z, Qt::ControlModifier); }
    void redo() { QTest::keyClick(&canvas(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    QAction& action(Command id) { return *window().commands()[id]; }
    QImage map() { return workspace.pctMap.pixels().convertToFormat(QImage::Format_RGB32); }
    void chooseTool(Tool tool) {
        QTest::mouseClick(window().pctTlbDraw().btnDraw(static_cast<int>(tool)), Qt::LeftButton);
    }
};

TEST_F(Undo, TheKeysTakeBackAndDoAgainAndTheCommandsSayWhat) {
    startActive();
    EXPECT_FALSE(action(Command::mnuUndo).isEnabled());
    EXPECT_FALSE(action(Command::mnuRedo).isEnabled());
    const QString key = placeSymbol({200, 150});
    EXPECT_EQ(action(Command::mnuUndo).text(), "Undo \"Place symbol\"");
    drag({200, 150}, {300, 250});
    EXPECT_EQ(action(Command::mnuUndo).text(), "Undo \"Move symbol\"");
    EXPECT_TRUE(action(Command::mnuUndo).toolTip().contains("Ctrl+Z"));
    const QRect moved = symbolControl(key)->rect;

    undo();
    EXPECT_EQ(symbolControl(key)->rect.center(), QRect(QPoint(184, 134), QSize(32, 32)).center());
    EXPECT_EQ(action(Command::mnuRedo).text(), "Redo \"Move symbol\"");
    undo();
    EXPECT_EQ(symbolControl(key), nullptr);
    EXPECT_EQ(symbols().Count(), 0);
    redo();
    ASSERT_NE(symbolControl(key), nullptr);
    QTest::keyClick(&canvas(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(symbolControl(key)->rect, moved);
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
    EXPECT_FALSE(action(Command::mnuRedo).isEnabled());
}

TEST_F(Undo, TheBarHasButtonsForThem) {
    startActive();
    placeLabel({200, 150});
    QTest::mouseClick(window().findChild<ToolStrip*>()->findChild<QToolButton*>("btnUndo"),
                      Qt::LeftButton);
    EXPECT_EQ(labels().Count(), 0);
    QTest::mouseClick(window().findChild<ToolStrip*>()->findChild<QToolButton*>("btnRedo"),
                      Qt::LeftButton);
    EXPECT_EQ(labels().Count(), 1);
}

TEST_F(Undo, NudgesInARowAreOneEditAndLeaveTheProjectUnmarked) {
    startActive();
    const QString key = placeSymbol({200, 150});
    workspace.ProjectChanged = false;
    const QRect before = symbolRect(key);
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(&canvas(), Qt::Key_Right, Qt::ShiftModifier);
    }
    EXPECT_EQ(symbolRect(key), before.translated(5, 0));
    EXPECT_EQ(edits().count(), 2);
    undo();
    EXPECT_EQ(symbolRect(key), before);
    EXPECT_EQ(symbolControl(key)->rect, before);
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(Undo, AnotherSelectionBetweenNudgesMakesTwoEdits) {
    startActive();
    const QString key = placeSymbol({200, 150});
    QTest::keyClick(&canvas(), Qt::Key_Right, Qt::ShiftModifier);
    click({400, 300});
    click({200, 150});
    QTest::keyClick(&canvas(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(edits().count(), 3 + 0) << "place, nudge, nudge";
    undo();
    EXPECT_EQ(symbols().Item(key).PosX, 185);
}

TEST_F(Undo, ADeletedSpriteComesBackWithItsPlaceAmongTheOthers) {
    startActive();
    const QString below = placeSymbol({200, 150});
    const QString middle = placeSymbol({210, 160}, "rain.gif");
    placeLabel({215, 165});
    const auto order = [this] {
        QStringList ids;
        for (const SpriteControl* control : sprites().controls()) {
            ids << QString::number(static_cast<int>(control->id.kind)) + control->id.key;
        }
        return ids;
    };
    const QStringList before = order();
    click({186, 136});
    ASSERT_EQ(workspace.Status.CurrentShapeControlKey, below);
    trigger("mnuDelSymbol");
    EXPECT_EQ(sprites().controls().size(), 2U);
    undo();
    EXPECT_EQ(order(), before);
    EXPECT_EQ(symbols().positionOf(below), 1);
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, below);
    EXPECT_NE(symbolControl(middle), nullptr);
}

TEST_F(Undo, ACutAndItsPasteAreOneEditOverTwoFrames) {
    startActive();
    const QString key = placeSymbol({200, 150});
    trigger("mnuCut");
    trigger("mnuFrameInsert");
    trigger("mnuPaste");
    EXPECT_EQ(symbols(1).Count(), 0);
    EXPECT_EQ(symbols(2).Count(), 1);
    EXPECT_EQ(edits().undoText(), "Paste symbol");
    undo();
    EXPECT_EQ(symbols(2).Count(), 0);
    EXPECT_EQ(workspace.Status.CurrentFrame, 1) << "where the sprite is again";
    EXPECT_TRUE(symbols(1).contains(key));
    EXPECT_NE(symbolControl(key), nullptr);
    redo();
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
    EXPECT_EQ(symbols(1).Count(), 0);
    EXPECT_EQ(symbols(2).Count(), 1);
}

TEST_F(Undo, AStrokeIsTakenBackToThePixelAndToTheFileThatWasRead) {
    startActive();
    const QImage bare = map();
    const QByteArray file = workspace.pctMap.image().originalBytes();
    ASSERT_FALSE(file.isEmpty());
    chooseTool(Tool::draw);
    drag({50, 50}, {150, 90});
    const QImage drawn = map();
    ASSERT_FALSE(drawn == bare);
    drag({60, 80}, {160, 20});
    undo();
    EXPECT_TRUE(map() == drawn);
    undo();
    EXPECT_TRUE(map() == bare);
    EXPECT_EQ(workspace.pctMap.image().originalBytes(), file);
    EXPECT_EQ(canvas().grab().toImage().pixelColor(101, 71), QColor(bare.pixel(100, 70)));
    redo();
    EXPECT_TRUE(map() == drawn);
}

TEST_F(Undo, ClearAndEraseAreTakenBack) {
    startActive();
    chooseTool(Tool::draw);
    drag({50, 50}, {150, 90});
    const QImage drawn = map();
    chooseTool(Tool::erase);
    drag({90, 60}, {110, 75});
    const QImage erased = map();
    ASSERT_FALSE(erased == drawn);
    chooseTool(Tool::cursor);
    shell.expectMessage("Are you sure you want to clear map ?", Icon::Question, Buttons::YesNo,
                        Answer::Yes);
    trigger("mnuPulisci");
    EXPECT_EQ(edits().undoText(), "Clear");
    undo();
    EXPECT_TRUE(map() == erased);
    undo();
    EXPECT_TRUE(map() == drawn);
}

TEST_F(Undo, ClearingABareMapIsNoEdit) {
    startActive();
    shell.expectMessage("Are you sure you want to clear map ?", Icon::Question, Buttons::YesNo,
                        Answer::Yes);
    trigger("mnuPulisci");
    EXPECT_EQ(edits().count(), 0);
}

TEST_F(Undo, WhileADragRunsItTakesTheDragBackAndNothingElse) {
    startActive();
    const QString key = placeSymbol({200, 150});
    const QRect before = symbolControl(key)->rect;
    press({200, 150});
    move({260, 190});
    undo();
    EXPECT_EQ(symbolControl(key)->rect, before);
    EXPECT_FALSE(window().canvas().mouse().isUnderWay());
    release({260, 190});
    EXPECT_EQ(symbolControl(key)->rect, before);
    EXPECT_EQ(edits().count(), 1);
    EXPECT_EQ(edits().index(), 1);
}

TEST_F(Undo, WhileAStrokeIsDrawnItTakesTheStrokeBackEvenAsTheFirstThing) {
    startActive();
    const QImage bare = map();
    chooseTool(Tool::draw);
    press({50, 50});
    move({90, 90});
    EXPECT_TRUE(action(Command::mnuUndo).isEnabled());
    undo();
    move({120, 90});
    release({120, 90});
    EXPECT_TRUE(map() == bare);
    EXPECT_EQ(edits().count(), 0);
    EXPECT_FALSE(action(Command::mnuUndo).isEnabled());
}

TEST_F(Undo, OfAFigureItTakesBackThePointsOneByOne) {
    startActive();
    chooseTool(Tool::poly);
    for (const QPoint point : {QPoint(50, 50), QPoint(100, 60), QPoint(80, 120)}) {
        click(point);
    }
    EXPECT_EQ(window().canvas().drawing().points().pointCount(), 3);
    undo();
    EXPECT_EQ(window().canvas().drawing().points().pointCount(), 2);
    undo();
    undo();
    EXPECT_EQ(window().canvas().drawing().points().pointCount(), 0);
    EXPECT_EQ(edits().count(), 0);
    click({50, 50});
    click({100, 60});
    key(Qt::Key_Return);
    EXPECT_EQ(edits().undoText(), "Draw polygon");
    undo();
    EXPECT_EQ(edits().index(), 0);
}

TEST_F(Undo, InTheFieldForANameItTakesBackTyping) {
    startActive();
    placeSymbol({200, 150});
    trigger("mnuMapRename");
    QLineEdit& field = *window().tabs().txtDay();
    QTest::keyClicks(&field, "Monday");
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "Map1");
    EXPECT_EQ(symbols().Count(), 1);
    QTest::keyClicks(&field, "Monday");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(frame().Texts().Label, "Monday");
    undo();
    EXPECT_EQ(frame().Texts().Label, "Map1");
    EXPECT_EQ(window().tabs().tabDay()->tabText(0), "Map1");
}

TEST_F(Undo, AnOpenFieldForANameIsLeftWithoutChangeByUndoFromElsewhere) {
    startActive();
    placeSymbol({200, 150});
    trigger("mnuMapRename");
    QTest::keyClicks(window().tabs().txtDay(), "Monday");
    trigger("mnuUndo");
    EXPECT_FALSE(window().tabs().txtDay()->isVisible());
    EXPECT_EQ(frame().Texts().Label, "Map1");
    EXPECT_EQ(symbols().Count(), 0);
}

TEST_F(Undo, WhatIsTypedIntoAPropertyIsOneEdit) {
    startActive();
    const QString key = placeSymbol({200, 150});
    withModal([this] { window().findChild<PropertyCommands*>()->showSpriteProperties(); },
              [&](QWidget& properties) {
                  auto& note = partOf<QLineEdit>(properties, "txtNote");
                  note.setFocus();
                  QTest::keyClicks(&note, "cloudy");
                  partOf<QLineEdit>(properties, "txtLink").setFocus();
                  QTest::keyClicks(&partOf<QLineEdit>(properties, "txtLink"), "a.org");
                  // The main window's keys rest while this window is open.
                  QTest::keyClick(&properties, Qt::Key_Z, Qt::ControlModifier);
              });
    EXPECT_EQ(symbols().Item(key).Note, "cloudy");
    EXPECT_EQ(edits().count(), 3);
    EXPECT_EQ(edits().undoText(), "Change symbol link");
    trigger("mnuUndo");
    EXPECT_EQ(symbols().Item(key).Link, "");
    trigger("mnuUndo");
    EXPECT_EQ(symbols().Item(key).Note, "");
}

TEST_F(Undo, ASpriteTakenBackUnderAnOpenPropertyWindowHarmsNobody) {
    startActive();
    placeLabel({200, 150});
    withModal([this] { window().findChild<PropertyCommands*>()->showSpriteProperties(); },
              [&](QWidget& properties) {
                  edits().undo();
                  auto& text = partOf<QLineEdit>(properties, "txtNote");
                  text.setFocus();
                  QTest::keyClicks(&text, "gone");
              });
    EXPECT_EQ(labels().Count(), 0);
    EXPECT_FALSE(edits().canUndo());
    EXPECT_TRUE(edits().canRedo());
}

TEST_F(Undo, ALabelsTextAndSizeAreOneEdit) {
    startActive();
    const QString key = placeLabel({200, 150});
    const QRect before = labelControl(key)->rect;
    withModal([this] { window().findChild<PropertyCommands*>()->showSpriteProperties(); },
              [&](QWidget& properties) {
                  auto& text = partOf<QLineEdit>(properties, "txtText");
                  testing::type(text, "Heavy rain in the north");
                  QTest::keyClick(&text, Qt::Key_Return);
              });
    EXPECT_EQ(edits().count(), 2);
    EXPECT_GT(labelControl(key)->rect.width(), before.width());
    trigger("mnuUndo");
    EXPECT_EQ(labels().Item(key).Text, "Label");
    EXPECT_EQ(labelControl(key)->rect, before);
}

TEST_F(Undo, ATabDraggedToAnotherPlaceTakesItsFrameAlong) {
    startActive();
    for (int i = 0; i < 2; ++i) {
        trigger("mnuFrameInsert");
    }
    placeLabel({200, 150});  // on Map3
    QTabBar* bar = window().tabs().tabDay();
    const auto at = [bar](int index, int dx = 0) {
        return bar->tabRect(index).center() + QPoint(dx, 0);
    };
    const auto moveTo = [bar](QPoint position) {
        QMouseEvent event(QEvent::MouseMove, position, bar->mapToGlobal(position), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &event);
    };
    const QPoint target = at(0, -5);
    QTest::mousePress(bar, Qt::LeftButton, {}, at(2));
    moveTo(at(1, -3));
    moveTo(target);
    QTest::mouseRelease(bar, Qt::LeftButton, {}, target);
    const auto captions = [this] {
        QStringList names;
        for (int i = 1; i <= window().tabs().count(); ++i) {
            names << window().tabs().caption(i) + '=' + frame(i).Texts().Label;
        }
        return names;
    };
    EXPECT_EQ(captions(), QStringList({"Map3=Map3", "Map1=Map1", "Map2=Map2"}));
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    EXPECT_EQ(labels(1).Count(), 1);
    EXPECT_EQ(sprites().controls().size(), 1U);
    undo();
    EXPECT_EQ(captions(), QStringList({"Map1=Map1", "Map2=Map2", "Map3=Map3"}));
    EXPECT_EQ(labels(3).Count(), 1);
    EXPECT_EQ(window().tabs().selected(), 3);
    QTest::keyClick(bar, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(captions(), QStringList({"Map1=Map1", "Map3=Map3", "Map2=Map2"}));
}

TEST_F(Undo, APressOnATabThatHardlyMovesIsNoDrag) {
    startActive();
    trigger("mnuFrameInsert");
    QTabBar* bar = window().tabs().tabDay();
    QTest::mousePress(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
    QTest::mouseRelease(bar, Qt::LeftButton, {}, bar->tabRect(0).center() + QPoint(2, 0));
    EXPECT_EQ(window().tabs().caption(1), "Map1");
    EXPECT_EQ(edits().count(), 1);
}

TEST_F(Undo, CopySpecialIsOneEdit) {
    startActive();
    placeSymbol({200, 150});
    placeLabel({100, 150});
    trigger("mnuFrameInsert");
    placeLabel({300, 150});
    const QString before = testing::snapshotOf(workspace);
    window().findChild<CopySpecial*>()->copyBetweenFrames("1|2|1");
    EXPECT_EQ(symbols(2).Count(), 1);
    EXPECT_EQ(frame(1).Sprites().Count(), 0);
    undo();
    EXPECT_EQ(testing::snapshotOf(workspace), before);
}

TEST_F(Undo, TheListShowsTheEditsAndAClickGoesThere) {
    startActive();
    placeSymbol({200, 150});
    placeLabel({100, 150});
    trigger("mnuFrameInsert");
    trigger("mnuHistory");
    frmHistory* history = window().findChild<EditCommands*>()->history();
    ASSERT_TRUE(history);
    QListWidget* list = history->list();
    const auto rows = [list] {
        QStringList texts;
        for (int i = 0; i < list->count(); ++i) {
            texts << list->item(i)->text();
        }
        return texts;
    };
    EXPECT_EQ(rows(), QStringList({"As opened", "Place symbol", "Place label", "Insert map"}));
    EXPECT_EQ(list->currentRow(), 3);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    EXPECT_EQ(edits().index(), 1);
    EXPECT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(window().tabs().count(), 1);
    EXPECT_EQ(symbols().Count(), 1);
    EXPECT_EQ(labels().Count(), 0);
    EXPECT_EQ(list->currentRow(), 1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(3)).center());
    EXPECT_EQ(window().tabs().count(), 2);
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
}

TEST_F(Undo, TheListHasAPictureOfEachStateOnceTheProgramIsIdle) {
    startActive();
    placeSymbol({200, 150});
    trigger("mnuHistory");
    QListWidget* list = window().findChild<EditCommands*>()->history()->list();
    const auto red = [list] {
        const QImage picture = list->item(1)->icon().pixmap(EditPictures::Bounds).toImage();
        return picture.pixelColor(picture.width() / 2, 4).alpha() > 0;
    };
    EXPECT_TRUE(QTest::qWaitFor(red));
}

TEST_F(Undo, SavingKeepsTheEditsAndMarksTheState) {
    startActive();
    placeSymbol({200, 150});
    shell.expectSaveDialog("Save project", model("kept.nvpf"));
    trigger("mnuSaveProject");
    EXPECT_TRUE(edits().canUndo());
    EXPECT_EQ(edits().savedIndex(), 1);
    undo();
    EXPECT_EQ(symbols().Count(), 0);
    EXPECT_TRUE(workspace.ProjectChanged);
    redo();
    workspace.ProjectChanged = false;
    window().projectCommands().open(model("kept.nvpf"));
    EXPECT_FALSE(edits().canUndo());
    EXPECT_FALSE(action(Command::mnuUndo).isEnabled());
    EXPECT_EQ(edits().savedIndex(), 0);
    workspace.ProjectChanged = false;
    trigger("mnuNewProject");
    EXPECT_EQ(edits().savedIndex(), std::nullopt);
}

}  // namespace nubivane
