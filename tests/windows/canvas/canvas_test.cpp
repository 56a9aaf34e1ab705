// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

#include <QPainter>

namespace nubivane {

using testing::isNearly;
using Canvas = testing::CanvasFixture;

TEST_F(Canvas, TheMapIsAsLargeAsItsPictureAndAFrameOfOnePixel) {
    start();
    EXPECT_EQ(canvas().size(), QSize(502, 402));
    EXPECT_EQ(QSize(workspace.pctMap.Width(), workspace.pctMap.Height()), canvas().size());
    EXPECT_EQ(canvas().toMap({1, 1}), QPoint(0, 0));
}

TEST_F(Canvas, ThePictureFillsTheMapToItsLastPixel) {
    start();
    EXPECT_TRUE(isNearly(shown({0, 0}), Qt::cyan));
    EXPECT_TRUE(isNearly(shown({499, 399}), Qt::cyan));
    EXPECT_FALSE(isNearly(shown({500, 400}), Qt::cyan));
}

TEST_F(Canvas, EveryPixelOfADenseScreenIsPainted) {
    start();
    for (const int density : {1, 2, 3}) {
        QImage screen(canvas().size() * density, QImage::Format_RGB32);
        screen.setDevicePixelRatio(density);
        screen.fill(Qt::magenta);
        canvas().render(&screen);
        int bare = 0;
        for (int y = 0; y < screen.height(); ++y) {
            for (int x = 0; x < screen.width(); ++x) {
                bare += screen.pixelColor(x, y) == Qt::magenta;
            }
        }
        EXPECT_EQ(bare, 0) << density;
    }
}

TEST_F(Canvas, WipingTheScratchLayerLeavesThePersistentLayer) {
    start();
    QPainter(&workspace.pctMap.persistentLayer()).fillRect(10, 10, 20, 20, Qt::red);
    QPainter(&workspace.pctMap.scratchLayer()).fillRect(20, 10, 20, 20, Qt::blue);
    canvas().showPicture();
    EXPECT_TRUE(isNearly(shown({15, 20}), Qt::red));
    EXPECT_TRUE(isNearly(shown({25, 20}), Qt::blue));
    window().resetDrawing();
    canvas().showPicture();
    EXPECT_TRUE(isNearly(shown({25, 20}), Qt::red));
    EXPECT_TRUE(isNearly(shown({35, 20}), Qt::cyan));
}

TEST_F(Canvas, SpritesAreNotPartOfTheMapsPicture) {
    start();
    placeSymbol({100, 100}, addStill("red.png", {40, 40}));
    EXPECT_EQ(shown({100, 100}), QColor(Qt::red));
    EXPECT_TRUE(isNearly(workspace.pctMap.image().image().pixelColor(100, 100), Qt::cyan));
}

TEST_F(Canvas, FramesWithPicturesOfDifferentSizesEachShowWhole) {
    start();
    trigger("mnuFrameInsert");
    workspace.pctPanel.setPicture(1, Picture(testing::plainImage({80, 60}, Qt::yellow)));
    selectTab(1);
    EXPECT_EQ(canvas().size(), QSize(82, 62));
    EXPECT_EQ(shown({79, 59}), QColor(Qt::yellow));
    selectTab(2);
    EXPECT_EQ(canvas().size(), QSize(502, 402));
}

TEST_F(Canvas, AFramePictureDamagedBehindItsHeaderShowsAnEmptySheet) {
    start();
    trigger("mnuFrameInsert");
    QByteArray png = encodePicture(testing::plainImage({80, 60}, Qt::yellow), PictureFormat::Png);
    // The header and the end stay sound.
    for (qsizetype i = png.indexOf("IDAT") + 4; i < png.size() - 12; ++i) {
        png[i] = '\x55';
    }
    workspace.pctPanel.setPicture(1, Picture::fromEncoded(png));
    selectTab(1);
    EXPECT_EQ(canvas().size(), QSize(82, 62));
    EXPECT_EQ(shown({40, 30}), QColor(Qt::white));
}

}  // namespace nubivane
