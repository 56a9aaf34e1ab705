// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"
#include "windows/main/next_start.h"

#include <QToolButton>

#include <algorithm>
#include <stdexcept>

namespace nubivane {

/// The two bars: buttons, icon sizes, showing and hiding.
class ToolBars : public testing::EditorFixture {
  protected:
    ToolBar& standard() { return *window().findChild<ToolStrip*>()->standardBar(); }
    ToolBar& map() { return *window().findChild<ToolStrip*>()->mapBar(); }
    QToolButton& button(const char* name) {
        auto* found = window().findChild<ToolStrip*>()->findChild<QToolButton*>(name);
        if (!found) {
            throw std::runtime_error(name);
        }
        return *found;
    }
    bool checked(const char* command) { return window().commands().action(command)->isChecked(); }
    bool enabled(const char* command) { return window().commands().action(command)->isEnabled(); }
    bool overlap() { return standard().geometry().intersects(map().geometry()); }

    static QStringList buttonsOf(const ToolBar& bar) {
        QList<QToolButton*> buttons = bar.findChildren<QToolButton*>();
        std::sort(buttons.begin(), buttons.end(),
                  [](const QToolButton* a, const QToolButton* b) { return a->x() < b->x(); });
        QStringList rows;
        for (const QToolButton* each : buttons) {
            rows << each->objectName() + " > " + each->defaultAction()->objectName();
        }
        return rows;
    }
};

TEST_F(ToolBars, TheStandardBarHasItsButtonsAndTheirCommands) {
    start();
    EXPECT_EQ(buttonsOf(standard()),
              QStringList({"btnNewProject > mnuNewProject", "btnOpenProject > mnuOpenProject",
                           "btnSaveProject > mnuSaveProject", "btnUpload > mnuInvia",
                           "btnCreateHtml > mnuCrea", "btnHelp > mnuSommario"}));
}

TEST_F(ToolBars, TheMapBarHasItsButtonsAndTheirCommands) {
    start();
    EXPECT_EQ(buttonsOf(map()), QStringList({"btnUndo > mnuUndo", "btnRedo > mnuRedo",
                                             "btnStationDelete > mnuDelSymbol", "btnLock > mnuLock",
                                             "btnSymbols > mnuCollection", "btnMap > mnuOpenMap",
                                             "btnProperty > btnProperty"}));
}

TEST_F(ToolBars, EveryButtonHasAPictureAndAHint) {
    start();
    for (const QToolButton* each : window().findChild<ToolStrip*>()->findChildren<QToolButton*>()) {
        EXPECT_FALSE(each->icon().pixmap(32, 32).isNull()) << each->objectName().toStdString();
        EXPECT_FALSE(each->icon().pixmap(16, 16).isNull()) << each->objectName().toStdString();
        EXPECT_FALSE(each->toolTip().isEmpty()) << each->objectName().toStdString();
    }
}

TEST_F(ToolBars, AClickForwardsToTheCommand) {
    start();
    QTest::mouseClick(&button("btnLock"), Qt::LeftButton);
    EXPECT_TRUE(window().locked());
    EXPECT_TRUE(button("btnLock").isChecked());
    shell.expectMessage("Help not found.", Icon::Critical);
    QTest::mouseClick(&button("btnHelp"), Qt::LeftButton);
    shell.expectSaveDialog("Save project", {});
    QTest::mouseClick(&button("btnSaveProject"), Qt::LeftButton);
    shell.expectOpenDialog("Open project", {});
    QTest::mouseClick(&button("btnOpenProject"), Qt::LeftButton);
}

TEST_F(ToolBars, WithoutSettingsBothAreShownWithLargeIcons) {
    start();
    EXPECT_TRUE(standard().isVisible());
    EXPECT_TRUE(map().isVisible());
    EXPECT_TRUE(checked("mnuViewMainToolbar"));
    EXPECT_TRUE(checked("mnuViewMapToolbar"));
    EXPECT_TRUE(checked("mnuViewLargeIcons"));
    EXPECT_FALSE(checked("mnuViewSmallIcons"));
    EXPECT_EQ(button("btnHelp").iconSize(), QSize(32, 32));
}

TEST_F(ToolBars, AnythingButOneHidesABarAndMakesIconsSmall) {
    settings.set(Setting::ShowStandardBar, "0");
    settings.set(Setting::ShowMapBar, "true");
    settings.set(Setting::LargeIcons, "2");
    start();
    EXPECT_FALSE(standard().isVisible());
    EXPECT_FALSE(map().isVisible());
    EXPECT_FALSE(checked("mnuViewMainToolbar"));
    EXPECT_FALSE(checked("mnuViewMapToolbar"));
    EXPECT_TRUE(checked("mnuViewSmallIcons"));
    EXPECT_EQ(button("btnHelp").iconSize(), QSize(16, 16));
}

TEST_F(ToolBars, EachIsToggledByItsCommandAndTheSettingFollows) {
    start();
    trigger("mnuViewMainToolbar");
    EXPECT_FALSE(standard().isVisible());
    EXPECT_FALSE(checked("mnuViewMainToolbar"));
    EXPECT_EQ(settings.text(Setting::ShowStandardBar), "0");
    EXPECT_TRUE(map().isVisible());
    trigger("mnuViewMainToolbar");
    EXPECT_TRUE(standard().isVisible());
    EXPECT_TRUE(checked("mnuViewMainToolbar"));
    EXPECT_EQ(settings.text(Setting::ShowStandardBar), "1");
    trigger("mnuViewMapToolbar");
    EXPECT_FALSE(map().isVisible());
    EXPECT_EQ(settings.text(Setting::ShowMapBar), "0");
    testing::NextStart next(workspace, settings);
    EXPECT_TRUE(next.window.findChild<ToolStrip*>()->standardBar()->isVisible());
    EXPECT_FALSE(next.window.findChild<ToolStrip*>()->mapBar()->isVisible());
}

TEST_F(ToolBars, WithBothHiddenTheIconSizesAreDisabled) {
    start();
    trigger("mnuViewMainToolbar");
    EXPECT_TRUE(enabled("mnuViewLargeIcons"));
    EXPECT_TRUE(enabled("mnuViewSmallIcons"));
    trigger("mnuViewMapToolbar");
    EXPECT_FALSE(enabled("mnuViewLargeIcons"));
    EXPECT_FALSE(enabled("mnuViewSmallIcons"));
    trigger("mnuViewMainToolbar");
    EXPECT_TRUE(enabled("mnuViewLargeIcons"));
    EXPECT_TRUE(enabled("mnuViewSmallIcons"));
}

TEST_F(ToolBars, HiddenFromTheStartTheyDisableTheIconSizesToo) {
    settings.set(Setting::ShowStandardBar, "0");
    settings.set(Setting::ShowMapBar, "0");
    start();
    EXPECT_FALSE(enabled("mnuViewLargeIcons"));
    EXPECT_FALSE(enabled("mnuViewSmallIcons"));
}

TEST_F(ToolBars, TheStripIsAsHighAsTheBarsShown) {
    start();
    const int before = window().viewport().height();
    trigger("mnuViewMainToolbar");
    EXPECT_EQ(window().viewport().height(), before);
    trigger("mnuViewMapToolbar");
    EXPECT_GT(window().viewport().height(), before);
    EXPECT_EQ(window().findChild<ToolStrip*>()->height(), 0);
}

TEST_F(ToolBars, TheIconSizesExcludeEachOther) {
    start();
    trigger("mnuViewSmallIcons");
    EXPECT_TRUE(checked("mnuViewSmallIcons"));
    EXPECT_FALSE(checked("mnuViewLargeIcons"));
    EXPECT_EQ(settings.text(Setting::LargeIcons), "0");
    trigger("mnuViewLargeIcons");
    EXPECT_FALSE(checked("mnuViewSmallIcons"));
    EXPECT_TRUE(checked("mnuViewLargeIcons"));
    EXPECT_EQ(settings.text(Setting::LargeIcons), "1");
}

TEST_F(ToolBars, TheIconSizeAlreadyCheckedDoesNothing) {
    start();
    const QRect before = map().geometry();
    trigger("mnuViewLargeIcons");
    EXPECT_TRUE(checked("mnuViewLargeIcons"));
    EXPECT_FALSE(checked("mnuViewSmallIcons"));
    EXPECT_EQ(map().geometry(), before);
}

TEST_F(ToolBars, SmallIconsMakeBothBarsSmallerAndTheMapHigher) {
    start();
    const QSize large = standard().size();
    const int height = window().viewport().height();
    trigger("mnuViewSmallIcons");
    for (const QToolButton* each : window().findChild<ToolStrip*>()->findChildren<QToolButton*>()) {
        EXPECT_EQ(each->iconSize(), QSize(16, 16)) << each->objectName().toStdString();
    }
    EXPECT_LT(standard().width(), large.width());
    EXPECT_LT(standard().height(), large.height());
    EXPECT_EQ(standard().size(), standard().sizeHint());
    EXPECT_EQ(map().size(), map().sizeHint());
    EXPECT_GT(window().viewport().height(), height);
    EXPECT_FALSE(overlap());
}

TEST_F(ToolBars, LargeIconsAgainLeaveNoOverlap) {
    settings.set(Setting::LargeIcons, "0");
    start();
    EXPECT_FALSE(overlap());
    trigger("mnuViewLargeIcons");
    EXPECT_FALSE(overlap());
}

TEST_F(ToolBars, ABarShownAfterAChangeOfIconSizeDoesNotLieOnTheOther) {
    for (const char* hidden : {"mnuViewMainToolbar", "mnuViewMapToolbar"}) {
        start();
        trigger(hidden);
        trigger("mnuViewSmallIcons");
        trigger(hidden);
        EXPECT_FALSE(overlap()) << hidden;
        trigger("mnuViewLargeIcons");
        EXPECT_FALSE(overlap()) << hidden;
    }
}

TEST_F(ToolBars, SmallIconsAndLargeOnesAgainLeaveEveryBarInItsPlace) {
    settings.set(Setting::StandardBarX, "40");
    settings.set(Setting::MapBarX, "420");
    start();
    const QRect standardBefore = standard().geometry();
    const QRect mapBefore = map().geometry();
    for (int i = 0; i < 3; ++i) {
        trigger("mnuViewSmallIcons");
        EXPECT_EQ(standard().pos(), standardBefore.topLeft());
        EXPECT_FALSE(overlap());
        trigger("mnuViewLargeIcons");
        EXPECT_EQ(standard().geometry(), standardBefore);
        EXPECT_EQ(map().geometry(), mapBefore);
    }
}

TEST_F(ToolBars, BarsInTwoRowsStayInThemWhateverTheIconsSize) {
    settings.set(Setting::MapBarX, "2");
    settings.set(Setting::MapBarY, "60");
    start();
    const QRect standardBefore = standard().geometry();
    const QRect mapBefore = map().geometry();
    ASSERT_GT(mapBefore.top(), standardBefore.bottom());
    trigger("mnuViewSmallIcons");
    EXPECT_GT(map().y(), standard().geometry().bottom());
    EXPECT_EQ(map().x(), mapBefore.x());
    trigger("mnuViewLargeIcons");
    EXPECT_EQ(standard().geometry(), standardBefore);
    EXPECT_EQ(map().geometry(), mapBefore);
}

}  // namespace nubivane
