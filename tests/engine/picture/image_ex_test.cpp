// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/image_ex.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/gif/gif_outline.h"
#include "engine/gif/gif_reader.h"
#include "engine/gif/gif_writer.h"
#include "engine/gif/small_gif.h"
#include "engine/picture/image_codec.h"
#include "engine/picture/made_pictures.h"
#include "support/fixtures.h"

#include <QDir>

#include <numeric>

namespace nubivane::testing {

namespace {

/// Walks over the blocks of a GIF of ours; `use(place)` hears where each image descriptor stands.
void forEachImage(const QByteArray& gif, const std::function<void(qsizetype)>& use) {
    const auto byteAt = [&gif](qsizetype at) { return static_cast<uchar>(gif.at(at)); };
    const auto colors = [](int packed) { return (packed & 0x80) != 0 ? 6 << (packed & 7) : 0; };
    qsizetype at = 13 + colors(byteAt(10));
    while (byteAt(at) != ';') {
        if (byteAt(at) == ',') {
            use(at);
            at += 11 + colors(byteAt(at + 9));
        } else {
            at += 2;
        }
        while (byteAt(at) != 0) {
            at += 1 + byteAt(at);
        }
        ++at;
    }
}

class ImageExTest : public ::testing::Test {
  protected:
    QString host(const QString& name = "a.gif") const { return folder.file(name); }
    QString path(const QString& name = "a.gif") const { return host_files::toModel(host(name)); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    std::vector<GifImage> images() const { return readGif(readFile(host())); }

    std::vector<int> delays() const {
        std::vector<int> result;
        for (const GifImage& image : images()) {
            result.push_back(image.delay);
        }
        return result;
    }

    /// A column that shows a picture lying on a map of its own.
    static FrameColumn column(double hundredths, const QImage& picture, const QImage& map = {}) {
        return {hundredths, picture.size(), [picture, map] {
                    return Capture{picture, map.isNull() ? picture : map};
                }};
    }

    /// `count` pictures, each another, each for the same time.
    static FrameList listOf(int count, double hundredths) {
        FrameList list;
        for (int i = 0; i < count; ++i) {
            list.push_back(column(hundredths, withSquare(scattered({30, 20}, 50), {i % 25, 3, 4, 4},
                                                         QColor(0, i, 255))));
        }
        return list;
    }

    TemporaryFolder folder;
};

}  // namespace

TEST_F(ImageExTest, SavesInTheFormatThatIsAskedFor) {
    const QImage picture = scattered({12, 9}, 40);
    for (const auto format :
         {PictureFormat::Bmp, PictureFormat::Gif, PictureFormat::Png, PictureFormat::Tiff}) {
        ImageEx::SaveImage(picture, path("a"), format);
        const QByteArray bytes = readFile(host("a"));
        EXPECT_EQ(probePicture(bytes).format, format);
        EXPECT_EQ(decodePicture(bytes).convertToFormat(QImage::Format_RGB32), picture);
    }
    ImageEx::SaveImage(picture, path("a"), PictureFormat::Jpeg);
    EXPECT_EQ(probePicture(readFile(host("a"))).format, PictureFormat::Jpeg);
}

TEST_F(ImageExTest, WholeDelaysStandAsTheyAre) {
    ImageEx::AssembleGif(listOf(3, 50), path());
    EXPECT_EQ(delays(), std::vector<int>({50, 50, 50}));
}

TEST_F(ImageExTest, FractionsAreSpreadSoThatTheWholeIsRight) {
    // 3.3 each: at 3.3, 6.6, 9.9, 13.2 hundredths, rounded 3, 7, 10, 13.
    ImageEx::AssembleGif(listOf(4, 3.3), path());
    EXPECT_EQ(delays(), std::vector<int>({3, 4, 3, 3}));
    ImageEx::AssembleGif(listOf(21, 3.3), path());
    const std::vector<int> all = delays();
    EXPECT_EQ(all.size(), 21U);
    EXPECT_EQ(std::accumulate(all.begin(), all.end(), 0), 69);
}

TEST_F(ImageExTest, AnImageThatWouldShowForNoTimeIsLeftOut) {
    // 0.4 each: at 0.4, 0.8, 1.2, 1.6, 2.0, rounded 0, 1, 1, 2, 2.
    ImageEx::AssembleGif(listOf(5, 0.4), path());
    EXPECT_EQ(delays(), std::vector<int>({1, 1}));
}

TEST_F(ImageExTest, ASingleImageIsWrittenHoweverShort) {
    ImageEx::AssembleGif(listOf(1, 0.1), path());
    EXPECT_EQ(delays(), std::vector<int>({0}));
}

TEST_F(ImageExTest, AnEmptyListIsRefusedAndWritesNothing) {
    EXPECT_THROW(ImageEx::AssembleGif({}, path()), Error);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(ImageExTest, SmallerImagesStandOnAWhiteSheet) {
    const QImage large = plainImage({40, 30}, Qt::red);
    const QImage small = plainImage({20, 35}, Qt::blue);
    ImageEx::AssembleGif({column(10, large), column(10, small)}, path());
    const std::vector<GifImage> all = images();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].picture.size(), QSize(40, 35));
    EXPECT_EQ(all[0].picture.pixel(39, 29), qRgb(255, 0, 0));
    EXPECT_EQ(all[0].picture.pixel(39, 30), qRgb(255, 255, 255));
    EXPECT_EQ(all[1].picture.pixel(19, 34), qRgb(0, 0, 255));
    EXPECT_EQ(all[1].picture.pixel(20, 0), qRgb(255, 255, 255));
}

TEST_F(ImageExTest, ACaptureIsMadeOnceAndInTurn) {
    QStringList made;
    FrameList list = listOf(3, 10);
    for (std::size_t i = 0; i < list.size(); ++i) {
        list[i].capture = [&made, i, capture = list[i].capture] {
            made << QString::number(i);
            return capture();
        };
    }
    ImageEx::AssembleGif(list, path(), [&made](int done, int count) {
        made << QStringLiteral("%1 of %2").arg(done).arg(count);
    });
    EXPECT_EQ(made, QStringList({"0", "1 of 3", "1", "2 of 3", "2", "3 of 3"}));
}

TEST_F(ImageExTest, ACaptureThatFailsLeavesNoFile) {
    FrameList list = listOf(3, 10);
    list[2].capture = []() -> Capture { throw Error(error_number::FileNotFound, "test", "gone"); };
    EXPECT_THROW(ImageEx::AssembleGif(list, path()), Error);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(ImageExTest, OptimizingChangesBytesAndNothingElse) {
    ImageEx::AssembleGif(listOf(10, 7), path());
    const QByteArray before = readFile(host());
    const std::vector<GifImage> shown = images();
    ImageEx::OptimizeGif(path(), path(), 2);
    EXPECT_LT(readFile(host()).size(), before.size());
    const std::vector<GifImage> optimized = images();
    ASSERT_EQ(optimized.size(), shown.size());
    for (std::size_t i = 0; i < shown.size(); ++i) {
        EXPECT_EQ(optimized[i].picture, shown[i].picture) << i;
        EXPECT_EQ(optimized[i].delay, shown[i].delay) << i;
    }
    EXPECT_EQ(files(), QStringList({"a.gif"}));
}

TEST_F(ImageExTest, OfManyCapturesOnlyAFewAreHeldAtATime) {
    constexpr QSize Size(800, 600);
    // The writer works on some side by side; of the colours' steps, and of the capture in hand,
    // there are a few more.
    const int few = static_cast<int>(GifWriter::picturesAtATime(Size)) + 4;
    int held = 0;
    int most = 0;
    FrameList list;
    for (int i = 0; i < 24; ++i) {
        list.push_back({5, Size, [&, i] {
                            auto* pixels =
                                new std::vector<QRgb>(static_cast<std::size_t>(Size.width()) *
                                                          static_cast<std::size_t>(Size.height()),
                                                      qRgb(i, 0, 0));
                            most = std::max(most, ++held);
                            const QImage picture(
                                reinterpret_cast<uchar*>(pixels->data()), Size.width(),
                                Size.height(), QImage::Format_RGB32,
                                [](void* context) {
                                    const auto* owner =
                                        static_cast<std::pair<int*, std::vector<QRgb>*>*>(context);
                                    --*owner->first;
                                    delete owner->second;
                                    delete owner;
                                },
                                new std::pair(&held, pixels));
                            return Capture{picture, picture};
                        }});
    }
    ImageEx::AssembleGif(list, path());
    EXPECT_EQ(held, 0);
    EXPECT_LE(most, few);
    EXPECT_EQ(gifOutline(readFile(host())).value_or(GifOutline{}).images, 24);
}

TEST_F(ImageExTest, OptimizedColoursOfWholeAnimationStandInOnePalette) {
    // Each image brings another colour, which the first does not have.
    ImageEx::AssembleGif(listOf(10, 7), path());
    ImageEx::OptimizeGif(path(), path(), 2);
    int count = 0;
    const QByteArray gif = readFile(host());
    forEachImage(gif, [&](qsizetype at) {
        EXPECT_EQ(gif.at(at + 9), 0) << "a palette of its own";
        ++count;
    });
    EXPECT_EQ(count, 10);
}

TEST_F(ImageExTest, ColoursThatComeAtTheEdgesAloneStandInTheCommonPaletteToo) {
    const QImage ground = scattered({30, 20}, 50);
    FrameList list{column(7, ground)};
    int blue = 0;
    for (const QPoint corner : {QPoint(0, 0), QPoint(29, 0), QPoint(0, 19), QPoint(29, 19)}) {
        QImage picture = ground;
        picture.setPixel(15, 10, qRgb(255, 0, blue));  // so that more than the corner changes
        picture.setPixel(corner, qRgb(0, 255, ++blue));
        list.push_back(column(7, picture));
    }
    ImageEx::AssembleGif(list, path());
    ImageEx::OptimizeGif(path(), path(), 2);
    int count = 0;
    const QByteArray gif = readFile(host());
    forEachImage(gif, [&](qsizetype at) {
        EXPECT_EQ(gif.at(at + 9), 0) << "a palette of its own";
        ++count;
    });
    EXPECT_EQ(count, 5);
}

TEST_F(ImageExTest, ImagesOfFewColoursHaveShortCodes) {
    // 200 colours on the map, two that move: the moving ones and "transparent" take two bits.
    const QImage map = scattered({60, 40}, 200);
    FrameList list;
    for (int i = 0; i < 5; ++i) {
        list.push_back(column(7, withSquare(map, {0, 0, 20, 20}, i % 2 ? Qt::red : Qt::blue)));
    }
    ImageEx::AssembleGif(list, path());
    ImageEx::OptimizeGif(path(), path(), 2);
    const QByteArray gif = readFile(host());
    QList<int> codeSizes;
    forEachImage(gif, [&](qsizetype at) { codeSizes << gif.at(at + 10); });
    EXPECT_EQ(codeSizes, QList<int>({8, 2, 2, 2, 2}));
}

TEST_F(ImageExTest, OptimizingCanWriteToAnotherName) {
    ImageEx::AssembleGif(listOf(10, 7), path());
    const QByteArray before = readFile(host());
    ImageEx::OptimizeGif(path(), path("b.gif"), 2);
    EXPECT_EQ(readFile(host()), before);
    EXPECT_LT(readFile(host("b.gif")).size(), before.size());
}

TEST_F(ImageExTest, OptimizingTwiceChangesNothingMore) {
    ImageEx::AssembleGif(listOf(10, 7), path());
    ImageEx::OptimizeGif(path(), path(), 2);
    const QByteArray once = readFile(host());
    ImageEx::OptimizeGif(path(), path(), 2);
    EXPECT_EQ(readFile(host()), once);
}

TEST_F(ImageExTest, AGifWithSeeThroughPlacesIsPassedOnAsItIs) {
    // A screen of 4 x 4 of which one pixel is painted.
    const QByteArray gif = small_gif::file(4, 4, {small_gif::control(5), small_gif::dot()});
    writeFile(host(), gif);
    ImageEx::OptimizeGif(path(), path(), 2);
    EXPECT_EQ(readFile(host()), gif);
    ImageEx::OptimizeGif(path(), path("b.gif"), 2);
    EXPECT_EQ(readFile(host("b.gif")), gif);
}

TEST_F(ImageExTest, ADamagedGifIsPassedOnAsItIs) {
    ImageEx::AssembleGif(listOf(10, 7), path());
    const QByteArray damaged = readFile(host()).chopped(40);
    writeFile(host(), damaged);
    ImageEx::OptimizeGif(path(), path(), 2);
    EXPECT_EQ(readFile(host()), damaged);
}

TEST_F(ImageExTest, WhatIsNoGifIsRefused) {
    writeFile(host(), "no picture");
    EXPECT_THROW(ImageEx::OptimizeGif(path(), path(), 2), Error);
    EXPECT_THROW(ImageEx::OptimizeGif(path("none.gif"), path(), 2), Error);
    EXPECT_EQ(readFile(host()), "no picture");
}

}  // namespace nubivane::testing
