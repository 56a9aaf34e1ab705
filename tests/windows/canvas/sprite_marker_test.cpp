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
    qint16 type;
    bool cut;
};

}  // namespace

TEST(SpriteMarkerText, IsALetterAndControlCharacters) {
    EXPECT_EQ((SpriteMarker{sprite_type::Symbol, false}.text()), raw("S.:"));
    EXPECT_EQ((SpriteMarker{sprite_type::Label, false}.text()), raw("T.:"));
    EXPECT_EQ((SpriteMarker{sprite_type::Symbol, true}.text()), raw("S.:!"));
    EXPECT_EQ((SpriteMarker{sprite_type::Label, true}.text()), raw("T.:!"));
}

TEST(SpriteMarkerText, IsReadBackInEitherCaseAndWithWhatFollows) {
    for (const Row& row :
         {Row{"S.:", sprite_type::Symbol, false}, Row{"T.:", sprite_type::Label, false},
          Row{"S.:!", sprite_type::Symbol, true}, Row{"T.:!", sprite_type::Label, true},
          Row{"s.:", sprite_type::Symbol, false}, Row{"t.:!", sprite_type::Label, true},
          Row{"S.: and more", sprite_type::Symbol, false},
          Row{"T.:!more", sprite_type::Label, true}, Row{"T.: !", sprite_type::Label, false}}) {
        const auto marker = SpriteMarker::read(raw(row.text));
        ASSERT_TRUE(marker) << row.text;
        EXPECT_EQ(marker->type, row.type) << row.text;
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
