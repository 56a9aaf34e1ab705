// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/map_view.h"

#include "support/editor_fixture.h"
#include "windows/main/editor_pane.h"
#include "windows/main/next_start.h"

#include <QApplication>

namespace nubivane {

/// The window given over to the map.
class RoomForTheMap : public testing::EditorFixture {
  protected:
    QWidget& part(const char* name) { return *window().findChild<QWidget*>(name); }
    void startActive() {
        start();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }
};

TEST_F(RoomForTheMap, F9LeavesTheMapAndItsTabsAlone) {
    startActive();
    const QRect before = window().viewport().geometry();
    QTest::keyClick(&window(), Qt::Key_F9);
    for (QWidget* folded : std::initializer_list<QWidget*>{
             &window().palette(), &window().pctTlbDraw(), &part("pctSplitter")}) {
        EXPECT_FALSE(folded->isVisible()) << folded->objectName().toStdString();
    }
    EXPECT_EQ(window().viewport().x(), 0);
    EXPECT_EQ(window().viewport().y(), 0);
    EXPECT_EQ(window().viewport().width(), window().pane().width());
    EXPECT_TRUE(window().tabs().isVisible());
    QTest::keyClick(&window(), Qt::Key_F9);
    EXPECT_EQ(window().viewport().geometry(), before);
    EXPECT_TRUE(window().palette().isVisible());
    EXPECT_TRUE(window().pctTlbDraw().isVisible());
}

TEST_F(RoomForTheMap, TheKeyboardIsNotLeftInWhatIsFolded) {
    startActive();
    window().palette().imgText()->setFocus();
    trigger("mnuFold");
    EXPECT_EQ(QApplication::focusWidget(), &canvas());
}

TEST_F(RoomForTheMap, WhatWasFoldedComesBackAtTheNextStart) {
    startActive();
    trigger("mnuFold");
    ASSERT_TRUE(window().close());
    EXPECT_EQ(settings.text(Setting::WindowSplitter), "360");
    EXPECT_EQ(settings.text(Setting::ShowMapBar), "1");
}

TEST_F(RoomForTheMap, F11GivesItTheWholeScreenAndTakesItBack) {
    startActive();
    const QRect before = window().geometry();
    QTest::keyClick(&window(), Qt::Key_F11);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window().isFullScreen(); }));
    EXPECT_TRUE(window().commands()[Command::mnuFullScreen]->isChecked());
    QTest::keyClick(&window(), Qt::Key_F11);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window().isFullScreen(); }));
    EXPECT_FALSE(window().commands()[Command::mnuFullScreen]->isChecked());
    EXPECT_EQ(window().size(), before.size());
}

TEST_F(RoomForTheMap, ADesktopThatEndsAFullScreenTakesTheMarkOff) {
    startActive();
    trigger("mnuFullScreen");
    window().showNormal();
    EXPECT_FALSE(window().commands()[Command::mnuFullScreen]->isChecked());
}

TEST_F(RoomForTheMap, AFullScreensSizeIsNotRemembered) {
    startActive();
    const QSize before = window().size();
    trigger("mnuFullScreen");
    ASSERT_TRUE(QTest::qWaitFor([this] { return window().isFullScreen(); }));
    ASSERT_TRUE(window().close());
    EXPECT_EQ(settings.text(Setting::WindowWidth), QString::number(before.width() * 15));
    EXPECT_EQ(settings.text(Setting::WindowHeight), QString::number(before.height() * 15));
}

}  // namespace nubivane
