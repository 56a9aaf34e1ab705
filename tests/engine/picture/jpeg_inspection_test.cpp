// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/jpeg_inspection.h"

#include "engine/picture/image_codec.h"
#include "support/fixtures.h"

#include <QBuffer>
#include <QImageWriter>

namespace nubivane {

namespace {

QByteArray jpeg(int quality, QSize size = {32, 24}) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(quality);
    EXPECT_TRUE(writer.write(testing::plainImage(size, Qt::darkGreen)));
    return bytes;
}

bool hasOurQuality(const QByteArray& bytes) {
    return hasJpegQuality(bytes, JpegQuality);
}

}  // namespace

TEST(JpegInspection, WhatTheProgramEncodesHasItsOwnQuality) {
    EXPECT_TRUE(
        hasOurQuality(encodePicture(testing::plainImage({50, 40}, Qt::red), PictureFormat::Jpeg)));
    EXPECT_TRUE(hasOurQuality(jpeg(JpegQuality)));
}

TEST(JpegInspection, OneStepAsideIsAnotherQuality) {
    EXPECT_FALSE(hasOurQuality(jpeg(JpegQuality - 1)));
    EXPECT_FALSE(hasOurQuality(jpeg(JpegQuality + 1)));
    EXPECT_FALSE(hasOurQuality(jpeg(75)));
    EXPECT_FALSE(hasOurQuality(jpeg(100)));
}

TEST(JpegInspection, OtherSegmentsInFrontChangeNothing) {
    QByteArray bytes = jpeg(JpegQuality);
    bytes.insert(2, QByteArray("\xFF\xFE\x00\x06note", 8));
    EXPECT_TRUE(hasOurQuality(bytes));
}

TEST(JpegInspection, ATableThatDiffersInOneValueIsAnotherQuality) {
    QByteArray bytes = jpeg(JpegQuality);
    const qsizetype table = bytes.indexOf("\xFF\xDB");
    ASSERT_GT(table, 0);
    bytes[table + 20] = static_cast<char>(bytes[table + 20] + 1);
    EXPECT_FALSE(hasOurQuality(bytes));
}

TEST(JpegInspection, BytesThatAreNoWholeJpegHaveAnotherQualityAndNoMishap) {
    const QByteArray whole = jpeg(JpegQuality);
    const qsizetype scan = whole.indexOf("\xFF\xDA");
    const qsizetype tables = whole.indexOf("\xFF\xDB");
    ASSERT_GT(scan, tables);
    for (qsizetype kept = 0; kept < tables + 60; ++kept) {
        EXPECT_FALSE(hasOurQuality(whole.left(kept))) << kept;
    }
    EXPECT_FALSE(hasOurQuality("no picture at all"));
    EXPECT_FALSE(
        hasOurQuality(encodePicture(testing::plainImage({8, 8}, Qt::red), PictureFormat::Png)));
}

TEST(JpegInspection, ASegmentThatClaimsNoLengthOrTooMuchIsNoMishap) {
    EXPECT_FALSE(hasOurQuality(QByteArray("\xFF\xD8\xFF\xDB\x00\x00zzzz", 10)));
    EXPECT_FALSE(hasOurQuality(QByteArray("\xFF\xD8\xFF\xDB\x00\x01zzzz", 10)));
    EXPECT_FALSE(hasOurQuality(QByteArray("\xFF\xD8\xFF\xDB\xFF\xFFzzzz", 10)));
    EXPECT_FALSE(hasOurQuality(QByteArray("\xFF\xD8\xFF\xE0\xFF\xFFzzzz", 10)));
}

TEST(JpegInspection, TheTablesOfEachQualityAreThoseOfThePicturesEncodedWithIt) {
    for (const int quality : {0, 1, 49, 50, 51, 92, 100}) {
        EXPECT_TRUE(hasJpegQuality(jpeg(quality), quality)) << quality;
    }
}

TEST(JpegInspection, AGreyPictureHasAnotherQualityThoughItsTableIsTheSame) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(JpegQuality);
    ASSERT_TRUE(writer.write(
        testing::plainImage({8, 8}, Qt::gray).convertToFormat(QImage::Format_Grayscale8)));
    EXPECT_FALSE(hasOurQuality(bytes));
}

TEST(JpegInspection, EachScanCountsOnce) {
    EXPECT_EQ(jpegScans(jpeg(JpegQuality)), 1);
    EXPECT_EQ(jpegScans(testing::readFile(testing::testFile("engine/picture/progressive.jpg"))), 6);
}

TEST(JpegInspection, BytesWithoutAWholeMarkerHaveNoScans) {
    EXPECT_EQ(jpegScans({}), 0);
    EXPECT_EQ(jpegScans("\xFF"), 0);
    EXPECT_EQ(jpegScans("\xDA\xFF"), 0);
    EXPECT_EQ(jpegScans("\xFF\xDA"), 1);
    EXPECT_EQ(jpegScans("\xFF\xFF\xDA\xFF"), 1);
}

}  // namespace nubivane
