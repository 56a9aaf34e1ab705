// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"
#include "windows/main/next_start.h"
#include "windows/main/window_geometry.h"

#include <QScreen>

namespace nubivane {

/// The main window's size and place at a start. The screen is 1280 x 1024 pixels.
class MainWindowPlace : public testing::EditorFixture {
  protected:
    /// This platform tells of a frame of two pixels, and places windows as if they had none.
    static constexpr int OwnFrame = 4;

    void size(const QString& widthTwips, const QString& heightTwips) {
        settings.set(Setting::WindowWidth, widthTwips);
        settings.set(Setting::WindowHeight, heightTwips);
    }
    bool becomesMaximised() {
        return QTest::qWaitFor([this] { return window().width() > 1200; }) &&
               window().isMaximized();
    }
    /// Free pixels left of the window less those at its right, and the same above and below.
    QPoint offCentre() {
        const QRect screen = window().screen()->geometry();
        const QRect place = window().frameGeometry();
        return {place.left() - (screen.right() - place.right()),
                place.top() - (screen.bottom() - place.bottom())};
    }
};

TEST_F(MainWindowPlace, WithoutSettingsItIs15000By11000TwipsAndCentred) {
    start();
    EXPECT_EQ(window().size(), QSize(1000, 733));
    EXPECT_LE(std::abs(offCentre().x()), OwnFrame);
    EXPECT_LE(std::abs(offCentre().y()), OwnFrame);
}

TEST_F(MainWindowPlace, WidthAndHeightComeBackButThePlaceIsAlwaysTheCentre) {
    size("12000", "9000");
    settings.set(Setting::WindowTop, "15");
    settings.set(Setting::WindowLeft, "30");
    start();
    EXPECT_EQ(window().size(), QSize(800, 600));
    EXPECT_LE(std::abs(offCentre().x()), OwnFrame);
    EXPECT_LE(std::abs(offCentre().y()), OwnFrame);
}

TEST_F(MainWindowPlace, ASizeThatIsNoNumberGivesTheDefault) {
    size("wide", "");
    start();
    EXPECT_EQ(window().size(), QSize(1000, 733));
}

TEST_F(MainWindowPlace, ASizeBeyondTheScreenIsHeldOnIt) {
    size("99999999", "99999999");
    start();
    const QSize screen = window().screen()->size();
    EXPECT_LE(window().width(), screen.width());
    EXPECT_LE(window().height(), screen.height());
}

TEST_F(MainWindowPlace, MaximizedIs2) {
    settings.set(Setting::WindowMaximized, "2");
    start();
    EXPECT_TRUE(window().isMaximized());
}

TEST_F(MainWindowPlace, BlanksAroundTheStateDoNotMatter) {
    settings.set(Setting::WindowMaximized, " 2 ");
    start();
    EXPECT_TRUE(window().isMaximized());
}

TEST_F(MainWindowPlace, MinimizedIs1) {
    settings.set(Setting::WindowMaximized, "1");
    frmMap minimized(workspace, shell);
    minimized.Init({});
    minimized.show();
    EXPECT_TRUE(minimized.isMinimized());
}

TEST_F(MainWindowPlace, MaximizedEqualTo5LeavesTheStateAndRaisesNoError) {
    settings.set(Setting::WindowMaximized, "5");
    start();
    EXPECT_EQ(window().windowState() & ~Qt::WindowActive, Qt::WindowNoState);
    EXPECT_EQ(window().size(), QSize(1000, 733));
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
}

TEST_F(MainWindowPlace, AWindowMovedAndResizedStoresItsPlaceInTwips) {
    start();
    window().setGeometry(100, 80, 900, 700);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window().size() == QSize(900, 700); }));
    ASSERT_TRUE(window().close());
    EXPECT_EQ(settings.text(Setting::WindowWidth), "13500");
    EXPECT_EQ(settings.text(Setting::WindowHeight), "10500");
    EXPECT_EQ(settings.text(Setting::WindowLeft), QString::number(window().x() * 15));
    EXPECT_EQ(settings.text(Setting::WindowTop), QString::number(window().y() * 15));
    EXPECT_EQ(settings.text(Setting::WindowMaximized), "0");
    EXPECT_EQ(settings.text(Setting::WindowFormWidth), "");
}

TEST_F(MainWindowPlace, TheSizeOfTheLastRunComesBackAtTheNext) {
    start();
    window().setGeometry(100, 80, 900, 700);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window().size() == QSize(900, 700); }));
    ASSERT_TRUE(window().close());
    testing::NextStart next(workspace, settings);
    EXPECT_EQ(next.window.size(), QSize(900, 700));
}

TEST_F(MainWindowPlace, AMaximisedWindowStoresItsNormalSizeWhereNothingReadsIt) {
    start();
    window().showMaximized();
    ASSERT_TRUE(becomesMaximised());
    ASSERT_TRUE(window().close());
    EXPECT_EQ(settings.text(Setting::WindowMaximized), "2");
    EXPECT_EQ(settings.text(Setting::WindowFormWidth), "15000");
    EXPECT_EQ(settings.text(Setting::WindowFormHeight), QString::number(733 * 15));
    EXPECT_NE(settings.text(Setting::WindowFormTop), "");
    EXPECT_NE(settings.text(Setting::WindowFormLeft), "");
    // Each reader still finds its own default: the entry itself was not written.
    EXPECT_EQ(settings.text(Setting::WindowWidthFirstRead), "12900");
    EXPECT_EQ(settings.text(Setting::WindowHeightFirstRead), "10260");
}

TEST_F(MainWindowPlace, AMinimisedWindowStoresStateOne) {
    start();
    window().showMinimized();
    ASSERT_TRUE(QTest::qWaitFor([this] { return window().isMinimized(); }));
    ASSERT_TRUE(window().close());
    EXPECT_EQ(settings.text(Setting::WindowMaximized), "1");
    EXPECT_EQ(settings.text(Setting::WindowWidthFirstRead), "12900");
}

TEST_F(MainWindowPlace, AWindowStartedMaximisedHasItsStoredSizeWhenItIsRestored) {
    size("12000", "9000");
    settings.set(Setting::WindowMaximized, "2");
    start();
    ASSERT_TRUE(becomesMaximised());
    window().showNormal();
    EXPECT_TRUE(QTest::qWaitFor([this] { return window().size() == QSize(800, 600); }));
}

}  // namespace nubivane
