// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/responsive_page.h"

#include "engine/web/contrast.h"
#include "engine/web/forecast_json.h"
#include "engine/web/page_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace nubivane::testing {

namespace {

class ResponsivePages : public PageTest {
  protected:
    PageContent content() {
        PagePictures pictures;
        for (qint32 i = 1; i <= frames.Count(); ++i) {
            const QString stem = "Web/Forecast" + QString::number(i);
            PagePictures::Map picture{.jpeg = stem + ".jpg", .webp = stem + ".webp"};
            picture.grounds.assign(
                static_cast<std::size_t>(frames.Item(i).Sprites().Labels().Count()), ground);
            pictures.maps.push_back(picture);
        }
        pictures.symbols.insert("C:\\x\\Symbols\\set-1\\sun.gif",
                                {"Web/Forecast-sun.gif", "Web/Forecast-sun-still.png"});
        pictures.card = "Web/Forecast-card.jpg";
        pictures.cardSize = map;
        pictures.icon = "Web/Forecast-icon.png";
        return pageContent(frames, colors, map, settings, pictures);
    }

    void write() {
        const PageContent made = content();
        PageStyle style(made);
        html = ResponsivePage(made, style).page().toStdString();
        css = style.sheet().toStdString();
        json = QJsonDocument::fromJson(forecastJson(made)).object();
    }

    /// What the sheet says of a class, without a media query.
    std::string rule(const std::string& name) const {
        const auto start = css.find("." + name + "{");
        return start == std::string::npos ? "" : css.substr(start, css.find('}', start) - start);
    }

    bool has(const std::string& part) const { return html.find(part) != std::string::npos; }

    QRgb ground = 0xFFFFFFFF;
    std::string html;
    std::string css;
    QJsonObject json;
};

}  // namespace

TEST_F(ResponsivePages, EveryPeriodIsASectionWithAnAddressAndALinkToIt) {
    addFrames(3);
    write();
    for (const std::string id : {"a", "b", "c"}) {
        EXPECT_EQ(count(html, "<section class=\"period\" id=\"" + id + "\">"), 1);
        EXPECT_EQ(count(html, "<a href=\"#" + id + "\""), 1);
    }
    EXPECT_EQ(count(html, " hidden"), 1) << "only what needs the script is hidden without it";
    EXPECT_TRUE(has("<div class=\"steps\" hidden>"));
}

TEST_F(ResponsivePages, OneFrameNeedsNoTabs) {
    addFrames(1);
    write();
    EXPECT_FALSE(has("<nav"));
    EXPECT_EQ(count(html, "<section"), 1);
}

TEST_F(ResponsivePages, TextsAreNeverMarkup) {
    const QString hostile = "</script><img src=x onerror=alert(1)>\"'&amp;";
    addFrames(2);
    frames.Item(1).Texts().Label = hostile;
    title(1).Text = hostile;
    subtitle(1).Text = hostile;
    title(1).Font.Name = "x\";}</style><script>";
    addText(1, hostile, hostile);
    addSymbol(1, hostile, hostile);
    addLabel(1, hostile);
    settings.title = hostile;
    settings.poweredLabel = hostile;
    settings.filename = "a\"><b>#";
    write();
    EXPECT_FALSE(has("<img src=x"));
    EXPECT_FALSE(has("<b>"));
    EXPECT_EQ(count(html, "<script"), 1);
    EXPECT_EQ(count(html, "</script"), 1);
    EXPECT_EQ(css.find("</"), std::string::npos);
    EXPECT_NE(css.find("--face:\"x\\22 ;}\\3c /style\\3e \\3c script\\3e \",sans-serif"),
              std::string::npos);
    const QByteArray raw = forecastJson(content());
    EXPECT_FALSE(raw.contains('<'));
    const QJsonObject period = json["periods"].toArray()[0].toObject();
    EXPECT_EQ(period["title"].toString(), hostile);
    EXPECT_EQ(period["labels"].toArray()[0].toObject()["text"].toString(), hostile);
}

TEST_F(ResponsivePages, TheDataFileTellsWhereASymbolLies) {
    addFrames(2);
    addSymbol(1);
    write();
    const QJsonObject symbol =
        json["periods"].toArray()[0].toObject()["symbols"].toArray()[0].toObject();
    EXPECT_EQ(symbol["x"].toInt(), 100);
    EXPECT_EQ(symbol["y"].toInt(), 50);
    EXPECT_EQ(symbol["width"].toInt(), 40);
    EXPECT_EQ(symbol["height"].toInt(), 32);
}

TEST_F(ResponsivePages, NothingNeedsWhatAPolicyOfOwnFilesForbids) {
    addFrames(2);
    addSymbol(1, "example.org", "Sunny");
    addLabel(1);
    addText(1, "Head", "Body");
    write();
    for (const std::string part : {" style=", "<style", " onload", " onclick",
                                   "data:", "blob:", "javascript:", "ld+json", "//cdn"}) {
        EXPECT_FALSE(has(part)) << part;
    }
    EXPECT_EQ(css.find("data:"), std::string::npos);
    EXPECT_EQ(css.find("@import"), std::string::npos);
}

