// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/help_book.h"
#include "support/built_help.h"

#include <QDirIterator>
#include <QImage>
#include <QRegularExpression>
#include <QSet>

namespace nubivane::testing {

namespace {

QSet<QString> found(const QString& text, const char* pattern) {
    QSet<QString> names;
    auto matches = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (matches.hasNext()) {
        names += matches.next().captured(1);
    }
    return names;
}

class HelpContent : public ::testing::Test {
  protected:
    QString html(const QString& page) const { return QString::fromUtf8(book.read(page)); }

    const HelpBook book{builtHelp()};
};

}  // namespace

TEST_F(HelpContent, HasEveryTopicThatTheProgramNames) {
    QSet<QString> topics;
    QDirIterator sources(NUBIVANE_SOURCES "/src", {"*.cpp", "*.h"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const QString text = QString::fromUtf8(readFile(sources.next()));
        topics += found(text, "\"([A-Za-z]+\\.htm)\"");
    }
    EXPECT_GE(topics.size(), 19);
    for (const QString& topic : topics) {
        EXPECT_TRUE(book.pages().contains(topic)) << topic.toStdString();
    }
}

TEST_F(HelpContent, HasTheTopicsOfTheHelpButtons) {
    for (const char* topic :
         {"index.htm", "PageSettings.htm", "ftpSettings.htm", "exportAniGif.htm",
          "exportAnimation.htm", "exportAvi.htm", "SymbolCollections.htm", "MapSelection.htm"}) {
        EXPECT_TRUE(book.pages().contains(topic)) << topic;
    }
}

TEST_F(HelpContent, TheContentsListEveryPageOnce) {
    QStringList listed;
    for (const HelpEntry& entry : book.contents()) {
        if (!entry.page.isEmpty()) {
            listed << entry.page;
            EXPECT_EQ(entry.title, pageTitle(html(entry.page))) << entry.page.toStdString();
        }
    }
    QStringList pages = book.pages();
    listed.sort();
    pages.sort();
    EXPECT_EQ(listed, pages);
    EXPECT_EQ(book.contents().front().page, "index.htm");
}

TEST_F(HelpContent, EveryPageIsInTheIndexUnderWordsOfItsOwn) {
    QSet<QString> pages;
    QSet<QString> words;
    for (const HelpEntry& entry : book.index()) {
        EXPECT_TRUE(book.contains(entry.page)) << entry.title.toStdString();
        EXPECT_FALSE(words.contains(entry.title.toLower())) << entry.title.toStdString();
        words += entry.title.toLower();
        pages += entry.page;
    }
    EXPECT_EQ(pages, QSet<QString>(book.pages().cbegin(), book.pages().cend()));
}

TEST_F(HelpContent, NoLinkLeadsNowhere) {
    for (const QString& page : book.pages()) {
        const QString text = html(page);
        for (const QString& target : found(text, "(?:href|src)=\"([^\"]*)\"")) {
            const QString file = target.section('#', 0, 0);
            EXPECT_TRUE(book.contains(file)) << (page + " -> " + target).toStdString();
            if (target.contains('#')) {
                const QString anchor = "id=\"" + target.section('#', 1) + '"';
                EXPECT_TRUE(html(file).contains(anchor)) << target.toStdString();
            }
        }
    }
}

TEST_F(HelpContent, EveryPictureCanBeReadAndIsShownAndDescribed) {
    QSet<QString> shown;
    for (const QString& page : book.pages()) {
        const QString text = html(page);
        shown += found(text, "<img src=\"([^\"]*)\" alt=\"[^\"]+\">");
        EXPECT_EQ(text.count("<img"), text.count(QRegularExpression("<img src=\"[^\"]+\" alt=")))
            << page.toStdString();
    }
    const QDir pictures(NUBIVANE_SOURCES "/help/pictures");
    for (const QString& name : pictures.entryList({"*.png"})) {
        EXPECT_TRUE(shown.contains("pictures/" + name)) << name.toStdString();
        const QImage picture = QImage::fromData(book.read("pictures/" + name));
        EXPECT_FALSE(picture.isNull()) << name.toStdString();
        EXPECT_LE(picture.width(), 760) << name.toStdString();
    }
}

TEST_F(HelpContent, PagesAreWholeAndOfOneKind) {
    for (const QString& page : book.pages()) {
        const QString text = html(page);
        const std::string name = page.toStdString();
        EXPECT_TRUE(text.startsWith("<!DOCTYPE html>")) << name;
        EXPECT_EQ(text.count("<h1>"), 1) << name;
        EXPECT_TRUE(text.contains("<h1>" + pageTitle(text) + "</h1>")) << name;
        for (const char* tag : {"p", "table", "tr", "td", "th", "ul", "ol", "li", "b", "i", "code",
                                "pre", "a", "span", "h2", "body", "html"}) {
            const QRegularExpression opening(QString("<%1[ >]").arg(QLatin1String(tag)));
            EXPECT_EQ(text.count(opening), text.count(QString("</%1>").arg(QLatin1String(tag))))
                << name << ' ' << tag;
        }
        // Words stand in the encoding that every reader of such files knows.
        EXPECT_EQ(text, QString::fromLatin1(text.toLatin1())) << name;
    }
}

}  // namespace nubivane::testing
