// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_store.h"
#include "windows/canvas/canvas_fixture.h"

#include <QToolButton>

namespace nubivane {

using Lock = testing::CanvasFixture;

TEST_F(Lock, APressSelectsAndDoesNotMove) {
    start();
    const QString key = placeSymbol({100, 100});
    window().clearSelection();
    workspace.ProjectChanged = false;
    trigger("mnuLock");
    drag({100, 100}, {200, 200});
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
    EXPECT_NE(selection().shpSelector(), nullptr);
    EXPECT_EQ(symbolControl(key)->rect, QRect(84, 84, 32, 32));
    EXPECT_EQ(symbolRect(key), QRect(84, 84, 32, 32));
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(Lock, APressTakesTheSelectionFromAnotherSprite) {
    start();
    placeSymbol({200, 100});
    const QString label = placeLabel({300, 100});
    trigger("mnuLock");
    click({200, 100});
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Symbol);
    click({300, 100});
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Label);
    EXPECT_EQ(selection().control(), labelControl(label));
}

TEST_F(Lock, ASecondUseOfTheCommandUnlocks) {
    start();
    const QString key = placeSymbol({100, 100});
    trigger("mnuLock");
    EXPECT_TRUE(window().locked());
    trigger("mnuLock");
    EXPECT_FALSE(window().locked());
    drag({100, 100}, {200, 200});
    EXPECT_EQ(symbolRect(key).topLeft(), QPoint(184, 184));
}

TEST_F(Lock, TheButtonShowsAndTogglesTheSameLock) {
    start();
    auto* button = window().findChild<QToolButton*>("btnLock");
    ASSERT_NE(button, nullptr);
    trigger("mnuLock");
    EXPECT_TRUE(button->isChecked());
    button->click();
    EXPECT_FALSE(window().locked());
    EXPECT_FALSE(window().commands()[Command::mnuLock]->isChecked());
}

TEST_F(Lock, AnAbsentSettingMeansUnlocked) {
    start();
    EXPECT_FALSE(window().locked());
}

struct SavedLock {
    const char* name;
    const char* saved;
    bool locked;
};

class SavedLockTest : public testing::CanvasFixture,
                      public ::testing::WithParamInterface<SavedLock> {};

TEST_P(SavedLockTest, IsRestored) {
    settings.set(Setting::Locked, GetParam().saved);
    start();
    EXPECT_EQ(window().locked(), GetParam().locked);
    EXPECT_EQ(window().findChild<QToolButton*>("btnLock")->isChecked(), GetParam().locked);
}

INSTANTIATE_TEST_SUITE_P(
    Lock, SavedLockTest,
    ::testing::Values(SavedLock{"Zero", "0", false}, SavedLock{"One", "1", true},
                      SavedLock{"MinusOne", "-1", true}, SavedLock{"AnyOtherNumber", "25", true},
                      SavedLock{"NoNumber", "yes", false}, SavedLock{"Empty", "", false}),
    [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace nubivane
