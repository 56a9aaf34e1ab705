// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/frames.h"

#include "support/fixtures.h"

namespace nubivane {

namespace {

void addSymbols(cFrame& frame, int count) {
    for (int i = 0; i < count; ++i) {
        frame.Sprites().Symbols().add({.Frame = 1});
    }
}

}  // namespace

TEST(Frames, AWrapperStartsWithoutFrames) {
    const cWrapper wrapper;
    EXPECT_EQ(wrapper.Frames().Count(), 0);
    EXPECT_EQ(wrapper.Frames().NumSprite(), 0);
}

TEST(Frames, ANewFrameHasNoSprites) {
    cFrames frames;
    cFrame& frame = frames.Add();
    EXPECT_EQ(frame.Sprites().Count(), 0);
    EXPECT_EQ(frames.NumSprite(), 0);
    EXPECT_EQ(frame.Texts().Label, "");
}

TEST(Frames, NumSpriteSumsOverAllFrames) {
    cFrames frames;
    addSymbols(frames.Add(), 2);
    frames.Add();
    addSymbols(frames.Add(), 3);
    EXPECT_EQ(frames.NumSprite(), 5);
}

TEST(Frames, RemovalClosesUpTheLaterFrames) {
    cFrames frames;
    for (int i = 1; i <= 4; ++i) {
        frames.Add().Texts().Label = "Map" + QString::number(i);
    }
    frames.Remove(2);
    ASSERT_EQ(frames.Count(), 3);
    EXPECT_EQ(frames.Item(1).Texts().Label, "Map1");
    EXPECT_EQ(frames.Item(2).Texts().Label, "Map3");
    EXPECT_EQ(frames.Item(3).Texts().Label, "Map4");
}

TEST(Frames, RemovalLeavesTheFrameNumberOfSpritesAlone) {
    cFrames frames;
    frames.Add();
    cFrame& second = frames.Add();
    second.Sprites().Symbols().add({.Frame = 2});
    frames.Remove(1);
    EXPECT_EQ(frames.Item(1).Sprites().Item("K-1").Frame, 2);
}

TEST(Frames, APositionOutsideTheListIsAnError) {
    cFrames frames;
    frames.Add();
    for (const qint32 index : {0, -1, 2}) {
        EXPECT_THROW(frames.Item(index), Error);
        EXPECT_THROW(frames.Remove(index), Error);
    }
    EXPECT_EQ(frames.Count(), 1);
}

TEST(Frames, EveryFrameCountsItsKeysFromTheStart) {
    cFrames frames;
    addSymbols(frames.Add(), 2);
    addSymbols(frames.Add(), 1);
    EXPECT_EQ(frames.Item(2).Sprites().Symbols().Item(1).Key_, "K-1");
}

}  // namespace nubivane
