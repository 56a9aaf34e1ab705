// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <Qt>

#include <vector>

namespace nubivane {

enum class Alignment { Left, Centre, Right, Top, Middle, Bottom };

/// The rectangles brought to one side, or to one middle, of all of them together.
std::vector<QRect> aligned(std::vector<QRect> rects, Alignment alignment);

/// The rectangles with equal distances between neighbours. The outermost two stay; fewer than three
/// stay as they are.
std::vector<QRect> distributed(std::vector<QRect> rects, Qt::Orientation direction);

}  // namespace nubivane
