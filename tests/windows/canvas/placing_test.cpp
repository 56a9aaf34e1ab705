// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

namespace nubivane {

using Placing = testing::EditorFixture;

TEST_F(Placing, ANewLabelSaysLabelInArial12BlackOnTransparentGround) {
    start();
    const QString key = placeLabel({200, 150});
    const cLabel& label = frame().Sprites().Labels().Item(key);
    EXPECT_EQ(label.Text, "Label");
    EXPECT_EQ(label.Font.Name, "Arial");
    EXPECT_EQ(label.Font.Size, 12);
    EXPECT_EQ(label.Font.Color, 0);
    EXPECT_EQ(label.BackColor, NoColor);
    EXPECT_EQ(label.Height, 14);
    EXPECT_EQ(label.Width, 26);
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(Placing, ASymbolLandsCentredOnThePointerAndIsSelected) {
    start();
    const QString key = placeSymbol({200, 150});
    const cSymbol& symbol = frame().Sprites().Symbols().Item(key);
    EXPECT_EQ(QPoint(symbol.PosX, symbol.PosY), QPoint(184, 134));
    EXPECT_EQ(QSize(symbol.Width, symbol.Height), QSize(32, 32));
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Symbol);
}

TEST_F(Placing, ASymbolWhoseFileHasJustBeenDeletedShowsItsTextAndAddsNothing) {
    start();
    shell.expectMessage("Symbol not found.", Icon::Critical);
    drop("symbol|" + model("Symbols/set-1/gone.gif"), {200, 150});
    EXPECT_EQ(frame().Sprites().Symbols().Count(), 0);
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(Placing, ADropAtTheMapsCornerKeepsTheControlInside) {
    start();
    const QString key = placeSymbol({2, 3});
    EXPECT_EQ(window().canvas().sprites().find({SpriteKind::Symbol, key})->rect,
              QRect(0, 0, 32, 32));
    // The model keeps the place before the clamp.
    const cSymbol& symbol = frame().Sprites().Symbols().Item(key);
    EXPECT_EQ(QPoint(symbol.PosX, symbol.PosY), QPoint(-14, -13));
}

}  // namespace nubivane
