// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/picture.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

namespace nubivane {

namespace {

QByteArray png(QSize size = {12, 8}) {
    return encodePicture(testing::plainImage(size, Qt::red), PictureFormat::Png);
}

/// Sound in its header, damaged in its pixels.
QByteArray damagedPng() {
    QByteArray bytes = png();
    const qsizetype data = bytes.indexOf("IDAT");
    return bytes.replace(data + 4, 6, "\xFF\xFF\xFF\xFF\xFF\xFF");
}

}  // namespace

TEST(PictureTest, NoPictureIsEmpty) {
    const Picture picture;
    EXPECT_TRUE(picture.isEmpty());
    EXPECT_TRUE(picture.image().isNull());
    EXPECT_TRUE(picture.size().isEmpty());
    EXPECT_TRUE(picture.originalBytes().isEmpty());
    EXPECT_FALSE(picture.wasReadAs(PictureFormat::Png));
    EXPECT_EQ(picture.identity(), nullptr);
    EXPECT_TRUE(Picture(QImage()).isEmpty());
}

TEST(PictureTest, OnlyTheHeaderIsReadUntilPixelsAreAskedFor) {
    const Picture picture = Picture::fromEncoded(damagedPng());
    EXPECT_EQ(picture.size(), QSize(12, 8));
    EXPECT_EQ(picture.encoded(PictureFormat::Png), damagedPng());
    EXPECT_THROW(picture.image(), Error);
    EXPECT_THROW(picture.encoded(PictureFormat::Bmp), Error);
}

TEST(PictureTest, BytesThatAreNoPictureAreRefusedAtOnce) {
    EXPECT_THROW(Picture::fromEncoded("no picture"), Error);
    EXPECT_THROW(Picture::fromEncoded({}), Error);
}

TEST(PictureTest, APictureThatWasReadGoesBackAsItWasRead) {
    QByteArray bytes = png();
    bytes.insert(bytes.size() - 12, QByteArray("\0\0\0\0qrSt\x1B\x0D\xE7\x5C", 12));
    const Picture picture = Picture::fromEncoded(bytes);
    EXPECT_EQ(picture.encoded(PictureFormat::Png), bytes);
    EXPECT_EQ(picture.originalBytes(), bytes);
    EXPECT_TRUE(picture.wasReadAs(PictureFormat::Png));
    EXPECT_FALSE(picture.wasReadAs(PictureFormat::Jpeg));
}

TEST(PictureTest, InAnotherFormatItIsEncodedAnew) {
    const Picture picture = Picture::fromEncoded(png());
    const QByteArray bmp = picture.encoded(PictureFormat::Bmp);
    EXPECT_EQ(probePicture(bmp).format, PictureFormat::Bmp);
    EXPECT_EQ(decodePicture(bmp).pixelColor(3, 3), QColor(Qt::red));
}

TEST(PictureTest, TheFormatIsThatOfTheBytesWhateverTheirNameWas) {
    const Picture picture = Picture::fromEncoded(
        encodePicture(testing::plainImage({12, 8}, Qt::red), PictureFormat::Gif));
    EXPECT_TRUE(picture.wasReadAs(PictureFormat::Gif));
    EXPECT_NE(picture.encoded(PictureFormat::Jpeg), picture.originalBytes());
}

TEST(PictureTest, APictureOfPixelsHasNoBytesOfItsOwn) {
    const Picture picture(testing::plainImage({12, 8}, Qt::red));
    EXPECT_FALSE(picture.isEmpty());
    EXPECT_EQ(picture.size(), QSize(12, 8));
    EXPECT_TRUE(picture.originalBytes().isEmpty());
    for (const PictureFormat format : {PictureFormat::Bmp, PictureFormat::Gif, PictureFormat::Jpeg,
                                       PictureFormat::Png, PictureFormat::Tiff}) {
        EXPECT_FALSE(picture.wasReadAs(format));
        EXPECT_EQ(probePicture(picture.encoded(format)).format, format);
    }
}

TEST(PictureTest, CopiesShareOneContent) {
    const Picture picture = Picture::fromEncoded(png());
    const Picture copy = picture;
    EXPECT_TRUE(copy.sharesContentWith(picture));
    EXPECT_EQ(copy.identity(), picture.identity());
    EXPECT_EQ(copy.originalBytes().constData(), picture.originalBytes().constData());
}

TEST(PictureTest, EqualPicturesThatAreNoCopiesShareNothing) {
    const Picture one = Picture::fromEncoded(png());
    const Picture other = Picture::fromEncoded(png());
    EXPECT_FALSE(one.sharesContentWith(other));
    EXPECT_NE(one.identity(), other.identity());
}

TEST(PictureTest, ChangingTheImageThatWasHandedOutChangesNoPicture) {
    const QImage source = testing::plainImage({12, 8}, Qt::red);
    const Picture picture(source);
    QImage image = picture.image();
    image.fill(Qt::black);
    EXPECT_EQ(picture.image(), source);
}

}  // namespace nubivane
