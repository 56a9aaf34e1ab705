// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_clock.h"
#include "windows/canvas/canvas_fixture.h"

#include <QFile>

namespace nubivane {

using testing::isNearly;
namespace small_gif = testing::small_gif;

namespace {

constexpr int Patience = 5000;

/// A control that plays three images for 50, 100 and 200 milliseconds.
GifSymbol playingSymbol() {
    GifSymbol symbol;
    symbol.animation = std::make_shared<const Animation>(Animation::fromEncoded(
        small_gif::file(1, 1,
                        {small_gif::control(5), small_gif::dot(0), small_gif::control(10),
                         small_gif::dot(1), small_gif::control(20), small_gif::dot(2)})));
    symbol.StartAnimation(1000);
    return symbol;
}

}  // namespace

TEST(GifSymbolTest, ImagesAdvanceAsTheirDelaysSay) {
    GifSymbol symbol = playingSymbol();
    EXPECT_EQ(symbol.nextChange(1000), 1050);
    EXPECT_FALSE(symbol.advance(1049));
    EXPECT_TRUE(symbol.advance(1050));
    EXPECT_EQ(symbol.nextChange(1050), 1150);
    EXPECT_FALSE(symbol.advance(1149));
    EXPECT_TRUE(symbol.advance(1150));
    EXPECT_EQ(symbol.nextChange(1150), 1350);
    EXPECT_TRUE(symbol.advance(1350));
    EXPECT_EQ(symbol.nextChange(1350), 1400);
}

TEST(GifSymbolTest, ALateTickCatchesUpInsteadOfLaggingBehind) {
    GifSymbol symbol = playingSymbol();
    EXPECT_TRUE(symbol.advance(1000 + 350 + 60));
    EXPECT_EQ(symbol.nextChange(1410), 1500);
}

TEST(GifSymbolTest, AStoppedSymbolKeepsItsImageAndAsksForNoTime) {
    GifSymbol symbol = playingSymbol();
    symbol.StopAnimation();
    EXPECT_FALSE(symbol.advance(5000));
    EXPECT_EQ(symbol.nextChange(5000), std::nullopt);
}

TEST(GifSymbolTest, AStillPictureAsksForNoTime) {
    GifSymbol symbol;
    symbol.animation = std::make_shared<const Animation>(
        Animation::fromEncoded(small_gif::file(1, 1, {small_gif::dot()})));
    symbol.StartAnimation(0);
    EXPECT_EQ(symbol.nextChange(0), std::nullopt);
    EXPECT_FALSE(symbol.advance(1000));
}

/// The canvas and its one timer.
class Playing : public testing::CanvasFixture {
  protected:
    CanvasClock& clock() { return window().canvas().clock(); }
};

TEST_F(Playing, TheTimerStandsStillOnABareMap) {
    start();
    EXPECT_FALSE(clock().isRunning());
}

TEST_F(Playing, TheTimerStandsStillWithStillSpritesOnly) {
    start();
    placeSymbol({100, 100}, addStill("still.png", {20, 20}));
    placeLabel({200, 100});
    EXPECT_FALSE(clock().isRunning());
}

TEST_F(Playing, AMovingSymbolStartsTheTimerAndItsFramesEndStopsIt) {
    start();
    placeSymbol({100, 100});
    EXPECT_TRUE(clock().isRunning());
    trigger("mnuFrameInsert");
    EXPECT_FALSE(clock().isRunning());
    selectTab(1);
    EXPECT_TRUE(clock().isRunning());
}

TEST_F(Playing, TheTimerStopsWhileTheCanvasIsHidden) {
    start();
    placeSymbol({100, 100});
    window().hide();
    EXPECT_FALSE(clock().isRunning());
    placeSymbol({200, 100});
    EXPECT_FALSE(clock().isRunning());
    window().show();
    EXPECT_TRUE(clock().isRunning());
}

TEST_F(Playing, ASymbolStandsStillDuringADragAndPlaysOnAfterIt) {
    start();
    placeSymbol({100, 100});
    press({100, 100});
    EXPECT_FALSE(clock().isRunning());
    move({150, 150});
    EXPECT_FALSE(clock().isRunning());
    release({150, 150});
    EXPECT_TRUE(clock().isRunning());
}

TEST_F(Playing, OtherSymbolsPlayOnDuringADrag) {
    start();
    placeSymbol({100, 100});
    placeSymbol({300, 100});
    press({100, 100});
    EXPECT_TRUE(clock().isRunning());
    release({100, 100});
}

TEST_F(Playing, AClickOnALockedMapStopsNothing) {
    start();
    placeSymbol({100, 100});
    trigger("mnuLock");
    press({100, 100});
    EXPECT_TRUE(clock().isRunning());
    release({100, 100});
}

TEST_F(Playing, TheScreenShowsOneImageAfterTheOther) {
    start();
    const QString key = placeSymbol({100, 100}, addMoving("turn.gif", {6, 6, 6}));
    window().clearSelection();
    sprites().Move(*symbolControl(key), QRect(90, 90, 20, 20));
    for (const Qt::GlobalColor color : {Qt::green, Qt::blue, Qt::red}) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return isNearly(shown({100, 100}), color); }, Patience));
    }
}

TEST_F(Playing, OneTimerMovesSymbolsOfDifferentDelays) {
    start();
    const QString quick = placeSymbol({100, 100}, addMoving("quick.gif", {3, 3}));
    const QString slow = placeSymbol({200, 100}, addMoving("slow.gif", {20, 20}));
    const QRect quickArea = symbolControl(quick)->rect;
    const QRect slowArea = symbolControl(slow)->rect;
    QList<QRect> painted;
    QObject::connect(&sprites(), &SpriteStack::changed, &sprites(),
                     [&](const QRect& area) { painted << area; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return painted.count(slowArea) >= 2; }, Patience));
    EXPECT_GT(painted.count(quickArea), painted.count(slowArea));
    // Nothing but the two symbols is painted again.
    EXPECT_EQ(painted.count(quickArea) + painted.count(slowArea), painted.size());
}

TEST_F(Playing, TwoSymbolsOfOneFileShareOneDecoding) {
    start();
    const auto* first = dynamic_cast<GifSymbol*>(symbolControl(placeSymbol({100, 100})));
    const auto* second = dynamic_cast<GifSymbol*>(symbolControl(placeSymbol({200, 100})));
    ASSERT_NE(first->animation, nullptr);
    EXPECT_EQ(first->animation, second->animation);
}

TEST_F(Playing, TheThumbnailSharesItsDecodingWithTheMap) {
    start();
    SymbolListModel& list = window().palette().currentList()->symbols();
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.animation(0) != nullptr; }, Patience));
    const QString file = list.path(0).section('\\', -1);
    const auto* symbol = dynamic_cast<GifSymbol*>(symbolControl(placeSymbol({100, 100}, file)));
    EXPECT_EQ(symbol->animation, list.animation(0));
}

TEST_F(Playing, AFileReplacedMeanwhileIsDecodedAnewForTheNextSymbol) {
    start();
    addStill("picture.png", {20, 20}, Qt::red);
    const QString before = placeSymbol({100, 100}, "picture.png");
    addStill("picture.png", {30, 30}, Qt::blue);
    const QString after = placeSymbol({200, 100}, "picture.png");
    EXPECT_EQ(shown({100, 100}), QColor(Qt::red));
    EXPECT_EQ(shown({200, 100}), QColor(Qt::blue));
    EXPECT_EQ(symbolRect(before).width(), 20);
    EXPECT_EQ(symbolRect(after).width(), 30);
}

}  // namespace nubivane
