// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <span>

namespace nubivane {

/// Every setting that the program reads or writes. Where readers supply different defaults for one
/// entry, each default has a name of its own.
enum class Setting {
    FtpUrl,
    FtpPort,
    FtpUserName,
    FtpPassword,
    FtpRemoteFolder,
    FtpNubivaneFolder,
    FtpNubivaneFolderInPlan,
    FtpLoginType,
    FtpEncryption,
    FtpFingerprints,
    FtpConnections,
    UploadSymbols,
    UploadMaps,
    UploadHtmlPage,
    UploadInitialized,
    VersionsKept,       ///< whether a project is kept as it was before each save
    VersionsLast,       ///< versions of each project
    VersionsDays,       ///< beyond these, one of each day
    VersionsMegabytes,  ///< of all projects
    PageFilename,
    PageTitle,
    PageBackcolor,
    PageBackcolorInDialog,
    PageBackpicture,
    PageTimer,
    PageType,
    PageEffects,
    PageShowForecastText,
    PagePoweredLabel,
    PageLanguage,
    PageTheme,
    PagePlay,
    PageAddress,
    SliderTick,
    SliderColor,
    SliderTooltip,
    PreviewFilename,
    Locked,
    DrawColor,
    Guides,         ///< whether what is dragged is drawn to others
    Grid,           ///< pixels of the map between its lines; 0 for none
    ThumbnailSize,  ///< of the palette, pixels
    Spelling,       ///< language by which forecast texts are checked; empty for that of the page
    CurrentMap,
    CurrentMapInDialog,
    ShowStandardBar,
    ShowMapBar,
    LargeIcons,
    StandardBarX,
    StandardBarY,
    MapBarX,
    MapBarY,
    WindowTop,
    WindowLeft,
    WindowWidth,
    WindowWidthFirstRead,
    WindowHeight,
    WindowHeightFirstRead,
    WindowFormTop,
    WindowFormLeft,
    WindowFormWidth,
    WindowFormHeight,
    WindowMaximized,
    WindowSplitter,
    PropertyDialogWidth,
    PropertyDialogHeight,
    PropertyDialogTop,
    PropertyDialogLeft,
    DrawDialogTop,
    DrawDialogLeft,
    Count
};

/// Lists kept under the keys "1", "2", … of a group; the first empty value ends a list.
enum class SettingList { CheckedCollections, RecentFiles, FavouriteSymbols, RecentSymbols };

/// The stored value is always text.
struct SettingRow {
    Setting setting;
    const char* section;
    const char* group;
    const char* key;
    const char* defaultValue;  ///< what readers take when the entry is absent
};

struct SettingListRow {
    SettingList list;
    const char* section;
    const char* group;
};

std::span<const SettingRow> settingsTable();
const SettingRow& rowOf(Setting setting);
const SettingListRow& rowOf(SettingList list);

}  // namespace nubivane
