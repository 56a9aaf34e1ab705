// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/drawing_fixture.h"
#include "windows/main/editor_pane.h"

namespace nubivane {

/// `pctTlbDraw`, the strip of tools beside the map.
class DrawingStrip : public testing::DrawingFixture {
  protected:
    void arrow(const char* name) {
        QTest::mouseClick(strip().scrspn1()->findChild<QToolButton*>(name), Qt::LeftButton);
    }
    void TearDown() override { workspace.ProjectChanged = false; }
};

TEST_F(DrawingStrip, ItStandsBesideTheMapDownToTheCorner) {
    start();
    const QRect place = strip().geometry();
    EXPECT_EQ(place.left(), window().viewport().geometry().right() + 1);
    EXPECT_EQ(place.top(), window().viewport().y());
    EXPECT_EQ(place.right(), window().pane().width() - 1);
    EXPECT_EQ(place.bottom(), window().pane().height() - 1);
}

TEST_F(DrawingStrip, NothingOnItIsCutOff) {
    start();
    for (const QWidget* part : strip().findChildren<QWidget*>()) {
        if (part->isWindow()) {
            continue;  // a fly-out
        }
        EXPECT_TRUE(part->parentWidget()->rect().contains(part->geometry()))
            << part->objectName().toStdString();
    }
    EXPECT_GE(strip().width(), strip().sizeHint().width());
}

TEST_F(DrawingStrip, AtTheStartThePenIsOnePixelWide) {
    start();
    EXPECT_EQ(strip().txtValue()->text(), "1");
    EXPECT_EQ(drawing().pen().DrawWidth(), 1);
}

TEST_F(DrawingStrip, TheSpinnerWritesItsValueIntoTheField) {
    startDrawing();
    arrow("up");
    arrow("up");
    EXPECT_EQ(strip().txtValue()->text(), "3");
    arrow("down");
    EXPECT_EQ(strip().txtValue()->text(), "2");
    choose("draw");
    drag({100, 100}, {200, 100});
    expectDrag({100, 100}, {200, 100}, 2);
    compare();
}

TEST_F(DrawingStrip, TheSpinnerGoesOnFromWhatIsTyped) {
    start();
    setWidth("12");
    arrow("up");
    EXPECT_EQ(strip().txtValue()->text(), "13");
}

TEST_F(DrawingStrip, AWidthThatGivesNoPenIsMarked) {
    start();
    const QColor plain = strip().txtValue()->palette().color(QPalette::Text);
    setWidth("x");
    EXPECT_NE(strip().txtValue()->palette().color(QPalette::Text), plain);
    setWidth("4");
    EXPECT_EQ(strip().txtValue()->palette().color(QPalette::Text), plain);
}

TEST_F(DrawingStrip, TheClearButtonResetsThePointerAndRunsTheCommand) {
    startDrawing();
    QAction* clear = window().commands()[Command::mnuPulisci];
    QObject::disconnect(clear, &QAction::triggered, nullptr, nullptr);
    QList<Qt::CursorShape> pointers;
    QObject::connect(clear, &QAction::triggered, &window(),
                     [&] { pointers << canvas().cursor().shape(); });
    clear->setEnabled(true);
    choose("draw");
    ASSERT_EQ(canvas().cursor().shape(), Qt::BitmapCursor);
    QTest::mouseClick(strip().btnClear(), Qt::LeftButton);
    EXPECT_EQ(pointers, QList<Qt::CursorShape>{Qt::ArrowCursor});
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::draw);
    hover({100, 100});
    EXPECT_EQ(canvas().cursor().shape(), Qt::BitmapCursor);
}

TEST_F(DrawingStrip, TheClearButtonIsThereAsFarAsItsCommandIs) {
    start();
    QAction* clear = window().commands()[Command::mnuPulisci];
    for (const bool enabled : {false, true, false}) {
        clear->setEnabled(enabled);
        EXPECT_EQ(strip().btnClear()->isEnabled(), enabled);
    }
}

TEST_F(DrawingStrip, TheArrowKeysLeadFromToolToTool) {
    start();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    strip().btnDraw(0)->setFocus();
    key(Qt::Key_Down);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::erase);
    key(Qt::Key_Right);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::color);
    key(Qt::Key_Up);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::draw);
}

TEST_F(DrawingStrip, TabGoesFromTheMapToTheToolsTheWidthAndTheColor) {
    start();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    canvas().setFocus();
    QStringList reached;
    for (int i = 0; i < 4; ++i) {
        key(Qt::Key_Tab);
        reached << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(reached, QStringList({"btnDraw0", "txtValue", "pctSelectedColor",
                                    strip().btnClear()->isEnabled() ? "btnClear" : "tabDay"}));
}

TEST_F(DrawingStrip, TheSwatchIsPressedByTheSpaceBar) {
    startDrawing();
    shell.expectColorDialog(Red, std::nullopt);
    QTest::keyClick(strip().pctSelectedColor(), Qt::Key_Space);
}

}  // namespace nubivane
