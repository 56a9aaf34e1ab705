// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_payload.h"

#include <gtest/gtest.h>

namespace nubivane {

TEST(SpritePayloadText, NamesTheKindAndASymbolsFile) {
    EXPECT_EQ((SpritePayload{sprite_type::Symbol, "C:\\a\\sun.gif"}.text()),
              "symbol|C:\\a\\sun.gif");
    EXPECT_EQ((SpritePayload{sprite_type::Label, {}}.text()), "text");
}

TEST(SpritePayloadText, IsReadBack) {
    const auto symbol = SpritePayload::read("symbol|C:\\a\\sun.gif");
    ASSERT_TRUE(symbol);
    EXPECT_EQ(symbol->type, sprite_type::Symbol);
    EXPECT_EQ(symbol->file, "C:\\a\\sun.gif");
    const auto label = SpritePayload::read("text");
    ASSERT_TRUE(label);
    EXPECT_EQ(label->type, sprite_type::Label);
    EXPECT_EQ(label->file, "");
}

TEST(SpritePayloadText, EndsAFileAtTheNextBar) {
    EXPECT_EQ(SpritePayload::read("symbol|a.gif|b.gif")->file, "a.gif");
    EXPECT_EQ(SpritePayload::read("symbol|")->file, "");
    EXPECT_EQ(SpritePayload::read("text|more")->type, sprite_type::Label);
}

TEST(SpritePayloadText, WithoutAFileNamesItself) {
    EXPECT_EQ(SpritePayload::read("symbol")->file, "symbol");
}

TEST(SpritePayloadText, IsNothingElse) {
    for (const char* text : {"", "|", "symbols|a.gif", "Symbol|a.gif", "TEXT", " text", "text ",
                             "|symbol|a.gif", "file:///a.gif", "S\x04\x05"}) {
        EXPECT_FALSE(SpritePayload::read(text)) << text;
    }
}

}  // namespace nubivane
