// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

#include <QDrag>
#include <QMimeData>
#include <QTimer>

namespace nubivane {

constexpr char Refusal[] =
    "This operation is not allowed in draw mode. Select cursor from toolbar and try again.";

/// Looks at the palette at the moment when it makes a drag.
class DragWatch : public QObject {
  public:
    explicit DragWatch(Palette& palette) : palette_(palette) {
        palette.installEventFilter(this);
        // Where the platform carries a drag out, this ends it.
        QTimer::singleShot(0, this, [] { QDrag::cancel(); });
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ChildAdded) {
            ++drags;
            allowed = palette_.dropAllowed();
        }
        return false;
    }
    /// The payload of the drag, which lives until the next round of events.
    QString payload() const {
        const auto* drag = palette_.findChild<QDrag*>();
        return drag ? drag->mimeData()->text() : QString();
    }

    int drags = 0;
    bool allowed = false;

  private:
    Palette& palette_;
};

/// From the palette to the map, by drag, Enter and double click.
class PalettePlacing : public testing::CanvasFixture {
  protected:
    Palette& palette() { return window().palette(); }
    /// Chooses a symbol by its row: rain, snow, sun.
    ListImage& choose(int row) {
        ListImage& list = *palette().currentList();
        list.setCurrentIndex(list.model()->index(row, 0));
        return list;
    }
    /// The middle of what is seen of the map, in pixels of the map.
    QPoint middle() {
        const MapViewport& ground = window().viewport();
        const QRect seen = canvas().geometry().intersected(QRect(QPoint(), ground.size()));
        return seen.center() - canvas().pos() - QPoint(1, 1);
    }
    /// Moves the pointer over the text tool with the button held, far enough for a drag.
    void dragTextTool() {
        QToolButton& tool = *palette().imgText();
        QTest::mousePress(&tool, Qt::LeftButton, {}, {5, 5});
        QMouseEvent event(QEvent::MouseMove, QPoint(60, 60), tool.mapToGlobal(QPoint(60, 60)),
                          Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&tool, &event);
        QTest::mouseRelease(&tool, Qt::LeftButton, {}, {5, 5});
    }
};

TEST_F(PalettePlacing, EnterPutsTheSymbolInTheMiddleOfTheVisibleMap) {
    start();
    const QPoint expected = middle();
    QTest::keyClick(&choose(2), Qt::Key_Return);
    ASSERT_EQ(symbols().Count(), 1);
    EXPECT_EQ(symbolRect("K-1"), QRect(expected - QPoint(16, 16), QSize(32, 32)));
    EXPECT_EQ(symbols().Item("K-1").PathFileGif, model("Symbols/set-1/sun.gif"));
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, "K-1");
}

TEST_F(PalettePlacing, TheEnterKeyOfTheNumericPadDoesTheSame) {
    start();
    QTest::keyClick(&choose(0), Qt::Key_Enter);
    EXPECT_EQ(symbols().Count(), 1);
}

TEST_F(PalettePlacing, TheMiddleFollowsTheScrollBars) {
    start();
    window().viewport().resize(301, 251);
    window().viewport().hScroll1()->setValue(90);
    window().viewport().vScroll1()->setValue(70);
    const QPoint expected = middle();
    ASSERT_GT(expected.x(), 250);
    QTest::keyClick(&choose(0), Qt::Key_Return);
    EXPECT_EQ(symbolRect("K-1").topLeft(), expected - QPoint(16, 16));
}

TEST_F(PalettePlacing, ADoubleClickPutsTheSymbolInTheMiddleOfTheVisibleMap) {
    start();
    ListImage& list = choose(1);
    const QPoint cell = list.visualRect(list.currentIndex()).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, cell);
    ASSERT_EQ(symbols().Count(), 1);
    EXPECT_EQ(symbolRect("K-1").center(), middle() + QPoint(-1, -1));
    EXPECT_EQ(symbols().Item("K-1").PathFileGif, model("Symbols/set-1/snow.gif"));
}

