// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace nubivane {

/// The side of an icon that stands in a line of text or in a small button, in pixels.
inline constexpr int SmallIcon = 16;

/// An icon of the program by its name in icons/. It is drawn anew at each size and density asked
/// for, small sizes from a drawing of their own where there is one ("name-16.svg").
QIcon programIcon(const QString& name);

}  // namespace nubivane
