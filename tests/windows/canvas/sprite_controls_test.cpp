// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

#include <QFile>

namespace nubivane {

using testing::isNearly;
using SpriteControls = testing::CanvasFixture;

TEST_F(SpriteControls, ASymbolWhoseFileIsMissingIsNotShownAndStaysInTheModel) {
    start();
    const QString key = placeSymbol({100, 100});
    trigger("mnuFrameInsert");
    QFile::rename(host("Symbols/set-1/sun.gif"), host("Symbols/set-1/away.gif"));
    selectTab(1);
    EXPECT_EQ(symbolControl(key), nullptr);
    EXPECT_EQ(symbols().Count(), 1);

    selectTab(2);
    QFile::rename(host("Symbols/set-1/away.gif"), host("Symbols/set-1/sun.gif"));
    selectTab(1);
    ASSERT_NE(symbolControl(key), nullptr);
    EXPECT_EQ(symbolControl(key)->rect, QRect(84, 84, 32, 32));
}

TEST_F(SpriteControls, AnIndexThatAnExportHasRewrittenLeavesNoControlBehind) {
    start();
    const QString symbol = placeSymbol({100, 100});
    const QString label = placeLabel({200, 100});
    // An export counts the sprites of its own stage into the same property.
    symbols().Item(symbol).Index = 7;
    labels().Item(label).Index = 9;
    trigger("mnuFrameInsert");
    EXPECT_TRUE(sprites().controls().empty());
    EXPECT_EQ(frame(1).Sprites().Count(), 2);
}

TEST_F(SpriteControls, AFrameWithAMissingSymbolUnloadsWhollyWhenLeft) {
    start();
    placeSymbol({100, 100}, "sun.gif");
    placeSymbol({200, 100}, "rain.gif");
    placeSymbol({300, 100}, "snow.gif");
    trigger("mnuFrameInsert");
    QFile::remove(host("Symbols/set-1/rain.gif"));
    selectTab(1);
    EXPECT_EQ(sprites().gifSymbol().upperBound(), 2);
    selectTab(2);
    EXPECT_EQ(sprites().gifSymbol().upperBound(), 0);
    EXPECT_TRUE(sprites().controls().empty());
}

TEST_F(SpriteControls, ASymbolFileThatIsNoPictureDoesNotStopTheSpritesBehindIt) {
    start();
    placeSymbol({100, 100}, addStill("broken.png", {10, 10}));
    const QString behind = placeSymbol({200, 100}, "rain.gif");
    const QString label = placeLabel({300, 100});
    trigger("mnuFrameInsert");
    testing::writeFile(host("Symbols/set-1/broken.png"), "no picture");
    selectTab(1);
    EXPECT_NE(symbolControl(behind), nullptr);
    EXPECT_NE(labelControl(label), nullptr);
    EXPECT_TRUE(isNearly(shown({100, 100}), Qt::cyan));
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(SpriteControls, LabelsLieAboveSymbolsWhateverCameFirst) {
    start();
    placeLabel({100, 100});
    placeSymbol({100, 100});
    EXPECT_EQ(sprites().at({100, 100})->id.kind, SpriteKind::Symbol);
    trigger("mnuFrameInsert");
    selectTab(1);
    EXPECT_EQ(sprites().at({100, 100})->id.kind, SpriteKind::Label);
}

TEST_F(SpriteControls, ALaterSymbolLiesAboveAnEarlierOne) {
    start();
    placeSymbol({100, 100}, addStill("red.png", {40, 40}, Qt::red));
    placeSymbol({110, 100}, addStill("blue.png", {40, 40}, Qt::blue));
    window().clearSelection();
    EXPECT_EQ(shown({110, 100}), QColor(Qt::blue));
    EXPECT_EQ(shown({85, 100}), QColor(Qt::red));
    trigger("mnuFrameInsert");
    selectTab(1);
    EXPECT_EQ(shown({110, 100}), QColor(Qt::blue));
}

TEST_F(SpriteControls, TheSelectionFrameLiesAboveAllSprites) {
    start();
    const QString below = placeSymbol({100, 100}, addStill("red.png", {40, 40}, Qt::red));
    placeSymbol({140, 140}, addStill("blue.png", {90, 90}, Qt::blue));
    window().clearSelection();
    click({85, 85});
    ASSERT_EQ(workspace.Status.CurrentShapeControlKey, below);
    // The handle at the frame's lower right corner, on the upper symbol.
    EXPECT_EQ(shown(selection().shpSelector()->rect().bottomRight()), QColor(Qt::white));
    EXPECT_EQ(shown({170, 170}), QColor(Qt::blue));
}

TEST_F(SpriteControls, ASymbolIsStretchedToItsSizeInTheModel) {
    start();
    const QString key = placeSymbol({100, 100}, addStill("red.png", {10, 10}, Qt::red));
    trigger("mnuFrameInsert");
    symbols().Item(key).Width = 60;
    symbols().Item(key).Height = 40;
    selectTab(1);
    EXPECT_EQ(shown({150, 130}), QColor(Qt::red));
    EXPECT_TRUE(isNearly(shown({160, 130}), Qt::cyan));
}

TEST_F(SpriteControls, ATransparentLabelShowsTheMapAndAnOpaqueOneItsGround) {
    start();
    const QString key = placeLabel({100, 100});
    window().clearSelection();
    const QPoint corner = labelControl(key)->rect.topLeft();
    EXPECT_TRUE(isNearly(shown(corner), Qt::cyan));
    trigger("mnuFrameInsert");
    labels().Item(key).BackColor = 0x0000FF;
    selectTab(1);
    EXPECT_EQ(shown(corner), QColor(Qt::red));
}

TEST_F(SpriteControls, ALabelsSizeOnTheMapFollowsItsText) {
    start();
    const QString key = placeLabel({100, 100});
    const QSize before = labelControl(key)->rect.size();
    trigger("mnuFrameInsert");
    labels().Item(key).Text = "A much longer label";
    labels().Item(key).Font.Size = 24;
    selectTab(1);
    EXPECT_GT(labelControl(key)->rect.width(), 2 * before.width());
    EXPECT_GT(labelControl(key)->rect.height(), before.height() + 8);
    EXPECT_EQ(labels().Item(key).Width, 26);
}

TEST_F(SpriteControls, UnloadingLeavesTheModelAlone) {
    start();
    placeSymbol({100, 100});
    trigger("mnuFrameInsert");
    placeLabel({100, 100});
    window().clearSelection();
    sprites().unloadAllSprites();
    EXPECT_TRUE(sprites().controls().empty());
    EXPECT_EQ(workspace.Frames().NumSprite(), 2);
}

TEST_F(SpriteControls, LoadingAFrameThatDoesNotExistMakesNothing) {
    start();
    sprites().loadFrameSprites(0);
    sprites().loadFrameSprites(2);
    EXPECT_TRUE(sprites().controls().empty());
}

}  // namespace nubivane
