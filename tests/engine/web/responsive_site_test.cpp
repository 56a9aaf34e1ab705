// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace nubivane::testing {

namespace {

class ResponsiveSite : public SiteTest {
  protected:
    cSymbol& addSymbol(const QString& file, QPoint place) {
        const QString path = workspace.folder.symbols() + u'\\' + file;
        return workspace.Frames().Item(1).Sprites().Symbols().add({.Name = "gifSymbol",
                                                                   .Frame = 1,
                                                                   .PosX = place.x(),
                                                                   .PosY = place.y(),
                                                                   .Width = 12,
                                                                   .Height = 10,
                                                                   .FileGif = path,
                                                                   .PathFileGif = path,
                                                                   .Index = 1});
    }
};

}  // namespace

TEST_F(ResponsiveSite, TheProgramFolderHoldsThePageAndWebItsPicturesAlone) {
    useFrames(2);
    writeFile(host("Web/Old.jpg"), "of an older page");
    addSymbol("set-1\\sun.gif", {3, 4});
    addSymbol("sea\\wave.png", {20, 4});

    const auto files = createPage(editor(), PageType::Responsive);

    ASSERT_TRUE(files);
    EXPECT_EQ(webFiles(),
              QStringList({"Forecast-card.jpg", "Forecast-icon.png", "Forecast-symbol-sea-wave.png",
                           "Forecast-symbol-set-1-sun-still.png", "Forecast-symbol-set-1-sun.gif",
                           "Forecast1.jpg", "Forecast1.webp"}));
    for (const char* name : {"Forecast.htm", "Forecast.css", "Forecast.js", "Forecast.json"}) {
        EXPECT_TRUE(files->contains(host(name))) << name;
    }
    EXPECT_EQ(files->size(), 11);
    EXPECT_EQ(shell.opened, QStringList({host("Forecast.htm")}));
}

TEST_F(ResponsiveSite, FramesThatShowOnePictureShareItsFiles) {
    useFrames(3);
    ASSERT_TRUE(createPage(editor(), PageType::Responsive));
    const QString page = QString::fromUtf8(readFile(host("Forecast.htm")));
    EXPECT_EQ(page.count("src=\"Web/Forecast1.jpg\""), 3);
    EXPECT_FALSE(QFile::exists(host("Web/Forecast2.jpg")));
}

TEST_F(ResponsiveSite, TheCardShowsTheSymbolsInTheSizesOfThePage) {
    useFrames(1);
    addSymbol("set-1\\sun.gif", {10, 10});
    ASSERT_TRUE(createPage(editor(), PageType::Responsive));
    const QImage card(host("Web/Forecast-card.jpg"));
    const QImage map(host("Web/Forecast1.jpg"));
    EXPECT_EQ(card.size(), QSize(60, 40));
    EXPECT_NE(card.pixelColor(16, 15), map.pixelColor(16, 15));
    EXPECT_EQ(card.pixelColor(50, 35), map.pixelColor(50, 35));
}

TEST_F(ResponsiveSite, ASymbolThatCannotBeReadIsANameOnTheMap) {
    useFrames(1);
    writeFile(host("Symbols/set-1/heavy_rain.gif"), "no picture");
    addSymbol("set-1\\heavy_rain.gif", {10, 10});
    ASSERT_TRUE(createPage(editor(), PageType::Responsive));
    const QByteArray page = readFile(host("Forecast.htm"));
    EXPECT_TRUE(page.contains("<b dir=\"auto\">heavy rain</b>")) << page.toStdString();
    const QJsonObject json = QJsonDocument::fromJson(readFile(host("Forecast.json"))).object();
    const QJsonObject symbol =
        json["periods"].toArray()[0].toObject()["symbols"].toArray()[0].toObject();
    EXPECT_EQ(symbol["name"].toString(), "heavy rain");
    EXPECT_FALSE(symbol.contains("picture"));
}

TEST_F(ResponsiveSite, TheBackgroundPictureGoesWithThePage) {
    useFrames(1);
    settings.set(Setting::PageBackpicture, workspace.folder.maps() + "\\blue.jpg");
    ASSERT_TRUE(createPage(editor(), PageType::Responsive));
    EXPECT_EQ(readFile(host("Web/Forecast-back.jpg")), mapBytes());
    EXPECT_TRUE(readFile(host("Forecast.css")).contains("url(\"Web/Forecast-back.jpg\")"));
    EXPECT_TRUE(readFile(host("Forecast.htm")).contains("pictured"));
}

TEST_F(ResponsiveSite, AFolderThatCannotBeWrittenIsToldWithItsCause) {
    useFrames(1);
    writeFile(host("in-the-way"), "a file");
    shell.expectMessage("An error occurred while creating the page: Cannot write the file.",
                        Icon::Critical);
    EXPECT_FALSE(createSite(editor(), host("in-the-way"), PageType::Responsive));
    EXPECT_TRUE(shell.causes.last().contains("in-the-way"));
    EXPECT_EQ(shell.opened, QStringList());
}

TEST_F(ResponsiveSite, LinesEndAsThoseOfAllPages) {
    useFrames(1);
    ASSERT_TRUE(createPage(editor(), PageType::Responsive));
    for (const char* name : {"Forecast.htm", "Forecast.css", "Forecast.js"}) {
        const QByteArray text = readFile(host(name));
        EXPECT_EQ(text.count('\n'), text.count("\r\n")) << name;
        EXPECT_GT(text.count('\n'), 0) << name;
    }
}

}  // namespace nubivane::testing
