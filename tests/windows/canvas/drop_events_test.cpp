// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

#include <QDropEvent>
#include <QMimeData>

namespace nubivane {

/// The events of a drag over the map, with what became of them.
class DropEvents : public testing::CanvasFixture {
  protected:
    bool enters() {
        data_.setText("text");
        QDragEnterEvent enter(QPoint(200, 150), Qt::CopyAction, &data_, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&canvas(), &enter);
        return enter.isAccepted() && enter.dropAction() == Qt::CopyAction;
    }
    bool movesOver() {
        QDragMoveEvent over(QPoint(200, 150), Qt::CopyAction, &data_, Qt::LeftButton,
                            Qt::NoModifier);
        over.ignore();
        QApplication::sendEvent(&canvas(), &over);
        return over.isAccepted() && over.dropAction() == Qt::CopyAction;
    }
    bool drops() {
        QDropEvent dropped(QPoint(200, 150), Qt::CopyAction, &data_, Qt::LeftButton,
                           Qt::NoModifier);
        dropped.ignore();
        QApplication::sendEvent(&canvas(), &dropped);
        return dropped.isAccepted();
    }
    QMimeData data_;
};

TEST_F(DropEvents, APaletteDragIsTakenAsACopy) {
    start();
    window().palette().allowDrop(true);
    EXPECT_TRUE(enters());
    EXPECT_TRUE(movesOver());
    EXPECT_TRUE(drops());
    EXPECT_EQ(frame().Sprites().Count(), 1);
}

TEST_F(DropEvents, ADragThatDidNotBeginInThePaletteIsRefused) {
    start();
    EXPECT_FALSE(enters());
    EXPECT_FALSE(movesOver());
    EXPECT_FALSE(drops());
    EXPECT_EQ(frame().Sprites().Count(), 0);
}

TEST_F(DropEvents, ADragWithADrawingToolIsRefused) {
    start();
    window().palette().allowDrop(true);
    workspace.Status.CurrentTool = Tool::draw;
    EXPECT_FALSE(enters());
    EXPECT_FALSE(movesOver());
    EXPECT_FALSE(drops());
    EXPECT_EQ(frame().Sprites().Count(), 0);
}

TEST_F(DropEvents, PlacingWithADrawingToolDoesNothing) {
    start();
    workspace.Status.CurrentTool = Tool::draw;
    window().canvas().placement().drop("text", {200, 150});
    EXPECT_EQ(frame().Sprites().Count(), 0);
}

}  // namespace nubivane
