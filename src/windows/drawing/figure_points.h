// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

#include <optional>
#include <vector>

namespace nubivane {

/// The points of a figure while it is edited: which there are, which of them is in hand, and how
/// they were step by step. Pixels of the map.
class FigurePoints {
  public:
    /// No hand makes more steps for one figure.
    static constexpr std::size_t MostSteps = 500;

    const std::vector<QPoint>& all() const { return points_; }
    int count() const { return static_cast<int>(points_.size()); }
    bool isEmpty() const { return points_.empty(); }
    QPoint at(int index) const { return points_[static_cast<std::size_t>(index)]; }
    /// The point that keys work on; nothing without points.
    std::optional<int> current() const;
    void setCurrent(int index);

    /// Each is a step of its own. An index stands for a point that exists, `before` may also be the
    /// number of points.
    void add(QPoint position) { insert(count(), position); }
    void insert(int before, QPoint position);
    void remove(int index);
    void set(std::vector<QPoint> points);
    /// Begins with points, before which there is no step.
    void start(std::vector<QPoint> points);
    /// A step that begins here and goes on while a point is moved.
    void beginMove(int index);
    void move(int index, QPoint position);

    /// Goes back by a step; the point in hand is the last one then. False without a step.
    bool takeBack();
    void clear() { *this = FigurePoints(); }

  private:
    void remember();

    std::vector<QPoint> points_;
    int current_ = 0;
    std::vector<std::vector<QPoint>> steps_;  ///< the points before each step
};

}  // namespace nubivane