TEST_F(ResponsivePages, ControlCharactersAreLeftOutOfAllFiles) {
    QString text = "Rain";
    for (const char16_t c : {0x01, 0x0B, 0x1F, 0x7F, 0x80, 0x9F}) {
        text += QChar(c);
    }
    addFrames(2);
    frames.Item(1).Texts().Label = text;
    title(1).Text = text;
    title(1).Font.Name = text;
    addSymbol(1, "example.org/" + text, text);
    addLabel(1, text);
    addText(1, text, text);
    settings.title = text;
    write();
    static const QRegularExpression control("[\\x00-\\x08\\x0b\\x0c\\x0e-\\x1f\\x7f-\\x9f]");
    for (const QString& file : {QString::fromStdString(html), QString::fromStdString(css),
                                QString::fromUtf8(forecastJson(content()))}) {
        EXPECT_FALSE(file.contains(control));
        EXPECT_FALSE(file.contains("\\u0001"));
    }
    EXPECT_TRUE(has(">Rain</h3>"));
}

TEST_F(ResponsivePages, WhatIsOnTheMapHasWords) {
    addFrames(1);
    addSymbol(1, {}, "Heavy rain over the Alps");
    addSymbol(1, "example.org/rome");
    addSymbol(1);
    addLabel(1, "Rome 19°");
    title(1).Text = "Saturday";
    subtitle(1).Text = "Gales";
    write();
    EXPECT_TRUE(has("alt=\"Map: A. Saturday. Gales\""));
    EXPECT_TRUE(has("alt=\"Heavy rain over the Alps\""));
    EXPECT_TRUE(has("alt=\"sun – example.org/rome\""));
    EXPECT_TRUE(has("alt=\"sun\""));
    EXPECT_TRUE(has(">Rome 19°</li>"));
    EXPECT_TRUE(
        has("name=\"description\" content=\"Saturday. Gales. Heavy rain over the Alps, "
            "sun – example.org/rome, sun, Rome 19°\""));
}

TEST_F(ResponsivePages, OnlyTheFirstPeriodIsLoadedAtOnce) {
    addFrames(2);
    addSymbol(1);
    addSymbol(2);
    write();
    const auto second = html.find("id=\"b\"");
    EXPECT_EQ(count(html.substr(0, second), "loading=\"lazy\""), 0);
    EXPECT_EQ(count(html.substr(second), "loading=\"lazy\""), 2);
    EXPECT_EQ(count(html, "<img"), 4);
}

TEST_F(ResponsivePages, EveryPictureTellsItsSize) {
    addFrames(1);
    addSymbol(1);
    write();
    EXPECT_TRUE(has("src=\"Web/Forecast1.jpg\" width=\"400\" height=\"300\""));
    EXPECT_TRUE(has("src=\"Web/Forecast-sun.gif\" width=\"40\" height=\"32\""));
}

TEST_F(ResponsivePages, AMovingSymbolHasAStill) {
    addFrames(1);
    addSymbol(1);
    write();
    EXPECT_TRUE(
        has("<source media=\"(prefers-reduced-motion: reduce)\" "
            "srcset=\"Web/Forecast-sun-still.png\"><img src=\"Web/Forecast-sun.gif\""));
}

TEST_F(ResponsivePages, OnlySafeLinksAreLinks) {
    addFrames(1);
    addSymbol(1, "javascript:alert(1)", "Sun");
    addSymbol(1, "https://example.org/", "Rain");
    addSymbol(1, "#a");
    write();
    EXPECT_EQ(count(html, "<a "), 2);
    EXPECT_TRUE(has("<a href=\"https://example.org/\" target=\"_blank\" rel=\"noopener\">"));
    EXPECT_TRUE(has("<a href=\"#a\">"));
    EXPECT_EQ(html.find("javascript"), std::string::npos);
    EXPECT_FALSE(
        json["periods"].toArray()[0].toObject()["symbols"].toArray()[0].toObject().contains(
            "link"));
}

TEST_F(ResponsivePages, PlacesAreHundredthsOfTheMapsWidth) {
    addFrames(1);
    addSymbol(1);  // at 100, 50 on a map of 400; 40 wide, 32 high
    write();
    EXPECT_EQ(rule("s1"), ".s1{--x:25;--y:12.5;--w:10;--h:8");
}

TEST_F(ResponsivePages, TheDefaultColourGoesWithTheScheme) {
    addFrames(1);
    title(1).Text = "Title";
    write();
    EXPECT_EQ(rule("f1").find("--ink"), std::string::npos);
    EXPECT_NE(css.find("@media screen and (prefers-color-scheme: dark)"), std::string::npos);
}

