// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprites.h"

#include <QFont>
#include <QRect>

class QPainter;

namespace nubivane {

/// How a Label looks on the map: on the canvas and in everything that is made from it.
///
/// One inch is 96 pixels here, on every screen. Fonts are not hinted and are smoothed in grey, so
/// that a desktop's own font settings change neither widths nor pixels.

/// The font of a style as it stands on the map, where overline and strike-out have no form.
QFont mapFont(const FontStyle& style);

/// The size in pixels that a Label's text gives it, its border included.
QSize labelSize(const cLabel& label);

/// Paints a Label into a rectangle of the size that `labelSize` gives. Its own flag for strike-out
/// has no form on a map; `strikeOut` is for a control that was just given it.
void paintLabel(QPainter& painter, const cLabel& label, const QRect& rect, bool strikeOut = false);

/// The letters of a Label for which no installed font has a form, each once: they show as boxes.
QString lettersWithoutFont(const cLabel& label);

}  // namespace nubivane
