// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/plain_text.h"

#include "support/fixtures.h"

namespace nubivane::testing {

TEST(PlainText, LosesEveryControlCharacterButTabAndLineEnd) {
    QString all;
    for (char16_t c = 1; c <= 0x9F; ++c) {
        all += QChar(c);
    }
    QString kept = "\t\n\n";  // U+000A, and U+000D as a line end of its own
    for (char16_t c = 0x20; c < 0x7F; ++c) {
        kept += QChar(c);
    }
    EXPECT_EQ(plainText(all), kept);
}

TEST(PlainText, HasOneKindOfLineEnd) {
    EXPECT_EQ(plainText("a\r\nb\rc\nd\r"), "a\nb\nc\nd\n");
}

TEST(PlainText, LosesHalfSurrogatesAndNoncharacters) {
    const QString text = QString("a") + QChar(0xD83D) + "b" + QChar(0xDE00) + QChar(0xFFFE) +
                         QChar(0xFDD0) + QString::fromUcs4(U"\U0001FFFF\U0001F600");
    EXPECT_EQ(plainText(text), "ab" + QString::fromUcs4(U"\U0001F600"));
}

TEST(PlainText, ALineHasNoLineEndsAndNoOuterBlanks) {
    EXPECT_EQ(plainLine(" Heavy\r\n rain \t"), "Heavy rain");
}

TEST(PlainText, MarkupIsTextInHtml) {
    EXPECT_EQ(htmlText("</script><img src=x onerror=\"a&b\">"),
              "&lt;/script&gt;&lt;img src=x onerror=&quot;a&amp;b&quot;&gt;");
}

TEST(PlainText, NothingEndsAStringOfCss) {
    EXPECT_EQ(cssString("a\"b\\c\n</style>"), "\"a\\22 b\\5c c\\a \\3c /style\\3e \"");
}

TEST(PlainText, NamesOfFilesBecomePartsOfAddresses) {
    EXPECT_EQ(urlSegment("a b#?%&\"é/x"), "a%20b%23%3F%25%26%22%C3%A9%2Fx");
    EXPECT_EQ(urlPath("Web/a b.jpg"), "Web/a%20b.jpg");
}

}  // namespace nubivane::testing
