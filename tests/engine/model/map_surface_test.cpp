// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/map_surface.h"

#include "support/fixtures.h"

#include <QPainter>

namespace nubivane {

namespace {

constexpr QSize MapSize{40, 30};

class MapSurfaceTest : public ::testing::Test {
  protected:
    MapSurfaceTest() { surface.setPicture(map); }

    static void draw(QImage& layer, const QRect& where, const QColor& color) {
        QPainter(&layer).fillRect(where, color);
    }
    QColor at(int x, int y) const { return surface.image().image().pixelColor(x, y); }

    const Picture map = Picture::fromEncoded(
        encodePicture(testing::plainImage(MapSize, Qt::blue), PictureFormat::Png));
    MapSurface surface;
};

}  // namespace

TEST_F(MapSurfaceTest, TheOuterSizeHasAFrameOfOnePixel) {
    EXPECT_EQ(surface.ScaleWidth(), 40);
    EXPECT_EQ(surface.ScaleHeight(), 30);
    EXPECT_EQ(surface.Width(), 42);
    EXPECT_EQ(surface.Height(), 32);
}

TEST_F(MapSurfaceTest, WhileNothingIsDrawnTheImageIsTheVeryPictureThatWasSet) {
    EXPECT_TRUE(surface.image().sharesContentWith(map));
    surface.wipeScratchLayer();
    EXPECT_TRUE(surface.image().sharesContentWith(map));
}

TEST_F(MapSurfaceTest, TheImageIsTheCompositeOfBothLayers) {
    draw(surface.persistentLayer(), {0, 0, 10, 10}, Qt::red);
    draw(surface.scratchLayer(), {5, 0, 10, 10}, Qt::green);
    EXPECT_EQ(at(0, 0), QColor(Qt::red));
    EXPECT_EQ(at(7, 0), QColor(Qt::green));
    EXPECT_EQ(at(12, 0), QColor(Qt::green));
    EXPECT_EQ(at(30, 20), QColor(Qt::blue));
    EXPECT_FALSE(surface.image().sharesContentWith(map));
}

TEST_F(MapSurfaceTest, AnUnfinishedDrawingDoesNotTouchThePersistentLayer) {
    draw(surface.scratchLayer(), {0, 0, 10, 10}, Qt::green);
    EXPECT_EQ(surface.persistentLayer().pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(MapSurfaceTest, TheScratchLayerIsTransparentAndOfTheSizeOfTheMap) {
    EXPECT_EQ(surface.scratchLayer().size(), MapSize);
    EXPECT_EQ(surface.scratchLayer().pixelColor(39, 29).alpha(), 0);
    EXPECT_EQ(at(39, 29), QColor(Qt::blue));
}

TEST_F(MapSurfaceTest, WipingDropsAnUnappliedPolygonAndKeepsEarlierStrokes) {
    draw(surface.persistentLayer(), {0, 0, 10, 10}, Qt::red);
    draw(surface.scratchLayer(), {0, 0, 20, 20}, Qt::green);
    surface.wipeScratchLayer();
    EXPECT_EQ(at(5, 5), QColor(Qt::red));
    EXPECT_EQ(at(15, 15), QColor(Qt::blue));
    EXPECT_EQ(surface.scratchLayer().pixelColor(5, 5).alpha(), 0);
}

TEST_F(MapSurfaceTest, ANewPictureReplacesBothLayers) {
    draw(surface.persistentLayer(), {0, 0, 10, 10}, Qt::red);
    draw(surface.scratchLayer(), {0, 0, 20, 20}, Qt::green);
    const Picture other(testing::plainImage({20, 10}, Qt::white));
    surface.setPicture(other);
    EXPECT_TRUE(surface.image().sharesContentWith(other));
    EXPECT_EQ(surface.Width(), 22);
    EXPECT_EQ(surface.persistentLayer().pixelColor(5, 5), QColor(Qt::white));
    EXPECT_EQ(surface.scratchLayer().size(), QSize(20, 10));
}

TEST_F(MapSurfaceTest, ASnapshotDoesNotFollowWhatIsDrawnLater) {
    draw(surface.persistentLayer(), {0, 0, 10, 10}, Qt::red);
    const Picture snapshot = surface.image();
    draw(surface.persistentLayer(), {0, 0, 10, 10}, Qt::black);
    EXPECT_EQ(snapshot.image().pixelColor(5, 5), QColor(Qt::red));
}

TEST_F(MapSurfaceTest, DrawingLeavesThePictureThatWasSetAlone) {
    draw(surface.persistentLayer(), {0, 0, 40, 30}, Qt::red);
    EXPECT_EQ(map.image().pixelColor(5, 5), QColor(Qt::blue));
}

TEST(MapSurfaceWithoutMap, HasNoImageAndOnlyItsFrame) {
    MapSurface surface;
    EXPECT_TRUE(surface.image().isEmpty());
    EXPECT_EQ(surface.ScaleWidth() + surface.ScaleHeight(), QSize().width() + QSize().height());
    surface.scratchLayer();
    EXPECT_TRUE(surface.image().isEmpty());
}

}  // namespace nubivane
