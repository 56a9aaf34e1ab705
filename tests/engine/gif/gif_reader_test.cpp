// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_reader.h"

#include "engine/core/error.h"
#include "engine/gif/small_gif.h"
#include "engine/picture/image_codec.h"
#include "support/fixtures.h"
#include "support/processes.h"

#include <QBuffer>
#include <QDirIterator>
#include <QImageReader>
#include <QStandardPaths>

#include <set>

namespace nubivane {

namespace {

using namespace testing;
using namespace testing::small_gif;

QByteArray gifFile(const QString& name) {
    return readFile(testFile("engine/gif/gifs/" + name + ".gif"));
}

std::vector<int> delaysOf(const std::vector<GifImage>& images) {
    std::vector<int> delays;
    for (const GifImage& image : images) {
        delays.push_back(image.delay);
    }
    return delays;
}

/// The images one below the other.
QImage strip(const std::vector<GifImage>& images) {
    const QSize size = images.front().picture.size();
    QImage all(size.width(), size.height() * static_cast<int>(images.size()),
               QImage::Format_ARGB32_Premultiplied);
    uchar* to = all.bits();
    for (const GifImage& image : images) {
        std::memcpy(to, image.picture.constBits(),
                    static_cast<std::size_t>(image.picture.sizeInBytes()));
        to += image.picture.sizeInBytes();
    }
    return all;
}

/// Why a file was refused; empty when it was not.
QString refusal(const QByteArray& bytes) {
    try {
        readGif(bytes);
        return {};
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), error_number::InvalidPicture);
        EXPECT_FALSE(error.cause().isEmpty());
        return error.cause();
    }
}

}  // namespace

// ------------------------------------------------------------------ against other decoders

class GifAgainstABrowser : public ::testing::TestWithParam<const char*> {};

