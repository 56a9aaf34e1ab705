// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

#include <QFile>
#include <QLineEdit>
#include <QPainter>

namespace nubivane {

using testing::isNearly;
using FrameSwitching = testing::CanvasFixture;

namespace {

void paintSquare(QImage& layer, QPoint corner, Qt::GlobalColor color) {
    QPainter(&layer).fillRect(QRect(corner, QSize(20, 20)), color);
}

}  // namespace

TEST_F(FrameSwitching, ANeverVisitedFrameShowsTheBareMap) {
    start();
    paintSquare(workspace.pctMap.persistentLayer(), {100, 100}, Qt::red);
    trigger("mnuFrameInsert");
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
    EXPECT_TRUE(workspace.pctPanel.picture(2).isEmpty());
    EXPECT_TRUE(isNearly(workspace.pctMap.image().image().pixelColor(110, 110), Qt::cyan));
    EXPECT_TRUE(isNearly(shown({110, 110}), Qt::cyan));
}

TEST_F(FrameSwitching, AnUnappliedPolygonIsDroppedAndEarlierStrokesAreKept) {
    start();
    paintSquare(workspace.pctMap.persistentLayer(), {100, 100}, Qt::red);
    paintSquare(workspace.pctMap.scratchLayer(), {200, 100}, Qt::blue);
    trigger("mnuFrameInsert");
    const QImage kept = workspace.pctPanel.picture(1).image();
    EXPECT_TRUE(isNearly(kept.pixelColor(110, 110), Qt::red));
    EXPECT_TRUE(isNearly(kept.pixelColor(210, 110), Qt::cyan));
    selectTab(1);
    EXPECT_TRUE(isNearly(shown({110, 110}), Qt::red));
    EXPECT_TRUE(isNearly(shown({210, 110}), Qt::cyan));
}

TEST_F(FrameSwitching, AFrameWithoutSpritesHasNoElementsBeyondTheTemplates) {
    start();
    placeSymbol({100, 100});
    placeLabel({200, 100});
    trigger("mnuFrameInsert");
    EXPECT_EQ(sprites().gifSymbol().upperBound(), 0);
    EXPECT_EQ(sprites().lblTesto().upperBound(), 0);
    EXPECT_TRUE(sprites().controls().empty());
}

TEST_F(FrameSwitching, EachSpritesIndexEqualsItsControlsThoughItDiffersFromBefore) {
    start();
    const QString first = placeSymbol({100, 100});
    const QString second = placeSymbol({200, 100});
    const QString gone = placeLabel({300, 200});
    const QString label = placeLabel({300, 100});
    window().clearSelection();
    sprites().discard(*symbolControl(first));
    symbols().Remove(first);
    sprites().discard(*labelControl(gone));
    labels().Remove(gone);
    ASSERT_EQ(symbols().Item(second).Index, 2);
    ASSERT_EQ(labels().Item(label).Index, 2);

    trigger("mnuFrameInsert");
    selectTab(1);
    EXPECT_EQ(symbols().Item(second).Index, 1);
    EXPECT_EQ(symbolControl(second)->Index, 1);
    EXPECT_EQ(labels().Item(label).Index, 1);
    EXPECT_EQ(labelControl(label)->Index, 1);
    EXPECT_EQ(sprites().gifSymbol().find(1)->id, (SpriteId{SpriteKind::Symbol, second}));
    EXPECT_EQ(sprites().lblTesto().find(1)->id, (SpriteId{SpriteKind::Label, label}));
}

TEST_F(FrameSwitching, TheFrameLeftGetsItsSnapshotAndTheCurrentOneLagsBehind) {
    start();
    trigger("mnuFrameInsert");
    EXPECT_FALSE(workspace.pctPanel.picture(1).isEmpty());
    EXPECT_TRUE(workspace.pctPanel.picture(2).isEmpty());
    paintSquare(workspace.pctMap.persistentLayer(), {100, 100}, Qt::red);
    EXPECT_TRUE(workspace.pctPanel.picture(2).isEmpty());
    selectTab(1);
    EXPECT_TRUE(isNearly(workspace.pctPanel.picture(2).image().pixelColor(110, 110), Qt::red));
}

TEST_F(FrameSwitching, LeavingAFrameOnWhichNothingWasDrawnKeepsItsPictureAsItIs) {
    start();
    trigger("mnuFrameInsert");
    const Picture before = workspace.pctPanel.picture(1);
    selectTab(1);
    selectTab(2);
    EXPECT_TRUE(workspace.pctPanel.picture(1).sharesContentWith(before));
}

TEST_F(FrameSwitching, SpritesOfAFrameComeBackWhereTheModelHasThem) {
    start();
    const QString symbol = placeSymbol({100, 100});
    const QString label = placeLabel({300, 200});
    trigger("mnuFrameInsert");
    symbols().Item(symbol).PosX = 33;
    labels().Item(label).PosY = 44;
    selectTab(1);
    EXPECT_EQ(symbolControl(symbol)->rect, QRect(33, 84, 32, 32));
    EXPECT_EQ(labelControl(label)->rect.y(), 44);
    EXPECT_TRUE(symbolControl(symbol)->visible);
    EXPECT_TRUE(labelControl(label)->visible);
}

TEST_F(FrameSwitching, TheModelKeepsTheSpritesOfTheFrameLeft) {
    start();
    placeSymbol({100, 100});
    placeLabel({200, 100});
    trigger("mnuFrameInsert");
    EXPECT_EQ(frame(1).Sprites().Count(), 2);
    EXPECT_EQ(frame(2).Sprites().Count(), 0);
}

TEST_F(FrameSwitching, TheNameFieldTakesTheTabsCaption) {
    start();
    trigger("mnuFrameInsert");
    EXPECT_EQ(window().tabs().txtDay()->text(), "Map2");
    selectTab(1);
    EXPECT_EQ(window().tabs().txtDay()->text(), "Map1");
}

TEST_F(FrameSwitching, ThePointerIsRestored) {
    start();
    trigger("mnuFrameInsert");
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(FrameSwitching, AMissingMapFileDoesNotStopTheEditor) {
    start();
    placeSymbol({100, 100});
    QFile::remove(host("Maps/europe.jpg"));
    trigger("mnuFrameInsert");
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
    EXPECT_EQ(shell.pointer, Pointer::Default);
    EXPECT_EQ(canvas().size(), QSize(502, 402));
    selectTab(1);
    EXPECT_EQ(sprites().controls().size(), 1U);
}

TEST_F(FrameSwitching, ADragUnderWayIsDropped) {
    start();
    const QString key = placeSymbol({100, 100});
    trigger("mnuFrameInsert");
    selectTab(1);
    workspace.ProjectChanged = false;
    press({100, 100});
    move({150, 100});
    selectTab(2);
    move({200, 100});
    release({200, 100});
    EXPECT_EQ(symbolRect(key), QRect(84, 84, 32, 32));
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::None);
}

TEST_F(FrameSwitching, TheSelectionIsDropped) {
    start();
    placeSymbol({100, 100});
    trigger("mnuFrameInsert");
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::None);
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, "");
    EXPECT_EQ(selection().shpSelector(), nullptr);
}

}  // namespace nubivane
