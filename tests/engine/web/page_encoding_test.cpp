// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_fixture.h"

namespace nubivane::testing {

namespace {

class PageEncoding : public SiteTest {
  protected:
    PageEncoding() { useFrames(2); }

    QByteArray pageWithTitle(const QString& text) {
        workspace.Frames().Item(1).Texts().Forecast().Title().Text = text;
        EXPECT_TRUE(createPage(editor()));
        return readFile(host("Forecast.htm"));
    }

    /// The script of a slider page whose first Frame has a caption.
    QByteArray scriptWithCaption(const QString& caption) {
        workspace.Frames().Item(1).Texts().Label = caption;
        EXPECT_TRUE(createPage(editor(), PageType::Slider));
        return readFile(host("Forecast.js"));
    }
};

}  // namespace

TEST_F(PageEncoding, LettersOfTheCodePageAreOneByteEach) {
    EXPECT_TRUE(pageWithTitle("M\u00e9t\u00e9o \u20ac \u2019 \u0160")
                    .contains("\">M\xE9t\xE9o \x80 \x92 \x8A</DIV>"));
}

TEST_F(PageEncoding, OtherLettersBecomeDecimalReferencesInThePage) {
    EXPECT_TRUE(pageWithTitle("\u03a9 \u4eca").contains("\">&#937; &#20170;</DIV>"));
}

TEST_F(PageEncoding, ACharacterOfTwoUnitsBecomesOneReference) {
    EXPECT_TRUE(
        pageWithTitle(QString::fromUtf8("\xF0\x9F\x98\x80")).contains("\">&#128512;</DIV>"));
}

TEST_F(PageEncoding, HalfACharacterIsKeptAsItsNumber) {
    EXPECT_TRUE(pageWithTitle(QString(QChar(0xD83D))).contains("\">&#55357;</DIV>"));
}

TEST_F(PageEncoding, OtherLettersBecomeEscapesInTheScript) {
    const QByteArray script = scriptWithCaption(QString::fromUtf8("\xCE\xA9 \xF0\x9F\x98\x80"));
    EXPECT_TRUE(script.contains("var labelTick = ['\\u03A9 \\uD83D\\uDE00',"));
}

TEST_F(PageEncoding, LettersOfTheCodePageStayBytesInTheScript) {
    EXPECT_TRUE(scriptWithCaption("M\u00e9t\u00e9o").contains("['M\xE9t\xE9o',"));
}

TEST_F(PageEncoding, TheNameOfThePageMayHaveAccents) {
    settings.set(Setting::PageFilename, "M\u00e9t\u00e9o");
    ASSERT_TRUE(createPage(editor()));
    EXPECT_TRUE(readFile(host("M\u00e9t\u00e9o.htm")).contains("src=\"M\xE9t\xE9o.js\""));
    EXPECT_EQ(webFiles(), QStringList({"M\u00e9t\u00e9o1.jpg", "M\u00e9t\u00e9o2.jpg"}));
}

}  // namespace nubivane::testing
