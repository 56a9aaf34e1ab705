// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/whole_picture.h"

#include "engine/core/error.h"
#include "engine/gif/gif_outline.h"
#include "engine/gif/gif_reader.h"
#include "engine/gif/small_gif.h"
#include "engine/picture/image_codec.h"
#include "support/fixtures.h"
#include "support/small_png.h"

#include <functional>

namespace nubivane {

namespace {

bool refuses(const std::function<void()>& read) {
    try {
        read();
    } catch (const Error& error) {
        return error.number() == error_number::InvalidPicture;
    }
    return false;
}

bool isWhole(const QByteArray& bytes) {
    return !refuses([&] { requireWholePicture(bytes); });
}

/// Colours that differ from pixel to pixel, so that each row costs data.
QImage noisyImage(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    quint32 seed = 1;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            seed = seed * 1664525 + 1013904223;
            image.setPixel(x, y, seed >> 8);
        }
    }
    return image;
}

QByteArray encoded(PictureFormat format) {
    return encodePicture(noisyImage({60, 40}), format);
}

/// A JPEG of 60 x 40 pixels that claims more rows than it has.
QByteArray jpegClaimingHeight(quint16 height) {
    QByteArray bytes = encoded(PictureFormat::Jpeg);
    const qsizetype frame = bytes.indexOf("\xFF\xC0");
    bytes[frame + 5] = static_cast<char>(height >> 8);
    bytes[frame + 6] = static_cast<char>(height);
    return bytes;
}

using namespace testing::small_gif;

}  // namespace

TEST(WholePicture, SoundPicturesOfTheThreeFormatsAreWhole) {
    for (const PictureFormat format :
         {PictureFormat::Gif, PictureFormat::Jpeg, PictureFormat::Png}) {
        EXPECT_TRUE(isWhole(encoded(format))) << static_cast<int>(format);
        EXPECT_EQ(shownSize(encoded(format)), QSize(60, 40));
    }
}

TEST(WholePicture, OtherFormatsAreRefused) {
    for (const PictureFormat format : {PictureFormat::Bmp, PictureFormat::Tiff}) {
        EXPECT_FALSE(isWhole(encoded(format)));
        EXPECT_TRUE(refuses([&] { shownSize(encoded(format)); }));
    }
    EXPECT_FALSE(isWhole("no picture"));
    EXPECT_FALSE(isWhole({}));
}

TEST(WholePicture, APictureCutShortIsNot) {
    for (const PictureFormat format :
         {PictureFormat::Gif, PictureFormat::Jpeg, PictureFormat::Png}) {
        const QByteArray bytes = encoded(format);
        for (const qsizetype left : {bytes.size() / 4, bytes.size() / 2, bytes.size() * 9 / 10}) {
            EXPECT_FALSE(isWhole(bytes.left(left))) << static_cast<int>(format) << ' ' << left;
        }
    }
}

TEST(WholePicture, AJpegThatClaimsMoreRowsThanItHasIsNot) {
    EXPECT_TRUE(isWhole(jpegClaimingHeight(40)));
    EXPECT_FALSE(isWhole(jpegClaimingHeight(200)));
    EXPECT_EQ(shownSize(jpegClaimingHeight(200)), QSize(60, 200));
}

TEST(WholePicture, AProgressiveJpegIsWhole) {
    // Made once by cjpeg -progressive from 16 x 16 grey pixels.
    EXPECT_TRUE(isWhole(testing::readFile(testing::testFile("engine/picture/progressive.jpg"))));
}

TEST(WholePicture, StrayBytesBehindAJpegDoNoHarm) {
    EXPECT_TRUE(isWhole(encoded(PictureFormat::Jpeg) + QByteArray(100, '\0')));
}

TEST(WholePicture, APngThatClaimsMoreRowsThanItHasIsNot) {
    using namespace testing::small_png;
    EXPECT_TRUE(isWhole(testing::small_png::file({20, 20}, {}, deflated(pixels(20, 20)))));
    EXPECT_FALSE(isWhole(testing::small_png::file({20, 20}, {}, deflated(pixels(20, 10)))));
}

TEST(WholePicture, AMovingGifIsWholeWithAllItsImages) {
    EXPECT_TRUE(isWhole(testing::small_gif::file(4, 4, {control(5), dot(0), control(5), dot(1)})));
}

TEST(WholePicture, AGifWithADamagedLaterImageIsNot) {
    // The second image claims two pixels and holds one.
    const QByteArray gif =
        testing::small_gif::file(4, 4, {dot(0), image({0, 0, 2, 1}, pixel(1)), dot(2)});
    ASSERT_EQ(readGif(gif).size(), 1U);
    EXPECT_FALSE(isWhole(gif));
}

TEST(WholePicture, AGifWithoutItsTrailerIsNot) {
    QByteArray gif = testing::small_gif::file(4, 4, {dot(0)});
    gif.chop(1);
    EXPECT_FALSE(isWhole(gif));
}

TEST(WholePicture, AGifWithoutImagesIsNot) {
    EXPECT_FALSE(isWhole(testing::small_gif::file(4, 4, {})));
}

TEST(WholePicture, AGifIsAsLargeAsItsFirstImageMakesIt) {
    EXPECT_EQ(shownSize(testing::small_gif::file(4, 4, {image({3, 0, 1, 1}, pixel(0))})),
              QSize(4, 4));
    EXPECT_EQ(shownSize(testing::small_gif::file(4, 4, {image({9, 19, 1, 1}, pixel(0))})),
              QSize(10, 20));
    // A later one is cut off.
    EXPECT_EQ(shownSize(testing::small_gif::file(4, 4, {dot(0), image({9, 19, 1, 1}, pixel(0))})),
              QSize(4, 4));
}

TEST(WholePicture, AnAnimationBeyondTheLimitIsRefusedFromItsBlocks) {
    // 2000 x 2000 pixels take 16 MB each; five images are more than the 64 MB that a GIF may.
    static_assert(MaxGifBytes == qint64{64} * 1024 * 1024);
    const QByteArray five =
        testing::small_gif::file(2000, 2000, {dot(0), dot(1), dot(0), dot(1), dot(0)});
    EXPECT_EQ(gifOutline(five)->images, 5);
    EXPECT_FALSE(isWhole(five));
}

TEST(GifOutline, NothingLeadsBeyondTheEnd) {
    const QByteArray gif = testing::small_gif::file(4, 4, {loop(3), control(5), dot(0), dot(1)});
    ASSERT_TRUE(gifOutline(gif));
    EXPECT_EQ(gifOutline(gif)->images, 2);
    for (qsizetype length = 0; length < gif.size(); ++length) {
        EXPECT_FALSE(gifOutline(gif.left(length))) << length;
    }
}

TEST(GifOutline, AnUnknownBlockEndsTheWalk) {
    EXPECT_FALSE(gifOutline(testing::small_gif::file(4, 4, {dot(0), QByteArray("\x7F")})));
}

}  // namespace nubivane
