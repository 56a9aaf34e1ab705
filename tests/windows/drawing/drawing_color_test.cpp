// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/drawing_fixture.h"

namespace nubivane {

/// The drawing colour: its setting, the tool that picks it, and the swatch.
class DrawingColor : public testing::DrawingFixture {
  protected:
    void expectColor(qint32 color) {
        EXPECT_EQ(drawing().DrawColor(), color);
        EXPECT_EQ(strip().pctSelectedColor()->BackColor(), color);
        EXPECT_EQ(settings.text(Setting::DrawColor), QString::number(color));
    }
    void TearDown() override { workspace.ProjectChanged = false; }
};

TEST_F(DrawingColor, WithoutASettingItIsWhite) {
    start();
    EXPECT_EQ(drawing().DrawColor(), 16777215);
    EXPECT_EQ(strip().pctSelectedColor()->BackColor(), 16777215);
}

TEST_F(DrawingColor, TheSettingIsTakenAtTheStart) {
    settings.set(Setting::DrawColor, "65280");
    start();
    EXPECT_EQ(drawing().DrawColor(), 65280);
    EXPECT_EQ(strip().pctSelectedColor()->BackColor(), 65280);
}

TEST_F(DrawingColor, AnUnreadableSettingIsWhite) {
    for (const char* text : {"red", "", "#ff0000", "-1", "16777216", "99999999999"}) {
        settings.set(Setting::DrawColor, text);
        start();
        EXPECT_EQ(drawing().DrawColor(), 16777215) << text;
    }
}

TEST_F(DrawingColor, TheToolPicksTheMapsColor) {
    startDrawing();
    choose("color");
    const QColor map = expected.pixelColor(100, 100);
    click({100, 100});
    expectColor(map.red() + 256 * map.green() + 65536 * map.blue());
    compare();
}

TEST_F(DrawingColor, TheToolPicksADrawnColor) {
    startDrawing();
    QPainter(&workspace.pctMap.persistentLayer()).fillRect(100, 100, 20, 20, QColor(1, 2, 3));
    choose("color");
    click({119, 119});
    expectColor(1 + 256 * 2 + 65536 * 3);
}

TEST_F(DrawingColor, ADrawnLineGivesItsColorBackExactly) {
    startDrawing();
    const QColor color(12, 200, 77);
    drawing().setDrawColor(12 + 256 * 200 + 65536 * 77);
    setWidth("5");
    choose("draw");
    drag({100, 100}, {200, 170});
    drawing().setDrawColor(Red);
    choose("color");
    click({100, 100});
    expectColor(12 + 256 * 200 + 65536 * 77);
    EXPECT_EQ(drawn().pixelColor(100, 100), color);
}

TEST_F(DrawingColor, TheToolDoesNotPickASpritesColor) {
    startDrawing();
    placeSymbol({100, 100}, addStill("green.png", {40, 40}, Qt::green));
    choose("color");
    shell.expectMessage(
        "Operation not allowed in draw mode. Select cursor from toolbar and try again.",
        Icon::Exclamation);
    click({100, 100});
    expectColor(Red);
}

TEST_F(DrawingColor, BesideTheMapThereIsNoColorToPick) {
    startDrawing();
    choose("color");
    click({500, 100});
    click({-1, 100});
    expectColor(Red);
}

TEST_F(DrawingColor, TheNextLineHasThePickedColor) {
    startDrawing();
    QPainter(&workspace.pctMap.persistentLayer()).fillRect(100, 100, 20, 20, Qt::blue);
    canvas().showPicture();
    expected = drawn();
    choose("color");
    click({110, 110});
    choose("draw");
    setWidth("3");
    drag({200, 200}, {300, 200});
    expectDrag({200, 200}, {300, 200}, 3, Qt::blue);
    compare();
}

TEST_F(DrawingColor, TheSwatchAsksForAColorBeginningWithTheCurrentOne) {
    startDrawing();
    shell.expectColorDialog(Red, 16711680);
    QTest::mouseClick(strip().pctSelectedColor(), Qt::LeftButton);
    expectColor(16711680);
}

TEST_F(DrawingColor, CancelInTheDialogChangesNothing) {
    startDrawing();
    shell.expectColorDialog(Red, std::nullopt);
    QTest::mouseClick(strip().pctSelectedColor(), Qt::LeftButton);
    expectColor(Red);
}

TEST_F(DrawingColor, TheSwatchShowsTheColor) {
    startDrawing();
    drawing().setDrawColor(16711680);
    const QWidget& swatch = *strip().pctSelectedColor();
    const QImage picture = const_cast<QWidget&>(swatch).grab().toImage();
    EXPECT_EQ(picture.pixelColor(swatch.width() / 2, swatch.height() / 2), QColor(Qt::blue));
}

TEST_F(DrawingColor, AnotherColorDoesNotMarkTheProject) {
    startDrawing();
    shell.expectColorDialog(Red, 16711680);
    QTest::mouseClick(strip().pctSelectedColor(), Qt::LeftButton);
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(DrawingColor, AFigureBeingEditedShowsTheNewColor) {
    startDrawing();
    choose("line");
    click({100, 100});
    click({200, 100});
    shell.expectColorDialog(Red, 16711680);
    QTest::mouseClick(strip().pctSelectedColor(), Qt::LeftButton);
    EXPECT_EQ(drawn().pixelColor(150, 100), QColor(Qt::blue));
}

}  // namespace nubivane
