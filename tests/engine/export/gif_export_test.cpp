// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/export/export_request.h"
#include "engine/export/export_stage.h"
#include "engine/export/stage_fixture.h"
#include "engine/gif/gif_reader.h"
#include "engine/picture/image_codec.h"
#include "engine/picture/made_pictures.h"

#include <numeric>

namespace nubivane::testing {

namespace {

class AniGif : public StageFixture {
  protected:
    std::vector<GifImage> save(int compression = 1) {
        run(AniGifRequest{.GifFileName = output("a.gif"), .compression = compression});
        return readGif(readFile(outputHost("a.gif")));
    }
};

class Film : public StageFixture {
  protected:
    Film() {
        makeSymbol("dot.gif", {50, 50, 50});
        for (qint32 i = 2; i <= 3; ++i) {
            workspace.Frames().Add();
        }
        workspace.clearTempPicture();
        workspace.pctPanel.setPicture(2, Picture(plainImage({60, 40}, Qt::green)));
    }

    std::vector<GifImage> save(FilmRequest request) {
        request.path = output("film.gif");
        run(request);
        return readGif(readFile(outputHost("film.gif")));
    }
};

}  // namespace

TEST_F(AniGif, AMapThatWouldTakeTooMuchMemoryIsRefusedBeforeItIsDecoded) {
    QImage map(4001, 2000, QImage::Format_Mono);
    map.fill(0);
    workspace.pctPanel.setPicture(1, Picture::fromEncoded(encodePicture(map, PictureFormat::Png)));
    try {
        save();
        ADD_FAILURE() << "it was written";
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), "The map is too large for a moving GIF.");
        EXPECT_TRUE(error.cause().startsWith("4001 x 2000 pixels")) << error.what();
    }
    EXPECT_EQ(outputs(), QStringList());
    EXPECT_EQ(watcher.told, QStringList());
}

TEST_F(Film, AMapThatWouldTakeTooMuchMemoryIsRefused) {
    // Together their sheet is too large, none of them alone.
    for (const QSize size : {QSize(6000, 10), QSize(10, 6000)}) {
        workspace.pctPanel.setPicture(size.width() > 100 ? 1 : 2,
                                      Picture(plainImage(size, Qt::red)));
    }
    EXPECT_THROW(save({}), Error);
    EXPECT_EQ(outputs(), QStringList());
}

TEST_F(AniGif, AFrameWithoutMovementIsOneImageOfHalfASecondTimesTheCompression) {
    const std::array delays = {50, 100, 150};
    for (int compression = 1; compression <= 3; ++compression) {
        const std::vector<GifImage> images = save(compression);
        ASSERT_EQ(images.size(), 1U);
        EXPECT_EQ(images[0].delay, delays[static_cast<std::size_t>(compression) - 1]);
        EXPECT_EQ(images[0].picture.convertToFormat(QImage::Format_RGB32),
                  plainImage({60, 40}, Qt::blue));
    }
}

TEST_F(AniGif, TwoSymbolsGiveTheStepOfTheFasterForThePassOfTheSlower) {
    makeSymbol("slow.gif", {10, 10, 10, 10});
    makeSymbol("fast.gif", QList<int>(20, 5));
    addSymbol("slow.gif", {0, 0});
    addSymbol("fast.gif", {2, 2});
    const std::vector<GifImage> images = save();
    ASSERT_EQ(images.size(), 21U);
    for (std::size_t i = 0; i < images.size(); ++i) {
        EXPECT_EQ(images[i].delay, 5) << i;
        EXPECT_EQ(images[i].picture.convertToFormat(QImage::Format_RGB32),
                  renderFrame(workspace, 1, static_cast<qint64>(i) * 50))
            << i;
    }
}

TEST_F(AniGif, CompressionTakesFewerImagesForTheSameTime) {
    makeSymbol("fast.gif", QList<int>(20, 5));
    addSymbol("fast.gif", {2, 2});
    EXPECT_EQ(save(2).size(), 11U);
    const std::vector<GifImage> images = save(3);
    ASSERT_EQ(images.size(), 7U);
    EXPECT_EQ(images[0].delay, 15);
}

TEST_F(AniGif, AShadedMapStaysCloseAndFlatSymbolsExact) {
    workspace.pctPanel.setPicture(1, Picture(shaded({200, 150})));
    QByteArrayList parts;
    for (int i = 0; i < 3; ++i) {
        parts << small_gif::control(10) << small_gif::dot(i);
    }
    writeFile(host("Symbols/set-1/dot.gif"), small_gif::file(1, 1, parts));
    for (int i = 0; i < 100; ++i) {
        addSymbol("dot.gif", {20 + i % 10, 20 + i / 10});
    }
    const std::vector<GifImage> images = save();
    ASSERT_EQ(images.size(), 4U);
    const std::array colors = {Red, Green, Blue, Red};
    for (std::size_t i = 0; i < images.size(); ++i) {
        const QImage shown = images[i].picture.convertToFormat(QImage::Format_RGB32);
        EXPECT_GT(psnr(shown, renderFrame(workspace, 1, static_cast<qint64>(i) * 100)), 28) << i;
        EXPECT_EQ(shown.pixel(20, 20), colors[i]);
        EXPECT_EQ(shown.pixel(29, 29), colors[i]);
    }
}

