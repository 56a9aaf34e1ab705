// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/screen_room.h"

#include <QScreen>
#include <QWidget>

#include <gtest/gtest.h>

namespace nubivane {

TEST(ScreenRoom, ASizeThatFitsStays) {
    const QWidget window;
    EXPECT_EQ(withinScreen(window, {300, 200}), QSize(300, 200));
}

TEST(ScreenRoom, EachSideIsHeldOnTheScreenWithTheFrame) {
    const QWidget window;
    const QSize room = window.screen()->availableSize();
    const QSize held = withinScreen(window, {300, 100 * room.height()});
    EXPECT_EQ(held.width(), 300);
    EXPECT_LT(held.height(), room.height() - 20);
    EXPECT_GT(held.height(), room.height() - 100);
    EXPECT_LT(withinScreen(window, 2 * room).width(), room.width());
}

}  // namespace nubivane
