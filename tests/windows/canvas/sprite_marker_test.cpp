// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_marker.h"

#include <gtest/gtest.h>

namespace nubivane {

namespace {

/// "." stands for char 4, ":" for char 5, "!" for char 6.
QString raw(QString text) {
    return text.replace(u'.', QChar(4)).replace(u':', QChar(5)).replace(u'!', QChar(6));
}

struct Row {
    const char* text;
    SpriteKind kind;
    bool cut;
};

}  // namespace

TEST(SpriteMarkerText, IsALetterAndControlCharacters) {
    EXPECT_EQ((SpriteMarker{SpriteKind::Symbol, false}.text()), raw("S.:"));
    EXPECT_EQ((SpriteMarker{SpriteKind::Label, false}.text()), raw("T.:"));
    EXPECT_EQ((SpriteMarker{SpriteKind::Symbol, true}.text()), raw("S.:!"));
    EXPECT_EQ((SpriteMarker{SpriteKind::Label, true}.text()), raw("T.:!"));
}

TEST(SpriteMarkerText, IsReadBackInEitherCaseAndWithWhatFollows) {
    for (const Row& row :
         {Row{"S.:", SpriteKind::Symbol, false}, Row{"T.:", SpriteKind::Label, false},
          Row{"S.:!", SpriteKind::Symbol, true}, Row{"T.:!", SpriteKind::Label, true},
          Row{"s.:", SpriteKind::Symbol, false}, Row{"t.:!", SpriteKind::Label, true},
          Row{"S.: and more", SpriteKind::Symbol, false}, Row{"T.:!more", SpriteKind::Label, true},
          Row{"T.: !", SpriteKind::Label, false}}) {
        const auto marker = SpriteMarker::read(raw(row.text));
        ASSERT_TRUE(marker) << row.text;
        EXPECT_EQ(marker->kind, row.kind) << row.text;
        EXPECT_EQ(marker->cut, row.cut) << row.text;
    }
}

TEST(SpriteMarkerText, AnyOtherTextIsNoMarker) {
    for (const char* text : {"", "S", "S.", "S:", ".:", ".:!", "S:.", "S.!",
                             "SS.:", " S.:", "X.:", "1.:", "S ", "Sunny", "The weather"}) {
        EXPECT_FALSE(SpriteMarker::read(raw(text))) << text;
    }
}

}  // namespace nubivane
