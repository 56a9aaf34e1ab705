// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_table.h"

#include <array>

namespace nubivane {

namespace {

// The sections carry the version, so a new version starts with empty settings.
constexpr char R[] = "Nubivane\\6.0.0";
constexpr char S[] = "Nubivane\\6.0.0\\Settings";
constexpr char SF[] = "Nubivane\\6.0.0\\Settings\\Ftp";
constexpr char SH[] = "Nubivane\\6.0.0\\Settings\\Html page";
constexpr char SG[] = "Nubivane\\6.0.0\\Settings\\General";
constexpr char SGT[] = "Nubivane\\6.0.0\\Settings\\General\\Toolbar";
constexpr char SGP[] = "Nubivane\\6.0.0\\Settings\\General\\Position";

// An empty default of a number means that the reader computes one.
constexpr std::array table = {
    SettingRow{Setting::FtpUrl, S, "Ftp", "url", ""},
    SettingRow{Setting::FtpPort, S, "Ftp", "port", "21"},
    SettingRow{Setting::FtpUserName, S, "Ftp", "userName", ""},
    SettingRow{Setting::FtpPassword, S, "Ftp", "password", ""},
    SettingRow{Setting::FtpRemoteFolder, S, "Ftp", "remote folder", ""},
    SettingRow{Setting::FtpNubivaneFolder, S, "Ftp", "nubivane folder", ""},
    SettingRow{Setting::FtpNubivaneFolderInPlan, S, "Ftp", "nubivane folder", "nVane"},
    SettingRow{Setting::FtpLoginType, S, "Ftp", "login type", "0"},
    SettingRow{Setting::FtpEncryption, S, "Ftp", "encryption", ""},
    SettingRow{Setting::FtpFingerprints, S, "Ftp", "fingerprints", ""},
    SettingRow{Setting::FtpConnections, S, "Ftp", "connections", "4"},
    SettingRow{Setting::UploadSymbols, SF, "Upload", "symbols", "0"},
    SettingRow{Setting::UploadMaps, SF, "Upload", "maps", "0"},
    SettingRow{Setting::UploadHtmlPage, SF, "Upload", "html page", "0"},
    SettingRow{Setting::UploadInitialized, SF, "Upload", "initialized", "0"},
    SettingRow{Setting::VersionsKept, S, "Versions", "keep", "1"},
    SettingRow{Setting::VersionsLast, S, "Versions", "last", "20"},
    SettingRow{Setting::VersionsDays, S, "Versions", "days", "30"},
    SettingRow{Setting::VersionsMegabytes, S, "Versions", "megabytes", "500"},
    SettingRow{Setting::PageFilename, S, "Html page", "Filename", "Forecast"},
    SettingRow{Setting::PageTitle, S, "Html page", "Title", "Forecast"},
    SettingRow{Setting::PageBackcolor, S, "Html page", "Backcolor", "16777215"},
    SettingRow{Setting::PageBackcolorInDialog, S, "Html page", "Backcolor", "-1"},
    SettingRow{Setting::PageBackpicture, S, "Html page", "Backpicture", ""},
    SettingRow{Setting::PageTimer, S, "Html page", "Timer", "4"},
    SettingRow{Setting::PageType, S, "Html page", "Type", "1"},
    SettingRow{Setting::PageEffects, S, "Html page", "Effects", "1"},
    SettingRow{Setting::PageShowForecastText, S, "Html page", "Show forecast text", "1"},
    SettingRow{Setting::PagePoweredLabel, S, "Html page", "Powered Label", ""},
    // An empty language is the system's.
    SettingRow{Setting::PageLanguage, S, "Html page", "Language", ""},
    SettingRow{Setting::PageTheme, S, "Html page", "Theme", "0"},
    SettingRow{Setting::PagePlay, S, "Html page", "Play button", "1"},
    SettingRow{Setting::PageAddress, S, "Html page", "Address", ""},
    SettingRow{Setting::SliderTick, SH, "Slider", "Tick", "1"},
    SettingRow{Setting::SliderColor, SH, "Slider", "Color", "-1"},
    SettingRow{Setting::SliderTooltip, SH, "Slider", "Tooltip", "1"},
    // Nothing writes this one: preview and upload do not follow the name of the page settings.
    SettingRow{Setting::PreviewFilename, R, "Html page", "Filename", "Forecast"},
    SettingRow{Setting::Locked, SG, "Preferences", "Locked", ""},
    SettingRow{Setting::DrawColor, SG, "Preferences", "Draw color", "16777215"},
    SettingRow{Setting::Guides, SG, "Preferences", "Guides", "0"},
    SettingRow{Setting::Grid, SG, "Preferences", "Grid", "0"},
    SettingRow{Setting::ThumbnailSize, SG, "Preferences", "Thumbnail size", "64"},
    SettingRow{Setting::Spelling, SG, "Preferences", "Spelling", ""},
    SettingRow{Setting::CurrentMap, SG, "Preferences", "Current map", ""},
    SettingRow{Setting::CurrentMapInDialog, SG, "Preferences", "Current map", "italy.jpg"},
    SettingRow{Setting::ShowStandardBar, SG, "Toolbar", "show standard", "1"},
    SettingRow{Setting::ShowMapBar, SG, "Toolbar", "show map", "1"},
    SettingRow{Setting::LargeIcons, SG, "Toolbar", "large icons", "1"},
    SettingRow{Setting::StandardBarX, SGT, "Standard", "x", "2"},
    SettingRow{Setting::StandardBarY, SGT, "Standard", "y", "2"},
    SettingRow{Setting::MapBarX, SGT, "Map", "x", ""},
    SettingRow{Setting::MapBarY, SGT, "Map", "y", "2"},
    SettingRow{Setting::WindowTop, SGP, "Window", "Top", "400"},
    SettingRow{Setting::WindowLeft, SGP, "Window", "Left", "1150"},
    SettingRow{Setting::WindowWidth, SGP, "Window", "Width", "15000"},
    SettingRow{Setting::WindowWidthFirstRead, SGP, "Window", "Width", "12900"},
    SettingRow{Setting::WindowHeight, SGP, "Window", "Height", "11000"},
    SettingRow{Setting::WindowHeightFirstRead, SGP, "Window", "Height", "10260"},
    SettingRow{Setting::WindowFormTop, SGP, "Window", "Form top", ""},
    SettingRow{Setting::WindowFormLeft, SGP, "Window", "Form left", ""},
    SettingRow{Setting::WindowFormWidth, SGP, "Window", "Form width", ""},
    SettingRow{Setting::WindowFormHeight, SGP, "Window", "Form height", ""},
    SettingRow{Setting::WindowMaximized, SGP, "Window", "Maximized", "0"},
    SettingRow{Setting::WindowSplitter, SGP, "Window", "Splitter", "360"},
    SettingRow{Setting::PropertyDialogWidth, SGP, "Dialog property", "Width", "5180"},
    SettingRow{Setting::PropertyDialogHeight, SGP, "Dialog property", "Height", "3740"},
    SettingRow{Setting::PropertyDialogTop, SGP, "Dialog property", "Top", ""},
    SettingRow{Setting::PropertyDialogLeft, SGP, "Dialog property", "Left", ""},
    SettingRow{Setting::DrawDialogTop, SGP, "Draw dialog", "Top", ""},
    SettingRow{Setting::DrawDialogLeft, SGP, "Draw dialog", "Left", ""},
};

constexpr std::array lists = {
    SettingListRow{SettingList::CheckedCollections, S, "Symbols collection"},
    SettingListRow{SettingList::RecentFiles, SG, "Recent Files"},
    SettingListRow{SettingList::FavouriteSymbols, SG, "Favourite symbols"},
    SettingListRow{SettingList::RecentSymbols, SG, "Recent symbols"},
};

constexpr bool rowsStandInOrder() {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (static_cast<std::size_t>(table[i].setting) != i) {
            return false;
        }
    }
    return table.size() == static_cast<std::size_t>(Setting::Count);
}
static_assert(rowsStandInOrder(), "rowOf() finds a row by the number of its setting");

}  // namespace

std::span<const SettingRow> settingsTable() {
    return table;
}

const SettingRow& rowOf(Setting setting) {
    return table[static_cast<std::size_t>(setting)];
}

const SettingListRow& rowOf(SettingList list) {
    return lists[static_cast<std::size_t>(list)];
}

}  // namespace nubivane
