// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <vector>

namespace nubivane {

/// The offset by which rectangles have to be moved, together, for each of them to stand on none of
/// those that are there: none where they are free already, otherwise the least that keeps them on
/// the map. Where there is no such place, one at which at least none hides another wholly.
QPoint freeOffset(const std::vector<QRect>& wanted, const std::vector<QRect>& taken, QSize map);

/// The offset, in steps down and to the right, at which none of the rectangles has its corner where
/// one of those that are there has its own, so that none hides another of its size.
QPoint visibleOffset(const std::vector<QRect>& wanted, const std::vector<QRect>& taken, QSize map);

}  // namespace nubivane
