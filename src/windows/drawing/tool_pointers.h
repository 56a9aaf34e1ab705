// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/weather/weather_figure.h"

#include <QCursor>

namespace nubivane {

/// The pointers that are pictures: "drawcur", "erasecur", "color".
QCursor toolPointer(const char* key);

/// A cross, whose middle points, beside the figure that it draws.
QCursor figurePointer(weather::FigureKind kind);

}  // namespace nubivane
