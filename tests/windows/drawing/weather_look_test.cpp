// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/weather_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

namespace nubivane {

/// How figures look: the row of options, the pen, and the key that turns them over.
class WeatherLook : public testing::WeatherFixture {
  protected:
    /// The fields that are shown, by name.
    QStringList fields() {
        QStringList names;
        for (const QWidget* each : window().figureOptions().focusOrder()) {
            if (each->isVisible()) {
                names << each->objectName();
            }
        }
        return names;
    }
    void expectDrawn(Kind kind) {
        EXPECT_TRUE(drawn() == withFigure(kind, pointsFor(kind)));
        EXPECT_TRUE(workspace.pctMap.scratchArea().isValid());
    }
    void begin(Kind kind) {
        chooseByKeys(kind);
        clickAll(pointsFor(kind));
    }
    const weather::FigureStyle& style() {
        return drawing().choice().look(workspace.Status.CurrentTool).style;
    }
};

TEST_F(WeatherLook, TheRowOfOptionsIsThereWithAWeatherToolAlone) {
    EXPECT_FALSE(window().figureOptions().isVisible());
    const QRect map = window().viewport().geometry();
    mapKey(Qt::Key_F);
    EXPECT_TRUE(window().figureOptions().isVisible());
    EXPECT_EQ(window().viewport().geometry().topLeft(), map.topLeft());
    EXPECT_LT(window().viewport().geometry().bottom(), map.bottom());
    mapKey(Qt::Key_L);
    EXPECT_FALSE(window().figureOptions().isVisible());
    EXPECT_EQ(window().viewport().geometry(), map);
}

TEST_F(WeatherLook, TheRowHasTheFieldsThatMeanSomethingForTheKind) {
    const std::pair<Kind, QStringList> rows[] = {
        {Kind::ColdFront,
         {"cboKind", "cboStage", "chkUpper", "chkFlipped", "chkPenColor", "cmdEditAgain", "cmdDraw",
          "cmdDrop"}},
        {Kind::Trough, {"cboKind", "chkPenColor", "cmdEditAgain", "cmdDraw", "cmdDrop"}},
        {Kind::Isoline,
         {"cboKind", "txtText", "spnRepeats", "chkPenColor", "cmdEditAgain", "cmdDraw", "cmdDrop"}},
        {Kind::RainArea,
         {"cboKind", "cboFill", "spnOpacity", "chkPenColor", "cmdEditAgain", "cmdDraw", "cmdDrop"}},
        {Kind::Cloud,
         {"cboKind", "cboFill", "spnOpacity", "chkFlipped", "chkPenColor", "cmdEditAgain",
          "cmdDraw", "cmdDrop"}},
        {Kind::Arrow, {"cboKind", "chkPenColor", "cmdEditAgain", "cmdDraw", "cmdDrop"}},
        {Kind::WindBarb,
         {"cboKind", "spnKnots", "chkFlipped", "chkPenColor", "cmdEditAgain", "cmdDraw",
          "cmdDrop"}},
        {Kind::CurvedText,
         {"txtText", "chkFlipped", "chkPenColor", "cmdEditAgain", "cmdDraw", "cmdDrop"}},
    };
    for (const auto& [kind, wanted] : rows) {
        chooseByKeys(kind);
        EXPECT_EQ(fields(), wanted) << figureRow(kind).name;
    }
}

TEST_F(WeatherLook, EveryFieldHasANameForThoseWhoCannotSeeIt) {
    for (const QWidget* each : window().figureOptions().focusOrder()) {
        EXPECT_FALSE(each->accessibleName().isEmpty()) << each->objectName().toStdString();
        EXPECT_FALSE(each->toolTip().isEmpty()) << each->objectName().toStdString();
        EXPECT_NE(each->focusPolicy(), Qt::NoFocus) << each->objectName().toStdString();
    }
}

TEST_F(WeatherLook, XTurnsTheFigureOver) {
    for (const Kind kind : {Kind::ColdFront, Kind::WindBarb, Kind::Cloud, Kind::CurvedText}) {
        begin(kind);
        mapKey(Qt::Key_X);
        EXPECT_TRUE(style().flipped);
        EXPECT_TRUE(field<QCheckBox>("chkFlipped").isChecked());
        expectDrawn(kind);
        mapKey(Qt::Key_X);
        EXPECT_FALSE(style().flipped);
        expectDrawn(kind);
    }
}

TEST_F(WeatherLook, FrontsAreUpperFormingAndDissipatingByTheirFields) {
    begin(Kind::OccludedFront);
    QTest::keyClick(&field<QComboBox>("cboStage"), Qt::Key_Down);
    EXPECT_EQ(style().stage, weather::FrontStage::Forming);
    expectDrawn(Kind::OccludedFront);
    QTest::keyClick(&field<QComboBox>("cboStage"), Qt::Key_Down);
    EXPECT_EQ(style().stage, weather::FrontStage::Dissipating);
    expectDrawn(Kind::OccludedFront);
    QTest::keyClick(&field<QCheckBox>("chkUpper"), Qt::Key_Space);
    EXPECT_TRUE(style().upper);
    expectDrawn(Kind::OccludedFront);
}

TEST_F(WeatherLook, AValueStandsInTheIsolineAsOftenAsAskedFor) {
    begin(Kind::Isoline);
    QTest::keyClicks(&field<QLineEdit>("txtText"), "1015");
    EXPECT_EQ(style().text, "1015");
    expectDrawn(Kind::Isoline);
    QTest::keyClick(&field<QSpinBox>("spnRepeats"), Qt::Key_Up);
    EXPECT_EQ(style().repeats, 2);
    expectDrawn(Kind::Isoline);
    // Enter in the field draws the figure as it does on the map.
    QTest::keyClick(&field<QLineEdit>("txtText"), Qt::Key_Return);
    EXPECT_TRUE(committed() == withFigure(Kind::Isoline, pointsFor(Kind::Isoline)));
}

TEST_F(WeatherLook, VGoesToTheFieldsAndEnterThereDraws) {
    begin(Kind::Isoline);
    mapKey(Qt::Key_V);
    ASSERT_EQ(QApplication::focusWidget(), &field<QLineEdit>("txtText"));
    key(Qt::Key_9);
    key(Qt::Key_V);
    key(Qt::Key_Return);
    EXPECT_EQ(style().text, "9v");
    EXPECT_TRUE(committed() == withFigure(Kind::Isoline, pointsFor(Kind::Isoline)));
}

TEST_F(WeatherLook, TheButtonsOfTheRowDrawAndDropTheFigure) {
    mapKey(Qt::Key_F);
    EXPECT_FALSE(field<QToolButton>("cmdDraw").isEnabled());
    EXPECT_FALSE(field<QToolButton>("cmdDrop").isEnabled());
    begin(Kind::ColdFront);
    EXPECT_TRUE(field<QToolButton>("cmdDraw").isEnabled());
    EXPECT_FALSE(actionLoaded());
    QTest::mouseClick(&field<QToolButton>("cmdDrop"), Qt::LeftButton);
    EXPECT_TRUE(onScreen() == bare);
    begin(Kind::ColdFront);
    QTest::mouseClick(&field<QToolButton>("cmdDraw"), Qt::LeftButton);
    EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, pointsFor(Kind::ColdFront)));
    EXPECT_FALSE(field<QToolButton>("cmdDraw").isEnabled());
}

