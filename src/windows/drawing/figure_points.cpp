// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/figure_points.h"

#include <algorithm>
#include <utility>

namespace nubivane {

std::optional<int> FigurePoints::current() const {
    return isEmpty() ? std::nullopt : std::optional(std::clamp(current_, 0, count() - 1));
}

void FigurePoints::setCurrent(int index) {
    current_ = std::clamp(index, 0, std::max(0, count() - 1));
}

void FigurePoints::insert(int before, QPoint position) {
    remember();
    points_.insert(points_.begin() + before, position);
    current_ = before;
}

void FigurePoints::remove(int index) {
    remember();
    points_.erase(points_.begin() + index);
    setCurrent(index);
}

void FigurePoints::set(std::vector<QPoint> points) {
    remember();
    points_ = std::move(points);
    setCurrent(count() - 1);
}

void FigurePoints::beginMove(int index) {
    remember();
    setCurrent(index);
}

void FigurePoints::move(int index, QPoint position) {
    points_[static_cast<std::size_t>(index)] = position;
}

void FigurePoints::start(std::vector<QPoint> points) {
    clear();
    points_ = std::move(points);
    setCurrent(count() - 1);
}

bool FigurePoints::takeBack() {
    // A move that went nowhere was no step.
    while (!steps_.empty() && steps_.back() == points_) {
        steps_.pop_back();
    }
    if (steps_.empty()) {
        return false;
    }
    points_ = std::move(steps_.back());
    steps_.pop_back();
    setCurrent(count() - 1);
    return true;
}

void FigurePoints::remember() {
    if (steps_.size() == MostSteps) {
        steps_.erase(steps_.begin());
    }
    steps_.push_back(points_);
}

}  // namespace nubivane
