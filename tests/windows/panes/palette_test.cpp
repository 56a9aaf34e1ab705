// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_store.h"
#include "windows/canvas/canvas_fixture.h"

#include <QDir>
#include <QLabel>
#include <QTimer>

namespace nubivane {

/// The collections set-1 (rain, snow, sun) and sea (wave).
class PaletteTest : public testing::CanvasFixture {
  protected:
    static constexpr int Patience = 5000;

    Palette& palette() { return window().palette(); }
    ListImage& list(int number) {
        return *palette().findChild<ListImage*>("listImageSymbols" + QString::number(number));
    }
    void check(const QStringList& names) {
        const SettingListRow& row = rowOf(SettingList::CheckedCollections);
        for (int i = 0; i < names.size(); ++i) {
            settings.SaveSetting(row.section, row.group, QString::number(i + 1), names[i]);
        }
    }
    QStringList tabTexts() {
        QStringList texts;
        for (int i = 0; i < palette().tabSymbols()->count(); ++i) {
            texts << palette().tabSymbols()->tabText(i);
        }
        return texts;
    }
    static QStringList filesOf(ListImage& list) {
        QStringList names;
        for (int row = 0; row < list.symbols().rowCount(); ++row) {
            names << list.symbols().path(row).section('\\', -1);
        }
        return names;
    }
    void addSymbolTo(const QString& collection, const QString& name) {
        testing::writeFile(host("Symbols/" + collection + '/' + name),
                           testing::readFile(host("Symbols/set-1/sun.gif")));
    }
};

TEST_F(PaletteTest, HasOneTabForEachCheckedCollection) {
    check({"sea", "set-1"});
    testing::writeFile(host("Symbols/other/a.png"), "");
    start();
    QStringList texts = tabTexts();
    texts.sort();
    EXPECT_EQ(texts, QStringList({"sea", "set-1"}));
    EXPECT_EQ(palette().tabSymbols()->currentIndex(), 0);
}

TEST_F(PaletteTest, ATabSaysTheLastPartOfTheCollectionsPath) {
    start();
    palette().addCollectionTab(model("Symbols/sea"));
    EXPECT_EQ(tabTexts().last(), "sea");
    EXPECT_EQ(palette().tabSymbols()->currentIndex(), 1);
}

TEST_F(PaletteTest, AnAmpersandInACollectionsNameIsNoAccessKey) {
    addSymbolTo("sun & rain", "a.gif");
    check({"sun & rain"});
    start();
    EXPECT_EQ(tabTexts(), QStringList("sun && rain"));
}

TEST_F(PaletteTest, OnlyTheFirstListIsFilledAtFirst) {
    check({"sea", "set-1"});
    start();
    EXPECT_GT(list(1).symbols().rowCount(), 0);
    EXPECT_EQ(list(2).symbols().rowCount(), 0);
}

TEST_F(PaletteTest, AListIsFilledAtItsFirstVisitAndNotAgain) {
    check({"sea", "set-1"});
    start();
    palette().selectTab(1);
    const int rows = list(2).symbols().rowCount();
    EXPECT_GT(rows, 0);
    addSymbolTo("set-1", "new.gif");
    addSymbolTo("sea", "new.gif");
    palette().selectTab(0);
    palette().selectTab(1);
    EXPECT_EQ(list(2).symbols().rowCount(), rows);
}

TEST_F(PaletteTest, OnlyTheSelectedTabsListIsShown) {
    check({"sea", "set-1"});
    start();
    EXPECT_TRUE(list(1).isVisible());
    EXPECT_FALSE(list(2).isVisible());
    palette().selectTab(1);
    EXPECT_FALSE(list(1).isVisible());
    EXPECT_TRUE(list(2).isVisible());
    EXPECT_EQ(palette().currentList(), &list(2));
}

TEST_F(PaletteTest, RefreshingShowsWhatCameIntoTheFolderAndWhatWent) {
    start();
    EXPECT_EQ(filesOf(list(1)), QStringList({"rain.gif", "snow.gif", "sun.gif"}));
    addSymbolTo("set-1", "hail.gif");
    QFile::remove(host("Symbols/set-1/snow.gif"));
    trigger("mnuRefreshSymbols");
    EXPECT_EQ(filesOf(list(1)), QStringList({"hail.gif", "rain.gif", "sun.gif"}));
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(PaletteTest, AListHoldsPictureFilesInAnyCaseAndNothingElse) {
    addSymbolTo("set-1", "BIG.GIF");
    addSymbolTo("set-1", "photo.jpeg");
    addSymbolTo("set-1", "photo.jpg");
    addSymbolTo("set-1", "image.png");
    addSymbolTo("set-1", "image.bmp");
    addSymbolTo("set-1", "readme.txt");
    addSymbolTo("set-1", "gif");
    start();
    QStringList files = filesOf(list(1));
    files.sort(Qt::CaseInsensitive);
    EXPECT_EQ(files, QStringList({"BIG.GIF", "image.png", "photo.jpeg", "photo.jpg", "rain.gif",
                                  "snow.gif", "sun.gif"}));
}

TEST_F(PaletteTest, ABrokenFileDoesNotKeepTheOthersFromShowing) {
    testing::writeFile(host("Symbols/set-1/broken.gif"), "no picture");
    start();
    SymbolListModel& model = list(1).symbols();
    ASSERT_EQ(model.path(0).section('\\', -1), "broken.gif");
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return model.animation(1) && model.animation(2) && model.animation(3); }, Patience));
    EXPECT_EQ(model.animation(0), nullptr);
}

