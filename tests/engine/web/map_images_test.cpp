// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/image_codec.h"
#include "engine/picture/jpeg_inspection.h"
#include "engine/web/site_fixture.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>

namespace nubivane::testing {

namespace {

class MapImages : public SiteTest {
  protected:
    static QByteArray jpegOfQuality(int quality) {
        QImage image = plainImage({60, 40}, Qt::white);
        QPainter(&image).drawLine(0, 0, 59, 39);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpeg");
        writer.setQuality(quality);
        writer.write(image);
        return bytes;
    }

    void draw(const QColor& color) {
        QPainter(&workspace.pctMap.persistentLayer()).fillRect(0, 0, 30, 40, color);
    }

    QColor pixel(int frame, int x, int y) const {
        return decodePicture(pageImage(frame)).pixelColor(x, y);
    }

    static bool isNear(const QColor& one, const QColor& other) {
        return qAbs(one.red() - other.red()) < 12 && qAbs(one.green() - other.green()) < 12 &&
               qAbs(one.blue() - other.blue()) < 12;
    }
};

}  // namespace

TEST_F(MapImages, FramesNeverVisitedShowTheBareMap) {
    useFrames(3);
    draw(Qt::red);
    ASSERT_TRUE(createPage(editor()));
    EXPECT_TRUE(isNear(pixel(1, 10, 20), Qt::red));
    for (int frame : {2, 3}) {
        EXPECT_EQ(pageImage(frame), mapBytes()) << frame;
    }
}

TEST_F(MapImages, WhatIsDrawnOnTheCurrentFrameIsEncodedAnew) {
    useFrames(2);
    workspace.Status.CurrentFrame = 2;
    draw(Qt::red);
    ASSERT_TRUE(createPage(editor()));
    EXPECT_NE(pageImage(2), mapBytes());
    EXPECT_TRUE(isNear(pixel(2, 10, 20), Qt::red));
    EXPECT_TRUE(isNear(pixel(2, 50, 20), Qt::blue));
    EXPECT_TRUE(hasJpegQuality(pageImage(2), JpegQuality));
    EXPECT_EQ(pageImage(1), mapBytes());
}

TEST_F(MapImages, WhatIsBeingDrawnIsPartOfTheImage) {
    useFrames(1);
    QPainter(&workspace.pctMap.scratchLayer()).fillRect(0, 0, 30, 40, Qt::green);
    ASSERT_TRUE(createPage(editor()));
    EXPECT_TRUE(isNear(pixel(1, 10, 20), Qt::green));
}

TEST_F(MapImages, AFrameLeftEarlierShowsItsOwnPicture) {
    useFrames(2);
    workspace.pctPanel.setPicture(2, Picture(plainImage({60, 40}, Qt::yellow)));
    ASSERT_TRUE(createPage(editor()));
    EXPECT_TRUE(isNear(pixel(2, 30, 20), Qt::yellow));
    EXPECT_TRUE(isNear(pixel(1, 30, 20), Qt::blue));
}

TEST_F(MapImages, SpritesAreNoPartOfTheImages) {
    useFrames(1);
    workspace.Frames().Item(1).Sprites().Labels().add(
        {.Name = "lblTesto",
         .Frame = 1,
         .Width = 40,
         .Height = 20,
         .Font = {.Name = "Arial", .Size = 10, .Bold = true},
         .BackColor = White,
         .Border = 1,
         .PosX = 5,
         .PosY = 5,
         .Text = "14 C"});
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(pageImage(1), mapBytes());
}

TEST_F(MapImages, AJpegOfOurQualityPassesThroughByteForByte) {
    useFrames(1);
    const QByteArray jpeg = jpegOfQuality(JpegQuality);
    workspace.pctMap.setPicture(Picture::fromEncoded(jpeg));
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(pageImage(1), jpeg);
}

TEST_F(MapImages, AJpegOfAnotherQualityIsEncodedAnew) {
    for (const int quality : {30, 75, 100}) {
        useFrames(1);
        const QByteArray jpeg = jpegOfQuality(quality);
        workspace.pctMap.setPicture(Picture::fromEncoded(jpeg));
        ASSERT_TRUE(createPage(editor()));
        EXPECT_NE(pageImage(1), jpeg) << quality;
        EXPECT_TRUE(hasJpegQuality(pageImage(1), JpegQuality)) << quality;
    }
}

TEST_F(MapImages, MapsOfEveryFormatBecomeJpeg) {
    for (const char* map : {"m.bmp", "m.gif", "m.png", "m.tif", "m.jpeg"}) {
        useFrames(1, map);
        ASSERT_TRUE(createPage(editor()));
        const PictureInfo info = probePicture(pageImage(1));
        EXPECT_EQ(info.format, PictureFormat::Jpeg) << map;
        EXPECT_EQ(info.size, QSize(60, 40)) << map;
        EXPECT_TRUE(isNear(pixel(1, 30, 20), Qt::blue)) << map;
    }
}

TEST_F(MapImages, FramesThatShareAPictureHaveEqualImages) {
    useFrames(4, "blue.png");
    const Picture shared(plainImage({60, 40}, Qt::yellow));
    workspace.pctPanel.setPicture(2, shared);
    workspace.pctPanel.setPicture(4, shared);
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(pageImage(2), pageImage(4));
    EXPECT_EQ(pageImage(1), pageImage(3));
    EXPECT_NE(pageImage(1), pageImage(2));
}

TEST_F(MapImages, AHundredFramesOnOneMapAllHaveTheirImage) {
    useFrames(100);
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(webFiles().size(), 100);
    EXPECT_EQ(pageImage(100), mapBytes());
}

TEST_F(MapImages, TheImagesKeepThePanelsForLater) {
    useFrames(2);
    draw(Qt::red);
    ASSERT_TRUE(createPage(editor()));
    for (int frame : {1, 2}) {
        EXPECT_FALSE(workspace.pctPanel.picture(frame).isEmpty()) << frame;
    }
}

}  // namespace nubivane::testing
