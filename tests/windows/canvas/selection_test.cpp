// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

namespace nubivane {

/// Two symbols and a label, none selected.
class Selecting : public testing::CanvasFixture {
  protected:
    void startWithSprites() {
        start();
        first = placeSymbol({100, 100});
        second = placeSymbol({200, 100});
        label = placeLabel({300, 100});
        window().clearSelection();
        workspace.ProjectChanged = false;
    }
    void expectSelected(qint16 type, const QString& key) {
        EXPECT_EQ(workspace.Status.CurrentShapeControlType, type);
        EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
    }
    void expectNothingSelected() {
        expectSelected(sprite_type::None, "");
        EXPECT_EQ(selection().shpSelector(), nullptr);
    }

    QString first;
    QString second;
    QString label;
};

TEST_F(Selecting, AClickSelectsASymbol) {
    startWithSprites();
    click({100, 100});
    expectSelected(sprite_type::Symbol, first);
    click({200, 100});
    expectSelected(sprite_type::Symbol, second);
}

TEST_F(Selecting, AClickSelectsALabelWhoseKeyASymbolBearsToo) {
    startWithSprites();
    ASSERT_EQ(label, first);
    click({300, 100});
    expectSelected(sprite_type::Label, label);
    EXPECT_EQ(selection().control(), labelControl(label));
}

TEST_F(Selecting, TheFrameLiesEightPixelsOutsideTheSprite) {
    startWithSprites();
    click({100, 100});
    ASSERT_NE(selection().shpSelector(), nullptr);
    EXPECT_EQ(selection().shpSelector()->rect(), QRect(84 - 8, 84 - 8, 32 + 16, 32 + 16));
}

TEST_F(Selecting, OnlyASymbolsFrameHasHandles) {
    startWithSprites();
    click({100, 100});
    EXPECT_TRUE(selection().shpSelector()->handleAt({76, 76}).has_value());
    click({300, 100});
    const ShpSelector& frame = *selection().shpSelector();
    EXPECT_FALSE(frame.handleAt(frame.rect().topLeft()).has_value());
    EXPECT_FALSE(frame.handleAt(frame.rect().bottomRight()).has_value());
}

TEST_F(Selecting, ThePointerTellsWhatAPressWouldDo) {
    startWithSprites();
    click({100, 100});
    const auto shapeAt = [&](QPoint position) {
        QTest::mouseMove(&canvas(), position + QPoint(1, 1));
        QMouseEvent event(QEvent::MouseMove, position + QPoint(1, 1),
                          canvas().mapToGlobal(position), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&canvas(), &event);
        return canvas().cursor().shape();
    };
    EXPECT_EQ(shapeAt({76, 76}), Qt::SizeFDiagCursor);
    EXPECT_EQ(shapeAt({123, 76}), Qt::SizeBDiagCursor);
    EXPECT_EQ(shapeAt({99, 76}), Qt::SizeVerCursor);
    EXPECT_EQ(shapeAt({76, 99}), Qt::SizeHorCursor);
    EXPECT_EQ(shapeAt({100, 100}), Qt::SizeAllCursor);
    EXPECT_EQ(shapeAt({400, 300}), Qt::ArrowCursor);
}

TEST_F(Selecting, AClickOnTheBareMapDropsTheSelection) {
    startWithSprites();
    click({100, 100});
    click({400, 300});
    expectNothingSelected();
}

TEST_F(Selecting, AClickOnTheBareMapWithADrawingToolKeepsTheSelection) {
    startWithSprites();
    click({100, 100});
    workspace.Status.CurrentTool = Tool::color;
    click({400, 300});
    expectSelected(sprite_type::Symbol, first);
}

TEST_F(Selecting, OfSpritesOnTopOfEachOtherTheUppermostIsSelected) {
    startWithSprites();
    const QString top = placeSymbol({110, 100});
    window().clearSelection();
    click({105, 100});
    expectSelected(sprite_type::Symbol, top);
    window().clearSelection();
    click({88, 100});
    expectSelected(sprite_type::Symbol, first);
}

TEST_F(Selecting, ClearingANonexistentSelectionChangesNothing) {
    startWithSprites();
    int refreshed = 0;
    QObject::connect(&selection(), &Selection::commandsChanged, &selection(), [&] { ++refreshed; });
    window().clearSelection();
    EXPECT_EQ(refreshed, 0);
    click({100, 100});
    window().clearSelection();
    EXPECT_GT(refreshed, 0);
    expectNothingSelected();
}

TEST_F(Selecting, ATypeWithoutAKeyIsNoSelection) {
    startWithSprites();
    workspace.Status.CurrentShapeControlType = sprite_type::Symbol;
    EXPECT_TRUE(selection().isEmpty());
    EXPECT_EQ(selection().control(), nullptr);
}

TEST_F(Selecting, ALeftPressOnASymbolWithADrawingToolIsRefused) {
    startWithSprites();
    click({200, 100});
    workspace.Status.CurrentTool = Tool::draw;
    shell.expectMessage(
        "Operation not allowed in draw mode. Select cursor from toolbar and try again.",
        Icon::Exclamation);
    drag({100, 100}, {150, 150});
    expectSelected(sprite_type::Symbol, second);
    EXPECT_EQ(symbolControl(first)->rect, QRect(84, 84, 32, 32));
}

TEST_F(Selecting, ALeftPressOnALabelWithADrawingToolIsRefusedInOtherWords) {
    startWithSprites();
    workspace.Status.CurrentTool = Tool::poly;
    const QRect before = labelControl(label)->rect;
    shell.expectMessage(
        "This operation is not allowed in draw mode. Select cursor from toolbar and try again.",
        Icon::Exclamation);
    drag({300, 100}, {350, 150});
    expectNothingSelected();
    EXPECT_EQ(labelControl(label)->rect, before);
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(Selecting, HandlesAreDeadWhileADrawingToolIsChosen) {
    startWithSprites();
    click({100, 100});
    workspace.Status.CurrentTool = Tool::line;
    drag({76, 76}, {50, 50});
    EXPECT_EQ(symbolControl(first)->rect, QRect(84, 84, 32, 32));
}

TEST_F(Selecting, PageKeysWalkTheSpritesRoundAndRound) {
    start();
    const QString sun = placeSymbol({100, 100});
    const QString text = placeLabel({300, 200});
    const auto selected = [this] {
        return workspace.Status.CurrentShapeControlType == sprite_type::Symbol
                   ? "symbol " + workspace.Status.CurrentShapeControlKey
                   : "label " + workspace.Status.CurrentShapeControlKey;
    };
    selection().clearSelection();
    canvas().setFocus();
    QTest::keyClick(&canvas(), Qt::Key_PageDown);
    EXPECT_EQ(selected(), "symbol " + sun);
    QTest::keyClick(&canvas(), Qt::Key_PageDown);
    EXPECT_EQ(selected(), "label " + text);
    QTest::keyClick(&canvas(), Qt::Key_PageDown);
    EXPECT_EQ(selected(), "symbol " + sun);
    QTest::keyClick(&canvas(), Qt::Key_PageUp);
    EXPECT_EQ(selected(), "label " + text);
    EXPECT_TRUE(selection().shpSelector());
}

TEST_F(Selecting, TheMenuKeyShowsTheMenuOfTheMap) {
    start();
    placeSymbol({100, 100});
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {10, 10},
                          canvas().mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(&canvas(), &key);
    auto& menu = *window().findChild<QMenu*>("MenuPopup");
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}

}  // namespace nubivane
