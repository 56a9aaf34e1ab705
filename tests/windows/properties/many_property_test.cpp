// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/project_edits.h"
#include "windows/canvas/many_fixture.h"
#include "windows/properties/property_fixture.h"

namespace nubivane {

/// Two symbols and two labels, all selected.
class ManyProperties : public testing::PropertyFixture {
  protected:
    void startWithAll() {
        start();
        placeSymbol({100, 100});
        placeSymbol({200, 100});
        placeLabel({100, 250});
        placeLabel({200, 250});
        trigger("mnuSelectAll");
        edits = workspace.edits().count();
    }
    int made() { return workspace.edits().count() - edits; }
    int edits = 0;
};

TEST_F(ManyProperties, WhatIsSetIsSetForAllByOneEdit) {
    startWithAll();
    withProperties([this](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmManyProperty");
        enter(dialog, "txtNote", "for the evening");
        enter(dialog, "txtHeight", "40");
        choose(dialog, "cboBorder", "Yes");
    });
    for (const cSymbol& symbol : symbols()) {
        EXPECT_EQ(symbol.Note, "for the evening");
        EXPECT_EQ(symbol.Height, 40);
        EXPECT_EQ(symbol.Width, 32);
    }
    for (const cLabel& label : labels()) {
        EXPECT_EQ(label.Note, "for the evening");
        EXPECT_EQ(label.Border, 1);
    }
    EXPECT_EQ(made(), 3);
    trigger("mnuUndo");
    trigger("mnuUndo");
    trigger("mnuUndo");
    EXPECT_EQ(symbols().Item(2).Height, 32);
    EXPECT_EQ(labels().Item(1).Note, "");
}

TEST_F(ManyProperties, WhatDiffersShowsEmptyAndStaysWhenItIsLeftAlone) {
    startWithAll();
    selection().selectAll({{SpriteKind::Symbol, symbols().Item(1).Key_}});
    withProperties([](QWidget& dialog) { enter(dialog, "txtHeight", "50"); });
    trigger("mnuSelectAll");
    withProperties([](QWidget& dialog) {
        EXPECT_EQ(text(dialog, "txtHeight"), "");
        EXPECT_EQ(text(dialog, "txtWidth"), "32");
        EXPECT_EQ(text(dialog, "txtFontSize"), "12");
    });
    EXPECT_EQ(symbols().Item(1).Height, 50);
    EXPECT_EQ(symbols().Item(2).Height, 32);
}

TEST_F(ManyProperties, ASizeThatDoesNotFitIsRefused) {
    startWithAll();
    expectInvalid();
    withProperties([](QWidget& dialog) {
        enter(dialog, "txtHeight", "5");
        EXPECT_EQ(text(dialog, "txtHeight"), "32");
    });
    EXPECT_EQ(symbols().Item(1).Height, 32);
}

TEST_F(ManyProperties, OnlyRowsOfTheKindsThatAreThereAreShown) {
    startWithAll();
    std::vector<SpriteId> all;
    for (const cLabel& label : labels()) {
        all.push_back({SpriteKind::Label, label.Key_});
    }
    selection().selectAll(all);
    withProperties([](QWidget& dialog) {
        EXPECT_FALSE(dialog.findChild<QLineEdit*>("txtHeight"));
        EXPECT_TRUE(dialog.findChild<QLineEdit*>("txtFont"));
    });
}

}  // namespace nubivane
