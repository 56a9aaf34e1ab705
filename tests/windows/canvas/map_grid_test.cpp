// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/map_grid.h"

#include "windows/canvas/canvas_fixture.h"
#include "windows/canvas/map_zoom.h"

#include <QPainter>

namespace nubivane {

namespace {

/// The columns and rows of a white picture of 60 x 60 that the grid has changed all along.
struct Lines {
    std::vector<int> across;
    std::vector<int> down;
};

Lines linesOf(int distance, Zoom zoom, QSize map = {30, 30}) {
    QImage picture(60, 60, QImage::Format_RGB32);
    picture.fill(Qt::white);
    MapGrid grid;
    grid.setDistance(distance);
    {
        QPainter painter(&picture);
        grid.paint(painter, picture.rect(), map, zoom);
    }
    Lines lines;
    const auto isPainted = [&](int x, int y) { return picture.pixelColor(x, y) != Qt::white; };
    for (int i = 0; i < 60; ++i) {
        if (isPainted(i, 1) && isPainted(i, 58)) {
            lines.across.push_back(i);
        }
        if (isPainted(1, i) && isPainted(58, i)) {
            lines.down.push_back(i);
        }
    }
    return lines;
}

}  // namespace

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(GridLines, LieWhereSpritesAreDrawnTo) {
    const Lines lines = linesOf(20, Zoom(), {60, 60});
    EXPECT_THAT(lines.across, ElementsAre(20, 40));
    EXPECT_THAT(lines.down, ElementsAre(20, 40));
}

TEST(GridLines, AreOnePixelOfTheScreenWideAtEveryZoom) {
    EXPECT_THAT(linesOf(10, Zoom(200)).across, ElementsAre(20, 40));
    EXPECT_THAT(linesOf(40, Zoom(50), {120, 120}).down, ElementsAre(20, 40));
}

TEST(GridLines, AreNoneWhereTheyWouldBeAVeil) {
    EXPECT_THAT(linesOf(4, Zoom(), {60, 60}).across, ::testing::SizeIs(14));
    EXPECT_THAT(linesOf(3, Zoom(), {60, 60}).across, IsEmpty());
    EXPECT_THAT(linesOf(4, Zoom(50), {60, 60}).across, IsEmpty());
    EXPECT_THAT(linesOf(0, Zoom(), {60, 60}).across, IsEmpty());
}

/// The same on the map of 500 x 400.
class GridOnTheMap : public testing::CanvasFixture {};

TEST_F(GridOnTheMap, IsSeenWhileItIsOn) {
    settings.set(Setting::Grid, "50");
    start();
    const QColor bare = shown({120, 120});
    EXPECT_NE(shown({100, 120}), bare);
    EXPECT_NE(shown({120, 150}), bare);
    EXPECT_EQ(shown({99, 120}), shown({120, 130}));
    canvas().setGrid(0);
    EXPECT_EQ(shown({100, 120}), bare);
}

TEST_F(GridOnTheMap, StaysFaint) {
    settings.set(Setting::Grid, "50");
    start();
    const QColor line = shown({100, 120});
    const QColor bare = shown({120, 120});
    EXPECT_LT(std::abs(line.red() - bare.red()), 100);
    EXPECT_LT(std::abs(line.green() - bare.green()), 100);
    EXPECT_LT(std::abs(line.blue() - bare.blue()), 100);
}

TEST_F(GridOnTheMap, IsInNoPicture) {
    start();
    const QImage before = canvas().image();
    const QImage small = canvas().thumbnail({100, 80});
    canvas().setGrid(10);
    EXPECT_TRUE(canvas().image() == before);
    EXPECT_TRUE(canvas().thumbnail({100, 80}) == small);
    QDir().mkpath(host("out"));
    shell.expectSaveDialog("Export map", model("out/still.png"));
    trigger("subEsportaPng");
    const QImage still(host("out/still.png"));
    EXPECT_TRUE(still.convertToFormat(QImage::Format_RGB32) ==
                workspace.pctMap.pixels().convertToFormat(QImage::Format_RGB32));
}

}  // namespace nubivane