TEST_F(PaletteTest, TheMessageOfLoadingIsGoneOnceTheListIsFilled) {
    start();
    auto* message = palette().findChild<QLabel*>("lblSymbolsMessage");
    EXPECT_EQ(message->text(), "Loading symbols collections. Wait...");
    EXPECT_FALSE(message->isVisible());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(PaletteTest, RebuildingFollowsTheChecksAndShowsTheFirstTab) {
    check({"sea", "set-1"});
    start();
    palette().selectTab(1);
    workspace.Status.SymbolsCollection().Item("sea").Checked = false;
    palette().loadSymbolsCollections();
    EXPECT_EQ(tabTexts(), QStringList("set-1"));
    EXPECT_EQ(palette().currentList()->symbols().rowCount(), 3);
    EXPECT_TRUE(palette().currentList()->isVisible());
}

TEST_F(PaletteTest, WithoutAnyCheckedCollectionThereIsNoTabAndNoList) {
    start();
    workspace.Status.SymbolsCollection().Item("set-1").Checked = false;
    palette().loadSymbolsCollections();
    EXPECT_EQ(palette().tabSymbols()->count(), 0);
    EXPECT_EQ(palette().currentList(), nullptr);
    trigger("mnuRefreshSymbols");
    EXPECT_EQ(palette().currentList(), nullptr);
}

TEST_F(PaletteTest, ACollectionWhoseFolderHasGoneIsAnEmptyList) {
    check({"sea", "set-1"});
    start();
    QDir(host("Symbols/set-1")).removeRecursively();
    palette().selectTab(tabTexts().indexOf("set-1"));
    trigger("mnuRefreshSymbols");
    EXPECT_EQ(palette().currentList()->symbols().rowCount(), 0);
}

TEST_F(PaletteTest, AnEmptyListIsLookedAtAgainWhenItsTabIsVisited) {
    check({"set-1", "sea"});
    QFile::remove(host("Symbols/sea/wave.png"));
    start();
    palette().tabSymbols()->setCurrentIndex(1);
    ASSERT_EQ(filesOf(list(2)), QStringList());
    addSymbolTo("sea", "ship.png");
    palette().tabSymbols()->setCurrentIndex(0);
    palette().tabSymbols()->setCurrentIndex(1);
    EXPECT_EQ(filesOf(list(2)), QStringList({"ship.png"}));
}

TEST_F(PaletteTest, TheStripsOfTabsHaveTheirColours) {
    start();
    const QImage strip = palette().grab().toImage();
    const QRect tabs = palette().tabSymbols()->geometry();
    EXPECT_EQ(strip.pixelColor(tabs.right() - 2, tabs.center().y()), QColor(0xA6, 0xC4, 0xED));
    FrameTabs& frames = window().tabs();
    const QImage below = frames.grab().toImage();
    EXPECT_EQ(below.pixel(frames.width() - 3, frames.height() / 2),
              frames.palette().color(QPalette::Shadow).rgb());
}

}  // namespace nubivane
