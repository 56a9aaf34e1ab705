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

using enum SettingType;

// An empty default beside a type other than text means that the reader computes one.
constexpr std::array table = {
    SettingRow{Setting::FtpUrl, S, "Ftp", "url", Text, ""},
    SettingRow{Setting::FtpPort, S, "Ftp", "port", Number, "21"},
    SettingRow{Setting::FtpUserName, S, "Ftp", "userName", Text, ""},
    SettingRow{Setting::FtpPassword, S, "Ftp", "password", Text, ""},
    SettingRow{Setting::FtpRemoteFolder, S, "Ftp", "remote folder", Text, ""},
    SettingRow{Setting::FtpNubivaneFolder, S, "Ftp", "nubivane folder", Text, ""},
    SettingRow{Setting::FtpNubivaneFolderInPlan, S, "Ftp", "nubivane folder", Text, "nVane"},
    SettingRow{Setting::FtpLoginType, S, "Ftp", "login type", Flag, "0"},
    SettingRow{Setting::FtpEncryption, S, "Ftp", "encryption", Number, ""},
    SettingRow{Setting::FtpFingerprints, S, "Ftp", "fingerprints", Text, ""},
    SettingRow{Setting::FtpConnections, S, "Ftp", "connections", Number, "4"},
    SettingRow{Setting::UploadSymbols, SF, "Upload", "symbols", Flag, "0"},
    SettingRow{Setting::UploadMaps, SF, "Upload", "maps", Flag, "0"},
    SettingRow{Setting::UploadHtmlPage, SF, "Upload", "html page", Flag, "0"},
    SettingRow{Setting::UploadInitialized, SF, "Upload", "initialized", Flag, "0"},
    SettingRow{Setting::VersionsKept, S, "Versions", "keep", Flag, "1"},
    SettingRow{Setting::VersionsLast, S, "Versions", "last", Number, "20"},
    SettingRow{Setting::VersionsDays, S, "Versions", "days", Number, "30"},
    SettingRow{Setting::VersionsMegabytes, S, "Versions", "megabytes", Number, "500"},
    SettingRow{Setting::PageFilename, S, "Html page", "Filename", Text, "Forecast"},
    SettingRow{Setting::PageTitle, S, "Html page", "Title", Text, "Forecast"},
    SettingRow{Setting::PageBackcolor, S, "Html page", "Backcolor", Color, "16777215"},
    SettingRow{Setting::PageBackcolorInDialog, S, "Html page", "Backcolor", Color, "-1"},
    SettingRow{Setting::PageBackpicture, S, "Html page", "Backpicture", Path, ""},
    SettingRow{Setting::PageTimer, S, "Html page", "Timer", Number, "4"},
    SettingRow{Setting::PageType, S, "Html page", "Type", Number, "1"},
    SettingRow{Setting::PageEffects, S, "Html page", "Effects", Flag, "1"},
    SettingRow{Setting::PageShowForecastText, S, "Html page", "Show forecast text", Flag, "1"},
    SettingRow{Setting::PagePoweredLabel, S, "Html page", "Powered Label", Text, ""},
    // An empty language is the system's.
    SettingRow{Setting::PageLanguage, S, "Html page", "Language", Text, ""},
    SettingRow{Setting::PageTheme, S, "Html page", "Theme", Number, "0"},
    SettingRow{Setting::PagePlay, S, "Html page", "Play button", Number, "1"},
    SettingRow{Setting::PageAddress, S, "Html page", "Address", Text, ""},
    SettingRow{Setting::SliderTick, SH, "Slider", "Tick", Flag, "1"},
    SettingRow{Setting::SliderColor, SH, "Slider", "Color", Color, "-1"},
    SettingRow{Setting::SliderTooltip, SH, "Slider", "Tooltip", Flag, "1"},
    // Nothing writes this one: preview and upload do not follow the name of the page settings.
    SettingRow{Setting::PreviewFilename, R, "Html page", "Filename", Text, "Forecast"},
    SettingRow{Setting::Locked, SG, "Preferences", "Locked", Number, ""},
    SettingRow{Setting::DrawColor, SG, "Preferences", "Draw color", Color, "16777215"},
    SettingRow{Setting::CurrentMap, SG, "Preferences", "Current map", Path, ""},
    SettingRow{Setting::CurrentMapInDialog, SG, "Preferences", "Current map", Path, "italy.jpg"},
    SettingRow{Setting::ShowStandardBar, SG, "Toolbar", "show standard", Flag, "1"},
    SettingRow{Setting::ShowMapBar, SG, "Toolbar", "show map", Flag, "1"},
    SettingRow{Setting::LargeIcons, SG, "Toolbar", "large icons", Flag, "1"},
    SettingRow{Setting::StandardBarX, SGT, "Standard", "x", Number, "2"},
    SettingRow{Setting::StandardBarY, SGT, "Standard", "y", Number, "2"},
    SettingRow{Setting::MapBarX, SGT, "Map", "x", Number, ""},
    SettingRow{Setting::MapBarY, SGT, "Map", "y", Number, "2"},
    SettingRow{Setting::WindowTop, SGP, "Window", "Top", Number, "400"},
    SettingRow{Setting::WindowLeft, SGP, "Window", "Left", Number, "1150"},
    SettingRow{Setting::WindowWidth, SGP, "Window", "Width", Number, "15000"},
    SettingRow{Setting::WindowWidthFirstRead, SGP, "Window", "Width", Number, "12900"},
    SettingRow{Setting::WindowHeight, SGP, "Window", "Height", Number, "11000"},
    SettingRow{Setting::WindowHeightFirstRead, SGP, "Window", "Height", Number, "10260"},
    SettingRow{Setting::WindowFormTop, SGP, "Window", "Form top", Number, ""},
    SettingRow{Setting::WindowFormLeft, SGP, "Window", "Form left", Number, ""},
    SettingRow{Setting::WindowFormWidth, SGP, "Window", "Form width", Number, ""},
    SettingRow{Setting::WindowFormHeight, SGP, "Window", "Form height", Number, ""},
    SettingRow{Setting::WindowMaximized, SGP, "Window", "Maximized", Number, "0"},
    SettingRow{Setting::WindowSplitter, SGP, "Window", "Splitter", Number, "360"},
    SettingRow{Setting::PropertyDialogWidth, SGP, "Dialog property", "Width", Number, "5180"},
    SettingRow{Setting::PropertyDialogHeight, SGP, "Dialog property", "Height", Number, "3740"},
    SettingRow{Setting::PropertyDialogTop, SGP, "Dialog property", "Top", Number, ""},
    SettingRow{Setting::PropertyDialogLeft, SGP, "Dialog property", "Left", Number, ""},
    SettingRow{Setting::DrawDialogTop, SGP, "Draw dialog", "Top", Number, ""},
    SettingRow{Setting::DrawDialogLeft, SGP, "Draw dialog", "Left", Number, ""},
};

constexpr std::array lists = {
    SettingListRow{SettingList::CheckedCollections, S, "Symbols collection"},
    SettingListRow{SettingList::RecentFiles, SG, "Recent Files"},
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
