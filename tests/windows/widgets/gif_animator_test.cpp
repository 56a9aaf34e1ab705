// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/gif_animator.h"

#include "engine/gif/small_gif.h"
#include "support/fixtures.h"

#include <QTest>

namespace nubivane {

using namespace testing;

namespace {

std::shared_ptr<const Animation> animationOf(const QByteArrayList& parts) {
    return std::make_shared<const Animation>(Animation::fromEncoded(small_gif::file(1, 1, parts)));
}

QRgb colorShown(const GifAnimator& box) {
    return box.image().pixel(0, 0);
}

}  // namespace

TEST(GifAnimatorBox, PlaysWhileItCanBeSeen) {
    GifAnimator box(nullptr);
    box.setAnimation(animationOf(
        {small_gif::control(3), small_gif::dot(0), small_gif::control(3), small_gif::dot(1)}));
    EXPECT_FALSE(box.isPlaying());
    EXPECT_EQ(colorShown(box), qRgb(255, 0, 0));
    box.show();
    EXPECT_TRUE(box.isPlaying());
    EXPECT_TRUE(QTest::qWaitFor([&] { return colorShown(box) == qRgb(0, 255, 0); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return colorShown(box) == qRgb(255, 0, 0); }));
    box.hide();
    EXPECT_FALSE(box.isPlaying());
}

TEST(GifAnimatorBox, AStillPictureNeedsNoTimer) {
    GifAnimator box(nullptr);
    box.setAnimation(animationOf({small_gif::dot(2)}));
    box.show();
    EXPECT_FALSE(box.isPlaying());
    EXPECT_EQ(colorShown(box), qRgb(0, 0, 255));
    box.setAnimation(nullptr);
    EXPECT_TRUE(box.image().isNull());
}

TEST(PictureBoxPaint, APictureSmallerThanTheBoxKeepsItsSizeAndALargerOneIsFittedIn) {
    PictureBox box(nullptr);
    box.setBordered(false);
    box.resize(100, 100);
    const QRgb ground = box.grab().toImage().pixel(10, 50);
    box.setImage(plainImage({20, 20}, Qt::red));
    QImage seen = box.grab().toImage();
    EXPECT_EQ(seen.pixel(50, 50), qRgb(255, 0, 0));
    EXPECT_EQ(seen.pixel(38, 50), ground);
    EXPECT_EQ(seen.pixel(61, 50), ground);
    box.setImage(plainImage({400, 200}, Qt::red));
    seen = box.grab().toImage();
    EXPECT_EQ(seen.pixel(2, 50), qRgb(255, 0, 0));
    EXPECT_EQ(seen.pixel(97, 50), qRgb(255, 0, 0));
    EXPECT_EQ(seen.pixel(50, 22), ground);
    EXPECT_EQ(seen.pixel(50, 77), ground);
}

TEST(GifAnimatorBox, PlaysAFileAtItsOwnSize) {
    const TemporaryFolder folder;
    writeFile(folder.file("film.gif"), small_gif::file(7, 4, {small_gif::dot(2)}));
    QWidget window;
    GifAnimator box(&window);
    box.playFile(folder.file("film.gif").replace('/', '\\'));
    window.show();
    EXPECT_TRUE(box.isVisible());
    EXPECT_EQ(box.size(), QSize(7, 4));
    EXPECT_EQ(box.image().size(), QSize(7, 4));
}

TEST(GifAnimatorBox, GoesAwayWithoutAFileOrWithABadOne) {
    const TemporaryFolder folder;
    writeFile(folder.file("bad.gif"), "no picture");
    QWidget window;
    GifAnimator box(&window);
    window.show();
    for (const char* name : {"bad.gif", "missing.gif"}) {
        box.show();
        box.playFile(folder.file(name).replace('/', '\\'));
        EXPECT_FALSE(box.isVisible()) << name;
        EXPECT_TRUE(box.image().isNull()) << name;
    }
}

}  // namespace nubivane
