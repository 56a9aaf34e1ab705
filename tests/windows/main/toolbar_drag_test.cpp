// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"
#include "windows/main/next_start.h"

#include <QApplication>

namespace nubivane {

/// The bars dragged by their grips inside their strip.
class ToolBarDrag : public testing::EditorFixture {
  protected:
    ToolBar& standard() { return *window().findChild<ToolStrip*>()->standardBar(); }
    ToolBar& map() { return *window().findChild<ToolStrip*>()->mapBar(); }
    bool overlap() { return standard().geometry().intersects(map().geometry()); }
    bool inside(const ToolBar& bar) {
        return window().findChild<ToolStrip*>()->rect().contains(bar.geometry());
    }

    /// Takes a bar by its grip, moves its corner to a place of the strip and lets go.
    static void dragTo(ToolBar& bar, QPoint corner, Qt::MouseButton button = Qt::LeftButton) {
        const QPoint grip(4, bar.height() / 2);
        QTest::mousePress(&bar, button, {}, grip);
        const QPoint begin = bar.pos();
        for (const QPoint& step : {(begin + corner) / 2, corner}) {
            const QPoint local = step + grip - bar.pos();
            QMouseEvent event(QEvent::MouseMove, local, bar.mapToGlobal(local), Qt::NoButton,
                              button, Qt::NoModifier);
            QApplication::sendEvent(&bar, &event);
        }
        QTest::mouseRelease(&bar, button, {}, grip);
    }
};

TEST_F(ToolBarDrag, WithoutSettingsTheMapBarStandsTwoPixelsBesideTheStandardBar) {
    start();
    EXPECT_EQ(standard().pos(), QPoint(2, 2));
    EXPECT_EQ(map().pos(), QPoint(standard().x() + standard().width() + 2, 2));
}

TEST_F(ToolBarDrag, ABarLandsWhereItIsDroppedAndBothPlacesAreKept) {
    start();
    dragTo(map(), {600, 2});
    EXPECT_EQ(map().pos(), QPoint(600, 2));
    EXPECT_EQ(settings.text(Setting::MapBarX), "600");
    EXPECT_EQ(settings.text(Setting::MapBarY), "2");
    EXPECT_EQ(settings.text(Setting::StandardBarX), "2");
    EXPECT_EQ(settings.text(Setting::StandardBarY), "2");
}

TEST_F(ToolBarDrag, ThePlacesComeBackAtTheNextStart) {
    start();
    dragTo(map(), {620, 2});
    dragTo(standard(), {40, 100});
    const QPoint mapPlace = map().pos();
    const QPoint standardPlace = standard().pos();
    const int stripHeight = window().findChild<ToolStrip*>()->height();
    ASSERT_GT(standardPlace.y(), 2);
    testing::NextStart next(workspace, settings);
    EXPECT_EQ(next.window.findChild<ToolStrip*>()->mapBar()->pos(), mapPlace);
    EXPECT_EQ(next.window.findChild<ToolStrip*>()->standardBar()->pos(), standardPlace);
    EXPECT_EQ(next.window.findChild<ToolStrip*>()->height(), stripHeight);
}

TEST_F(ToolBarDrag, ASecondRowMakesTheStripHigher) {
    start();
    const int before = window().findChild<ToolStrip*>()->height();
    dragTo(map(), {2, before + 10});
    EXPECT_GT(window().findChild<ToolStrip*>()->height(), before);
    EXPECT_TRUE(inside(map()));
    EXPECT_TRUE(inside(standard()));
    dragTo(map(), {600, 2});
    EXPECT_EQ(window().findChild<ToolStrip*>()->height(), before);
}

TEST_F(ToolBarDrag, WhereverABarIsDroppedItIsInsideAndNotOnTheOther) {
    start();
    for (ToolBar* bar : {&standard(), &map()}) {
        for (int x = -100; x < window().width() + 100; x += 150) {
            for (const int y : {-30, 2, 30, 60, 200}) {
                dragTo(*bar, {x, y});
                ASSERT_FALSE(overlap()) << x << ", " << y;
                ASSERT_TRUE(inside(standard())) << x << ", " << y;
                ASSERT_TRUE(inside(map())) << x << ", " << y;
            }
        }
    }
}

TEST_F(ToolBarDrag, AnotherButtonDoesNotDrag) {
    start();
    const QPoint before = map().pos();
    dragTo(map(), {600, 2}, Qt::RightButton);
    EXPECT_EQ(map().pos(), before);
}

TEST_F(ToolBarDrag, ABarShownAgainDoesNotLieOnOneThatTookItsPlace) {
    start();
    const QPoint place = map().pos();
    trigger("mnuViewMapToolbar");
    dragTo(standard(), place);
    trigger("mnuViewMapToolbar");
    EXPECT_FALSE(overlap());
}

TEST_F(ToolBarDrag, StoredPlacesThatAreNoNumbersGiveTheDefaults) {
    settings.set(Setting::StandardBarX, "left");
    settings.set(Setting::MapBarX, "");
    start();
    EXPECT_EQ(standard().pos(), QPoint(2, 2));
    EXPECT_EQ(map().x(), standard().x() + standard().width() + 2);
}

TEST_F(ToolBarDrag, StoredPlacesOutsideTheWindowAreBroughtInside) {
    settings.set(Setting::StandardBarX, "-500");
    settings.set(Setting::MapBarX, "99999");
    settings.set(Setting::MapBarY, "99999");
    start();
    EXPECT_TRUE(inside(standard()));
    EXPECT_TRUE(inside(map()));
    EXPECT_FALSE(overlap());
}

TEST_F(ToolBarDrag, StoredPlacesOnEachOtherArePulledApart) {
    settings.set(Setting::StandardBarX, "100");
    settings.set(Setting::MapBarX, "110");
    start();
    EXPECT_FALSE(overlap());
}

TEST_F(ToolBarDrag, APlaceFarRightInAMaximisedWindowComesBack) {
    start();
    window().showMaximized();
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return window().findChild<ToolStrip*>()->width() > 1200; }));
    dragTo(map(), {1050, 2});
    const QPoint place = map().pos();
    ASSERT_GT(place.x(), 1000 - map().width());
    ASSERT_TRUE(window().close());
    testing::NextStart next(workspace, settings);
    ASSERT_TRUE(
        QTest::qWaitFor([&next] { return next.window.findChild<ToolStrip*>()->width() > 1200; }));
    EXPECT_EQ(next.window.findChild<ToolStrip*>()->mapBar()->pos(), place);
}

}  // namespace nubivane