TEST_P(GifAgainstABrowser, EveryPixelIsTheSame) {
    const QString name = GetParam();
    const QImage expected = QImage(testFile("engine/gif/gifs/" + name + ".png"))
                                .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    ASSERT_FALSE(expected.isNull());
    EXPECT_EQ(strip(readGif(gifFile(name))), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Files, GifAgainstABrowser,
    ::testing::Values("control-once", "delays", "disposals", "empty-image", "first-beyond-screen",
                      "first-image-empty", "index-beyond-palette", "interlaced", "local-palettes",
                      "local-palettes-alone", "no-control", "no-palette", "one-image",
                      "outside-the-screen", "reserved-disposals", "restored-first-image",
                      "screen-of-nothing", "uncovered-canvas"),
    [](const auto& test) { return QByteArray(test.param).replace('-', '_').toStdString(); });

TEST(GifReader, EveryFileOfTheFolderIsCompared) {
    const QDir folder(testFile("engine/gif/gifs"));
    EXPECT_EQ(folder.entryList({"*.gif"}).size(), 18);
    EXPECT_EQ(folder.entryList({"*.png"}).size(), 18);
}

class GifSymbols : public ::testing::Test {
  protected:
    GifSymbols() {
        QDirIterator walk(NUBIVANE_SOURCES "/content/Symbols", {"*.gif"}, QDir::Files,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            files << walk.next();
        }
        files.sort();
        EXPECT_GE(files.size(), 6 * 24);
    }

    QStringList files;
};

TEST_F(GifSymbols, AllEqualWhatQtDecodesTimesIncluded) {
    for (const QString& file : files) {
        SCOPED_TRACE(file.toStdString());
        const std::vector<GifImage> images = readGif(readFile(file));
        QImageReader other(file);
        ASSERT_EQ(static_cast<int>(images.size()), other.imageCount());
        for (const GifImage& image : images) {
            EXPECT_EQ(image.picture,
                      other.read().convertToFormat(QImage::Format_ARGB32_Premultiplied));
            EXPECT_EQ(image.delay * 10, other.nextImageDelay());
        }
    }
}

TEST_F(GifSymbols, ASampleEqualsWhatImageMagickCoalesces) {
    // That program is slow: a sample spread over all collections has to do.
    constexpr int EveryNth = 6;
    QStringList sample;
    for (int i = 0; i < files.size(); i += EveryNth) {
        sample << files[i];
    }
    const QString convert = QStandardPaths::findExecutable("convert");
    if (convert.isEmpty()) {
        GTEST_SKIP() << "ImageMagick is not installed";
    }
    // One call for all: the program takes long to start.
    QStringList arguments = {"-depth", "8"};
    for (const QString& file : sample) {
        arguments << "(" << file << "-coalesce"
                  << ")";
    }
    const ProcessResult other = runProgram(convert, arguments << "RGBA:-");
    ASSERT_EQ(other.exitCode, 0) << other.err.toStdString();
    qsizetype at = 0;
    for (const QString& file : sample) {
        SCOPED_TRACE(file.toStdString());
        const QImage all = strip(readGif(readFile(file)));
        ASSERT_LE(at + all.sizeInBytes(), other.out.size());
        const QImage expected(reinterpret_cast<const uchar*>(other.out.constData()) + at,
                              all.width(), all.height(), QImage::Format_RGBA8888);
        EXPECT_EQ(all, expected.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        at += all.sizeInBytes();
    }
    EXPECT_EQ(at, other.out.size());
}

// ------------------------------------------------------------------ delays and control blocks

TEST(GifReader, DelaysAreAsWritten) {
    EXPECT_THAT(delaysOf(readGif(gifFile("delays"))),
                ::testing::ElementsAre(0, 1, 2, 3, 10, 65535));
}

TEST(GifReader, AControlBlockCountsForOneImage) {
    EXPECT_THAT(delaysOf(readGif(gifFile("control-once"))), ::testing::ElementsAre(10, 30, 0));
}

TEST(GifReader, TheLastOfTwoControlBlocksCounts) {
    const auto images = readGif(file(1, 1, {control(20), control(30), dot()}));
    EXPECT_THAT(delaysOf(images), ::testing::ElementsAre(30));
}

TEST(GifReader, AControlBlockOfAnotherLengthIsPassedOver) {
    const QByteArray wrong = QByteArray::fromHex("21f903040a0000");
    EXPECT_THAT(delaysOf(readGif(file(1, 1, {control(20), wrong, dot()}))),
                ::testing::ElementsAre(20));
}

TEST(GifReader, CommentsTextsAndOtherExtensionsArePassedOver) {
    const QByteArray comment = QByteArray::fromHex("21fe03") + "sun" + QByteArray(1, '\0');
    const QByteArray text = QByteArray::fromHex("21010c000000000000000000000000") +
                            QByteArray::fromHex("0161") + QByteArray(1, '\0');
    const QByteArray empty = QByteArray::fromHex("21fe00");
    const auto images =
        readGif(file(1, 1, {comment, loop(3), empty, dot(0), text, comment, dot(1), comment}));
    ASSERT_EQ(images.size(), 2U);
    EXPECT_EQ(images[0].picture.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(images[1].picture.pixelColor(0, 0), QColor(Qt::green));
}

// ------------------------------------------------------------------ cut and damaged files

TEST(GifReader, AFileCutAnywhereGivesTheWholeImagesBeforeTheCut) {
    const QByteArray bytes = gifFile("disposals");
    const std::vector<GifImage> whole = readGif(bytes);
    ASSERT_EQ(whole.size(), 8U);
    std::size_t before = 0;
    std::set<std::size_t> counts;
    for (qsizetype length = 0; length < bytes.size(); ++length) {
        SCOPED_TRACE(length);
        std::vector<GifImage> images;
        try {
            images = readGif(bytes.left(length));
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), error_number::InvalidPicture);
        }
        ASSERT_GE(images.size(), before);
        if (images.size() > before) {
            EXPECT_EQ(images.size(), before + 1);
            EXPECT_EQ(bytes[length - 1], '\0') << "the end of an image's data";
        }
        for (std::size_t i = 0; i < images.size(); ++i) {
            ASSERT_EQ(images[i].picture, whole[i].picture);
        }
        before = images.size();
        counts.insert(before);
    }
    EXPECT_EQ(counts.size(), 9U) << "from no image to all of them, whose trailer alone is missing";
}

TEST(GifReader, AnInterlacedImageCutBetweenItsPassesIsNotShown) {
    const QByteArray bytes = gifFile("interlaced");
    const std::vector<GifImage> whole = readGif(bytes);
    const qsizetype inSecond = bytes.indexOf(',', bytes.indexOf(',') + 200) + 40;
    const auto images = readGif(bytes.left(inSecond));
    ASSERT_EQ(images.size(), 1U);
    EXPECT_EQ(images[0].picture, whole[0].picture);
}

TEST(GifReader, ABrokenLaterImageEndsThePicture) {
    const QByteArray noSuchCodeSize = QByteArray::fromHex("0c02440100");
    const QByteArray codeOutOfNowhere = QByteArray::fromHex("02027c0100");
    const QByteArray endsTooSoon = QByteArray::fromHex("02012c00");
    for (const QByteArray& broken : {noSuchCodeSize, codeOutOfNowhere, endsTooSoon}) {
        SCOPED_TRACE(broken.toHex().toStdString());
        const auto images =
            readGif(file(1, 1, {control(5), dot(1), image({0, 0, 1, 1}, broken), dot(2)}));
        ASSERT_EQ(images.size(), 1U);
        EXPECT_EQ(images[0].picture.pixelColor(0, 0), QColor(Qt::green));
        EXPECT_NE(refusal(file(1, 1, {image({0, 0, 1, 1}, broken), dot(2)})), "");
    }
}

TEST(GifReader, AnUnknownRecordEndsThePicture) {
    EXPECT_EQ(readGif(file(1, 1, {dot(), "?", dot()})).size(), 1U);
}

TEST(GifReader, WhatFollowsTheTrailerDoesNotCount) {
    EXPECT_EQ(readGif(file(1, 1, {dot()}) + dot() + "more").size(), 1U);
}

TEST(GifReader, BytesWithoutAnImageAreRefused) {
    EXPECT_NE(refusal({}), "");
    EXPECT_NE(refusal("GIF89a"), "");
    EXPECT_NE(refusal("no picture at all"), "");
    EXPECT_NE(refusal(file(1, 1, {})), "");
    EXPECT_NE(refusal(file(1, 1, {control(5), loop(0)})), "");
}

TEST(GifReader, OnlyTheTwoVersionsAreGifs) {
    EXPECT_TRUE(isGif("GIF87a"));
    EXPECT_TRUE(isGif("GIF89a..."));
    EXPECT_FALSE(isGif("GIF90a"));
    EXPECT_FALSE(isGif("GIF8"));
    EXPECT_FALSE(isGif({}));
}

// ------------------------------------------------------------------ limits

TEST(GifReader, AScreenAtTheLimitIsReadAndOneBeyondRefused) {
    EXPECT_EQ(readGif(file(MaxPictureSide, 1, {dot()})).front().picture.width(), MaxPictureSide);
    EXPECT_THAT(refusal(file(MaxPictureSide + 1, 1, {dot()})).toStdString(),
                ::testing::HasSubstr("16385 x 1 pixels"));
    EXPECT_THAT(refusal(file(1, MaxPictureSide + 1, {dot()})).toStdString(),
                ::testing::HasSubstr("1 x 16385 pixels"));
    EXPECT_EQ(refusal(file(5000, 5000, {dot()})), "");
    EXPECT_NE(refusal(file(5000, 5001, {dot()})), "");
    EXPECT_NE(refusal(file(65535, 65535, {dot()})), "");
}

TEST(GifReader, AFirstImageFarOutsideCannotWidenTheScreenBeyondTheLimit) {
    EXPECT_THAT(refusal(file(1, 1, {image({65535, 65535, 1, 1}, pixel(0))})).toStdString(),
                ::testing::HasSubstr("65536 x 65536 pixels"));
}

TEST(GifReader, AScreenThatStaysEmptyIsRefused) {
    EXPECT_NE(refusal(file(0, 0, {image({0, 0, 0, 0}, QByteArray::fromHex("02016500"))})), "");
}

TEST(GifReader, ImagesBeyondTheNumberAreRefused) {
    QByteArrayList images(MaxGifImages, dot());
    EXPECT_EQ(readGif(file(1, 1, images)).size(), std::size_t{MaxGifImages});
    images << dot();
    EXPECT_THAT(refusal(file(1, 1, images)).toStdString(), ::testing::HasSubstr("images"));
}

TEST(GifReader, ABombOfManyScreensInFewBytesIsRefused) {
    constexpr int Side = 2048;
    constexpr int Most = static_cast<int>(MaxGifBytes / (Side * Side * 4));
    EXPECT_EQ(readGif(file(Side, Side, QByteArrayList(Most, dot()))).size(), std::size_t{Most});
    const QByteArray bomb = file(Side, Side, QByteArrayList(1000, dot()));
    EXPECT_LT(bomb.size(), 20000);
    EXPECT_THAT(refusal(bomb).toStdString(), ::testing::HasSubstr("bytes"));
}

TEST(GifReader, OneImageMayBeAsLargeAsAnyStillPicture) {
    EXPECT_EQ(refusal(file(5000, 5000, {dot()})), "");
    EXPECT_GT(qint64{5000} * 5000 * 4, MaxGifBytes);
    EXPECT_NE(refusal(file(5000, 5000, {dot(), dot()})), "");
}

TEST(GifReader, AnImageFarLargerThanTheScreenIsRefusedBeforeItIsDecoded) {
    // No pixels follow: where their number is within the limit, the file counts as cut short.
    EXPECT_EQ(readGif(file(1, 1, {dot(), image({0, 0, 4999, 5001}, "\x02")})).size(), 1U);
    EXPECT_THAT(refusal(file(1, 1, {dot(), image({0, 0, 5000, 5000}, "\x02")})).toStdString(),
                ::testing::HasSubstr("25000000 pixels"));
    EXPECT_NE(refusal(file(1, 1, {dot(), image({0, 0, 65535, 65535}, "\x02")})), "");
}

}  // namespace nubivane
