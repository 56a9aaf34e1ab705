// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace nubivane {

class SettingsStore;

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

    /// Raises `Error` when the base name is no plain name or a colour no number.
    static PageSettings read(const SettingsStore& settings);
};

/// The base name of the page's files alone. Raises `Error` when it is no plain name.
QString readPageFilename(const SettingsStore& settings);

}  // namespace nubivane
