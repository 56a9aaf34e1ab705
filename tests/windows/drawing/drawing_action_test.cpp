// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/drawing_fixture.h"
#include "windows/main/window_geometry.h"

namespace nubivane {

/// `frmDrawAction`, the floating window of a figure being edited.
class DrawingAction : public testing::DrawingFixture {
  protected:
    void startFigure() {
        startDrawing();
        choose("line");
        click({100, 100});
        click({200, 150});
    }
    void TearDown() override { workspace.ProjectChanged = false; }
};

TEST_F(DrawingAction, TheFirstPressOfAFigureShowsIt) {
    startDrawing();
    for (const char* tool : {"line", "curvy", "circle", "poly"}) {
        choose(tool);
        EXPECT_FALSE(actionLoaded()) << tool;
        click({100, 100});
        EXPECT_TRUE(actionLoaded()) << tool;
        EXPECT_TRUE(action()->isVisible()) << tool;
    }
}

TEST_F(DrawingAction, OtherToolsDoNotShowIt) {
    startDrawing();
    for (const char* tool : {"draw", "erase", "color", "cursor"}) {
        choose(tool);
        click({100, 100});
        EXPECT_FALSE(actionLoaded()) << tool;
    }
}

TEST_F(DrawingAction, ThereIsOneAtMost) {
    startDrawing();
    choose("poly");
    for (int x = 50; x < 400; x += 50) {
        click({x, 100});
    }
    EXPECT_EQ(window().findChildren<frmDrawAction*>().size(), 1);
}

TEST_F(DrawingAction, ItIsASmallWindowOfTheMainOneAndNotModal) {
    startFigure();
    EXPECT_FALSE(action()->isModal());
    EXPECT_EQ(action()->parentWidget(), &window());
    EXPECT_TRUE(action()->windowFlags().testFlag(Qt::Tool));
    EXPECT_LT(action()->width(), 300);
    EXPECT_LT(action()->height(), 120);
}

TEST_F(DrawingAction, ItLetsTheKeyboardStayOnTheMap) {
    startFigure();
    EXPECT_TRUE(action()->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(window().focusWidget(), &canvas());
}

TEST_F(DrawingAction, ClosingItByItsBoxMeansCancel) {
    startFigure();
    action()->close();
    compare();
    EXPECT_FALSE(actionLoaded());
    EXPECT_EQ(drawing().points().pointCount(), 0);
}

TEST_F(DrawingAction, ItsDefaultButtonAppliesAndEscCancels) {
    startFigure();
    QTest::keyClick(action(), Qt::Key_Escape);
    compare();
    EXPECT_FALSE(actionLoaded());
    click({100, 100});
    click({200, 150});
    QTest::keyClick(action(), Qt::Key_Return);
    EXPECT_FALSE(actionLoaded());
    EXPECT_FALSE(same(committed(), expected));
}

TEST_F(DrawingAction, EnterOnTheMapApplies) {
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        startFigure();
        QTest::keyClick(&canvas(), enter);
        EXPECT_FALSE(actionLoaded());
        EXPECT_FALSE(same(committed(), expected));
        EXPECT_EQ(drawing().points().pointCount(), 0);
    }
}

TEST_F(DrawingAction, EscOnTheMapCancels) {
    startFigure();
    QTest::keyClick(&canvas(), Qt::Key_Escape);
    compare();
    EXPECT_FALSE(actionLoaded());
}

TEST_F(DrawingAction, TheKeysWorkFromTheStripAndItsField) {
    startFigure();
    QTest::keyClick(strip().txtValue(), Qt::Key_Escape);
    EXPECT_FALSE(actionLoaded());
    compare();
    click({100, 100});
    click({200, 150});
    QTest::keyClick(strip().txtValue(), Qt::Key_Return);
    EXPECT_FALSE(actionLoaded());
    EXPECT_FALSE(same(committed(), expected));
}

TEST_F(DrawingAction, WithoutAFigureEnterDoesNothing) {
    startDrawing();
    choose("line");
    QTest::keyClick(&canvas(), Qt::Key_Return);
    compare();
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::line);
}

TEST_F(DrawingAction, EscGoesBackStepByStepFigureToolSelection) {
    startFigure();
    QTest::keyClick(&canvas(), Qt::Key_Escape);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::line);
    QTest::keyClick(&canvas(), Qt::Key_Escape);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::cursor);
    EXPECT_TRUE(strip().btnDraw(0)->isChecked());
    compare();
    placeSymbol({200, 150});
    ASSERT_FALSE(selection().isEmpty());
    QTest::keyClick(&canvas(), Qt::Key_Escape);
    EXPECT_TRUE(selection().isEmpty());
}

TEST_F(DrawingAction, AFrameChangeUnloadsIt) {
    startFigure();
    trigger("mnuFrameInsert");
    EXPECT_FALSE(actionLoaded());
    compare();
    selectTab(1);
    compare();
    EXPECT_EQ(drawing().points().pointCount(), 0);
}

TEST_F(DrawingAction, ANewProjectUnloadsIt) {
    startFigure();
    workspace.ProjectChanged = false;
    trigger("mnuNewProject");
    EXPECT_FALSE(actionLoaded());
    compare();
}

TEST_F(DrawingAction, TheEndOfTheMainWindowUnloadsIt) {
    startFigure();
    workspace.ProjectChanged = false;
    EXPECT_TRUE(window().close());
    EXPECT_FALSE(actionLoaded());
}

TEST_F(DrawingAction, WhileTheMainWindowIsShutItIsShutToo) {
    startFigure();
    window().setEnabled(false);
    EXPECT_FALSE(action()->isEnabled());
    window().setEnabled(true);
    EXPECT_TRUE(action()->isEnabled());
}

TEST_F(DrawingAction, AtFirstItIsCentredOverTheMainWindow) {
    startFigure();
    const QPoint away = action()->frameGeometry().center() - window().frameGeometry().center();
    EXPECT_LE(away.manhattanLength(), 2);
}

TEST_F(DrawingAction, ItsPlaceIsKeptInTwips) {
    startFigure();
    action()->move(300, 200);
    pressActionButton("cmdDrawCancel");
    EXPECT_EQ(settings.text(Setting::DrawDialogLeft), "4500");
    EXPECT_EQ(settings.text(Setting::DrawDialogTop), "3000");
    click({100, 100});
    EXPECT_EQ(action()->pos(), QPoint(300, 200));
}

TEST_F(DrawingAction, APlaceBesideTheScreenIsBroughtBack) {
    for (const char* far : {"1500000", "-1500000", "2147483647", "-2147483648"}) {
        settings.set(Setting::DrawDialogTop, far);
        settings.set(Setting::DrawDialogLeft, far);
        startFigure();
        EXPECT_TRUE(action()->screen()->availableGeometry().contains(action()->frameGeometry()))
            << far;
    }
}

TEST_F(DrawingAction, APlaceThatIsNoNumberIsTheCentre) {
    settings.set(Setting::DrawDialogTop, "top");
    settings.set(Setting::DrawDialogLeft, "300");
    startFigure();
    const QPoint away = action()->frameGeometry().center() - window().frameGeometry().center();
    EXPECT_LE(away.manhattanLength(), 2);
}

}  // namespace nubivane