TEST_F(ResponsivePages, AColourOfOnesOwnStaysWhereItCanBeReadAndMovesWhereNot) {
    addFrames(1);
    title(1).Text = "Title";
    title(1).Font.Color = 9175040;  // #00008B
    write();
    EXPECT_NE(rule("f1").find("--ink:#00008b"), std::string::npos);
    const auto dark = css.find(".f1{", css.find("prefers-color-scheme"));
    ASSERT_NE(dark, std::string::npos);
    const QColor moved(QString::fromStdString(css.substr(css.find('#', dark), 7)));
    EXPECT_GE(contrast(moved.rgb(), 0xFF17202A), ReadableContrast);
}

TEST_F(ResponsivePages, ALabelCanBeReadOnItsMap) {
    addFrames(1);
    ground = 0xFF101010;
    addLabel(1).Font.Color = 0;
    write();
    const std::string look = rule("l1");
    const QColor ink(QString::fromStdString(look.substr(look.find("--ink:") + 6, 7)));
    EXPECT_GE(contrast(ink.rgb(), ground), ReadableContrast);
}

TEST_F(ResponsivePages, ABackgroundOfOnesOwnLeavesNoDarkScheme) {
    addFrames(1);
    settings.ownBackcolor = 65535;  // yellow
    write();
    EXPECT_EQ(css.find("prefers-color-scheme"), std::string::npos);
    EXPECT_NE(css.find("--page:#ffff00;--surface:#ffff00"), std::string::npos);
}

TEST_F(ResponsivePages, TheThemeCanBeChosen) {
    addFrames(1);
    settings.theme = PageTheme::Light;
    write();
    EXPECT_EQ(css.find("prefers-color-scheme"), std::string::npos);
    settings.theme = PageTheme::Dark;
    write();
    EXPECT_EQ(css.find("prefers-color-scheme"), std::string::npos);
    EXPECT_NE(css.find("color-scheme:dark"), std::string::npos);
    EXPECT_NE(css.find("@media print{\n:root{color-scheme:light"), std::string::npos)
        << "paper is light";
}

TEST_F(ResponsivePages, TheLanguageGivesWordsAndDirection) {
    addFrames(2);
    settings.language = "it";
    write();
    EXPECT_TRUE(has("<html lang=\"it\""));
    EXPECT_TRUE(has("aria-label=\"Precedente\""));
    settings.language = "ar-EG";
    write();
    EXPECT_TRUE(has("<html lang=\"ar-EG\" dir=\"rtl\""));
    settings.language = "eo";
    write();
    EXPECT_TRUE(has("<div class=\"steps\" lang=\"en\" dir=\"ltr\" hidden>"));
}

TEST_F(ResponsivePages, ThePlayButtonIsAsChosen) {
    addFrames(2);
    settings.timer = 7;
    write();
    EXPECT_TRUE(has("data-timer=\"7\""));
    EXPECT_TRUE(has("<button type=\"button\" class=\"play\""));
    EXPECT_FALSE(has("data-auto"));
    settings.play = PagePlay::Running;
    write();
    EXPECT_TRUE(has(" data-auto>"));
    settings.play = PagePlay::None;
    write();
    EXPECT_FALSE(has("play"));
}

TEST_F(ResponsivePages, TheCardHasWholeAddressesWhereTheSitesIsKnown) {
    addFrames(1);
    write();
    EXPECT_TRUE(has("\"og:image\" content=\"Web/Forecast-card.jpg\""));
    settings.address = "https://example.org/meteo/";
    write();
    EXPECT_TRUE(has("\"og:image\" content=\"https://example.org/meteo/Web/Forecast-card.jpg\""));
    EXPECT_TRUE(has("\"og:url\" content=\"https://example.org/meteo/Forecast.htm\""));
}

TEST_F(ResponsivePages, WithoutForecastTextThePageAndTheFileTellNone) {
    addFrames(1);
    addText(1, "Secret head", "Secret body");
    settings.showForecastText = false;
    write();
    EXPECT_FALSE(has("Secret"));
    EXPECT_TRUE(json["periods"].toArray()[0].toObject()["texts"].toArray().isEmpty());
}

TEST_F(ResponsivePages, NumbersOfAHostileFileHarmNothing) {
    addFrames(1);
    cSymbol& symbol = addSymbol(1, {}, "Sun");
    symbol.PosX = std::numeric_limits<qint32>::min();
    symbol.PosY = std::numeric_limits<qint32>::max();
    symbol.Width = std::numeric_limits<qint32>::max();
    cLabel& label = addLabel(1);
    label.Font.Size = std::numeric_limits<qint32>::max();
    label.Font.Color = -77;
    title(1).Text = "Title";
    title(1).Font.Size = -5;
    title(1).Align = 99;
    title(1).Font.Color = 0x123456;  // no colour of the table
    div(1).Border = 77;
    write();
    EXPECT_EQ(rule("s1"), ".s1{--x:-250000;--y:250000;--w:250000;--h:8");
}

}  // namespace nubivane::testing