TEST_F(AniGif, CaptionsAndProgressGoTheirSteps) {
    makeSymbol("dot.gif", {10, 10});
    addSymbol("dot.gif", {0, 0});
    save();
    EXPECT_EQ(watcher.told,
              QStringList({" Creating frames - step 1 of 4", "0", "35",
                           " Assembling file - step 2 of 4", "80", " Optimizing file - step 3 of 4",
                           "90", " Saving file - step 4 of 4", "100"}));
    EXPECT_EQ(watcher.rounds, 6);  // three captures, and as many images written again
}

TEST_F(AniGif, AnExistingFileIsReplaced) {
    writeFile(outputHost("a.gif"), "old");
    EXPECT_EQ(save().size(), 1U);
    EXPECT_EQ(outputs(), QStringList({"a.gif"}));
    EXPECT_TRUE(temporaryFolderIsGone());
}

TEST_F(AniGif, AFailureLeavesTheOldFileAndNoHalfOne) {
    writeFile(outputHost("a.gif"), "old");
    workspace.clearTempPicture();
    QFile::remove(host("Maps/map.png"));
    EXPECT_THROW(save(), Error);
    EXPECT_THROW(run(AniGifRequest{.GifFileName = output("none\\a.gif")}), Error);
    EXPECT_EQ(outputs(), QStringList({"a.gif"}));
    EXPECT_EQ(readFile(outputHost("a.gif")), "old");
    EXPECT_TRUE(temporaryFolderIsGone());
}

TEST_F(AniGif, ASymbolMadeToTakeForeverIsRefused) {
    makeSymbol("slow.gif", QList<int>(2, 65'535));
    makeSymbol("fast.gif", {2, 2});
    addSymbol("slow.gif", {0, 0});
    addSymbol("fast.gif", {1, 1});
    EXPECT_THROW(save(), Error);
    EXPECT_EQ(outputs(), QStringList());
}

TEST_F(Film, HasOneImageForEachFrameInOrder) {
    const std::vector<GifImage> images = save({.FrameInterval = 30});
    ASSERT_EQ(images.size(), 3U);
    const std::array maps = {Blue, Green, Blue};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(images[i].picture.pixel(5, 5), maps[i]);
        EXPECT_EQ(images[i].delay, 30);
    }
}

TEST_F(Film, TheFirstImageShowsTheSpritesOfTheCurrentFrame) {
    addSymbol("dot.gif", {1, 1}, 1);
    addSymbol("dot.gif", {2, 2}, 2);
    addSymbol("dot.gif", {3, 3}, 3);
    const std::vector<GifImage> images = save({.current = 3, .FrameInterval = 1});
    EXPECT_EQ(images[0].picture.pixel(3, 3), Red);
    EXPECT_EQ(images[0].picture.pixel(1, 1), Blue);
    EXPECT_EQ(images[1].picture.pixel(2, 2), Red);
    EXPECT_EQ(images[2].picture.pixel(3, 3), Red);
    EXPECT_EQ(images[2].picture.pixel(1, 1), Blue);
}

TEST_F(Film, SymbolsHavePlayedForOneInterval) {
    addSymbol("dot.gif", {1, 1}, 1);
    addSymbol("dot.gif", {1, 1}, 2);
    for (const auto& [interval, color] : {std::pair(49, Red), std::pair(100, Blue)}) {
        const auto images = save({.FrameInterval = static_cast<qint16>(interval)});
        EXPECT_EQ(images[1].picture.pixel(1, 1), color) << interval;
    }
    EXPECT_EQ(save({.FrameInterval = 50})[0].picture.pixel(1, 1), Green);
}

TEST_F(Film, FramesOfOtherSizesStandOnAWhiteSheet) {
    workspace.pctPanel.setPicture(2, Picture(plainImage({80, 20}, Qt::green)));
    const std::vector<GifImage> images = save({.FrameInterval = 10});
    ASSERT_EQ(images[1].picture.size(), QSize(80, 40));
    EXPECT_EQ(images[0].picture.pixel(79, 0), qRgb(255, 255, 255));
    EXPECT_EQ(images[1].picture.pixel(79, 19), Green);
    EXPECT_EQ(images[1].picture.pixel(0, 20), qRgb(255, 255, 255));
    EXPECT_EQ(images[2].picture.pixel(59, 39), Blue);
}

TEST_F(Film, AProjectOfOneFrameGivesOneImage) {
    workspace.Frames().Remove(3);
    workspace.Frames().Remove(2);
    const std::vector<GifImage> images = save({.FrameInterval = 1000});
    ASSERT_EQ(images.size(), 1U);
    EXPECT_EQ(images[0].delay, 1000);
}

TEST_F(Film, CaptionsAndProgressGoTheirSteps) {
    save({.FrameInterval = 10});
    EXPECT_EQ(watcher.told,
              QStringList({" Creating frames - step 1 of 4", "46", "70",
                           " Assembling file - step 2 of 4", "80", " Optimizing file - step 3 of 4",
                           "90", " Saving file - step 4 of 4", "100"}));
}

}  // namespace nubivane::testing
