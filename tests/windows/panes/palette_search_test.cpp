// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_store.h"
#include "windows/canvas/canvas_fixture.h"
#include "windows/canvas/sprite_payload.h"

#include <QMenu>
#include <QWheelEvent>

namespace nubivane {

/// The collections set-1 (rain, snow, sun), shown, and sea (wave), not shown.
class SearchInThePalette : public testing::CanvasFixture {
  protected:
    Palette& palette() { return window().palette(); }
    ListImage& found() { return *palette().listImageFound(); }
    QStringList names() {
        QStringList names;
        for (int row = 0; row < found().symbols().rowCount(); ++row) {
            names << found().symbols().path(row).section('\\', -1).section('.', 0, 0);
        }
        return names;
    }
    QMenu& menuOf(const QString& file) {
        Q_EMIT palette().currentList()->menuAsked(file, palette().mapToGlobal(QPoint(20, 60)));
        return *palette().findChildren<QMenu*>("menuSymbol").last();
    }
    static void choose(QMenu& menu, const QString& text) {
        for (QAction* action : menu.actions()) {
            if (action->text() == text) {
                action->trigger();
                menu.close();
                return;
            }
        }
        ADD_FAILURE() << text.toStdString();
    }
};

TEST_F(SearchInThePalette, FindsSymbolsOfCollectionsThatAreNotShown) {
    start();
    QTest::keyClicks(palette().txtSearch(), "wav");
    EXPECT_EQ(names(), QStringList("wave"));
    EXPECT_TRUE(found().isVisible());
    EXPECT_FALSE(palette().currentList()->isVisible());
    palette().txtSearch()->clear();
    EXPECT_FALSE(found().isVisible());
    EXPECT_TRUE(palette().currentList()->isVisible());
}

TEST_F(SearchInThePalette, AKeyLeadsThereAndEnterToWhatWasFound) {
    start();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::keyClick(&window(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(palette().txtSearch()->hasFocus());
    QTest::keyClicks(palette().txtSearch(), "rain");
    QTest::keyClick(palette().txtSearch(), Qt::Key_Return);
    EXPECT_TRUE(found().hasFocus());
    QTest::keyClick(&found(), Qt::Key_Return);
    ASSERT_EQ(symbols().Count(), 1);
    EXPECT_TRUE(symbols().Item(1).PathFileGif.endsWith("rain.gif"));
}

TEST_F(SearchInThePalette, EscGoesBackToTheCollections) {
    start();
    QTest::keyClicks(palette().txtSearch(), "rain");
    QTest::keyClick(palette().txtSearch(), Qt::Key_Escape);
    EXPECT_EQ(palette().txtSearch()->text(), "");
    EXPECT_TRUE(palette().currentList()->isVisible());
}

TEST_F(SearchInThePalette, ASymbolThatCameInIsFoundAfterRefreshing) {
    start();
    QTest::keyClicks(palette().txtSearch(), "hail");
    EXPECT_EQ(names(), QStringList());
    testing::writeFile(host("Symbols/set-1/hail.gif"),
                       testing::readFile(host("Symbols/set-1/sun.gif")));
    palette().txtSearch()->clear();
    trigger("mnuRefreshSymbols");
    QTest::keyClicks(palette().txtSearch(), "hail");
    EXPECT_EQ(names(), QStringList("hail"));
}

TEST_F(SearchInThePalette, TheStarShowsFavoritesThenWhatWasPlacedLast) {
    start();
    const QString sun = model("Symbols/set-1/sun.gif");
    const QString rain = model("Symbols/set-1/rain.gif");
    choose(menuOf(sun), "Add to favorites");
    Q_EMIT palette().currentList()->fileActivated(rain);
    Q_EMIT palette().currentList()->fileActivated(sun);
    QTest::mouseClick(palette().cmdFavourites(), Qt::LeftButton);
    EXPECT_EQ(names(), (QStringList{"sun", "rain"}));
    choose(menuOf(sun), "Remove from favorites");
    EXPECT_EQ(settings.list(SettingList::FavouriteSymbols), QStringList());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return settings.list(SettingList::RecentSymbols) == QStringList{sun, rain};
        },
        20000));
    QTest::mouseClick(palette().tabSymbols(), Qt::LeftButton, {},
                      palette().tabSymbols()->tabRect(0).center());
    EXPECT_FALSE(palette().cmdFavourites()->isChecked());
    EXPECT_TRUE(palette().currentList()->isVisible());
}

TEST_F(SearchInThePalette, AFavoriteWhoseFileIsGoneIsLeftOut) {
    settings.setList(SettingList::FavouriteSymbols, {model("Symbols/set-1/gone.gif")});
    start();
    QTest::mouseClick(palette().cmdFavourites(), Qt::LeftButton);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(SearchInThePalette, ThumbnailsHaveASizeThatIsRemembered) {
    start();
    EXPECT_EQ(palette().currentList()->thumbnailSize(), 64);
    choose(menuOf({}), "Large thumbnails");
    EXPECT_EQ(palette().currentList()->thumbnailSize(), 96);
    EXPECT_EQ(found().thumbnailSize(), 96);
    EXPECT_EQ(settings.text(Setting::ThumbnailSize), "96");
    const auto turn = [this](int eighths) {
        QWheelEvent event({10, 10}, palette().currentList()->mapToGlobal(QPoint(10, 10)), {},
                          {0, eighths}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(palette().currentList()->viewport(), &event);
    };
    turn(-120);
    EXPECT_EQ(palette().currentList()->thumbnailSize(), 64);
    turn(-1200);
    EXPECT_EQ(palette().currentList()->thumbnailSize(), 48);
    turn(12000);
    EXPECT_EQ(palette().currentList()->thumbnailSize(), 128);
}

TEST_F(SearchInThePalette, SeveralAreDroppedTogetherByOneEdit) {
    start();
    const QString rain = model("Symbols/set-1/rain.gif");
    drop(SpritePayload{sprite_type::Symbol, model("Symbols/set-1/sun.gif"), {rain, rain}}.text(),
         {200, 200});
    ASSERT_EQ(symbols().Count(), 3);
    EXPECT_EQ(symbols().Item(1).PosX, 184);
    EXPECT_EQ(selection().ids().size(), 3U);
    for (const SpriteControl* a : sprites().controls()) {
        for (const SpriteControl* b : sprites().controls()) {
            EXPECT_TRUE(a == b || !a->rect.intersects(b->rect));
        }
    }
    trigger("mnuUndo");
    EXPECT_EQ(symbols().Count(), 0);
}

}  // namespace nubivane
