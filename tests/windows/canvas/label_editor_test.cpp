// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/label_editor.h"

#include "windows/canvas/many_fixture.h"
#include "windows/canvas/map_zoom.h"

namespace nubivane {

/// A label's text typed on the map.
class LabelOnTheMap : public testing::ManyFixture {
  protected:
    void startActive() {
        startWithSprites();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }
    LabelEditor& editor() { return window().canvas().labelEditor(); }
    void doubleClick(QPoint position) {
        const QPoint at = canvas().toWidget(QRect(position, QSize(1, 1))).center();
        QTest::mouseClick(&canvas(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, at);
    }
    QString text() { return labels().Item(label.key).Text; }
};

TEST_F(LabelOnTheMap, ADoubleClickOpensItAndEnterTakesItOver) {
    startActive();
    const int before = workspace.edits().count();
    doubleClick({200, 250});
    ASSERT_TRUE(editor().isVisible());
    EXPECT_EQ(editor().text(), "Label");
    QTest::keyClicks(&editor(), "Rome 21");
    QTest::keyClick(&editor(), Qt::Key_Return);
    EXPECT_FALSE(editor().isVisible());
    EXPECT_EQ(text(), "Rome 21");
    EXPECT_EQ(labels().Item(label.key).Width, rect(label).width());
    EXPECT_EQ(workspace.edits().count(), before + 1);
    EXPECT_TRUE(canvas().hasFocus());
    trigger("mnuUndo");
    EXPECT_EQ(text(), "Label");
}

TEST_F(LabelOnTheMap, EscLeavesTheOldText) {
    startActive();
    doubleClick({200, 250});
    QTest::keyClicks(&editor(), "Rome");
    QTest::keyClick(&editor(), Qt::Key_Escape);
    EXPECT_FALSE(editor().isVisible());
    EXPECT_EQ(text(), "Label");
    EXPECT_FALSE(selection().isEmpty());
}

TEST_F(LabelOnTheMap, BlanksAloneLeaveTheOldText) {
    startActive();
    doubleClick({200, 250});
    QTest::keyClicks(&editor(), "   ");
    QTest::keyClick(&editor(), Qt::Key_Return);
    EXPECT_EQ(text(), "Label");
}

TEST_F(LabelOnTheMap, AClickElsewhereTakesItOver) {
    startActive();
    doubleClick({200, 250});
    QTest::keyClicks(&editor(), "Oslo");
    click({400, 350});
    EXPECT_FALSE(editor().isVisible());
    EXPECT_EQ(text(), "Oslo");
}

TEST_F(LabelOnTheMap, GoingToAnotherFrameTakesItOver) {
    startActive();
    doubleClick({200, 250});
    QTest::keyClicks(&editor(), "Oslo");
    QTest::keyClick(&editor(), Qt::Key_T, Qt::ControlModifier);
    ASSERT_EQ(workspace.Frames().Count(), 2);
    EXPECT_FALSE(editor().isVisible());
    EXPECT_EQ(text(), "Oslo");
}

TEST_F(LabelOnTheMap, EnterOnTheMapOpensTheSelectedOne) {
    startActive();
    select({label});
    keyOnMap(Qt::Key_Return);
    EXPECT_TRUE(editor().isVisible());
}

TEST_F(LabelOnTheMap, ItIsAsLargeAsTheMapIsShown) {
    startActive();
    window().viewport().findChild<MapZoom*>()->zoomTo(Zoom(200));
    editor().start(label);
    EXPECT_EQ(editor().font().pixelSize(), 32);
    EXPECT_TRUE(editor().geometry().contains(canvas().toWidget(rect(label))));
}

TEST_F(LabelOnTheMap, WithADrawingToolADoubleClickOpensNothing) {
    startActive();
    workspace.Status.CurrentTool = Tool::color;
    QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, QPoint(401, 351));
    EXPECT_FALSE(editor().isVisible());
}

}  // namespace nubivane
