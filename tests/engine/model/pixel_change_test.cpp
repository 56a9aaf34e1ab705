// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/pixel_change.h"

#include "support/fixtures.h"

#include <QPainter>
#include <QRandomGenerator>

namespace nubivane {

namespace {

QImage noise(QSize size, quint32 seed) {
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, random.generate() | 0xFF000000U);
        }
    }
    return image;
}

}  // namespace

TEST(PixelChange, GivesBackWhatLayThereAndDrawsItAgain) {
    const QImage before = noise({60, 40}, 1);
    QImage after = before;
    QPainter(&after).fillRect(QRect(7, 5, 20, 11), Qt::red);
    const QRect area(3, 2, 50, 30);
    const PixelChange change(before.copy(area), after, area.topLeft());
    EXPECT_EQ(change.area(), QRect(7, 5, 20, 11));

    QImage picture = after;
    change.revert(picture);
    EXPECT_TRUE(picture == before);
    change.apply(picture);
    EXPECT_TRUE(picture == after);
}

TEST(PixelChange, IsEmptyWhereNothingChanged) {
    const QImage picture = noise({20, 20}, 2);
    EXPECT_TRUE(PixelChange(picture.copy(5, 5, 10, 10), picture, {5, 5}).isEmpty());
    EXPECT_TRUE(PixelChange().isEmpty());
}

TEST(PixelChange, OfALargeRectangleTakesTheRoomOfWhatIsDrawn) {
    const QImage before = noise({1000, 1000}, 3);
    QImage after = before;
    for (int i = 0; i < 1000; ++i) {
        after.setPixel(i, i, 0xFFFF0000U);
    }
    const PixelChange change(before, after, {});
    EXPECT_EQ(change.area(), QRect(0, 0, 1000, 1000));
    EXPECT_LT(change.bytes(), 1000 * 24);
    QImage picture = after;
    change.revert(picture);
    EXPECT_TRUE(picture == before);
}

TEST(PixelChange, EveryPixelChangedIsKeptToo) {
    const QImage before = noise({300, 200}, 4);
    const QImage after = noise({300, 200}, 5);
    const PixelChange change(before, after, {});
    QImage picture = after;
    change.revert(picture);
    EXPECT_TRUE(picture == before);
    change.apply(picture);
    EXPECT_TRUE(picture == after);
}

TEST(PixelChange, IsLiftedOffAPictureAndLeavesWhatWasDrawnOverIt) {
    const QImage before = noise({60, 40}, 1);
    QImage after = before;
    QPainter(&after).fillRect(QRect(7, 5, 20, 11), Qt::red);
    const PixelChange change(before, after, {0, 0});
    QImage picture = after;
    QPainter(&picture).fillRect(QRect(20, 10, 30, 20), Qt::blue);
    QImage wanted = before;
    QPainter(&wanted).fillRect(QRect(20, 10, 30, 20), Qt::blue);
    EXPECT_TRUE(change.lift(picture));
    EXPECT_TRUE(picture == wanted);
    EXPECT_FALSE(change.lift(picture));
    EXPECT_TRUE(picture == wanted);
}

TEST(PixelChange, IsNotLiftedOffAPictureOfAnotherSize) {
    const QImage before = noise({60, 40}, 1);
    QImage after = before;
    QPainter(&after).fillRect(QRect(50, 30, 10, 10), Qt::red);
    const PixelChange change(before, after, {0, 0});
    QImage smaller(20, 20, QImage::Format_ARGB32_Premultiplied);
    smaller.fill(Qt::red);
    const QImage same = smaller;
    EXPECT_FALSE(change.lift(smaller));
    EXPECT_TRUE(smaller == same);
}

}  // namespace nubivane
