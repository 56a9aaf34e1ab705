// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/drawing_fixture.h"

#include <QFile>

namespace nubivane {

/// "erase": the map shows through again.
class DrawingErase : public testing::DrawingFixture {
  protected:
    /// A Frame that is red all over.
    void startOnRed() {
        startDrawing();
        bare = expected;
        workspace.pctMap.persistentLayer().fill(Qt::red);
        canvas().showPicture();
        expected.fill(Qt::red);
    }
    void expectMap(const QRect& block, const QImage& source) {
        expect([&](QPainter& painter) { painter.drawImage(block.topLeft(), source, block); });
    }
    /// The block at each pixel of a straight way.
    void expectSweep(QPoint from, QPoint to) {
        const QPoint way = to - from;
        const int steps = std::max(std::abs(way.x()), std::abs(way.y()));
        for (int i = 0; i <= steps; ++i) {
            expectMap({from + way * (static_cast<double>(i) / steps), QSize(12, 12)}, bare);
        }
    }
    void TearDown() override { workspace.ProjectChanged = false; }

    QImage bare;
};

TEST_F(DrawingErase, APressBringsBackABlockOfTwelvePixelsFromItsUpperLeftCorner) {
    startOnRed();
    choose("erase");
    click({100, 150});
    expectMap({100, 150, 12, 12}, bare);
    compare();
    EXPECT_EQ(drawn().pixelColor(99, 150), QColor(Qt::red));
    EXPECT_EQ(drawn().pixelColor(112, 150), QColor(Qt::red));
    EXPECT_NE(drawn().pixelColor(111, 161), QColor(Qt::red));
}

TEST_F(DrawingErase, AFastStrokeBringsBackEverythingOnItsWay) {
    startOnRed();
    choose("erase");
    press({100, 150});
    move({105, 155});
    move({200, 300});
    release({200, 300});
    expectSweep({100, 150}, {105, 155});
    expectSweep({105, 155}, {200, 300});
    compare();
}

TEST_F(DrawingErase, AStrokeThatLeavesTheMapEndsAtItsBorderAndBeginsAgainWhereItComesBack) {
    startOnRed();
    choose("erase");
    press({400, 100});
    move({600, 100});
    move({600, 300});
    move({400, 300});
    release({400, 300});
    expectSweep({400, 100}, {500, 100});
    expectSweep({500, 300}, {400, 300});
    compare();
}

TEST_F(DrawingErase, TheStrokeIsCommittedByTheRelease) {
    startOnRed();
    choose("erase");
    press({100, 150});
    EXPECT_TRUE(same(committed(), expected));
    release({100, 150});
    expectMap({100, 150, 12, 12}, bare);
    EXPECT_TRUE(same(committed(), expected));
    EXPECT_TRUE(same(workspace.pctPanel.picture(1).image().convertToFormat(QImage::Format_RGB32),
                     expected));
}

TEST_F(DrawingErase, AtTheEdgesOnlyWhatIsInsideTheMapComesBack) {
    startOnRed();
    choose("erase");
    click({495, 395});
    expectMap({495, 395, 5, 5}, bare);
    compare();
}

TEST_F(DrawingErase, TheMapComesFromItsFilePixelByPixel) {
    QImage pattern(500, 400, QImage::Format_RGB32);
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 500; ++x) {
            pattern.setPixelColor(x, y, QColor(x % 256, y % 256, (x + y) % 256));
        }
    }
    testing::writeFile(host("Maps/pattern.png"), encodePicture(pattern, PictureFormat::Png));
    startOnRed();
    workspace.Status.CurrentMap = model("Maps/pattern.png");
    choose("erase");
    click({120, 130});
    expectMap({120, 130, 12, 12}, pattern);
    compare();
}

TEST_F(DrawingErase, TheMapIsReadAnewWhenTheToolIsChosen) {
    startOnRed();
    choose("erase");
    const QImage yellow = testing::plainImage({500, 400}, Qt::yellow);
    testing::writeFile(host("Maps/yellow.png"), encodePicture(yellow, PictureFormat::Png));
    workspace.Status.CurrentMap = model("Maps/yellow.png");
    click({100, 150});
    expectMap({100, 150, 12, 12}, bare);
    compare();
    choose("erase");
    click({200, 150});
    expectMap({200, 150, 12, 12}, yellow);
    compare();
}

TEST_F(DrawingErase, AfterAChangeOfMapTheNewMapComesBack) {
    startOnRed();
    choose("erase");
    const QImage yellow = testing::plainImage({300, 200}, Qt::yellow);
    testing::writeFile(host("Maps/yellow.png"), encodePicture(yellow, PictureFormat::Png));
    window().findChild<FrameCommands*>()->changeMap(model("Maps/yellow.png"));
    workspace.pctMap.persistentLayer().fill(Qt::red);
    canvas().showPicture();
    click({100, 150});
    expected = testing::plainImage({300, 200}, Qt::red);
    expectMap({100, 150, 12, 12}, yellow);
    compare();
}

TEST_F(DrawingErase, WithoutItsMapNothingComesBack) {
    startOnRed();
    ASSERT_TRUE(QFile::remove(host("Maps/europe.jpg")));
    choose("erase");
    drag({100, 150}, {200, 250});
    compare();
}

TEST_F(DrawingErase, AMapSmallerThanTheFramesPictureComesBackAsFarAsItReaches) {
    startOnRed();
    const QImage yellow = testing::plainImage({106, 300}, Qt::yellow);
    testing::writeFile(host("Maps/yellow.png"), encodePicture(yellow, PictureFormat::Png));
    workspace.Status.CurrentMap = model("Maps/yellow.png");
    choose("erase");
    click({100, 150});
    click({300, 350});
    expectMap({100, 150, 6, 12}, yellow);
    compare();
}

TEST_F(DrawingErase, WhereTheMapIsTransparentTheSheetIsWhiteAgain) {
    QImage clear(500, 400, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    testing::writeFile(host("Maps/clear.png"), encodePicture(clear, PictureFormat::Png));
    startOnRed();
    workspace.Status.CurrentMap = model("Maps/clear.png");
    choose("erase");
    click({100, 150});
    expectMap({100, 150, 12, 12}, testing::plainImage({500, 400}, Qt::white));
    compare();
}

TEST_F(DrawingErase, ItNeedsNoPen) {
    startOnRed();
    setWidth("none");
    choose("erase");
    click({100, 150});
    expectMap({100, 150, 12, 12}, bare);
    compare();
}

}  // namespace nubivane
