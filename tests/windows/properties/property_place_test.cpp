// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/property_fixture.h"

#include <QScreen>

namespace nubivane {

using testing::partOf;

/// Where property windows open and what they remember.
class PropertyPlace : public testing::PropertyFixture {
  protected:
    QString setting(const char* key) {
        return settings.GetSetting("Nubivane\\6.0.0\\Settings\\General\\Position",
                                   "Dialog property", key, "absent");
    }
    void store(const char* key, int twips) {
        settings.SaveSetting("Nubivane\\6.0.0\\Settings\\General\\Position", "Dialog property", key,
                             QString::number(twips));
    }
    void deselect() { window().clearSelection(); }
    /// A window's place is that of its frame's corner, and its size is without the frame.
    static QRect placeOf(const QWidget& dialog) { return {dialog.pos(), dialog.size()}; }
    static void put(QWidget& dialog, const QRect& place) {
        dialog.move(place.topLeft());
        dialog.resize(place.size());
    }
    QRect screen() { return QGuiApplication::primaryScreen()->availableGeometry(); }
};

TEST_F(PropertyPlace, OpensOverTheEditorTheFirstTime) {
    start();
    withProperties([this](QWidget& dialog) {
        // 5180 and 3740 twips of 15 to the pixel.
        EXPECT_EQ(dialog.size(), QSize(345, 249).expandedTo(dialog.minimumSizeHint()));
        const QPoint away = dialog.frameGeometry().center() - window().frameGeometry().center();
        // This platform tells of a frame of two pixels, and places windows as if they had none.
        EXPECT_LE(std::abs(away.x()), 4);
        EXPECT_LE(std::abs(away.y()), 4);
    });
}

TEST_F(PropertyPlace, IsStoredInTwipsOnClosing) {
    start();
    withProperties([](QWidget& dialog) { put(dialog, {120, 130, 400, 500}); });
    EXPECT_EQ(setting("Left"), "1800");
    EXPECT_EQ(setting("Top"), "1950");
    EXPECT_EQ(setting("Width"), "6000");
    EXPECT_EQ(setting("Height"), "7500");
}

TEST_F(PropertyPlace, EscStoresItToo) {
    start();
    withProperties([](QWidget& dialog) {
        put(dialog, {120, 130, 400, 500});
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(setting("Width"), "6000");
}

TEST_F(PropertyPlace, TheThreeWindowsShareTheirPlace) {
    start();
    withProperties([](QWidget& dialog) { put(dialog, {120, 130, 400, 500}); });
    placeLabel({100, 100});
    withProperties([](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmLabelProperty");
        EXPECT_EQ(placeOf(dialog), QRect(120, 130, 400, 500));
        put(dialog, {140, 150, 420, 520});
    });
    placeSymbol({200, 100});
    withProperties([](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmSymbolProperty");
        EXPECT_EQ(placeOf(dialog), QRect(140, 150, 420, 520));
        put(dialog, {160, 170, 440, 540});
    });
    deselect();
    withProperties([](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmFrameProperty");
        EXPECT_EQ(placeOf(dialog), QRect(160, 170, 440, 540));
    });
}

TEST_F(PropertyPlace, APlaceOffTheScreenIsBroughtBack) {
    start();
    for (const int far : {-2000000000, 2000000000}) {
        store("Left", far);
        store("Top", far);
        withProperties(
            [this](QWidget& dialog) { EXPECT_TRUE(screen().contains(placeOf(dialog))); });
    }
}

TEST_F(PropertyPlace, ASizeOutOfAllMeasureIsCutToTheScreen) {
    start();
    for (const int size : {-5, 0, 2147483647}) {
        store("Width", size);
        store("Height", size);
        withProperties([this](QWidget& dialog) {
            EXPECT_TRUE(screen().contains(placeOf(dialog)));
            EXPECT_GE(dialog.width(), dialog.minimumSizeHint().width());
            EXPECT_GE(dialog.height(), dialog.minimumSizeHint().height());
        });
    }
}

TEST_F(PropertyPlace, WhatIsNoNumberCountsAsNothing) {
    start();
    for (const char* key : {"Left", "Top", "Width", "Height"}) {
        settings.SaveSetting("Nubivane\\6.0.0\\Settings\\General\\Position", "Dialog property", key,
                             "wide");
    }
    withProperties([](QWidget& dialog) {
        EXPECT_EQ(dialog.size(), QSize(345, 249).expandedTo(dialog.minimumSizeHint()));
    });
}

TEST_F(PropertyPlace, TheForecastTextKeepsOutOfIt) {
    start();
    withProperties([](QWidget& dialog) {
        put(dialog, {120, 130, 400, 500});
        testing::withModal([&] { click(dialog, "cmdForecastText"); },
                           [](QWidget& detail) { detail.setGeometry(1, 2, 700, 600); });
    });
    EXPECT_EQ(setting("Width"), "6000");
    EXPECT_EQ(setting("Left"), "1800");
}

TEST_F(PropertyPlace, RowsScrollWhenTheWindowIsLow) {
    start();
    withProperties([](QWidget& dialog) {
        dialog.resize(400, 200);
        EXPECT_TRUE(partOf<QWidget>(dialog, "VScroll").isVisible());
        dialog.resize(400, 1000);
        EXPECT_FALSE(partOf<QWidget>(dialog, "VScroll").isVisible());
    });
}

}  // namespace nubivane
