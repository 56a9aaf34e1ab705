// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/project_edits.h"
#include "support/modal.h"
#include "support/project_snapshot.h"
#include "windows/canvas/canvas_fixture.h"

#include <QComboBox>

namespace nubivane {

using testing::partOf;
using testing::withModal;

/// Where undo works, and when it does not.
class UndoPlaces : public testing::CanvasFixture {
  protected:
    ~UndoPlaces() override { workspace.ProjectChanged = false; }

    /// The editor with a view that shows the upper left part of the map alone.
    void startSmall() {
        start();
        view().resize(301, 250);
    }
    MapViewport& view() { return window().viewport(); }
    ProjectEdits& edits() { return workspace.edits(); }
    bool isSeen(const QRect& rect) {
        return view().visibleMapRect().contains(canvas().toWidget(rect));
    }
    void scrollHome() {
        view().hScroll1()->setValue(1);
        view().vScroll1()->setValue(1);
    }
};

TEST_F(UndoPlaces, ASpriteOutOfSightIsScrolledIntoViewAndSelected) {
    startSmall();
    const QString key = placeSymbol({440, 350});
    const QRect place = symbolControl(key)->rect;
    trigger("mnuDelSymbol");
    scrollHome();
    ASSERT_FALSE(isSeen(place));
    trigger("mnuUndo");
    ASSERT_TRUE(symbolControl(key));
    EXPECT_TRUE(isSeen(place));
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
    EXPECT_FALSE(selection().isEmpty());
}

TEST_F(UndoPlaces, AStrokeOutOfSightIsScrolledIntoView) {
    startSmall();
    window().canvas().drawing().chooseTool(static_cast<std::size_t>(Tool::draw));
    drag({430, 340}, {450, 360});
    ASSERT_EQ(edits().undoText(), "Draw");
    scrollHome();
    trigger("mnuUndo");
    EXPECT_TRUE(isSeen({432, 342, 16, 16}));
    scrollHome();
    trigger("mnuRedo");
    EXPECT_TRUE(isSeen({432, 342, 16, 16}));
}

TEST_F(UndoPlaces, WhatIsInSightLeavesTheViewWhereItIs) {
    startSmall();
    placeSymbol({60, 60});
    const QPoint before = canvas().pos();
    trigger("mnuUndo");
    trigger("mnuRedo");
    EXPECT_EQ(canvas().pos(), before);
}

TEST_F(UndoPlaces, TheFrameOnWhichItWorksIsShown) {
    start();
    placeSymbol({200, 150});
    trigger("mnuFrameInsert");
    trigger("mnuFrameInsert");
    edits().goTo(3);
    selectTab(2);
    trigger("mnuUndo");  // the third Frame goes, and the one before it was inserted is shown
    EXPECT_EQ(window().tabs().count(), 2);
    edits().goTo(1);
    trigger("mnuFrameInsert");
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
    trigger("mnuUndo");
    trigger("mnuUndo");
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    EXPECT_EQ(window().tabs().selected(), 1);
}

TEST_F(UndoPlaces, WhileACommandWorksTheKeysDoNothing) {
    start();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    placeSymbol({200, 150});
    {
        const InputGuard export_(window());
        QTest::keyClick(&canvas(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(symbols().Count(), 1);
    }
    QTest::keyClick(&canvas(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(symbols().Count(), 0);
}

TEST_F(UndoPlaces, StepsThroughAListOfChoicesAreOneEdit) {
    start();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    const QString key = placeLabel({200, 150});
    const qint16 before = labels().Item(key).Border;
    withModal([this] { window().findChild<PropertyCommands*>()->showSpriteProperties(); },
              [](QWidget& properties) {
                  auto& border = partOf<QComboBox>(properties, "cboBorder");
                  border.setFocus();
                  for (const Qt::Key step : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Up}) {
                      QTest::keyClick(&border, step);
                  }
              });
    EXPECT_NE(labels().Item(key).Border, before);
    EXPECT_EQ(edits().count(), 2);
    trigger("mnuUndo");
    EXPECT_EQ(labels().Item(key).Border, before);
}

TEST_F(UndoPlaces, DeleteAllAndRestoreAreTakenBack) {
    start();
    const QString key = placeSymbol({200, 150});
    placeLabel({100, 100});
    const QString all = testing::snapshotOf(workspace);
    shell.expectMessage("Are you sure you want to delete all symbols in the map ?", Icon::Question,
                        Buttons::YesNo, Answer::Yes);
    trigger("mnuDelAllSymbols");
    EXPECT_EQ(frame().Sprites().Count(), 0);
    trigger("mnuUndo");
    EXPECT_EQ(testing::snapshotOf(workspace), all);
    selection().clearSelection();
    selection().select(*symbolControl(key));
    const QPoint corner = selection().shpSelector()->rect().bottomRight();
    drag(corner, corner + QPoint(30, 30));
    const QString resized = testing::snapshotOf(workspace);
    ASSERT_NE(resized, all);
    trigger("mnuRestore");
    ASSERT_NE(testing::snapshotOf(workspace), resized);
    trigger("mnuUndo");
    EXPECT_EQ(testing::snapshotOf(workspace), resized);
    trigger("mnuUndo");
    EXPECT_EQ(testing::snapshotOf(workspace), all);
}

TEST_F(UndoPlaces, AMapChangeBringsBackAllThatItDeleted) {
    start();
    testing::writeFile(host("Maps/other.png"),
                       encodePicture(testing::plainImage({300, 200}, Qt::red), PictureFormat::Png));
    placeSymbol({200, 150});
    trigger("mnuFrameInsert");
    placeLabel({100, 100});
    const QString all = testing::snapshotOf(workspace);
    window().findChild<FrameCommands*>()->changeMap(model("Maps/other.png"));
    EXPECT_EQ(frame(2).Sprites().Count(), 0);
    trigger("mnuUndo");
    EXPECT_EQ(testing::snapshotOf(workspace), all);
    EXPECT_EQ(canvas().size(), QSize(502, 402));
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
}

}  // namespace nubivane
