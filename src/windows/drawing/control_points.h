// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

#include <array>

namespace nubivane {

/// `points`: the points that a figure is made from, in pixels of the map, and which of them is
/// being dragged. A row that is not in use keeps what was last written to it until all are cleared.
class ControlPoints {
  public:
    static constexpr int Rows = 101;

    bool penDown = false;    ///< a stroke or a drag of a point is under way
    qint16 movingPoint = 0;  ///< the row being dragged

    /// Number of rows in use.
    qint16 pointCount() const { return pointCount_; }
    QPoint point(int row) const;
    void setPoint(int row, QPoint position);

    /// Writes the first row that is not in use.
    void addPoint(QPoint position);
    /// The last row in use is free again.
    void removeLast() { --pointCount_; }
    /// The first row less than five pixels away on both axes, or -1. The row behind the last one in
    /// use is looked at as well, as it stands.
    int findPoint(QPoint position) const;
    /// No row in use, all of them (0, 0), the pen up.
    void clear() { *this = ControlPoints(); }

  private:
    std::array<std::array<qint16, 2>, Rows> points_{};
    qint16 pointCount_ = 0;
};

}  // namespace nubivane
