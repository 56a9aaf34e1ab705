// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/help_book.h"

#include "engine/core/error.h"
#include "support/built_help.h"

namespace nubivane::testing {

namespace {

QStringList lines(const std::vector<HelpEntry>& entries) {
    QStringList texts;
    for (const HelpEntry& entry : entries) {
        texts << QString::number(entry.depth) + ' ' + entry.title + '|' + entry.page;
    }
    return texts;
}

QStringList pagesOf(const std::vector<HelpHit>& hits) {
    QStringList pages;
    for (const HelpHit& hit : hits) {
        pages << hit.page;
    }
    return pages;
}

QString object(const QString& parameters) {
    return "<LI><OBJECT type=\"text/sitemap\">" + parameters + "</OBJECT>";
}

}  // namespace

TEST(SiteMap, LinesHaveTheDepthOfTheirLists) {
    const QString html =
        "<HTML><BODY><ul>" +
        object("<param name=\"Name\" value=\"A\"><param name=\"Local\" value=\"a.htm\">") + "<UL>" +
        object("<param name='Name' value='B &amp; C'><param name='Local' value='b.htm#there'>") +
        "</UL>" + object("<param name=Name value=D>") + "</ul>";
    EXPECT_EQ(lines(readSiteMap(html)), QStringList({"0 A|a.htm", "1 B & C|b.htm#there", "0 D|"}));
}

TEST(SiteMap, TheWordOfAnIndexIsTheFirstName) {
    const QString html =
        "<UL>" + object(
                     "<param name=\"Name\" value=\"word\"><param name=\"Name\" value=\"title of "
                     "a page\"><param name=\"Local\" value=\"a.htm\"><param name=\"Name\" "
                     "value=\"another\"><param name=\"Local\" value=\"b.htm\">");
    EXPECT_EQ(lines(readSiteMap(html)), QStringList("0 word|a.htm"));
}

TEST(SiteMap, WhatIsNoLineIsPassedOver) {
    EXPECT_EQ(lines(readSiteMap("")), QStringList());
    EXPECT_EQ(lines(readSiteMap("<p>text</p></ul></ul>")), QStringList());
    EXPECT_EQ(lines(readSiteMap("<UL>" + object("<param name=\"Local\" value=\"a.htm\">"))),
              QStringList());
    // The settings of a contents file stand before its list.
    EXPECT_EQ(lines(readSiteMap("<OBJECT type=\"text/site properties\"><param name=\"Name\" "
                                "value=\"x\"></OBJECT>")),
              QStringList());
}

TEST(SiteMap, DepthAndNumberHaveBounds) {
    const QString line = object("<param name=\"Name\" value=\"x\">");
    const auto deep = readSiteMap(QString("<ul>").repeated(5000) + line);
    ASSERT_EQ(deep.size(), 1U);
    EXPECT_EQ(deep.front().depth, 16);
    EXPECT_EQ(readSiteMap("<ul>" + line.repeated(10100)).size(), 10000U);
}

TEST(References, StandForTheirCharacters) {
    EXPECT_EQ(withoutReferences("a &lt;b&gt; &amp;amp; &quot;c&quot;"), "a <b> &amp; \"c\"");
    EXPECT_EQ(withoutReferences("&#65;&#x42;&#xe9;"), QStringLiteral("AB\u00e9"));
    EXPECT_EQ(withoutReferences("&unknown; &#0; &#xD800; &#x110000; & &;"),
              "&unknown; &#0; &#xD800; &#x110000; & &;");
}

TEST(PageText, IsWhatAReaderSees) {
    const QString html =
        "<html><head><title>A &amp; B</title><style>p {}</style></head><body><h1>One</h1>\n"
        "<p>t<b>wo</b> <i>three</i></p><p>four&nbsp;five</p></body></html>";
    EXPECT_EQ(pageTitle(html), "A & B");
    EXPECT_EQ(pageText(html), "two three four five");
    EXPECT_EQ(pageTitle("<p>x</p>"), "");
}

TEST(PageText, OfAPageThatIsNoneTakesNoTime) {
    constexpr int Many = 100000;
    for (const char* part : {"<", "<h1", "<head", "<b", "<!--", "&", "&#", "<title>"}) {
        const QString html = QString(part).repeated(Many);
        EXPECT_LE(pageText(html).size(), html.size()) << part;
        EXPECT_EQ(pageTitle(html), "") << part;
        EXPECT_TRUE(readSiteMap(html).empty()) << part;
    }
    EXPECT_TRUE(readSiteMap("<param " + QString("name=\"").repeated(Many) + '>').empty());
}

TEST(SearchWords, ArePartedByAnythingElse) {
    EXPECT_EQ(searchWords(" Symbol,  MAP-symbol  "), QStringList({"symbol", "map"}));
    EXPECT_EQ(searchWords(" ,.- "), QStringList());
}

class BuiltBook : public ::testing::Test {
  protected:
    const HelpBook book{builtHelp()};
};

TEST_F(BuiltBook, AllWordsMustBeThere) {
    const QStringList both = pagesOf(book.search("polygon corners"));
    EXPECT_EQ(both, QStringList("Drawing.htm"));
    EXPECT_TRUE(book.search("polygon xyzzy").empty());
    EXPECT_TRUE(book.search("").empty());
    EXPECT_TRUE(book.search("?!").empty());
}

TEST_F(BuiltBook, WordsAreFoundByTheirBeginningInAnyCase) {
    EXPECT_TRUE(pagesOf(book.search("POLYG")).contains("Drawing.htm"));
    EXPECT_TRUE(book.search("olygon").empty());
}

TEST_F(BuiltBook, APageWithTheWordInItsTitleComesFirst) {
    EXPECT_EQ(pagesOf(book.search("drawing")).first(), "Drawing.htm");
    EXPECT_EQ(pagesOf(book.search("printing")).first(), "Printing.htm");
}

TEST_F(BuiltBook, AnExcerptHoldsTheWord) {
    for (const HelpHit& hit : book.search("certificate")) {
        EXPECT_TRUE(hit.excerpt.contains("certificate", Qt::CaseInsensitive))
            << hit.excerpt.toStdString();
        EXPECT_LE(hit.excerpt.size(), 150);
        EXPECT_FALSE(hit.title.isEmpty());
    }
    EXPECT_FALSE(book.search("certificate").empty());
}

TEST(HelpBookFile, WithoutAFileThereIsNoBook) {
    const TemporaryFolder folder;
    EXPECT_THROW(HelpBook(folder.file("missing.chm")), Error);
    writeFile(folder.file("empty.chm"), "");
    EXPECT_THROW(HelpBook(folder.file("empty.chm")), Error);
}

}  // namespace nubivane::testing
