// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QMenu>
#include <QTimer>

namespace nubivane {

/// The strip with a tab for each Frame.
class FrameTabsStrip : public testing::EditorFixture {
  protected:
    QTabBar& bar() { return *window().tabs().tabDay(); }
    QStringList captions() {
        QStringList texts;
        for (int i = 1; i <= window().tabs().count(); ++i) {
            texts << window().tabs().caption(i);
        }
        return texts;
    }
    QStringList labels() {
        QStringList texts;
        for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
            texts << frame(i).Texts().Label;
        }
        return texts;
    }
    void pressTab(int number, Qt::MouseButton button = Qt::LeftButton) {
        const QPoint at = bar().tabRect(number - 1).center();
        QTest::mousePress(&bar(), button, {}, at);
        QTest::mouseRelease(&bar(), button, {}, at);
    }
    void insert(int count) {
        for (int i = 0; i < count; ++i) {
            trigger("mnuFrameInsert");
        }
    }
    bool canRemove() { return window().commands()[Command::mnuFrameRemove]->isEnabled(); }
};

TEST_F(FrameTabsStrip, InsertAddsAFrameAtTheEndAndShowsIt) {
    start();
    placeSymbol({100, 100});
    insert(2);
    EXPECT_EQ(captions(), QStringList({"Map1", "Map2", "Map3"}));
    EXPECT_EQ(labels(), captions());
    EXPECT_EQ(window().tabs().selected(), 3);
    EXPECT_EQ(workspace.Status.CurrentFrame, 3);
    EXPECT_EQ(workspace.pctPanel.Count(), 3);
    EXPECT_TRUE(window().canvas().sprites().controls().empty());
}

TEST_F(FrameTabsStrip, InsertWithMap1AndMap3GivesMap2) {
    start();
    insert(2);
    pressTab(2);
    trigger("mnuFrameRemove");
    ASSERT_EQ(captions(), QStringList({"Map1", "Map3"}));
    insert(1);
    EXPECT_EQ(captions(), QStringList({"Map1", "Map3", "Map2"}));
    EXPECT_EQ(frame(3).Texts().Label, "Map2");
}

TEST_F(FrameTabsStrip, FreeNamesAreComparedInLowerCase) {
    start();
    frame().Texts().Label = "mAP1";
    window().tabs().setTabDay(false);
    insert(1);
    EXPECT_EQ(captions(), QStringList({"mAP1", "Map2"}));
}

TEST_F(FrameTabsStrip, ANameGivenFreeByRenamingIsTakenAgain) {
    start();
    frame().Texts().Label = "Monday";
    window().tabs().setTabDay(false);
    EXPECT_EQ(window().tabs().freeFrameName(), "Map1");
}

TEST_F(FrameTabsStrip, OnlyWithMoreThanOneFrameCanOneBeRemoved) {
    start();
    EXPECT_FALSE(canRemove());
    insert(1);
    EXPECT_TRUE(canRemove());
}

TEST_F(FrameTabsStrip, RemovingTheLastButOneFrameDisablesRemove) {
    start();
    insert(2);
    trigger("mnuFrameRemove");
    EXPECT_TRUE(canRemove());
    trigger("mnuFrameRemove");
    EXPECT_FALSE(canRemove());
    EXPECT_EQ(captions(), QStringList({"Map2"}));
}

TEST_F(FrameTabsStrip, AfterRemovalTheFirstFrameIsShownWhicheverWasRemoved) {
    start();
    insert(3);
    for (const int removed : {4, 2, 1}) {
        pressTab(removed);
        trigger("mnuFrameRemove");
        EXPECT_EQ(window().tabs().selected(), 1);
        EXPECT_EQ(workspace.Status.CurrentFrame, 1);
        EXPECT_EQ(window().tabs().txtDay()->text(), captions().first());
    }
    EXPECT_EQ(captions(), QStringList({"Map3"}));
}

TEST_F(FrameTabsStrip, RemovalTakesTheFramesSpritesAndKeepsThoseOfTheOthers) {
    start();
    placeSymbol({100, 100});
    insert(1);
    placeSymbol({150, 100});
    placeSymbol({200, 100});
    insert(1);
    placeLabel({100, 50});
    pressTab(2);
    trigger("mnuFrameRemove");
    EXPECT_EQ(frame(1).Sprites().Symbols().Count(), 1);
    EXPECT_EQ(frame(2).Sprites().Symbols().Count(), 0);
    EXPECT_EQ(frame(2).Sprites().Labels().Count(), 1);
    EXPECT_EQ(window().canvas().sprites().controls().size(), 1u);
}