TEST_F(PalettePlacing, EnterOnTheTextToolPutsALabelInTheMiddleOfTheVisibleMap) {
    start();
    const QPoint expected = middle();
    QTest::keyClick(palette().imgText(), Qt::Key_Return);
    ASSERT_EQ(labels().Count(), 1);
    const QSize size = labelControl("K-1")->rect.size();
    EXPECT_EQ(labelPosition("K-1"), expected - QPoint(size.width() / 2, size.height() / 2));
}

TEST_F(PalettePlacing, ADoubleClickOnTheTextToolPutsALabel) {
    start();
    QTest::mouseDClick(palette().imgText(), Qt::LeftButton);
    EXPECT_EQ(labels().Count(), 1);
}

TEST_F(PalettePlacing, EnterWithNothingChosenPlacesNothing) {
    start();
    ListImage& list = *palette().currentList();
    list.setCurrentIndex({});
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(frame().Sprites().Count(), 0);
}

TEST_F(PalettePlacing, EnterWithADrawingToolIsRefused) {
    start();
    workspace.Status.CurrentTool = Tool::erase;
    shell.expectMessage(Refusal, Icon::Exclamation);
    QTest::keyClick(&choose(0), Qt::Key_Return);
    shell.expectMessage(Refusal, Icon::Exclamation);
    QTest::keyClick(palette().imgText(), Qt::Key_Return);
    EXPECT_EQ(frame().Sprites().Count(), 0);
}

TEST_F(PalettePlacing, ADragOfASymbolWithADrawingToolIsRefused) {
    start();
    workspace.Status.CurrentTool = Tool::draw;
    shell.expectMessage(Refusal, Icon::Exclamation);
    palette().currentList()->dragStarting(model("Symbols/set-1/sun.gif"));
    EXPECT_FALSE(palette().dropAllowed());
}

TEST_F(PalettePlacing, ADragOfTheTextToolWithADrawingToolIsRefused) {
    start();
    workspace.Status.CurrentTool = Tool::circle;
    shell.expectMessage(Refusal, Icon::Exclamation);
    dragTextTool();
    EXPECT_FALSE(palette().dropAllowed());
    EXPECT_EQ(frame().Sprites().Count(), 0);
}

TEST_F(PalettePlacing, ADropIsAllowedOnlyWhileAPaletteDragLasts) {
    start();
    EXPECT_FALSE(palette().dropAllowed());
    const DragWatch watch(palette());
    palette().currentList()->dragStarting(model("Symbols/set-1/sun.gif"));
    EXPECT_EQ(watch.drags, 1);
    EXPECT_TRUE(watch.allowed);
    EXPECT_EQ(watch.payload(), "symbol|" + model("Symbols/set-1/sun.gif"));
    EXPECT_FALSE(palette().dropAllowed());
}

TEST_F(PalettePlacing, TheTextToolsDragSaysTextAndAllowsADropToo) {
    start();
    const DragWatch watch(palette());
    dragTextTool();
    EXPECT_EQ(watch.drags, 1);
    EXPECT_TRUE(watch.allowed);
    EXPECT_EQ(watch.payload(), "text");
    EXPECT_FALSE(palette().dropAllowed());
}

TEST_F(PalettePlacing, AShortMoveOnTheTextToolIsNoDrag) {
    start();
    const DragWatch watch(palette());
    QToolButton& tool = *palette().imgText();
    QTest::mousePress(&tool, Qt::LeftButton, {}, {5, 5});
    QMouseEvent event(QEvent::MouseMove, QPoint(6, 6), tool.mapToGlobal(QPoint(6, 6)), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&tool, &event);
    QTest::mouseRelease(&tool, Qt::LeftButton, {}, {6, 6});
    EXPECT_EQ(watch.drags, 0);
    EXPECT_EQ(frame().Sprites().Count(), 0);
}

}  // namespace nubivane