TEST_F(WeatherLook, LettersTypedIntoAFieldChooseNoTool) {
    begin(Kind::CurvedText);
    QTest::keyClicks(&field<QLineEdit>("txtText"), "fax 1");
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::text);
    EXPECT_EQ(style().text, "Textfax 1");
    expectDrawn(Kind::CurvedText);
}

TEST_F(WeatherLook, ATextThatIsMissingIsAskedFor) {
    begin(Kind::CurvedText);
    field<QLineEdit>("txtText").clear();
    EXPECT_EQ(drawing().nextStep(), "Type the text in its field below the map.");
    mapKey(Qt::Key_Return);
    EXPECT_TRUE(drawing().isUnfinished());
    EXPECT_EQ(edits().count(), 0);
}

TEST_F(WeatherLook, AreasAreFilledAsAskedFor) {
    begin(Kind::SnowArea);
    QTest::keyClick(&field<QComboBox>("cboFill"), Qt::Key_End);
    EXPECT_EQ(style().fill, weather::AreaFill::None);
    expectDrawn(Kind::SnowArea);
    QTest::keyClick(&field<QComboBox>("cboFill"), Qt::Key_Up);
    field<QSpinBox>("spnOpacity").setValue(80);
    EXPECT_DOUBLE_EQ(style().opacity, 0.8);
    expectDrawn(Kind::SnowArea);
}

TEST_F(WeatherLook, AWindBarbHasTheKnotsOfItsField) {
    begin(Kind::WindBarb);
    field<QSpinBox>("spnKnots").setValue(65);
    EXPECT_EQ(style().knots, 65);
    expectDrawn(Kind::WindBarb);
}

