// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/curve.h"

#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace nubivane::weather {

namespace {

/// Beyond any map; what lies further out is no place that somebody clicked.
constexpr qreal FarAway = 32767;
constexpr qreal SamePlace = 0.01;
/// Between two samples the curve is straight to within a hundredth of a pixel or so.
constexpr qreal SampleLength = 1.5;
constexpr int MostSamples = 2000;  // of one segment

qreal distanceBetween(const QPointF& a, const QPointF& b) {
    return std::hypot(b.x() - a.x(), b.y() - a.y());
}

QPointF unit(const QPointF& vector) {
    const qreal length = std::hypot(vector.x(), vector.y());
    return length > 0 ? vector / length : QPointF(1, 0);
}

bool isPlace(const QPointF& point) {
    return std::abs(point.x()) <= FarAway && std::abs(point.y()) <= FarAway;
}

std::vector<QPointF> differentPoints(const std::vector<QPointF>& points, bool closed) {
    std::vector<QPointF> kept;
    for (const QPointF& point : points) {
        if (isPlace(point) && (kept.empty() || distanceBetween(kept.back(), point) > SamePlace)) {
            kept.push_back(point);
        }
    }
    while (closed && kept.size() > 1 && distanceBetween(kept.front(), kept.back()) <= SamePlace) {
        kept.pop_back();
    }
    return kept;
}

/// The control point of the Bezier curve from `at` to `next` that stands near `at`.
QPointF controlPoint(const QPointF& before, const QPointF& at, const QPointF& next) {
    const qreal d1 = distanceBetween(before, at);
    const qreal d2 = distanceBetween(at, next);
    const qreal r1 = std::sqrt(d1);
    const qreal r2 = std::sqrt(d2);
    return (d1 * next - d2 * before + (2 * d1 + 3 * r1 * r2 + d2) * at) / (3 * r1 * (r1 + r2));
}

QPointF bezierPoint(const QPointF& a, const QPointF& b, const QPointF& c, const QPointF& d,
                    qreal t) {
    const qreal u = 1 - t;
    return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d;
}

QPointF bezierDirection(const QPointF& a, const QPointF& b, const QPointF& c, const QPointF& d,
                        qreal t) {
    const qreal u = 1 - t;
    return unit(u * u * (b - a) + 2 * u * t * (c - b) + t * t * (d - c));
}

}  // namespace

Curve::Curve(const std::vector<QPointF>& points, Ends ends) {
    const std::vector<QPointF> through = differentPoints(points, ends == Ends::Closed);
    const auto count = static_cast<int>(through.size());
    if (count < 2) {
        return;
    }
    closed_ = ends == Ends::Closed && count > 2;
    // Beyond an open end stands the mirror image of the point before it.
    const auto point = [&](int i) {
        const auto nth = [&through](int n) { return through[static_cast<std::size_t>(n)]; };
        if (closed_) {
            return nth((i + count) % count);
        }
        if (i < 0) {
            return 2 * nth(0) - nth(1);
        }
        return i < count ? nth(i) : 2 * nth(count - 1) - nth(count - 2);
    };
    path_.moveTo(through.front());
    for (int i = 0; i < (closed_ ? count : count - 1); ++i) {
        addSegment(point(i), controlPoint(point(i - 1), point(i), point(i + 1)),
                   controlPoint(point(i + 2), point(i + 1), point(i)), point(i + 1));
    }
    if (closed_) {
        path_.closeSubpath();
    }
}

void Curve::addSegment(const QPointF& from, const QPointF& control1, const QPointF& control2,
                       const QPointF& to) {
    path_.cubicTo(control1, control2, to);
    const qreal around = distanceBetween(from, control1) + distanceBetween(control1, control2) +
                         distanceBetween(control2, to);
    const int steps =
        std::clamp(static_cast<int>(std::ceil(around / SampleLength)), 8, MostSamples);
    for (int i = samples_.empty() ? 0 : 1; i <= steps; ++i) {
        const qreal t = static_cast<qreal>(i) / steps;
        const QPointF next = bezierPoint(from, control1, control2, to, t);
        const qreal distance = samples_.empty() ? 0
                                                : samples_.back().distance +
                                                      distanceBetween(samples_.back().point, next);
        samples_.push_back({distance, next, bezierDirection(from, control1, control2, to, t)});
    }
}

Curve::Place Curve::at(qreal distance) const {
    if (closed_) {
        distance = std::fmod(distance, length());
        distance += distance < 0 ? length() : 0;
    }
    const Sample& first = samples_.front();
    const Sample& last = samples_.back();
    if (distance <= 0) {
        return {first.point + distance * first.direction, first.direction};
    }
    if (distance >= last.distance) {
        return {last.point + (distance - last.distance) * last.direction, last.direction};
    }
    const auto next = std::upper_bound(
        samples_.begin(), samples_.end(), distance,
        [](qreal wanted, const Sample& sample) { return wanted < sample.distance; });
    const Sample& before = *(next - 1);
    const qreal part = (distance - before.distance) / (next->distance - before.distance);
    return {before.point + part * (next->point - before.point),
            unit(before.direction + part * (next->direction - before.direction))};
}

qreal Curve::nearest(const QPointF& place, qreal from) const {
    const Sample* best = &samples_.back();
    for (const Sample& sample : samples_) {
        if (sample.distance >= from &&
            distanceBetween(sample.point, place) < distanceBetween(best->point, place)) {
            best = &sample;
        }
    }
    return best->distance;
}

Curve Curve::parallel(qreal distance) const {
    constexpr qreal Step = 4;
    const int steps = std::clamp(static_cast<int>(length() / Step), 1, MostSamples);
    std::vector<QPointF> points;
    for (int i = 0; i <= steps; ++i) {
        points.push_back(at(length() * i / steps).left(distance));
    }
    return {points, closed_ ? Ends::Closed : Ends::Open};
}

QPainterPath Curve::between(qreal from, qreal to) const {
    QPainterPath part(at(from).point);
    // A part of a closed curve may pass its start.
    const int rounds = closed_ ? 1 : 0;
    for (int round = -rounds; round <= rounds; ++round) {
        const qreal shift = round * length();
        for (const Sample& sample : samples_) {
            if (sample.distance + shift > from && sample.distance + shift < to) {
                part.lineTo(sample.point);
            }
        }
    }
    part.lineTo(at(to).point);
    return part;
}

QPolygonF Curve::outline() const {
    QPolygonF outline;
    outline.reserve(static_cast<qsizetype>(samples_.size()));
    for (const Sample& sample : samples_) {
        outline << sample.point;
    }
    return outline;
}

bool Curve::turnsLeft() const {
    qreal twiceArea = 0;
    for (std::size_t i = 1; i < samples_.size(); ++i) {
        const QPointF& a = samples_[i - 1].point;
        const QPointF& b = samples_[i].point;
        twiceArea += a.x() * b.y() - b.x() * a.y();
    }
    return twiceArea < 0;  // y grows downward
}

}  // namespace nubivane::weather
