// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/sprites.h"

#include "engine/model/frames.h"
#include "engine/model/slot_names.h"
#include "support/fixtures.h"

#include <string_view>

namespace nubivane {

namespace {

cLabel& addLabel(cLabels& labels, qint32 fontSize = 8, qint16 border = 1) {
    return labels.add({.Name = "lblTesto",
                       .Index = 4,
                       .Frame = 3,
                       .Width = 50,
                       .Height = 20,
                       .Font = {.Name = "Arial",
                                .Size = fontSize,
                                .Bold = true,
                                .Underline = true,
                                .Strikeout = true,
                                .Color = 255},
                       .BackColor = NoColor,
                       .Border = border,
                       .BorderColor = 65280,
                       .PosX = 30,
                       .PosY = 40,
                       .Text = "a text",
                       .Note = "a note"});
}

cSymbol& addSymbol(cSymbols& symbols) {
    return symbols.add({.Name = "gifSymbol",
                        .Frame = 3,
                        .PosX = 30,
                        .PosY = 40,
                        .Width = 50,
                        .Height = 20,
                        .FileGif = "C:\\a.gif",
                        .PathFileGif = "C:\\b.gif",
                        .Index = 4,
                        .Link = "a link",
                        .Tooltip = "a tip",
                        .Note = "a note"});
}

template <class Work>
int errorNumberOf(Work work) {
    try {
        work();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

/// True when every property is empty, zero or false.
template <class Object>
bool isBlank(const Object& object) {
    bool blank = true;
    Object::forEachSlot(object, [&](const Slot&, const auto& value) {
        blank = blank && value == std::decay_t<decltype(value)>();
    });
    return blank;
}

}  // namespace

TEST(Sprites, ALabelHasItsPropertiesInOrderAndStartsBlank) {
    EXPECT_EQ(testing::slotsOf(cLabel()),
              QStringList({"Key_",          "Name",         "Type_",
                           "Index",         "Frame",        "Width",
                           "Height",        "FontName",     "FontSize",
                           "Forecolor",     "BackColor",    "Border",
                           "BorderColor",   "FontBold",     "FontItalic",
                           "FontUnderline", "FontOverline", "FontStrikethourht",
                           "PosX",          "PosY",         "Text",
                           "Note"}));
    EXPECT_TRUE(isBlank(cLabel()));
}

TEST(Sprites, ASymbolHasItsPropertiesInOrderAndStartsBlank) {
    EXPECT_EQ(testing::slotsOf(cSymbol()),
              QStringList({"Key_", "Name", "Type_", "Frame", "PosX", "PosY", "Width", "Height",
                           "FileGif", "PathFileGif", "Index", "Link", "Tooltip", "Note"}));
    EXPECT_TRUE(isBlank(cSymbol()));
}

TEST(Sprites, AddSetsEveryPropertyOfALabel) {
    cLabels labels;
    const cLabel& label = addLabel(labels, 12, 1);
    EXPECT_EQ(label.Key_, "K-1");
    EXPECT_EQ(label.Name, "lblTesto");
    EXPECT_EQ(label.Type_, 2);
    EXPECT_EQ(label.Index, 4);
    EXPECT_EQ(label.Frame, 3);
    EXPECT_EQ(label.Width, 50);
    EXPECT_EQ(label.Height, 20);
    EXPECT_EQ(label.Font.Name, "Arial");
    EXPECT_EQ(label.Font.Size, 12);
    EXPECT_EQ(label.Font.Color, 255);
    EXPECT_EQ(label.BackColor, -1);
    EXPECT_EQ(label.Border, 1);
    EXPECT_EQ(label.BorderColor, 65280);
    EXPECT_TRUE(label.Font.Bold);
    EXPECT_FALSE(label.Font.Italic);
    EXPECT_TRUE(label.Font.Underline);
    EXPECT_FALSE(label.Font.Overline);
    EXPECT_TRUE(label.Font.Strikeout);
    EXPECT_EQ(label.PosX, 30);
    EXPECT_EQ(label.PosY, 40);
    EXPECT_EQ(label.Text, "a text");
    EXPECT_EQ(label.Note, "a note");
}

TEST(Sprites, TheOtherTwoFontFlagsHaveAPlaceOfTheirOwn) {
    cLabels labels;
    const cLabel& label =
        labels.add({.Name = "lblTesto",
                    .Index = 1,
                    .Frame = 1,
                    .Width = 1,
                    .Height = 1,
                    .Font = {.Name = "Arial", .Size = 8, .Italic = true, .Overline = true},
                    .PosX = 1,
                    .PosY = 1});
    EXPECT_FALSE(label.Font.Bold);
    EXPECT_TRUE(label.Font.Italic);
    EXPECT_FALSE(label.Font.Underline);
    EXPECT_TRUE(label.Font.Overline);
    EXPECT_FALSE(label.Font.Strikeout);
}

TEST(Sprites, AddSetsEveryPropertyOfASymbol) {
    cSymbols symbols;
    const cSymbol& symbol = addSymbol(symbols);
    EXPECT_EQ(symbol.Key_, "K-1");
    EXPECT_EQ(symbol.Name, "gifSymbol");
    EXPECT_EQ(symbol.Type_, 1);
    EXPECT_EQ(symbol.Frame, 3);
    EXPECT_EQ(symbol.PosX, 30);
    EXPECT_EQ(symbol.PosY, 40);
    EXPECT_EQ(symbol.Width, 50);
    EXPECT_EQ(symbol.Height, 20);
    EXPECT_EQ(symbol.FileGif, "C:\\a.gif");
    EXPECT_EQ(symbol.PathFileGif, "C:\\b.gif");
    EXPECT_EQ(symbol.Index, 4);
    EXPECT_EQ(symbol.Link, "a link");
    EXPECT_EQ(symbol.Tooltip, "a tip");
    EXPECT_EQ(symbol.Note, "a note");
}

TEST(Sprites, AKeyFreedByRemoveIsNotIssuedAgain) {
    cLabels labels;
    EXPECT_EQ(addLabel(labels).Key_, "K-1");
    EXPECT_EQ(addLabel(labels).Key_, "K-2");
    EXPECT_EQ(addLabel(labels).Key_, "K-3");
    labels.Remove("K-2");
    EXPECT_EQ(addLabel(labels).Key_, "K-4");
    EXPECT_EQ(labels.Count(), 3);
}

TEST(Sprites, RemovalClosesTheGapAndKeysFollow) {
    cSymbols symbols;
    for (int i = 0; i < 4; ++i) {
        addSymbol(symbols);
    }
    symbols.Remove(2);
    EXPECT_EQ(symbols.Item(1).Key_, "K-1");
    EXPECT_EQ(symbols.Item(2).Key_, "K-3");
    EXPECT_EQ(symbols.Item(3).Key_, "K-4");
    EXPECT_EQ(&symbols.Item("K-4"), &symbols.Item(3));
    EXPECT_FALSE(symbols.contains("K-2"));
}

TEST(Sprites, ItemsKeepTheirAddressWhileTheyLive) {
    cSymbols symbols;
    const cSymbol* const first = &addSymbol(symbols);
    for (int i = 0; i < 100; ++i) {
        addSymbol(symbols);
    }
    symbols.Remove("K-2");
    EXPECT_EQ(&symbols.Item("K-1"), first);
}

TEST(Sprites, UnknownKeysAndPositionsAreErrors) {
    cLabels labels;
    addLabel(labels);
    EXPECT_EQ(errorNumberOf([&] { labels.Item("K-2"); }), error_number::InvalidArgument);
    EXPECT_EQ(errorNumberOf([&] { labels.Item(""); }), error_number::InvalidArgument);
    EXPECT_EQ(errorNumberOf([&] { labels.Remove("K-2"); }), error_number::InvalidArgument);
    EXPECT_EQ(errorNumberOf([&] { labels.Item(0); }), error_number::OutOfRange);
    EXPECT_EQ(errorNumberOf([&] { labels.Item(-1); }), error_number::OutOfRange);
    EXPECT_EQ(errorNumberOf([&] { labels.Item(2); }), error_number::OutOfRange);
    EXPECT_EQ(errorNumberOf([&] { labels.Remove(2); }), error_number::OutOfRange);
    EXPECT_EQ(labels.Count(), 1);
}

TEST(Sprites, ASymbolAndALabelOfOneFrameBothGetK1) {
    cSprites sprites;
    cSymbol* const symbol = &addSymbol(sprites.Symbols());
    cLabel* const label = &addLabel(sprites.Labels());
    EXPECT_EQ(symbol->Key_, "K-1");
    EXPECT_EQ(label->Key_, "K-1");
    EXPECT_EQ(std::get<cSymbol*>(sprites.find({SpriteKind::Symbol, "K-1"})), symbol);
    EXPECT_EQ(std::get<cLabel*>(sprites.find({SpriteKind::Label, "K-1"})), label);
}

TEST(Sprites, ASpriteThatIsNotThereIsNotFound) {
    cSprites sprites;
    addSymbol(sprites.Symbols());
    EXPECT_TRUE(std::holds_alternative<std::monostate>(sprites.find({SpriteKind::Label, "K-1"})));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(sprites.find({SpriteKind::Symbol, "K-2"})));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(sprites.find({})));
}

TEST(Sprites, ItemGivesTheSymbolEvenWhenALabelHasTheKeyToo) {
    cSprites sprites;
    addLabel(sprites.Labels());
    cSymbol* const symbol = &addSymbol(sprites.Symbols());
    EXPECT_EQ(&sprites.Item("K-1"), symbol);
}

TEST(Sprites, ItemOfALabelsKeyAloneIsAnError) {
    cSprites sprites;
    addLabel(sprites.Labels());
    EXPECT_EQ(errorNumberOf([&] { sprites.Item("K-1"); }), error_number::InvalidArgument);
}

TEST(Sprites, CountIsThatOfSymbolsAndLabelsTogether) {
    cSprites sprites;
    EXPECT_EQ(sprites.Count(), 0);
    addLabel(sprites.Labels());
    addSymbol(sprites.Symbols());
    addSymbol(sprites.Symbols());
    EXPECT_EQ(sprites.Count(), 3);
}

TEST(Sprites, RemovaAllOnNoSpritesDoesNothing) {
    cSprites sprites;
    sprites.RemovaAll();
    EXPECT_EQ(sprites.Count(), 0);
    EXPECT_EQ(addLabel(sprites.Labels()).Key_, "K-1");
}

TEST(Sprites, AfterRemovaAllTheKeyCountersGoOn) {
    cSprites sprites;
    addLabel(sprites.Labels());
    addSymbol(sprites.Symbols());
    addSymbol(sprites.Symbols());
    sprites.RemovaAll();
    EXPECT_EQ(sprites.Count(), 0);
    EXPECT_EQ(addLabel(sprites.Labels()).Key_, "K-2");
    EXPECT_EQ(addSymbol(sprites.Symbols()).Key_, "K-3");
}

TEST(Sprites, AddedCopiesHaveEveryPropertyOfTheirSourceButTheKey) {
    cLabels labels;
    addLabel(labels).Index = 9;
    const cLabel copy = labels.Item(1);
    EXPECT_EQ(copy.Key_, "K-1");
    const cLabel& added = labels.add(copy);
    EXPECT_EQ(added.Key_, "K-2");
    QStringList ofSource;
    QStringList ofAdded;
    const auto write = [](QStringList& list) {
        return [&list](const Slot& slot, const auto& value) {
            if (slot.name == std::string_view("Key_")) {
                return;
            }
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, QString>) {
                list += value;
            } else {
                list += QString::number(value);
            }
        };
    };
    cLabel::forEachSlot(labels.Item(1), write(ofSource));
    cLabel::forEachSlot(added, write(ofAdded));
    EXPECT_EQ(ofAdded, ofSource);
    EXPECT_EQ(labels.Count(), 2);
}

