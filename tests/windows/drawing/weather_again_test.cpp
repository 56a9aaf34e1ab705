// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/weather_fixture.h"

namespace nubivane {

/// "Edit again": the figure that was applied last gets its points back.
class WeatherAgain : public testing::WeatherFixture {
  protected:
    static std::vector<QPoint> bend() { return {{80, 250}, {200, 150}, {350, 250}}; }
    QToolButton& button() { return field<QToolButton>("cmdEditAgain"); }
    void again() { QTest::mouseClick(&button(), Qt::LeftButton); }
};

TEST_F(WeatherAgain, ItIsOfferedAsLongAsThereIsAFigureToUndo) {
    mapKey(Qt::Key_F);
    EXPECT_FALSE(button().isEnabled());
    draw(Kind::ColdFront, bend());
    EXPECT_TRUE(button().isEnabled());
    trigger("mnuUndo");
    EXPECT_FALSE(button().isEnabled());
    trigger("mnuRedo");
    EXPECT_TRUE(button().isEnabled());
}

TEST_F(WeatherAgain, ThePointsComeBackAndEnterPutsTheChangedFigureInItsPlace) {
    draw(Kind::ColdFront, bend());
    again();
    EXPECT_TRUE(drawing().isUnfinished());
    EXPECT_TRUE(drawn() == withFigure(Kind::ColdFront, bend()));
    drag({200, 150}, {230, 90});
    const std::vector<QPoint> changed = {{80, 250}, {230, 90}, {350, 250}};
    EXPECT_TRUE(drawn() == withFigure(Kind::ColdFront, changed));
    mapKey(Qt::Key_Return);
    EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, changed));
    EXPECT_EQ(edits().undoText(), "Change cold front");
    trigger("mnuUndo");
    EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, bend()));
    trigger("mnuUndo");
    EXPECT_TRUE(committed() == bare);
}

TEST_F(WeatherAgain, EscLeavesTheFigureAsItWas) {
    draw(Kind::ColdFront, bend());
    again();
    drag({200, 150}, {230, 90});
    mapKey(Qt::Key_Escape);
    EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, bend()));
    EXPECT_TRUE(onScreen() == committed());
    EXPECT_EQ(edits().count(), 1);
}

TEST_F(WeatherAgain, ASaveWhileItIsEditedLosesNothing) {
    draw(Kind::ColdFront, bend());
    again();
    drag({200, 150}, {230, 90});
    shell.expectSaveDialog("Save project", model("front.nvpf"));
    trigger("mnuSaveProject");
    EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, bend()));
}

TEST_F(WeatherAgain, KindLookAndWidthComeBackToo) {
    chooseByKeys(Kind::StationaryFront);
    setWidth("5");
    mapKey(Qt::Key_X);
    clickAll(bend());
    mapKey(Qt::Key_Return);
    const QImage first = committed();
    mapKey(Qt::Key_X);
    setWidth("2");
    mapKey(Qt::Key_A);
    mapKey(Qt::Key_G);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::front);
    EXPECT_EQ(drawing().choice().kind(Tool::front), Kind::StationaryFront);
    EXPECT_TRUE(drawing().choice().look(Tool::front).style.flipped);
    EXPECT_EQ(strip().txtValue()->text(), "5");
    EXPECT_TRUE(drawn() == first);
}

TEST_F(WeatherAgain, ItCanBeDoneOverAndOver) {
    draw(Kind::ColdFront, bend());
    std::vector<QPoint> points = bend();
    for (int i = 0; i < 4; ++i) {
        again();
        drag(points[1], points[1] + QPoint(15, -20));
        points[1] += QPoint(15, -20);
        mapKey(Qt::Key_Return);
        EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, points)) << i;
    }
    EXPECT_EQ(edits().count(), 5);
}

TEST_F(WeatherAgain, WhatWasDoneSinceStays) {
    draw(Kind::ColdFront, bend());
    mapKey(Qt::Key_S);
    placeSymbol({100, 100});
    mapKey(Qt::Key_D);
    drag({20, 20}, {450, 20});
    const QImage before = committed();
    mapKey(Qt::Key_G);
    mapKey(Qt::Key_Return);
    EXPECT_TRUE(committed() == before);
    mapKey(Qt::Key_G);
    drag({200, 150}, {230, 90});
    mapKey(Qt::Key_Return);
    EXPECT_EQ(committed().pixelColor(240, 20), QColor(Qt::red));
    EXPECT_EQ(committed().pixelColor(200, 150), bare.pixelColor(200, 150));
    EXPECT_EQ(frame().Sprites().Count(), 1);
}

TEST_F(WeatherAgain, AFigureOfAnotherFrameIsShown) {
    draw(Kind::ColdFront, bend());
    trigger("mnuFrameInsert");
    EXPECT_FALSE(drawing().canEditAgain());  // the Frames are others now
    draw(Kind::WarmFront, bend());
    selectTab(1);
    mapKey(Qt::Key_F);
    mapKey(Qt::Key_G);
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
    EXPECT_TRUE(drawn() == withFigure(Kind::WarmFront, bend()));
}

TEST_F(WeatherAgain, AClearedMapHasNoFigureLeft) {
    draw(Kind::ColdFront, bend());
    shell.expectMessage("Are you sure you want to clear map ?", Icon::Question, Buttons::YesNo,
                        Answer::Yes);
    trigger("mnuPulisci");
    mapKey(Qt::Key_G);
    EXPECT_FALSE(drawing().isUnfinished());
    EXPECT_TRUE(committed() == bare);
}

TEST_F(WeatherAgain, UndoWhileItIsEditedStopsTheEditing) {
    draw(Kind::ColdFront, bend());
    again();
    drag({200, 150}, {230, 90});
    trigger("mnuUndo");
    EXPECT_TRUE(drawn() == withFigure(Kind::ColdFront, bend()));
    trigger("mnuUndo");
    EXPECT_FALSE(drawing().isUnfinished());
    EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, bend()));
}

}  // namespace nubivane
