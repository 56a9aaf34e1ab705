// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/animation.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/gif/small_gif.h"
#include "engine/picture/image_codec.h"
#include "support/fixtures.h"

#include <QFile>

namespace nubivane {

namespace {

using namespace testing;
using namespace testing::small_gif;

/// An animation of 1x1 images with these delays in hundredths.
Animation animationOf(std::initializer_list<int> delays) {
    QByteArrayList parts;
    for (const int delay : delays) {
        parts << control(delay) << dot();
    }
    return Animation::fromEncoded(file(1, 1, parts));
}

int errorOf(const QString& path) {
    try {
        Animation::read(path);
        return 0;
    } catch (const Error& error) {
        return error.number();
    }
}

}  // namespace

TEST(Animation, DelaysOfNoneAndOneHundredthPlayAsATenthOfASecond) {
    const Animation animation = animationOf({0, 1, 2, 3, 10, 65535});
    std::vector<int> raw;
    std::vector<int> played;
    for (const AnimationImage& image : animation.images()) {
        raw.push_back(image.hundredths);
        played.push_back(image.duration);
    }
    EXPECT_THAT(raw, ::testing::ElementsAre(0, 1, 2, 3, 10, 65535));
    EXPECT_THAT(played, ::testing::ElementsAre(100, 100, 20, 30, 100, 655350));
}

TEST(Animation, OnePassIsTheSumAndTheShortestIsFound) {
    const Animation animation = animationOf({30, 5, 0, 20});
    EXPECT_EQ(animation.totalDuration(), 300 + 50 + 100 + 200);
    EXPECT_EQ(animation.shortestDuration(), 50);
    EXPECT_TRUE(animation.moves());
}

TEST(Animation, AnImageShowsFromItsFirstMillisecondToTheNextImages) {
    const Animation animation = animationOf({10, 20, 5});
    EXPECT_EQ(animation.imageAt(0), 0);
    EXPECT_EQ(animation.imageAt(99), 0);
    EXPECT_EQ(animation.imageAt(100), 1);
    EXPECT_EQ(animation.imageAt(299), 1);
    EXPECT_EQ(animation.imageAt(300), 2);
    EXPECT_EQ(animation.imageAt(349), 2);
}

TEST(Animation, ItStartsOverAfterTheLastImage) {
    const Animation animation = animationOf({10, 20, 5});
    EXPECT_EQ(animation.imageAt(350), 0);
    EXPECT_EQ(animation.imageAt(450), 1);
    EXPECT_EQ(animation.imageAt(350 * 2 + 349), 2);
    // Some years on.
    constexpr qint64 Passes = 1'000'000'000;
    EXPECT_EQ(animation.imageAt(350 * Passes + 99), 0);
    EXPECT_EQ(animation.imageAt(350 * Passes + 100), 1);
}

TEST(Animation, TheNumberOfRepetitionsInTheFileDoesNotCount) {
    const QByteArrayList images = {control(10), dot(0), control(10), dot(1)};
    for (const int times : {0, 1, 2}) {
        const Animation animation =
            Animation::fromEncoded(file(1, 1, QByteArrayList{loop(times)} + images));
        EXPECT_EQ(animation.imageAt(100'100), 1);
        EXPECT_EQ(animation.nextChange(100'100), 100);
    }
}

TEST(Animation, TheNextChangeIsWhatIsLeftOfTheImage) {
    const Animation animation = animationOf({10, 20, 5});
    EXPECT_EQ(animation.nextChange(0), 100);
    EXPECT_EQ(animation.nextChange(99), 1);
    EXPECT_EQ(animation.nextChange(100), 200);
    EXPECT_EQ(animation.nextChange(340), 10);
    EXPECT_EQ(animation.nextChange(350), 100);
}

TEST(Animation, WalkingByNextChangeMeetsEveryImageInOrder) {
    const Animation animation =
        Animation::fromEncoded(readFile(testFile("engine/gif/gifs/delays.gif")));
    qint64 time = 0;
    for (int step = 0; step < 18; ++step) {
        EXPECT_EQ(animation.imageAt(time), step % 6);
        time += *animation.nextChange(time);
    }
    EXPECT_EQ(time, 3 * animation.totalDuration());
}

TEST(Animation, PassesLongerThanThirtyTwoBitsAreCounted) {
    const QByteArrayList parts = QByteArrayList(4000, control(65535) + dot());
    const Animation animation = Animation::fromEncoded(file(1, 1, parts));
    EXPECT_EQ(animation.totalDuration(), qint64{4000} * 655350);
    EXPECT_EQ(animation.imageAt(animation.totalDuration() - 1), 3999);
}

TEST(Animation, AGifOfOneImageStandsStillWhateverItsDelay) {
    const Animation animation =
        Animation::fromEncoded(readFile(testFile("engine/gif/gifs/one-image.gif")));
    EXPECT_FALSE(animation.moves());
    EXPECT_EQ(animation.images().size(), 1U);
    EXPECT_EQ(animation.images().front().hundredths, 50);
    EXPECT_EQ(animation.totalDuration(), 0);
    EXPECT_EQ(animation.shortestDuration(), 0);
    EXPECT_EQ(animation.imageAt(0), 0);
    EXPECT_EQ(animation.imageAt(123'456), 0);
    EXPECT_EQ(animation.nextChange(0), std::nullopt);
}

TEST(Animation, StillPicturesOfTheOtherFormatsAreOneImage) {
    const QImage picture = plainImage({20, 17}, Qt::darkGreen);
    for (const PictureFormat format :
         {PictureFormat::Bmp, PictureFormat::Jpeg, PictureFormat::Png, PictureFormat::Tiff}) {
        const Animation animation = Animation::fromEncoded(encodePicture(picture, format));
        EXPECT_FALSE(animation.moves());
        EXPECT_EQ(animation.size(), QSize(20, 17));
        EXPECT_EQ(animation.totalDuration(), 0);
        EXPECT_EQ(animation.nextChange(5), std::nullopt);
        const QImage& image = animation.images().front().picture;
        EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
        EXPECT_NEAR(image.pixelColor(10, 10).green(), 128, 2);
    }
}

TEST(Animation, TransparencyOfAStillPictureStays) {
    QImage picture(16, 16, QImage::Format_ARGB32);
    picture.fill(QColor(200, 100, 50, 128));
    picture.setPixelColor(3, 3, Qt::transparent);
    const Animation animation = Animation::fromEncoded(encodePicture(picture, PictureFormat::Png));
    EXPECT_EQ(animation.images().front().picture,
              picture.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

TEST(Animation, ReadingGoesByThePathTextInAnyCase) {
    const TemporaryFolder folder;
    writeFile(folder.file("Sun.gif"), file(3, 2, {control(10), dot(0), control(10), dot(1)}));
    const Animation animation = Animation::read(host_files::toModel(folder.file("sUN.GIF")));
    EXPECT_EQ(animation.size(), QSize(3, 2));
    EXPECT_TRUE(animation.moves());
}

TEST(Animation, TheContentAndNotTheExtensionTellsTheFormat) {
    const TemporaryFolder folder;
    writeFile(folder.file("sun.png"), file(1, 1, {dot(0), dot(1)}));
    EXPECT_TRUE(Animation::read(folder.file("sun.png")).moves());
}

TEST(Animation, FilesThatCannotBeShownSayWhy) {
    const TemporaryFolder folder;
    writeFile(folder.file("empty.gif"), {});
    writeFile(folder.file("text.gif"), "sun");
    writeFile(folder.file("cut.png"),
              encodePicture(plainImage({20, 20}, Qt::red), PictureFormat::Png).left(60));
    QFile large(folder.file("large.gif"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(MaxPictureBytes + 1));
    EXPECT_EQ(errorOf(folder.file("missing.gif")), error_number::FileNotFound);
    EXPECT_EQ(errorOf(folder.path()), error_number::FileNotFound);
    EXPECT_EQ(errorOf(folder.file("empty.gif")), error_number::InvalidPicture);
    EXPECT_EQ(errorOf(folder.file("text.gif")), error_number::InvalidPicture);
    EXPECT_EQ(errorOf(folder.file("cut.png")), error_number::InvalidPicture);
    EXPECT_EQ(errorOf(folder.file("large.gif")), error_number::FileAccess);
}

TEST(AnimationStill, IsTheFirstImageScaledDownWhereItIsLarger) {
    const Animation moving = Animation::fromEncoded(
        testing::small_gif::file(40, 20, {testing::small_gif::dot(0), testing::small_gif::dot(1)}));
    EXPECT_EQ(moving.bytes(), 2 * 40 * 20 * 4);
    const Animation same = moving.still({40, 20});
    EXPECT_FALSE(same.moves());
    EXPECT_EQ(same.pictureAt(0), moving.images().front().picture);
    EXPECT_EQ(moving.still({10, 10}).size(), QSize(10, 5));
    EXPECT_EQ(moving.still({100, 5}).size(), QSize(10, 5));
}

}  // namespace nubivane
