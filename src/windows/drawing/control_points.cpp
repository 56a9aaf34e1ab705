// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/control_points.h"

#include <algorithm>
#include <cstdlib>

namespace nubivane {

namespace {

constexpr int Reach = 5;  // pixels

constexpr bool isRow(int row) {
    return row >= 0 && row < ControlPoints::Rows;
}

}  // namespace

QPoint ControlPoints::point(int row) const {
    if (!isRow(row)) {
        return {};
    }
    const auto& [x, y] = points_[static_cast<std::size_t>(row)];
    return {x, y};
}

void ControlPoints::setPoint(int row, QPoint position) {
    if (isRow(row)) {
        // No map is so large that its pixels had no place in 16 bits.
        points_[static_cast<std::size_t>(row)] = {static_cast<qint16>(position.x()),
                                                  static_cast<qint16>(position.y())};
    }
}

void ControlPoints::addPoint(QPoint position) {
    if (isRow(pointCount_)) {
        setPoint(pointCount_, position);
        ++pointCount_;
    }
}

int ControlPoints::findPoint(QPoint position) const {
    for (int row = 0; row <= std::min<int>(pointCount_, Rows - 1); ++row) {
        const QPoint distance = position - point(row);
        if (std::abs(distance.x()) < Reach && std::abs(distance.y()) < Reach) {
            return row;
        }
    }
    return -1;
}

}  // namespace nubivane
