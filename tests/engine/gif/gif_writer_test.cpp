// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_writer.h"

#include "engine/core/error.h"
#include "engine/gif/gif_reader.h"
#include "engine/picture/made_pictures.h"
#include "support/fixtures.h"

namespace nubivane::testing {

namespace {

/// A picture and how long it stays.
struct Shown {
    QImage picture;
    qint64 hundredths;
};

QByteArray written(const std::vector<Shown>& pictures, GifEffort effort,
                   std::vector<QRgb> palette = {}) {
    QByteArray bytes;
    GifWriter writer(
        pictures.front().picture.size(), [&bytes](const QByteArray& part) { bytes += part; },
        effort, std::move(palette));
    for (const Shown& shown : pictures) {
        writer.addImages({{shown.picture, shown.hundredths}});
    }
    writer.finish();
    return bytes;
}

void expectSame(const QByteArray& gif, const std::vector<Shown>& pictures) {
    const std::vector<GifImage> images = readGif(gif);
    ASSERT_EQ(images.size(), pictures.size());
    for (std::size_t i = 0; i < images.size(); ++i) {
        EXPECT_EQ(images[i].picture.convertToFormat(QImage::Format_RGB32), pictures[i].picture)
            << "image " << i;
        EXPECT_EQ(images[i].delay, pictures[i].hundredths) << "image " << i;
    }
}

class GifWriterTest : public ::testing::TestWithParam<GifEffort> {};

}  // namespace

TEST_P(GifWriterTest, AMovingSquareComesBackPixelForPixel) {
    const QImage map = scattered({60, 50}, 200);
    std::vector<Shown> pictures;
    for (int i = 0; i < 6; ++i) {
        pictures.push_back({withSquare(map, {i * 7, i * 5, 12, 12}, QColor(i, 255, 3)), 7 + i});
    }
    expectSame(written(pictures, GetParam()), pictures);
}

TEST_P(GifWriterTest, PicturesWithNothingInCommonComeBackPixelForPixel) {
    std::vector<Shown> pictures;
    for (unsigned i = 0; i < 4; ++i) {
        QImage image = scattered({40, 40}, 250, i + 1);
        image.fill(QColor(static_cast<int>(i), 0, 0));
        pictures.push_back({i % 2 == 0 ? image : scattered({40, 40}, 255, i), 5});
    }
    expectSame(written(pictures, GetParam()), pictures);
}

TEST_P(GifWriterTest, ThatStandStillKeepsTheirTimes) {
    const QImage picture = scattered({20, 20}, 30);
    const std::vector<Shown> pictures{{picture, 3}, {picture, 4}, {picture, 5}};
    const QByteArray gif = written(pictures, GetParam());
    expectSame(gif, pictures);
    // A picture that changes nothing takes one pixel.
    EXPECT_LT(gif.size() - written({{picture, 3}}, GetParam()).size(), 2 * 40);
}

TEST_P(GifWriterTest, With256CommonColoursNoneIsNeededForWhatStandsStill) {
    const QImage first = scattered({16, 32}, 256);
    const QImage second = first.mirrored(false, true);
    const std::vector<Shown> pictures{{first, 5}, {second, 5}, {first, 5}};
    expectSame(written(pictures, GetParam()), pictures);
}

TEST_P(GifWriterTest, ATimeBeyondWhatAnImageCanStayIsDividedUp) {
    const QImage picture = scattered({5, 5}, 9);
    const std::vector<GifImage> images = readGif(written({{picture, 196'605 + 7}}, GetParam()));
    ASSERT_EQ(images.size(), 4U);
    qint64 sum = 0;
    for (const GifImage& image : images) {
        sum += image.delay;
        EXPECT_EQ(image.picture.convertToFormat(QImage::Format_RGB32), picture);
    }
    EXPECT_EQ(sum, 196'612);
}

TEST_P(GifWriterTest, TheFileIsGif89aAndPlaysWithoutEnd) {
    const QByteArray gif = written({{scattered({5, 5}, 9), 7}}, GetParam());
    EXPECT_TRUE(gif.startsWith("GIF89a"));
    EXPECT_TRUE(gif.contains("NETSCAPE2.0" + QByteArray::fromHex("0301000000")));
    EXPECT_TRUE(gif.endsWith(';'));
}

TEST_P(GifWriterTest, MoreColoursThanAnImageHoldsAreRefused) {
    const auto write = [](const std::vector<Shown>& pictures) {
        try {
            written(pictures, GetParam());
        } catch (const Error& error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(write({{scattered({20, 20}, 257), 1}}), error_number::InvalidPicture);
    EXPECT_EQ(write({{plainImage({20, 20}, Qt::red), 1}, {scattered({20, 20}, 257), 1}}),
              error_number::InvalidPicture);
    EXPECT_EQ(write({{plainImage({20, 20}, Qt::red), 1}, {plainImage({21, 20}, Qt::red), 1}}),
              error_number::InvalidPicture);
}

INSTANTIATE_TEST_SUITE_P(Efforts, GifWriterTest,
                         ::testing::Values(GifEffort::Quick, GifEffort::Search));

TEST(GifWriterEffort, SearchNeverTakesMoreBytes) {
    const QImage map = scattered({100, 100}, 180);
    std::vector<Shown> pictures;
    for (int i = 0; i < 8; ++i) {
        pictures.push_back({withSquare(map, {i * 9, 20, 15, 40}, Qt::white), 5});
    }
    EXPECT_LE(written(pictures, GifEffort::Search).size(),
              written(pictures, GifEffort::Quick).size());
}

TEST(ChangedRect, IsTheSmallestThatHoldsEveryDifference) {
    const QImage before = plainImage({30, 20}, Qt::blue);
    QImage after = before;
    EXPECT_TRUE(changedRect(before, after).isEmpty());
    after.setPixel(29, 19, qRgb(1, 1, 1));
    EXPECT_EQ(changedRect(before, after), QRect(29, 19, 1, 1));
    after.setPixel(4, 7, qRgb(1, 1, 1));
    EXPECT_EQ(changedRect(before, after), QRect(4, 7, 26, 13));
    after.setPixel(0, 10, qRgb(1, 1, 1));
    EXPECT_EQ(changedRect(before, after), QRect(0, 7, 30, 13));
}

}  // namespace nubivane::testing