TEST_F(FrameTabsStrip, PicturesCloseUpWhenAFrameIsRemoved) {
    start();
    insert(2);
    for (const auto& [number, color] : {std::pair(1, Qt::red), {2, Qt::green}, {3, Qt::blue}}) {
        pressTab(number);
        workspace.pctMap.setPicture(Picture(testing::plainImage({500, 400}, color)));
    }
    pressTab(2);
    trigger("mnuFrameRemove");
    ASSERT_EQ(workspace.pctPanel.Count(), 2);
    EXPECT_EQ(workspace.pctMap.image().image().pixelColor(5, 5), QColor(Qt::red));
    pressTab(2);
    EXPECT_EQ(workspace.pctMap.image().image().pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(FrameTabsStrip, APressOnAnotherTabShowsItsFrame) {
    start();
    insert(1);
    pressTab(1);
    EXPECT_EQ(window().tabs().selected(), 1);
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    EXPECT_EQ(window().tabs().txtDay()->text(), "Map1");
}

TEST_F(FrameTabsStrip, APressOnTheSelectedTabChangesNothing) {
    start();
    const QString key = placeSymbol({100, 100});
    pressTab(1);
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
}

TEST_F(FrameTabsStrip, TheArrowKeysWalkTheFrames) {
    start();
    insert(1);
    bar().setFocus();
    QTest::keyClick(&bar(), Qt::Key_Left);
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    QTest::keyClick(&bar(), Qt::Key_Right);
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
}

TEST_F(FrameTabsStrip, ACaptionWithAnAmpersandIsShownAsItStands) {
    start();
    frame().Texts().Label = "Sat&Sun";
    window().tabs().setTabDay(false);
    EXPECT_EQ(bar().tabText(0), "Sat&&Sun");
    EXPECT_EQ(window().tabs().caption(1), "Sat&Sun");
    EXPECT_EQ(window().tabs().txtDay()->text(), "Sat&Sun");
    EXPECT_TRUE(QKeySequence::mnemonic(bar().tabText(0)).isEmpty());
}

TEST_F(FrameTabsStrip, TheTabsAreRebuiltWithoutShowingFramesOnTheWay) {
    start();
    insert(2);
    int selections = 0;
    QObject::connect(&window().tabs(), &FrameTabs::frameSelected, &window(),
                     [&selections] { ++selections; });
    window().tabs().setTabDay(false);
    EXPECT_EQ(selections, 0);
    EXPECT_TRUE(workspace.TabEventsEnabled);
    EXPECT_EQ(window().tabs().selected(), 1);
}

TEST_F(FrameTabsStrip, ANewProjectHasTheOneTabMap1) {
    start();
    insert(2);
    workspace.resetProject();
    window().tabs().setTabDay(true);
    EXPECT_EQ(captions(), QStringList({"Map1"}));
    EXPECT_EQ(frame().Texts().Label, "Map1");
}

TEST_F(FrameTabsStrip, TwoHundredFramesCanBeInsertedAndAllReached) {
    start();
    insert(199);
    EXPECT_EQ(workspace.Frames().Count(), 200);
    EXPECT_EQ(captions().last(), "Map200");
    EXPECT_EQ(captions().removeDuplicates(), 0);
    // The strip scrolls instead of making the window wider than its screen.
    EXPECT_LE(window().width(), 1280);
    EXPECT_LT(bar().width(), bar().tabRect(0).width() * 200);
    bar().setFocus();
    QTest::keyClick(&bar(), Qt::Key_Home);
    while (workspace.Status.CurrentFrame > 1) {
        const int before = workspace.Status.CurrentFrame;
        QTest::keyClick(&bar(), Qt::Key_Left);
        ASSERT_EQ(workspace.Status.CurrentFrame, before - 1);
    }
    trigger("mnuFrameRemove");
    EXPECT_EQ(workspace.Frames().Count(), 199);
    EXPECT_EQ(captions().first(), "Map2");
}

TEST_F(FrameTabsStrip, AButtonListsAllFramesOnceTheyDoNotFit) {
    start();
    QToolButton& button = *window().tabs().allFrames();
    insert(2);
    EXPECT_FALSE(button.isVisible());
    insert(37);
    ASSERT_TRUE(button.isVisible());
    EXPECT_LE(bar().geometry().right(), button.geometry().left());

    QTimer::singleShot(0, [&] {
        const auto listed = button.menu()->actions();
        ASSERT_EQ(listed.size(), 40);
        EXPECT_EQ(listed[6]->text(), "Map7");
        EXPECT_TRUE(listed[39]->isChecked());
        EXPECT_FALSE(listed[6]->isChecked());
        button.menu()->setActiveAction(listed[6]);
        QTest::keyClick(button.menu(), Qt::Key_Return);
    });
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(window().tabs().selected(), 7);
    EXPECT_EQ(workspace.Status.CurrentFrame, 7);

    for (int i = 0; i < 37; ++i) {
        trigger("mnuFrameRemove");
    }
    EXPECT_FALSE(button.isVisible());
}

TEST_F(FrameTabsStrip, ALongNameIsElidedInItsTabAndToldByItsTip) {
    start();
    const QString name = QString("Precipitation").repeated(10);
    frame().Texts().Label = name;
    window().tabs().setTabDay(false);
    const QTabBar& bar = *window().tabs().tabDay();
    EXPECT_LT(bar.tabRect(0).width(), 400);
    EXPECT_EQ(bar.elideMode(), Qt::ElideRight);
    EXPECT_EQ(bar.tabToolTip(0), name);
    EXPECT_EQ(window().tabs().caption(1), name);
    frame().Texts().Label = "Monday";
    window().tabs().setTabDay(false);
    EXPECT_EQ(bar.tabToolTip(0), "");
}

TEST_F(FrameTabsStrip, TheArrowOfTheListIsSeenOnDarkAndLightDesktops) {
    for (const QColor& shadow : {QColor(20, 20, 20), QColor(200, 200, 200)}) {
        QPalette palette;
        palette.setColor(QPalette::Shadow, shadow);
        palette.setColor(QPalette::ButtonText, shadow);
        palette.setColor(QPalette::WindowText, shadow);
        start();
        window().tabs().setPalette(palette);
        const QColor arrow = window().tabs().allFrames()->palette().color(QPalette::WindowText);
        EXPECT_GT(std::abs(arrow.lightness() - shadow.lightness()), 100);
    }
}

}  // namespace nubivane
