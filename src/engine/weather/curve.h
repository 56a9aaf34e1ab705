// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>
#include <QPointF>

#include <vector>

namespace nubivane::weather {

/// A smooth curve through points: the centripetal Catmull-Rom spline, which passes through each of
/// them, neither overshoots nor makes loops between them, and moves only near a point that is
/// moved.
///
/// Positions are pixels of the map; distances are measured along the curve from its start.
class Curve {
  public:
    enum class Ends { Open, Closed };

    struct Place {
        QPointF point;
        QPointF direction;  ///< in which the curve goes on, of length 1

        /// The point at a distance to the left of the direction as it is seen on the map.
        QPointF left(qreal distance) const {
            return point + distance * QPointF(direction.y(), -direction.x());
        }
    };

    /// Points that lie on their predecessor, or are no numbers, do not count. A closed curve needs
    /// three points, with two it stays open.
    Curve(const std::vector<QPointF>& points, Ends ends);

    /// True with fewer than two points.
    bool isEmpty() const { return samples_.empty(); }
    bool isClosed() const { return closed_; }
    qreal length() const { return samples_.empty() ? 0 : samples_.back().distance; }

    /// The place at a distance. Beyond an end of an open curve it lies on the straight line that
    /// goes on there; a closed curve begins anew. The curve must not be empty.
    Place at(qreal distance) const;

    /// The distance at which the curve, from a distance on, comes nearest to a place. The curve
    /// must not be empty.
    qreal nearest(const QPointF& place, qreal from = 0) const;

    /// The curve at a distance to the left of this one, open like this one.
    Curve parallel(qreal distance) const;

    /// The whole curve, exactly.
    const QPainterPath& path() const { return path_; }
    /// The part between two distances, `from` below `to`, as a chain of lines shorter than a pixel
    /// or two.
    QPainterPath between(qreal from, qreal to) const;
    /// The whole curve as such a chain; a closed one ends where it began.
    QPolygonF outline() const;
    /// For a closed curve: whether its inside lies to the left as the curve goes.
    bool turnsLeft() const;

  private:
    struct Sample {
        qreal distance;
        QPointF point;
        QPointF direction;
    };

    void addSegment(const QPointF& from, const QPointF& control1, const QPointF& control2,
                    const QPointF& to);

    bool closed_ = false;
    QPainterPath path_;
    std::vector<Sample> samples_;
};

}  // namespace nubivane::weather
