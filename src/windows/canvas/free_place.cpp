// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/free_place.h"

#include <algorithm>

namespace nubivane {

namespace {

constexpr int Step = 16;  // pixels between places that are tried
constexpr int Gap = 4;    // left free beside what is there
constexpr int MostRings = 48;

QRect unionOf(const std::vector<QRect>& rects) {
    QRect whole;
    for (const QRect& rect : rects) {
        whole |= rect;
    }
    return whole;
}

template <class Clash>
bool clashes(const std::vector<QRect>& wanted, const std::vector<QRect>& taken, QPoint offset,
             Clash clash) {
    return std::any_of(wanted.begin(), wanted.end(), [&](const QRect& rect) {
        const QRect moved = rect.translated(offset);
        return std::any_of(taken.begin(), taken.end(),
                           [&](const QRect& other) { return clash(moved, other); });
    });
}

bool touches(const QRect& moved, const QRect& other) {
    return moved.adjusted(-Gap, -Gap, Gap, Gap).intersects(other);
}

bool hides(const QRect& moved, const QRect& other) {
    const QPoint off = moved.topLeft() - other.topLeft();
    return off.manhattanLength() < Step;
}

/// The offsets at a distance of so many steps, those to the right and below first.
std::vector<QPoint> ring(int steps) {
    if (steps == 0) {
        return {QPoint()};
    }
    std::vector<QPoint> offsets;
    for (int along = -steps; along <= steps; ++along) {
        offsets.emplace_back(steps, along);
        offsets.emplace_back(along, steps);
        offsets.emplace_back(-steps, along);
        offsets.emplace_back(along, -steps);
    }
    std::stable_sort(offsets.begin(), offsets.end(), [](QPoint a, QPoint b) {
        return QPoint::dotProduct(a, a) < QPoint::dotProduct(b, b);
    });
    return offsets;
}

}  // namespace

QPoint freeOffset(const std::vector<QRect>& wanted, const std::vector<QRect>& taken, QSize map) {
    const QRect whole = unionOf(wanted);
    const QRect room(QPoint(), map);
    for (int steps = 0; steps <= MostRings; ++steps) {
        for (const QPoint& offset : ring(steps)) {
            const QPoint moved = offset * Step;
            const bool onMap = steps == 0 || room.contains(whole.translated(moved));
            if (onMap && !clashes(wanted, taken, moved, touches)) {
                return moved;
            }
        }
    }
    return visibleOffset(wanted, taken, map);
}

QPoint visibleOffset(const std::vector<QRect>& wanted, const std::vector<QRect>& taken, QSize map) {
    const QRect whole = unionOf(wanted);
    const QRect room(QPoint(), map);
    // Down to the right as far as the map goes, then again from a place further to the right.
    for (int column = 0; column < MostRings; ++column) {
        for (int steps = 0; steps < MostRings; ++steps) {
            const QPoint moved(Step * (steps + 2 * column), Step * steps);
            if (!moved.isNull() && !room.contains(whole.translated(moved))) {
                break;
            }
            if (!clashes(wanted, taken, moved, hides)) {
                return moved;
            }
        }
    }
    return {};
}

}  // namespace nubivane
