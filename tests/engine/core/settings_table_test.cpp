// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_store.h"
#include "support/fixtures.h"

#include <vector>

namespace nubivane {

namespace {

struct Entry {
    Setting setting;
    QString section;
    QString group;
    QString key;
    QString defaultValue;
};

/// Every entry with the default of its reader, written out a second time: a slip in the program's
/// own table shows as a difference. Where the reader computes the default, it is empty.
const std::vector<Entry> everyEntry = {
    {Setting::FtpUrl, "Nubivane\\6.0.0\\Settings", "Ftp", "url", ""},
    {Setting::FtpPort, "Nubivane\\6.0.0\\Settings", "Ftp", "port", "21"},
    {Setting::FtpUserName, "Nubivane\\6.0.0\\Settings", "Ftp", "userName", ""},
    {Setting::FtpPassword, "Nubivane\\6.0.0\\Settings", "Ftp", "password", ""},
    {Setting::FtpRemoteFolder, "Nubivane\\6.0.0\\Settings", "Ftp", "remote folder", ""},
    {Setting::FtpNubivaneFolder, "Nubivane\\6.0.0\\Settings", "Ftp", "nubivane folder", ""},
    {Setting::FtpNubivaneFolderInPlan, "Nubivane\\6.0.0\\Settings", "Ftp", "nubivane folder",
     "nVane"},
    {Setting::FtpLoginType, "Nubivane\\6.0.0\\Settings", "Ftp", "login type", "0"},
    {Setting::FtpEncryption, "Nubivane\\6.0.0\\Settings", "Ftp", "encryption", ""},
    {Setting::FtpFingerprints, "Nubivane\\6.0.0\\Settings", "Ftp", "fingerprints", ""},
    {Setting::FtpConnections, "Nubivane\\6.0.0\\Settings", "Ftp", "connections", "4"},
    {Setting::UploadSymbols, "Nubivane\\6.0.0\\Settings\\Ftp", "Upload", "symbols", "0"},
    {Setting::UploadMaps, "Nubivane\\6.0.0\\Settings\\Ftp", "Upload", "maps", "0"},
    {Setting::UploadHtmlPage, "Nubivane\\6.0.0\\Settings\\Ftp", "Upload", "html page", "0"},
    {Setting::UploadInitialized, "Nubivane\\6.0.0\\Settings\\Ftp", "Upload", "initialized", "0"},
    {Setting::VersionsKept, "Nubivane\\6.0.0\\Settings", "Versions", "keep", "1"},
    {Setting::VersionsLast, "Nubivane\\6.0.0\\Settings", "Versions", "last", "20"},
    {Setting::VersionsDays, "Nubivane\\6.0.0\\Settings", "Versions", "days", "30"},
    {Setting::VersionsMegabytes, "Nubivane\\6.0.0\\Settings", "Versions", "megabytes", "500"},
    {Setting::PageFilename, "Nubivane\\6.0.0\\Settings", "Html page", "Filename", "Forecast"},
    {Setting::PageTitle, "Nubivane\\6.0.0\\Settings", "Html page", "Title", "Forecast"},
    {Setting::PageBackcolorInDialog, "Nubivane\\6.0.0\\Settings", "Html page", "Backcolor", "-1"},
    {Setting::PageBackcolor, "Nubivane\\6.0.0\\Settings", "Html page", "Backcolor", "16777215"},
    {Setting::PageBackpicture, "Nubivane\\6.0.0\\Settings", "Html page", "Backpicture", ""},
    {Setting::PageTimer, "Nubivane\\6.0.0\\Settings", "Html page", "Timer", "4"},
    {Setting::PageType, "Nubivane\\6.0.0\\Settings", "Html page", "Type", "1"},
    {Setting::PageEffects, "Nubivane\\6.0.0\\Settings", "Html page", "Effects", "1"},
    {Setting::PageShowForecastText, "Nubivane\\6.0.0\\Settings", "Html page", "Show forecast text",
     "1"},
    {Setting::PagePoweredLabel, "Nubivane\\6.0.0\\Settings", "Html page", "Powered Label", ""},
    {Setting::SliderTick, "Nubivane\\6.0.0\\Settings\\Html page", "Slider", "Tick", "1"},
    {Setting::SliderColor, "Nubivane\\6.0.0\\Settings\\Html page", "Slider", "Color", "-1"},
    {Setting::SliderTooltip, "Nubivane\\6.0.0\\Settings\\Html page", "Slider", "Tooltip", "1"},
    {Setting::PreviewFilename, "Nubivane\\6.0.0", "Html page", "Filename", "Forecast"},
    {Setting::Locked, "Nubivane\\6.0.0\\Settings\\General", "Preferences", "Locked", ""},
    {Setting::DrawColor, "Nubivane\\6.0.0\\Settings\\General", "Preferences", "Draw color",
     "16777215"},
    {Setting::Guides, "Nubivane\\6.0.0\\Settings\\General", "Preferences", "Guides", "0"},
    {Setting::Grid, "Nubivane\\6.0.0\\Settings\\General", "Preferences", "Grid", "0"},
    {Setting::ThumbnailSize, "Nubivane\\6.0.0\\Settings\\General", "Preferences", "Thumbnail size",
     "64"},
    {Setting::Spelling, "Nubivane\\6.0.0\\Settings\\General", "Preferences", "Spelling", ""},
    {Setting::CurrentMap, "Nubivane\\6.0.0\\Settings\\General", "Preferences", "Current map", ""},
    {Setting::CurrentMapInDialog, "Nubivane\\6.0.0\\Settings\\General", "Preferences",
     "Current map", "italy.jpg"},
    {Setting::ShowStandardBar, "Nubivane\\6.0.0\\Settings\\General", "Toolbar", "show standard",
     "1"},
    {Setting::ShowMapBar, "Nubivane\\6.0.0\\Settings\\General", "Toolbar", "show map", "1"},
    {Setting::LargeIcons, "Nubivane\\6.0.0\\Settings\\General", "Toolbar", "large icons", "1"},
    {Setting::StandardBarX, "Nubivane\\6.0.0\\Settings\\General\\Toolbar", "Standard", "x", "2"},
    {Setting::StandardBarY, "Nubivane\\6.0.0\\Settings\\General\\Toolbar", "Standard", "y", "2"},
    {Setting::MapBarX, "Nubivane\\6.0.0\\Settings\\General\\Toolbar", "Map", "x", ""},
    {Setting::MapBarY, "Nubivane\\6.0.0\\Settings\\General\\Toolbar", "Map", "y", "2"},
    {Setting::WindowTop, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window", "Top", "400"},
    {Setting::WindowLeft, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window", "Left", "1150"},
    {Setting::WindowWidthFirstRead, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window",
     "Width", "12900"},
    {Setting::WindowWidth, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window", "Width",
     "15000"},
    {Setting::WindowHeightFirstRead, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window",
     "Height", "10260"},
    {Setting::WindowHeight, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window", "Height",
     "11000"},
    {Setting::WindowFormTop, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window", "Form top",
     ""},
    {Setting::WindowFormLeft, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window", "Form left",
     ""},
    {Setting::WindowFormWidth, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window",
     "Form width", ""},
    {Setting::WindowFormHeight, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window",
     "Form height", ""},
    {Setting::WindowMaximized, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window",
     "Maximized", "0"},
    {Setting::WindowSplitter, "Nubivane\\6.0.0\\Settings\\General\\Position", "Window", "Splitter",
     "360"},
    {Setting::PropertyDialogWidth, "Nubivane\\6.0.0\\Settings\\General\\Position",
     "Dialog property", "Width", "5180"},
    {Setting::PropertyDialogHeight, "Nubivane\\6.0.0\\Settings\\General\\Position",
     "Dialog property", "Height", "3740"},
    {Setting::PropertyDialogTop, "Nubivane\\6.0.0\\Settings\\General\\Position", "Dialog property",
     "Top", ""},
    {Setting::PropertyDialogLeft, "Nubivane\\6.0.0\\Settings\\General\\Position", "Dialog property",
     "Left", ""},
    {Setting::VersionsKept, "Nubivane\\6.0.0\\Settings", "Versions", "keep", "1"},
    {Setting::VersionsLast, "Nubivane\\6.0.0\\Settings", "Versions", "last", "20"},
    {Setting::VersionsDays, "Nubivane\\6.0.0\\Settings", "Versions", "days", "30"},
    {Setting::VersionsMegabytes, "Nubivane\\6.0.0\\Settings", "Versions", "megabytes", "500"},
    {Setting::DrawDialogTop, "Nubivane\\6.0.0\\Settings\\General\\Position", "Draw dialog", "Top",
     ""},
    {Setting::DrawDialogLeft, "Nubivane\\6.0.0\\Settings\\General\\Position", "Draw dialog", "Left",
     ""},
};

class SettingsTable : public ::testing::Test {
  protected:
    testing::TemporaryFolder folder;
    const QString file = folder.file("settings.ini");
};

}  // namespace

TEST_F(SettingsTable, NoEntryIsMissingOrBeyondThoseKnown) {
    EXPECT_EQ(settingsTable().size(), everyEntry.size());
    EXPECT_EQ(static_cast<std::size_t>(Setting::Count), everyEntry.size());
}

TEST_F(SettingsTable, EachEntryStandsUnderItsSectionGroupAndKey) {
    for (const Entry& entry : everyEntry) {
        const SettingRow& row = rowOf(entry.setting);
        SCOPED_TRACE((entry.group + u' ' + entry.key).toStdString());
        EXPECT_EQ(row.section, entry.section);
        EXPECT_EQ(row.group, entry.group);
        EXPECT_EQ(row.key, entry.key);
    }
}

TEST_F(SettingsTable, InAnEmptyStoreEveryDefaultIsInEffect) {
    const SettingsStore store(file);
    for (const Entry& entry : everyEntry) {
        EXPECT_EQ(store.text(entry.setting), entry.defaultValue)
            << (entry.group + u' ' + entry.key).toStdString();
    }
}

TEST_F(SettingsTable, ReadingCreatesNoKeyAndNoFile) {
    const SettingsStore store(file);
    for (const Entry& entry : everyEntry) {
        store.text(entry.setting);
        store.number(entry.setting);
    }
    store.list(SettingList::RecentFiles);
    EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(SettingsTable, EachEntryIsFoundUnderTheAddressItWasWrittenTo) {
    SettingsStore store(file);
    int n = 0;
    for (const Entry& entry : everyEntry) {
        const QString value = "value " + QString::number(++n);
        ASSERT_TRUE(store.set(entry.setting, value));
        EXPECT_EQ(store.GetSetting(entry.section, entry.group, entry.key), value);
        EXPECT_EQ(store.text(entry.setting), value);
    }
}

TEST_F(SettingsTable, ReadersWithDefaultsOfTheirOwnShareOneEntry) {
    SettingsStore store(file);
    for (const auto& [one, other] :
         {std::pair{Setting::FtpNubivaneFolder, Setting::FtpNubivaneFolderInPlan},
          std::pair{Setting::PageBackcolor, Setting::PageBackcolorInDialog},
          std::pair{Setting::CurrentMap, Setting::CurrentMapInDialog},
          std::pair{Setting::WindowWidth, Setting::WindowWidthFirstRead},
          std::pair{Setting::WindowHeight, Setting::WindowHeightFirstRead}}) {
        EXPECT_NE(store.text(one), store.text(other));
        store.set(one, "7");
        EXPECT_EQ(store.text(other), "7");
    }
}

TEST_F(SettingsTable, ThePreviewDoesNotFollowTheNameOfThePageSettings) {
    SettingsStore store(file);
    store.set(Setting::PageFilename, "Weather");
    EXPECT_EQ(store.text(Setting::PreviewFilename), "Forecast");
}

TEST_F(SettingsTable, TheListsStandUnderTheirGroups) {
    SettingsStore store(file);
    store.setList(SettingList::CheckedCollections, {"set-1"});
    store.setList(SettingList::RecentFiles, {"C:\\a.nvpf"});
    EXPECT_EQ(store.GetSetting("Nubivane\\6.0.0\\Settings", "Symbols collection", "1"), "set-1");
    EXPECT_EQ(store.GetSetting("Nubivane\\6.0.0\\Settings\\General", "Recent Files", "1"),
              "C:\\a.nvpf");
}

}  // namespace nubivane
