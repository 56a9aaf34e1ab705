// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QMenuBar>

namespace nubivane {

/// While a project is read or written nobody may change it.
class InputBlockTest : public testing::EditorFixture {
  protected:
    ~InputBlockTest() override { workspace.ProjectChanged = false; }

    void block() { window().setEnabled(false); }
    void unblock() { window().setEnabled(true); }
};

TEST_F(InputBlockTest, ClicksOnTheMapAreLost) {
    start();
    placeSymbol({100, 100});
    click({400, 300});
    ASSERT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::None);
    block();
    click({100, 100});
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::None);
    unblock();
    click({100, 100});
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Symbol);
}

TEST_F(InputBlockTest, KeysAndShortcutsAreLost) {
    start();
    placeSymbol({100, 100});
    const qint32 left = frame().Sprites().Symbols().Item(1).PosX;
    canvas().setFocus();
    block();
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_N, Qt::ControlModifier);  // would ask to save first
    EXPECT_EQ(frame().Sprites().Symbols().Item(1).PosX, left);
    unblock();
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(frame().Sprites().Symbols().Item(1).PosX, left + 1);
}

TEST_F(InputBlockTest, DropsAreLost) {
    start();
    block();
    placeLabel({100, 100});
    EXPECT_EQ(frame().Sprites().Labels().Count(), 0);
}

TEST_F(InputBlockTest, TheCloseBoxDoesNothing) {
    start();
    block();
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(window().isVisible());
}

TEST_F(InputBlockTest, NothingTurnsGreyAndTheKeyboardStaysWhereItWas) {
    start();
    canvas().setFocus();
    block();
    EXPECT_TRUE(window().menuBar()->isEnabled());
    EXPECT_TRUE(canvas().isEnabled());
    unblock();
    EXPECT_EQ(window().focusWidget(), &canvas());
}

}  // namespace nubivane
