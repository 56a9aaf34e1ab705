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

/// A font of a size in points, as it stands on the map.
QFont mapFont(const QString& family, int points, bool bold, bool italic, bool underline);

/// The size in pixels that a Label's text gives it, its border included.
QSize labelSize(const cLabel& label);

/// Paints a Label into a rectangle of the size that `labelSize` gives. Its own flag for strike-out
/// has no form on a map; `strikeOut` is for a control that was just given it.
void paintLabel(QPainter& painter, const cLabel& label, const QRect& rect, bool strikeOut = false);

}  // namespace nubivane
