// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/windows1252.h"

#include "support/fixtures.h"

namespace nubivane {

namespace {

/// The characters of the bytes 0x80 to 0x9F, from the published index of the code page.
const QString upperControls = QString::fromUtf8(
    "€\xC2\x81‚ƒ„…†‡ˆ‰Š‹Œ\xC2\x8DŽ\xC2\x8F"
    "\xC2\x90‘’“”•–—˜™š›œ\xC2\x9DžŸ");

}  // namespace

TEST(Windows1252, AsciiAndLatin1AreTheirOwnBytes) {
    for (int byte = 0; byte <= 0xFF; ++byte) {
        if (byte >= 0x80 && byte <= 0x9F) {
            continue;
        }
        const QString text{QChar(byte)};
        EXPECT_EQ(toWindows1252Html(text), QByteArray(1, static_cast<char>(byte))) << byte;
        EXPECT_EQ(toWindows1252Script(text), QByteArray(1, static_cast<char>(byte))) << byte;
    }
}

TEST(Windows1252, TheBytesFrom80To9FHaveCharactersOfTheirOwn) {
    ASSERT_EQ(upperControls.size(), 32);
    for (int i = 0; i < 32; ++i) {
        const QByteArray byte(1, static_cast<char>(0x80 + i));
        EXPECT_EQ(toWindows1252Html(upperControls.mid(i, 1)), byte) << i;
        EXPECT_EQ(toWindows1252Script(upperControls.mid(i, 1)), byte) << i;
    }
}

TEST(Windows1252, InAPageOtherCharactersAreDecimalReferences) {
    EXPECT_EQ(toWindows1252Html(QString::fromUtf8("a日b")), "a&#26085;b");
    EXPECT_EQ(toWindows1252Html(QString::fromUtf8("Ā")), "&#256;");
}

TEST(Windows1252, InAPageACharacterOfTwoUnitsIsOneReference) {
    EXPECT_EQ(toWindows1252Html(QString::fromUtf8("😀")), "&#128512;");
    EXPECT_EQ(toWindows1252Html(QString::fromUtf8("x😀😀y")), "x&#128512;&#128512;y");
}

TEST(Windows1252, InAScriptOtherCharactersAreEscapesOfTheirUnits) {
    EXPECT_EQ(toWindows1252Script(QString::fromUtf8("a日b")), "a\\u65E5b");
    EXPECT_EQ(toWindows1252Script(QString::fromUtf8("Ā")), "\\u0100");
    EXPECT_EQ(toWindows1252Script(QString::fromUtf8("😀")), "\\uD83D\\uDE00");
}

TEST(Windows1252, HalfACharacterIsWrittenAlone) {
    const QString high{QChar(0xD83D)};
    const QString low{QChar(0xDE00)};
    EXPECT_EQ(toWindows1252Html(high), "&#55357;");
    EXPECT_EQ(toWindows1252Html(low + high), "&#56832;&#55357;");
    EXPECT_EQ(toWindows1252Html(high + 'x'), "&#55357;x");
    EXPECT_EQ(toWindows1252Script(high), "\\uD83D");
}

TEST(Windows1252, MarkupIsLeftToTheCaller) {
    EXPECT_EQ(toWindows1252Html("<b>&\"\\u"), "<b>&\"\\u");
    EXPECT_EQ(toWindows1252Script("\\ \" '"), "\\ \" '");
}

TEST(Windows1252, AnEmptyTextIsEmpty) {
    EXPECT_EQ(toWindows1252Html(""), "");
    EXPECT_EQ(toWindows1252Script(""), "");
}

}  // namespace nubivane
