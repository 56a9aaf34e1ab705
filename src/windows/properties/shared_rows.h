// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/properties/property_grid.h"

#include <QCoreApplication>

/// The rows that several windows of properties have in common.
namespace nubivane {

inline constexpr PropertyRow TextBackColorRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Back color"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets background color used to display text")};
inline constexpr PropertyRow BorderRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Border"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets border style")};
inline constexpr PropertyRow BorderColorRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Border color"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets border color")};
inline constexpr PropertyRow WidthRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Width"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets the width of the symbol")};
inline constexpr PropertyRow HeightRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Height"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets the height of the symbol")};
inline constexpr PropertyRow LinkRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Link"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets the url to navigate to")};
inline constexpr PropertyRow TooltipRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Tooltip"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid",
                      "Sets the text displayed when the mouse is paused over the symbol")};
inline constexpr PropertyRow NoteRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Notes"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Stores notes for internal use")};

/// Of the choice of a border: the first entry is yes.
inline constexpr int YesIndex = 0;
inline constexpr qint16 WithBorder = 1;

/// Pixels of a symbol's side that can be typed.
inline constexpr int LeastExtent = 16;

}  // namespace nubivane
