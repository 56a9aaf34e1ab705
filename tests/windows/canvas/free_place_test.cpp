// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/free_place.h"

#include "windows/canvas/many_fixture.h"
#include "windows/canvas/sprite_payload.h"

namespace nubivane {

namespace {

constexpr QSize Map(200, 150);

}  // namespace

TEST(FreePlace, AFreeOneStays) {
    EXPECT_EQ(freeOffset({{50, 50, 20, 20}}, {}, Map), QPoint());
    EXPECT_EQ(freeOffset({{50, 50, 20, 20}}, {{90, 50, 20, 20}}, Map), QPoint());
}

TEST(FreePlace, ATakenOneGoesAsideByLittle) {
    const QRect wanted(50, 50, 20, 20);
    const QPoint offset = freeOffset({wanted}, {wanted}, Map);
    EXPECT_FALSE(wanted.translated(offset).intersects(wanted));
    EXPECT_LE(offset.manhattanLength(), 48);
    EXPECT_TRUE(QRect(QPoint(), Map).contains(wanted.translated(offset)));
}

TEST(FreePlace, AFullMapGivesAPlaceAtWhichNothingIsHidden) {
    std::vector<QRect> taken;
    for (int x = 0; x < 200; x += 20) {
        for (int y = 0; y < 150; y += 20) {
            taken.emplace_back(x, y, 20, 20);
        }
    }
    const QRect wanted(40, 40, 60, 60);
    const QPoint offset = freeOffset({wanted}, taken, Map);
    for (const QRect& other : taken) {
        EXPECT_NE(other.topLeft(), wanted.translated(offset).topLeft());
    }
}

TEST(FreePlace, NeverEndsOnTheVerySpotOfAnother) {
    std::vector<QRect> taken;
    for (int i = 0; i < 24; ++i) {
        const QRect wanted(6, 6, 32, 32);
        const QRect placed = wanted.translated(visibleOffset({wanted}, taken, Map));
        for (const QRect& other : taken) {
            EXPECT_NE(placed.topLeft(), other.topLeft()) << i;
        }
        taken.push_back(placed);
    }
}

using PlacingWhereFree = testing::ManyFixture;

TEST_F(PlacingWhereFree, EnterInThePaletteFindsAFreePlaceEachTime) {
    start();
    const QString sun = SpritePayload{sprite_type::Symbol, model("Symbols/set-1/sun.gif")}.text();
    for (int i = 0; i < 12; ++i) {
        Q_EMIT window().palette().placeAsked(sun);
    }
    ASSERT_EQ(symbols().Count(), 12);
    for (const SpriteControl* a : sprites().controls()) {
        EXPECT_TRUE(QRect(0, 0, 502, 402).contains(a->rect));
        for (const SpriteControl* b : sprites().controls()) {
            EXPECT_TRUE(a == b || !a->rect.intersects(b->rect));
        }
    }
}

}  // namespace nubivane
