// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

namespace nubivane {

using NewSprites = testing::CanvasFixture;

TEST_F(NewSprites, ADropAtTheFarCornerKeepsTheControlInside) {
    start();
    const QString key = placeSymbol({499, 399});
    EXPECT_EQ(symbolControl(key)->rect, QRect(502 - 32, 402 - 32, 32, 32));
    EXPECT_EQ(symbolRect(key).topLeft(), QPoint(483, 383));
    EXPECT_EQ(selection().shpSelector()->rect(), QRect(462, 362, 48, 48));
}

TEST_F(NewSprites, AfterAFrameChangeTheModelsPositionBeforeTheClampStandsOnScreen) {
    start();
    const QString key = placeSymbol({2, 3});
    trigger("mnuFrameInsert");
    selectTab(1);
    EXPECT_EQ(symbolControl(key)->rect.topLeft(), QPoint(-14, -13));
}

TEST_F(NewSprites, ANewSymbolsFieldsAreThoseOfItsFile) {
    start();
    const QString key = placeSymbol({200, 150}, addStill("odd.png", {35, 21}));
    const cSymbol& symbol = symbols().Item(key);
    EXPECT_EQ(symbol.Name, "gifSymbol");
    EXPECT_EQ(symbol.Index, symbolControl(key)->Index);
    EXPECT_EQ(symbol.Type_, sprite_type::Symbol);
    EXPECT_EQ(symbolRect(key), QRect(200 - 17, 150 - 10, 35, 21));
    EXPECT_EQ(symbol.FileGif, model("Symbols/set-1/odd.png"));
    EXPECT_EQ(symbol.PathFileGif, model("Symbols/set-1/odd.png"));
    EXPECT_EQ(symbol.Link + symbol.Tooltip + symbol.Note, "");
    EXPECT_EQ(symbolControl(key)->id, (SpriteId{SpriteKind::Symbol, key}));
}

TEST_F(NewSprites, ANewLabelsOtherFieldsAreTheDefaults) {
    start();
    const QString key = placeLabel({200, 150});
    const cLabel& label = labels().Item(key);
    EXPECT_EQ(label.Name, "lblTesto");
    EXPECT_EQ(label.Index, labelControl(key)->Index);
    EXPECT_EQ(label.Type_, sprite_type::Label);
    EXPECT_FALSE(label.Font.Bold || label.Font.Italic || label.Font.Underline ||
                 label.Font.Overline || label.Font.Strikeout);
    EXPECT_EQ(label.Border, 0);
    EXPECT_EQ(label.BorderColor, 0);
    EXPECT_EQ(label.Note, "");
    EXPECT_EQ(labelControl(key)->id, (SpriteId{SpriteKind::Label, key}));
}

TEST_F(NewSprites, ALabelIsCentredByItsSizeOnScreen) {
    start();
    const QString key = placeLabel({200, 150});
    const QSize size = labelControl(key)->rect.size();
    EXPECT_EQ(labelPosition(key), QPoint(200 - size.width() / 2, 150 - size.height() / 2));
    EXPECT_EQ(labelControl(key)->rect.topLeft(), labelPosition(key));
}

TEST_F(NewSprites, ANewSpriteTakesTheSelectionAndMarksTheProjectChanged) {
    start();
    placeSymbol({100, 100});
    workspace.ProjectChanged = false;
    const QString label = placeLabel({300, 100});
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Label);
    EXPECT_EQ(selection().control(), labelControl(label));
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(NewSprites, ANewSpriteGoesToTheFrameOnTheCanvas) {
    start();
    trigger("mnuFrameInsert");
    placeSymbol({100, 100});
    EXPECT_EQ(symbols(1).Count(), 0);
    ASSERT_EQ(symbols(2).Count(), 1);
    EXPECT_EQ(symbols(2).Item(1).Frame, 2);
}

TEST_F(NewSprites, APayloadThatIsNeitherSymbolNorTextDoesNothing) {
    start();
    placeSymbol({100, 100});
    workspace.ProjectChanged = false;
    const QString picture = model("Symbols/set-1/sun.gif");
    for (const QString& payload :
         {QString(), QString("|"), QString("picture|") + picture, picture, QString("symbols|x"),
          QString("Symbol|") + picture, QString("texts")}) {
        drop(payload, {200, 200});
    }
    EXPECT_EQ(frame().Sprites().Count(), 1);
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Symbol);
}

TEST_F(NewSprites, ASymbolPayloadWithoutAFileIsNotFound) {
    start();
    shell.expectMessage("Symbol not found.", Icon::Critical);
    drop("symbol", {200, 150});
    EXPECT_EQ(frame().Sprites().Count(), 0);
}

TEST_F(NewSprites, AFailedDropKeepsTheSelection) {
    start();
    const QString key = placeSymbol({100, 100});
    shell.expectMessage("Symbol not found.", Icon::Critical);
    drop("symbol|" + model("Symbols/set-1/gone.gif"), {200, 150});
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
}

TEST_F(NewSprites, AFileThatIsNoPictureAddsNothingAndTheNextDropWorks) {
    start();
    testing::writeFile(host("Symbols/set-1/broken.gif"), "no picture");
    placeSymbol({200, 150}, "broken.gif");
    EXPECT_EQ(frame().Sprites().Count(), 0);
    EXPECT_TRUE(sprites().controls().empty());
    EXPECT_FALSE(workspace.ProjectChanged);
    placeSymbol({200, 150});
    EXPECT_EQ(frame().Sprites().Count(), 1);
}

TEST_F(NewSprites, KeysOfSymbolsAndLabelsCountApart) {
    start();
    EXPECT_EQ(placeSymbol({100, 100}), "K-1");
    EXPECT_EQ(placeLabel({200, 100}), "K-1");
    EXPECT_EQ(placeSymbol({300, 100}), "K-2");
}

}  // namespace nubivane