TEST(Sprites, ACopyOfASymbolIsASymbolOfItsOwn) {
    cSymbols symbols;
    const cSymbol& source = addSymbol(symbols);
    cSymbol copy = source;
    copy.PosX = 1000;
    EXPECT_EQ(source.PosX, 30);
    EXPECT_EQ(copy.Key_, "K-1");
    EXPECT_EQ(copy.Type_, 1);
    EXPECT_EQ(copy.PathFileGif, "C:\\b.gif");
    EXPECT_EQ(copy.Tooltip, "a tip");
    EXPECT_EQ(symbols.Count(), 1);
}

TEST(Sprites, TheListDecidesOnKeyAndType) {
    cLabels labels;
    cSymbols symbols;
    EXPECT_EQ(labels.add({.Key_ = "mine", .Type_ = 7}).Key_, "K-1");
    EXPECT_EQ(labels.Item("K-1").Type_, sprite_type::Label);
    EXPECT_EQ(symbols.add({.Key_ = "mine", .Type_ = 7}).Key_, "K-1");
    EXPECT_EQ(symbols.Item("K-1").Type_, sprite_type::Symbol);
}

TEST(Sprites, AWalkGoesInTheOrderOfAdd) {
    cSymbols symbols;
    for (int i = 0; i < 3; ++i) {
        addSymbol(symbols);
    }
    symbols.Remove(1);
    QStringList keys;
    for (const cSymbol& symbol : symbols) {
        keys += symbol.Key_;
    }
    EXPECT_EQ(keys, QStringList({"K-2", "K-3"}));
}

}  // namespace nubivane
