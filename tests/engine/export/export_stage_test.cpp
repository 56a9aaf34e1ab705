// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/export_stage.h"

#include "engine/core/error.h"
#include "engine/export/label_painter.h"
#include "engine/export/stage_fixture.h"

#include <QPainter>

namespace nubivane::testing {

namespace {

class ExportStageTest : public StageFixture {
  protected:
    QImage rendered(qint64 time = 0, qint32 frame = 1) {
        return renderFrame(workspace, frame, time);
    }

    /// True where any pixel of a part differs from the bare map.
    static bool isPainted(const QImage& picture, const QRect& part) {
        const QImage piece = picture.copy(part);
        return piece != plainImage(piece.size(), Qt::blue);
    }
};

}  // namespace

TEST_F(ExportStageTest, AFrameWithoutAPictureShowsTheMapFile) {
    workspace.clearTempPicture();
    EXPECT_EQ(rendered(), plainImage({60, 40}, Qt::blue));
}

TEST_F(ExportStageTest, AFrameThatWasDrawnOnShowsItsPicture) {
    workspace.pctPanel.setPicture(1, Picture(plainImage({33, 22}, Qt::green)));
    EXPECT_EQ(rendered(), plainImage({33, 22}, Qt::green));
}

TEST_F(ExportStageTest, AMapThatIsGoneRaises) {
    workspace.clearTempPicture();
    QFile::remove(host("Maps/map.png"));
    EXPECT_THROW(rendered(), Error);
}

TEST_F(ExportStageTest, SeeThroughPlacesOfAMapAreWhite) {
    QImage map(10, 10, QImage::Format_ARGB32);
    map.fill(0U);
    map.setPixel(3, 3, 0xFFFF0000);
    workspace.pctPanel.setPicture(1, Picture(map));
    const QImage shown = rendered();
    EXPECT_EQ(shown.pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_EQ(shown.pixel(3, 3), Red);
}

TEST_F(ExportStageTest, ASymbolStandsInItsOwnSizeWhateverTheModelSays) {
    makeSymbol("dot.gif", {5});
    addSymbol("dot.gif", {7, 9}).Width = 30;
    const QImage shown = rendered();
    EXPECT_EQ(shown.pixel(7, 9), Red);
    EXPECT_EQ(shown.pixel(8, 9), Blue);
    EXPECT_EQ(shown.pixel(7, 10), Blue);
}

TEST_F(ExportStageTest, AMovingSymbolShowsWhatItsDelaysGive) {
    makeSymbol("dot.gif", {5, 10, 20});
    addSymbol("dot.gif", {0, 0});
    const auto at = [this](qint64 time) { return rendered(time).pixel(0, 0); };
    EXPECT_EQ(at(0), Red);
    EXPECT_EQ(at(49), Red);
    EXPECT_EQ(at(50), Green);
    EXPECT_EQ(at(149), Green);
    EXPECT_EQ(at(150), Blue);
    EXPECT_EQ(at(350), Red);
}

TEST_F(ExportStageTest, DelaysOfZeroCountAsATenthOfASecond) {
    makeSymbol("dot.gif", {0, 0});
    addSymbol("dot.gif", {0, 0});
    const FrameContent content = contentOf(workspace, 1);
    ExportStage stage;
    stage.loadMap(content);
    stage.loadStageSprites(content);
    EXPECT_EQ(stage.timing().longestLoop, 200);
    EXPECT_EQ(stage.timing().shortestStep, 100);
    EXPECT_EQ(stage.grabStage(99).pixel(0, 0), Red);
    EXPECT_EQ(stage.grabStage(100).pixel(0, 0), Green);
}

TEST_F(ExportStageTest, SymbolsWhoseFilesAreGoneOrBrokenLeaveAGap) {
    writeFile(host("Symbols/set-1/broken.gif"), "GIF89a");
    makeSymbol("dot.gif", {5});
    addSymbol("none.gif", {0, 0});
    addSymbol("broken.gif", {1, 0});
    addSymbol("dot.gif", {2, 0});
    const QImage shown = rendered();
    EXPECT_EQ(shown.pixel(0, 0), Blue);
    EXPECT_EQ(shown.pixel(1, 0), Blue);
    EXPECT_EQ(shown.pixel(2, 0), Red);
}

TEST_F(ExportStageTest, OfAGifThatBreaksOffTheWholeImagesPlay) {
    QByteArray gif =
        small_gif::file(1, 1,
                        {small_gif::control(5), small_gif::dot(0), small_gif::control(5),
                         small_gif::dot(1), small_gif::control(5), small_gif::dot(2)});
    writeFile(host("Symbols/set-1/half.gif"), gif.chopped(6));
    addSymbol("half.gif", {0, 0});
    EXPECT_EQ(rendered(0).pixel(0, 0), Red);
    EXPECT_EQ(rendered(50).pixel(0, 0), Green);
    EXPECT_EQ(rendered(100).pixel(0, 0), Red);
}

TEST_F(ExportStageTest, LaterSymbolsCoverEarlierOnesAndLabelsCoverSymbols) {
    writeFile(host("Symbols/set-1/a.gif"),
              small_gif::file(1, 1, {small_gif::control(5), small_gif::dot(0)}));
    writeFile(host("Symbols/set-1/b.gif"),
              small_gif::file(1, 1, {small_gif::control(5), small_gif::dot(1)}));
    addSymbol("a.gif", {2, 2});
    addSymbol("b.gif", {2, 2});
    EXPECT_EQ(rendered().pixel(2, 2), Green);
    addLabel("x", {0, 0}, 0x00FFFF);
    EXPECT_EQ(rendered().pixel(0, 0), qRgb(255, 255, 0));
    EXPECT_NE(rendered().pixel(2, 2), Green);
}

TEST_F(ExportStageTest, ALabelLooksAsOnTheCanvas) {
    const cLabel& label = addLabel("Rain", {5, 6}, 0x808080);
    QImage expected = plainImage({60, 40}, Qt::blue);
    {
        QPainter painter(&expected);
        paintLabel(painter, label, QRect(QPoint(5, 6), labelSize(label)));
    }
    EXPECT_EQ(rendered(), expected);
}

TEST_F(ExportStageTest, OnlyALabelWithoutABackColourLetsTheMapShowThrough) {
    cLabel& label = addLabel("o", {10, 10});
    const QRect rect({10, 10}, labelSize(label));
    EXPECT_EQ(rendered().pixel(rect.topLeft()), Blue);
    label.BackColor = 0x0000FF;
    EXPECT_EQ(rendered().pixel(rect.topLeft()), Red);
}

TEST_F(ExportStageTest, OverlineAndStrikeOutAreNotCarriedOver) {
    cLabel& label = addLabel("Rain", {5, 6});
    const QImage plain = rendered();
    label.Font.Overline = true;
    label.Font.Strikeout = true;
    EXPECT_EQ(rendered(), plain);
}

TEST_F(ExportStageTest, ABorderHasTheStagesColourWhateverItsOwn) {
    cLabel& label = addLabel("Rain", {5, 6});
    label.Border = 1;
    label.BorderColor = 0x0000FF;
    EXPECT_EQ(rendered().pixel(5, 6), qRgb(0, 0, 0));
}

TEST_F(ExportStageTest, TheSizeOfALabelIsThatOfItsText) {
    cLabel& label = addLabel("Rain", {0, 0}, 0x0000FF);
    label.Width = 1;
    label.Height = 1;
    const QSize size = labelSize(label);
    EXPECT_EQ(rendered().pixel(size.width() - 1, size.height() - 1), Red);
    EXPECT_EQ(rendered().pixel(size.width(), 0), Blue);
}

TEST_F(ExportStageTest, ASpriteOfAnUnknownNameIsPassedOver) {
    makeSymbol("dot.gif", {5});
    addSymbol("dot.gif", {0, 0}, 1, "pctSymbol").Index = 77;
    addLabel("x", {10, 10}, 0, 1, "lblOther").Index = 78;
    EXPECT_FALSE(isPainted(rendered(), {0, 0, 60, 40}));
    EXPECT_EQ(sprites().Symbols().Item(1).Index, 77);
    EXPECT_EQ(sprites().Labels().Item(1).Index, 78);
}

TEST_F(ExportStageTest, EverySpriteIsToldItsPlaceInItsArray) {
    makeSymbol("dot.gif", {5});
    addSymbol("dot.gif", {0, 0});
    addSymbol("none.gif", {0, 0});
    addLabel("a", {0, 0});
    addLabel("b", {0, 0});
    rendered();
    EXPECT_EQ(sprites().Symbols().Item(1).Index, 1);
    EXPECT_EQ(sprites().Symbols().Item(2).Index, 2);
    EXPECT_EQ(sprites().Labels().Item(1).Index, 1);
    EXPECT_EQ(sprites().Labels().Item(2).Index, 2);
}

TEST_F(ExportStageTest, NothingOfTheModelButTheIndexChanges) {
    makeSymbol("dot.gif", {5});
    const cSymbol before = addSymbol("dot.gif", {1, 2});
    rendered();
    const cSymbol& after = sprites().Symbols().Item(1);
    EXPECT_EQ(after.PosX, before.PosX);
    EXPECT_EQ(after.Width, before.Width);
    EXPECT_EQ(after.PathFileGif, before.PathFileGif);
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(ExportStageTest, PositionsBeyondAllBoundsAreHarmless) {
    makeSymbol("dot.gif", {5});
    constexpr int Far = std::numeric_limits<int>::max();
    constexpr int Near = std::numeric_limits<int>::min();
    for (const QPoint position : {QPoint(Far, Far), QPoint(Near, Near), QPoint(Far, Near)}) {
        addSymbol("dot.gif", position);
        addLabel("x", position, 0);
    }
    EXPECT_FALSE(isPainted(rendered(), {0, 0, 60, 40}));
}

TEST_F(ExportStageTest, FiveHundredSymbolsAreShown) {
    makeSymbol("dot.gif", {5});
    for (int i = 0; i < 500; ++i) {
        addSymbol("dot.gif", {i % 50, i / 50});
    }
    const QImage shown = rendered();
    EXPECT_EQ(shown.copy(0, 0, 50, 10), plainImage({50, 10}, Qt::red));
    EXPECT_EQ(sprites().Symbols().Item(500).Index, 500);
}

}  // namespace nubivane::testing
