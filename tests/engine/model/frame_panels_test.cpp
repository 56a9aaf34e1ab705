// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/frame_panels.h"

#include "support/fixtures.h"

namespace nubivane {

TEST(FramePanelsTest, PanelsAreReachedByTheFramesNumber) {
    FramePanels panels;
    panels.reset(3);
    const Picture picture(testing::plainImage({4, 4}, Qt::red));
    panels.setPicture(2, picture);
    EXPECT_EQ(panels.Count(), 3);
    EXPECT_TRUE(panels.picture(1).isEmpty());
    EXPECT_TRUE(panels.picture(2).sharesContentWith(picture));
    EXPECT_TRUE(panels.picture(3).isEmpty());
}

TEST(FramePanelsTest, ANumberWithoutAPanelIsPassedOver) {
    FramePanels panels;
    panels.reset(1);
    const Picture picture(testing::plainImage({4, 4}, Qt::red));
    for (const qint32 frame : {0, -1, 2, 1000000}) {
        panels.setPicture(frame, picture);
        EXPECT_FALSE(panels.contains(frame));
        EXPECT_TRUE(panels.picture(frame).isEmpty());
    }
    EXPECT_TRUE(panels.picture(1).isEmpty());
}

TEST(FramePanelsTest, ResettingEmptiesEveryPanel) {
    FramePanels panels;
    panels.reset(2);
    panels.setPicture(1, Picture(testing::plainImage({4, 4}, Qt::red)));
    panels.reset(3);
    EXPECT_EQ(panels.Count(), 3);
    EXPECT_TRUE(panels.picture(1).isEmpty());
    panels.reset(0);
    EXPECT_EQ(panels.Count(), 0);
}

}  // namespace nubivane
