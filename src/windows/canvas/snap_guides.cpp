// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/snap_guides.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace nubivane {

namespace {

/// A rectangle along one direction: `at` its first pixel, `over` the extent beside it.
struct Span {
    int at;
    int extent;
    int over;
    int overExtent;

    int end() const { return at + extent; }
    int middle() const { return at + extent / 2; }
    bool isBeside(const Span& other) const {
        return over < other.over + other.overExtent && other.over < over + overExtent;
    }
};

Span across(const QRect& rect) {
    return {rect.x(), rect.width(), rect.y(), rect.height()};
}

Span down(const QRect& rect) {
    return {rect.y(), rect.height(), rect.x(), rect.width()};
}

/// Where something is drawn to, and the part of the line that tells why.
struct Place {
    int offset;
    int at;    ///< of the line, on the direction
    int from;  ///< its ends, across the direction
    int to;
};

/// Edges and centres of another one.
void addEdges(std::vector<Place>& places, const Span& dragged, const Span& other) {
    const int from = std::min(dragged.over, other.over);
    const int to = std::max(dragged.over + dragged.overExtent, other.over + other.overExtent);
    const std::array lines = {other.at, other.end()};
    for (const int line : lines) {
        places.push_back({line - dragged.at, line, from, to});
        places.push_back({line - dragged.end(), line, from, to});
    }
    places.push_back({other.middle() - dragged.middle(), other.middle(), from, to});
}

/// Between two that stand beside it, or as far from one as that one is from the next.
void addDistances(std::vector<Place>& places, const Span& dragged,
                  const std::vector<Span>& others) {
    std::vector<Span> row;
    std::copy_if(others.begin(), others.end(), std::back_inserter(row),
                 [&](const Span& other) { return other.isBeside(dragged); });
    std::sort(row.begin(), row.end(), [](const Span& a, const Span& b) { return a.at < b.at; });
    const auto add = [&](int wanted) {
        places.push_back({wanted - dragged.at, wanted + dragged.extent / 2, dragged.over,
                          dragged.over + dragged.overExtent});
    };
    for (std::size_t i = 1; i < row.size(); ++i) {
        const Span& first = row[i - 1];
        const Span& second = row[i];
        const int gap = second.at - first.end();
        if (gap < 0) {
            continue;
        }
        if (gap >= dragged.extent) {
            add(first.end() + (gap - dragged.extent) / 2);
        }
        add(second.end() + gap);
        add(first.at - gap - dragged.extent);
    }
}

/// The nearest one within reach, and all that agree with it.
std::vector<Place> nearest(const std::vector<Place>& places, int reach) {
    int least = reach + 1;
    for (const Place& place : places) {
        if (std::abs(place.offset) < std::abs(least)) {
            least = place.offset;
        }
    }
    std::vector<Place> found;
    if (std::abs(least) <= reach) {
        std::copy_if(places.begin(), places.end(), std::back_inserter(found),
                     [least](const Place& place) { return place.offset == least; });
    }
    return found;
}

/// From a position to the nearest line of the grid.
int toGrid(int position, int grid) {
    return static_cast<int>(std::lround(static_cast<double>(position) / grid)) * grid - position;
}

std::vector<Place> placesFor(const Span& dragged, const std::vector<Span>& others, int map,
                             int mapOver) {
    std::vector<Place> places;
    for (const Span& other : others) {
        addEdges(places, dragged, other);
    }
    places.push_back({map / 2 - dragged.middle(), map / 2, 0, mapOver});
    addDistances(places, dragged, others);
    return places;
}

template <class Turn>
std::vector<Span> spansOf(const std::vector<QRect>& rects, Turn turn) {
    std::vector<Span> spans;
    std::transform(rects.begin(), rects.end(), std::back_inserter(spans), turn);
    return spans;
}

}  // namespace

SnapGuides::SnapGuides(Setting setting, QSize map, std::vector<QRect> others, int reach)
    : setting_(setting), map_(map), others_(std::move(others)), reach_(reach) {}

SnapGuides::Snapped SnapGuides::snap(const QRect& dragged) const {
    Snapped snapped{{0, 0}, {}};
    bool heldAcross = false;
    bool heldDown = false;
    if (setting_.guides) {
        const auto x = nearest(
            placesFor(across(dragged), spansOf(others_, across), map_.width(), map_.height()),
            reach_);
        const auto y = nearest(
            placesFor(down(dragged), spansOf(others_, down), map_.height(), map_.width()), reach_);
        heldAcross = !x.empty();
        heldDown = !y.empty();
        snapped.offset = {heldAcross ? x.front().offset : 0, heldDown ? y.front().offset : 0};
        for (const Place& place : x) {
            snapped.lines.emplace_back(place.at, place.from, place.at, place.to);
        }
        for (const Place& place : y) {
            snapped.lines.emplace_back(place.from, place.at, place.to, place.at);
        }
    }
    if (setting_.grid > 0) {
        if (!heldAcross) {
            snapped.offset.setX(toGrid(dragged.x(), setting_.grid));
        }
        if (!heldDown) {
            snapped.offset.setY(toGrid(dragged.y(), setting_.grid));
        }
    }
    return snapped;
}

}  // namespace nubivane