TEST_F(WeatherLook, ThePensColorTakesTheKindsPlace) {
    begin(Kind::ColdFront);
    QTest::keyClick(&field<QCheckBox>("chkPenColor"), Qt::Key_Space);
    expectDrawn(Kind::ColdFront);
    EXPECT_EQ(drawn().pixelColor(270, 150), QColor(Qt::red));
    drawing().setDrawColor(0x00FF00);
    expectDrawn(Kind::ColdFront);
    EXPECT_EQ(drawn().pixelColor(270, 150), QColor(Qt::green));
}

TEST_F(WeatherLook, ThePensWidthIsTheFiguresSize) {
    begin(Kind::ColdFront);
    setWidth("6");
    EXPECT_EQ(figureOf(Kind::ColdFront, {}).style.width, 6);
    expectDrawn(Kind::ColdFront);
    setWidth("x");
    expectDrawn(Kind::ColdFront);
    setWidth("32767");
    mapKey(Qt::Key_Return);
    EXPECT_FALSE(committed() == bare);
}

TEST_F(WeatherLook, FrontsBeginWithAWidthOfTheirOwnUntilSomebodyAsksForAnother) {
    EXPECT_EQ(strip().txtValue()->text(), "1");
    mapKey(Qt::Key_F);
    EXPECT_EQ(strip().txtValue()->text(), "3");
    mapKey(Qt::Key_I);
    EXPECT_EQ(strip().txtValue()->text(), "1");
    mapKey(Qt::Key_R);
    EXPECT_EQ(strip().txtValue()->text(), "2");
    mapKey(Qt::Key_D);
    EXPECT_EQ(strip().txtValue()->text(), "1");
    setWidth("7");
    mapKey(Qt::Key_F);
    EXPECT_EQ(strip().txtValue()->text(), "7");
    mapKey(Qt::Key_D);
    EXPECT_EQ(strip().txtValue()->text(), "7");
}

TEST_F(WeatherLook, EachToolRemembersItsOwn) {
    begin(Kind::Isoline);
    QTest::keyClicks(&field<QLineEdit>("txtText"), "980");
    mapKey(Qt::Key_T);
    EXPECT_EQ(field<QLineEdit>("txtText").text(), "Text");
    mapKey(Qt::Key_I);
    EXPECT_EQ(field<QLineEdit>("txtText").text(), "980");
}

TEST_F(WeatherLook, EveryToolOfTheStripHasAKeyWhichItsHintTells) {
    for (const ToolRow& row : toolTable) {
        mapKey(row.tool == Tool::cursor ? Qt::Key_D : Qt::Key_S);
        mapKey(row.key);
        EXPECT_EQ(workspace.Status.CurrentTool, row.tool) << row.name;
        const QString hint = strip().btnDraw(static_cast<int>(row.tool))->toolTip();
        EXPECT_TRUE(hint.contains(QString("(%1)").arg(QKeySequence(row.key).toString())))
            << hint.toStdString();
    }
}

TEST_F(WeatherLook, LettersWithControlChooseNoTool) {
    mapKey(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::cursor);
    QTest::keyClick(&window(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::cursor);
}

TEST_F(WeatherLook, AStillHasThePixelsOfTheScreen) {
    QDir().mkpath(host("out"));
    draw(Kind::ColdFront, pointsFor(Kind::ColdFront));
    draw(Kind::RainArea, pointsFor(Kind::RainArea));
    draw(Kind::ClosedIsoline, pointsFor(Kind::ClosedIsoline));
    shell.expectSaveDialog("Export map", model("out/still.png"));
    trigger("subEsportaPng");
    const QImage still(host("out/still.png"));
    ASSERT_EQ(still.size(), bare.size());
    EXPECT_TRUE(still.convertToFormat(QImage::Format_RGB32) == onScreen());
    EXPECT_TRUE(onScreen() == committed());
}

TEST_F(WeatherLook, AnExportTakesTheFigureBeingDrawnIntoThePictureOnce) {
    QDir().mkpath(host("out"));
    begin(Kind::YellowWarning);
    const QImage wanted = withFigure(Kind::YellowWarning, pointsFor(Kind::YellowWarning));
    shell.expectSaveDialog("Export map", model("out/still.png"));
    trigger("subEsportaPng");
    EXPECT_TRUE(committed() == wanted);
    EXPECT_FALSE(drawing().isUnfinished());
    mapKey(Qt::Key_Return);
    EXPECT_TRUE(committed() == wanted);
}

}  // namespace nubivane
