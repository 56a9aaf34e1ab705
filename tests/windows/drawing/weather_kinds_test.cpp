// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/weather_fixture.h"

namespace nubivane {

/// What holds for every kind of figure.
class WeatherKinds : public testing::WeatherFixture,
                     public ::testing::WithParamInterface<FigureRow> {
  protected:
    Kind kind() const { return GetParam().kind; }
};

TEST_P(WeatherKinds, AreChosenByKeysClickedAndDrawnByEnterAsTheEngineDrawsThem) {
    draw(kind(), pointsFor(kind()));
    const QImage wanted = withFigure(kind(), pointsFor(kind()));
    EXPECT_FALSE(wanted == bare);
    EXPECT_TRUE(committed() == wanted);
    EXPECT_TRUE(onScreen() == wanted);
    EXPECT_TRUE(workspace.pctMap.scratchArea().isEmpty());
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_P(WeatherKinds, AreTakenBackWholeAndDoneAgain) {
    draw(kind(), pointsFor(kind()));
    const QImage drawn = committed();
    ASSERT_EQ(edits().index(), 1);
    EXPECT_EQ(edits().undoText(), GetParam().edit);
    trigger("mnuUndo");
    EXPECT_TRUE(committed() == bare);
    EXPECT_TRUE(onScreen() == bare);
    trigger("mnuRedo");
    EXPECT_TRUE(committed() == drawn);
    EXPECT_TRUE(onScreen() == drawn);
}

TEST_P(WeatherKinds, AreDroppedByEscAndASecondOneReturnsToTheCursor) {
    chooseByKeys(kind());
    clickAll(pointsFor(kind()));
    ASSERT_TRUE(drawing().isUnfinished());
    mapKey(Qt::Key_Escape);
    EXPECT_FALSE(drawing().isUnfinished());
    EXPECT_TRUE(onScreen() == bare);
    EXPECT_EQ(workspace.Status.CurrentTool, toolOf(kind()));
    mapKey(Qt::Key_Escape);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::cursor);
    EXPECT_EQ(edits().count(), 0);
}

TEST_P(WeatherKinds, StandInTheFlyOutOfTheirGroupWithNameIconAndKeys) {
    const QMenu* flyOut = strip().btnDraw(static_cast<int>(toolOf(kind())))->menu();
    if (kindsOf(toolOf(kind())).size() == 1) {
        EXPECT_FALSE(flyOut);
        return;
    }
    ASSERT_TRUE(flyOut);
    for (QAction* action : flyOut->actions()) {
        if (action->data().toInt() == static_cast<int>(kind())) {
            EXPECT_TRUE(action->text().startsWith(GetParam().name));
            EXPECT_TRUE(action->text().contains('\t'));
            EXPECT_FALSE(action->icon().isNull());
            action->trigger();
            EXPECT_TRUE(action->isChecked());
        }
    }
    EXPECT_EQ(workspace.Status.CurrentTool, toolOf(kind()));
    EXPECT_EQ(drawing().choice().kind(toolOf(kind())), kind());
    EXPECT_TRUE(strip().btnDraw(static_cast<int>(toolOf(kind())))->isChecked());
}

TEST_P(WeatherKinds, SayWhatToDoNext) {
    chooseByKeys(kind());
    const QString first = drawing().nextStep();
    EXPECT_TRUE(first.contains("Enter draws"));
    EXPECT_TRUE(first.contains("Esc"));
    clickAll(pointsFor(kind()));
    EXPECT_NE(drawing().nextStep(), first);
    EXPECT_TRUE(drawing().nextStep().contains("Enter draws"));
}

TEST_P(WeatherKinds, TooFewPointsDrawNothingAndStayToBeGoneOnWith) {
    if (kind() == Kind::WindBarb) {
        return;  // one click makes it whole
    }
    chooseByKeys(kind());
    click({200, 200});
    mapKey(Qt::Key_Return);
    EXPECT_TRUE(committed() == bare);
    EXPECT_EQ(edits().count(), 0);
    EXPECT_TRUE(drawing().isUnfinished());
    EXPECT_TRUE(drawing().nextStep().contains("more point"));
}

TEST_P(WeatherKinds, TakeNoMorePointsThanTheyHaveRoomFor) {
    chooseByKeys(kind());
    for (int i = 0; i < 300; ++i) {
        click({20 + i % 20 * 24, 20 + i / 20 * 24});
    }
    mapKey(Qt::Key_Return);
    EXPECT_FALSE(committed() == bare);
    trigger("mnuUndo");
    EXPECT_TRUE(committed() == bare);
}

INSTANTIATE_TEST_SUITE_P(All, WeatherKinds, ::testing::ValuesIn(figureTable),
                         [](const ::testing::TestParamInfo<FigureRow>& row) {
                             return QString(row.param.name).remove(' ').toStdString();
                         });

}  // namespace nubivane
