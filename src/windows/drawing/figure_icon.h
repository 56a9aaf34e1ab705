// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/weather/weather_figure.h"

#include <QIcon>

namespace nubivane {

/// A small one of a kind of figure, drawn as the map's are, so that button and map always agree.
QIcon figureIcon(weather::FigureKind kind);
/// The same within a square of that size at a place.
void paintFigureIcon(QPainter& painter, weather::FigureKind kind, const QRectF& square);

}  // namespace nubivane
