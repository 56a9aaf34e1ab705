// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace nubivane {

class SettingsStore;

/// Light or dark, of the responsive page.
enum class PageTheme { Automatic, Light, Dark };

/// The button that runs through the periods.
enum class PagePlay { None, Offered, Running };

/// The settings of page making, read at the moment a page is made.
struct PageSettings {
    QString filename;  ///< base name of page, script and pictures: a plain name
    QString title;
    QString poweredLabel;
    qint32 backcolor;     ///< -1 is none
    QString backpicture;  ///< full path
    int timer;            ///< seconds between Frames of the timed page
    bool effects;         ///< fade from Frame to Frame
    bool showForecastText;
    bool sliderTicks;
    std::optional<qint32> sliderColor;  ///< -1 is none; nothing when the setting is no number
    bool sliderTooltip;
    // Of the responsive page alone.
    qint32 ownBackcolor;  ///< -1 where the person has chosen none
    QString language;     ///< tag of a language (BCP 47): the setting's, else the system's
    PageTheme theme;
    PagePlay play;
    QString address;  ///< folder of the web that the site will stand in; empty when not known

    /// Raises `Error` when the base name is no plain name or a colour no number.
    static PageSettings read(const SettingsStore& settings);
};

/// The base name of the page's files alone. Raises `Error` when it is no plain name.
QString readPageFilename(const SettingsStore& settings);

}  // namespace nubivane
