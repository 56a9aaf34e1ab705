// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/jpeg_tables.h"

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

}  // namespace

TEST(JpegTables, WhatTheProgramEncodesHasItsOwnQuality) {
    EXPECT_TRUE(hasOurJpegQuality(
        encodePicture(testing::plainImage({50, 40}, Qt::red), PictureFormat::Jpeg)));
    EXPECT_TRUE(hasOurJpegQuality(jpeg(JpegQuality)));
}

TEST(JpegTables, OneStepAsideIsAnotherQuality) {
    EXPECT_FALSE(hasOurJpegQuality(jpeg(JpegQuality - 1)));
    EXPECT_FALSE(hasOurJpegQuality(jpeg(JpegQuality + 1)));
    EXPECT_FALSE(hasOurJpegQuality(jpeg(75)));
    EXPECT_FALSE(hasOurJpegQuality(jpeg(100)));
}

TEST(JpegTables, OtherSegmentsInFrontChangeNothing) {
    QByteArray bytes = jpeg(JpegQuality);
    bytes.insert(2, QByteArray("\xFF\xFE\x00\x06note", 8));
    EXPECT_TRUE(hasOurJpegQuality(bytes));
}

TEST(JpegTables, ATableThatDiffersInOneValueIsAnotherQuality) {
    QByteArray bytes = jpeg(JpegQuality);
    const qsizetype table = bytes.indexOf("\xFF\xDB");
    ASSERT_GT(table, 0);
    bytes[table + 20] = static_cast<char>(bytes[table + 20] + 1);
    EXPECT_FALSE(hasOurJpegQuality(bytes));
}

TEST(JpegTables, BytesThatAreNoWholeJpegHaveAnotherQualityAndNoMishap) {
    const QByteArray whole = jpeg(JpegQuality);
    const qsizetype scan = whole.indexOf("\xFF\xDA");
    const qsizetype tables = whole.indexOf("\xFF\xDB");
    ASSERT_GT(scan, tables);
    for (qsizetype kept = 0; kept < tables + 60; ++kept) {
        EXPECT_FALSE(hasOurJpegQuality(whole.left(kept))) << kept;
    }
    EXPECT_FALSE(hasOurJpegQuality("no picture at all"));
    EXPECT_FALSE(
        hasOurJpegQuality(encodePicture(testing::plainImage({8, 8}, Qt::red), PictureFormat::Png)));
}

TEST(JpegTables, ASegmentThatClaimsNoLengthOrTooMuchIsNoMishap) {
    EXPECT_FALSE(hasOurJpegQuality(QByteArray("\xFF\xD8\xFF\xDB\x00\x00zzzz", 10)));
    EXPECT_FALSE(hasOurJpegQuality(QByteArray("\xFF\xD8\xFF\xDB\x00\x01zzzz", 10)));
    EXPECT_FALSE(hasOurJpegQuality(QByteArray("\xFF\xD8\xFF\xDB\xFF\xFFzzzz", 10)));
    EXPECT_FALSE(hasOurJpegQuality(QByteArray("\xFF\xD8\xFF\xE0\xFF\xFFzzzz", 10)));
}

}  // namespace nubivane
