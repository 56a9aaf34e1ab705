// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_settings.h"

#include "engine/core/error.h"
#include "engine/core/version.h"
#include "support/fixtures.h"

namespace nubivane::testing {

namespace {

class PageSettingsTest : public ::testing::Test {
  protected:
    PageSettingsTest() : store(temporary.file("settings.ini")) {}

    PageSettings read() const { return PageSettings::read(store); }

    int timerFor(const QString& value) {
        store.set(Setting::PageTimer, value);
        return read().timer;
    }

    TemporaryFolder temporary;
    SettingsStore store;
};

}  // namespace

TEST_F(PageSettingsTest, AnEmptyStoreGivesTheDefaults) {
    const PageSettings settings = read();
    EXPECT_EQ(settings.filename, "Forecast");
    EXPECT_EQ(settings.title, "Forecast");
    EXPECT_EQ(settings.poweredLabel, QString("Powered by nVane ") + Version);
    EXPECT_EQ(settings.backcolor, White);
    EXPECT_EQ(settings.backpicture, "");
    EXPECT_EQ(settings.timer, 4);
    EXPECT_TRUE(settings.effects);
    EXPECT_TRUE(settings.showForecastText);
    EXPECT_TRUE(settings.sliderTicks);
    EXPECT_EQ(settings.sliderColor, NoColor);
    EXPECT_TRUE(settings.sliderTooltip);
}

TEST_F(PageSettingsTest, ReadingCreatesNoEntries) {
    read();
    EXPECT_FALSE(QFile::exists(temporary.file("settings.ini")));
}

TEST_F(PageSettingsTest, TextsAreTakenAsTheyAre) {
    store.set(Setting::PageTitle, "  two  blanks ");
    store.set(Setting::PageFilename, " page 1");
    EXPECT_EQ(read().title, "  two  blanks ");
    EXPECT_EQ(read().filename, " page 1");
}

TEST_F(PageSettingsTest, ATimerThatIsNoNumberCountsAsFour) {
    EXPECT_EQ(timerFor("abc"), 4);
    EXPECT_EQ(timerFor(""), 4);
    EXPECT_EQ(timerFor("3 s"), 4);
    EXPECT_EQ(timerFor("nan"), 4);
    EXPECT_EQ(timerFor("inf"), 4);
}

TEST_F(PageSettingsTest, ATimerOfTenIsTen) {
    EXPECT_EQ(timerFor("10"), 10);
    EXPECT_EQ(timerFor(" 7 "), 7);
}

TEST_F(PageSettingsTest, OfATimerWithAFractionTheIntegerPartCounts) {
    EXPECT_EQ(timerFor("2.9"), 2);
    EXPECT_EQ(timerFor("0.5"), 0);
}

TEST_F(PageSettingsTest, ATimerWhoseMillisecondsNoBrowserCanCountIsFour) {
    EXPECT_EQ(timerFor("2147483"), 2147483);
    EXPECT_EQ(timerFor("2147484"), 4);
    EXPECT_EQ(timerFor("99999999999999999999"), 4);
}

TEST_F(PageSettingsTest, ATimerFarBelowZeroCountsAsFourToo) {
    EXPECT_EQ(timerFor("-2147484"), 4);
    EXPECT_EQ(timerFor("-2147483648"), 4);
}

TEST_F(PageSettingsTest, ReadingDoesNotMendTheStoredTimer) {
    timerFor("abc");
    EXPECT_EQ(store.text(Setting::PageTimer), "abc");
}

TEST_F(PageSettingsTest, FlagsCountOnlyWhenTheyAreExactlyOne) {
    for (const char* value : {"0", "01", "1.0", "2", "-1", " 1", "1 ", "True", ""}) {
        store.set(Setting::PageEffects, value);
        store.set(Setting::PageShowForecastText, value);
        store.set(Setting::SliderTick, value);
        store.set(Setting::SliderTooltip, value);
        const PageSettings settings = read();
        EXPECT_FALSE(settings.effects) << value;
        EXPECT_FALSE(settings.showForecastText) << value;
        EXPECT_FALSE(settings.sliderTicks) << value;
        EXPECT_FALSE(settings.sliderTooltip) << value;
    }
    store.set(Setting::PageEffects, "1");
    EXPECT_TRUE(read().effects);
}

TEST_F(PageSettingsTest, KeysAreFoundInAnyCase) {
    store.SaveSetting("Nubivane\\6.0.0\\Settings", "html PAGE", "show forecast text", "0");
    store.SaveSetting("Nubivane\\6.0.0\\Settings", "Html page", "Powered label", "The harbour");
    EXPECT_FALSE(read().showForecastText);
    EXPECT_EQ(read().poweredLabel, "The harbour");
}

TEST_F(PageSettingsTest, ABackgroundColourThatIsNoNumberIsAnError) {
    store.set(Setting::PageBackcolor, "blue");
    EXPECT_THROW(read(), Error);
}

TEST_F(PageSettingsTest, AFileNameThatIsNoPlainNameIsAnError) {
    for (const char* name : {"", ".", "..", "a/b", "a\\b", "/etc/a", "..\\a", "c:a", "a\nb"}) {
        store.set(Setting::PageFilename, name);
        EXPECT_THROW(read(), Error) << name;
        EXPECT_THROW(readPageFilename(store), Error) << name;
    }
}

TEST_F(PageSettingsTest, AFileNameMayHoldPointsBlanksAndLetters) {
    for (const char* name : {"a.b", "two words", "..a", "M\u00e9t\u00e9o", "index.htm"}) {
        store.set(Setting::PageFilename, name);
        EXPECT_EQ(readPageFilename(store), name);
    }
}

}  // namespace nubivane::testing
