// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fixtures.h"
#include "windows/desktop/frm_splash.h"

#include <QScreen>
#include <QTest>

namespace nubivane::testing {

class Splash : public ::testing::Test {
  protected:
    Splash() {
        QObject::connect(&splash, &frmSplash::init, &splash, [this] {
            steps << (splash.isVisible() ? "init behind it" : "init without");
        });
        QObject::connect(&splash, &frmSplash::done, &splash, [this] {
            steps << (splash.isVisible() ? "done behind it" : "done without");
        });
    }

    frmSplash splash{1};
    QStringList steps;
};

TEST(SplashTime, IsOneAndAHalfSeconds) {
    EXPECT_EQ(frmSplash::ShownMs, 1500);
}

TEST_F(Splash, TheEditorIsBuiltBehindItAndShownAfterItHasGone) {
    splash.show();
    EXPECT_EQ(steps, QStringList());
    EXPECT_TRUE(QTest::qWaitFor([this] { return steps.size() == 2; }));
    EXPECT_EQ(steps, QStringList({"init behind it", "done without"}));
}

TEST_F(Splash, ItsTimerFiresOnce) {
    splash.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return steps.size() == 2; }));
    EXPECT_FALSE(QTest::qWaitFor([this] { return steps.size() > 2; }, 50));
}

TEST_F(Splash, ItsTimeBeginsWhenItIsShown) {
    EXPECT_FALSE(QTest::qWaitFor([this] { return !steps.isEmpty(); }, 50));
}

TEST(SplashPlace, IsTheMiddleOfTheScreenWhereItShowsItsPicture) {
    constexpr int LongerThanThisTest = 60'000;
    frmSplash splash(LongerThanThisTest);
    splash.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&splash));
    const QPoint off = splash.geometry().center() - splash.screen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 4);
    const QImage shown = splash.grab().toImage();
    EXPECT_NE(shown.pixel(shown.rect().center()), shown.pixel(shown.rect().bottomRight()));
    EXPECT_EQ(splash.windowTitle(), "Nubivane");
}

}  // namespace nubivane::testing
