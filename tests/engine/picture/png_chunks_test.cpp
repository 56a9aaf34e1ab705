// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/png_chunks.h"

#include "engine/core/error.h"
#include "engine/picture/image_codec.h"
#include "support/fixtures.h"
#include "support/small_png.h"

#include <fstream>

namespace nubivane {

using namespace testing::small_png;

namespace {

bool isRefused(const QByteArray& png) {
    try {
        pngWithoutTexts(png);
    } catch (const Error& error) {
        return error.number() == error_number::InvalidPicture;
    }
    return false;
}

/// Most memory that this process has ever held, kilobytes.
qint64 peakMemory() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == "VmHWM:") {
            qint64 kilobytes = 0;
            status >> kilobytes;
            return kilobytes;
        }
    }
    return 0;
}

}  // namespace

TEST(PngChunks, APictureWithoutTextsStaysAsItIs) {
    EXPECT_EQ(pngWithoutTexts(sound({20, 10})), sound({20, 10}));
}

TEST(PngChunks, TextsOfAllKindsAreLeftOut) {
    const QByteArray pixelData = deflated(pixels(20, 10));
    const QByteArray texts = chunk("tEXt", QByteArray("a\0b", 3)) +
                             chunk("zTXt", QByteArray("a\0\0", 3) + deflated("b")) +
                             chunk("iTXt", QByteArray("a\0\0\0\0\0b", 7));
    EXPECT_EQ(pngWithoutTexts(file({20, 10}, texts, pixelData)), sound({20, 10}));
}

TEST(PngChunks, WhatTellsOfTheColoursStays) {
    const QByteArray png = file({20, 10}, chunk("gAMA", big(45455)), deflated(pixels(20, 10)));
    EXPECT_EQ(pngWithoutTexts(png), png);
}

TEST(PngChunks, APictureCutAnywhereIsRefused) {
    const QByteArray png = sound({20, 10});
    for (qsizetype length = 8; length < png.size(); ++length) {
        EXPECT_TRUE(isRefused(png.left(length))) << length;
    }
}

TEST(PngChunks, AChunkThatClaimsMoreThanThereIsIsRefused) {
    QByteArray png = sound({20, 10});
    const qsizetype pixelChunk = png.indexOf("IDAT") - 4;
    for (const quint32 length : {0x7FFFFFFFU, 0xFFFFFFFFU, 1000U}) {
        png.replace(pixelChunk, 4, big(length));
        EXPECT_TRUE(isRefused(png)) << length;
    }
}

TEST(PngChunks, AHeaderThatIsTooShortIsRefused) {
    EXPECT_TRUE(isRefused("\x89PNG\r\n\x1A\n" + chunk("IHDR", "x") + chunk("IEND", {})));
}

TEST(PngChunks, PixelsThatDoNotCompressAreTaken) {
    // Stored: as large as the pixels and some bytes around them.
    const QByteArray stored = qCompress(pixels(200, 200), 0).mid(4);
    EXPECT_FALSE(isRefused(file({200, 200}, {}, stored)));
}

TEST(PngChunks, MoreDataThanThePixelsCanTakeIsRefused) {
    EXPECT_TRUE(isRefused(file({20, 20}, {}, QByteArray(100'000, '\0'))));
}

TEST(PngChunks, APictureWhoseTextsUnpackToGigabytesCostsNoMemory) {
    // 400 texts of 7.9 MB each, 8 kB apiece in the file: 3 GB to a decoder that reads them.
    const QByteArray text =
        chunk("zTXt", QByteArray("a\0\0", 3) + deflated(QByteArray(7'900'000, 'A')));
    const QByteArray png = file({20, 10}, text.repeated(400), deflated(pixels(20, 10)));
    const qint64 before = peakMemory();
    EXPECT_EQ(probePicture(png).size, QSize(20, 10));
    EXPECT_EQ(decodePicture(png).size(), QSize(20, 10));
    EXPECT_LT(peakMemory() - before, 100'000);
}

}  // namespace nubivane
