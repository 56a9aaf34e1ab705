// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>

namespace nubivane {

/// How large the map is shown: the one place where pixels of the map become pixels of the screen
/// and back. At 100 % they are the same.
class Zoom {
  public:
    static constexpr int Least = 25;
    static constexpr int Usual = 100;
    static constexpr int Most = 800;

    explicit Zoom(int percent = Usual);

    int percent() const { return percent_; }
    double factor() const { return percent_ / 100.0; }

    /// The next larger and the next smaller one that people are used to.
    Zoom larger() const;
    Zoom smaller() const;

    /// An extent of the map on the screen, of at least one pixel.
    int toScreen(int extent) const;
    /// The middle of a pixel of the map.
    QPoint toScreen(QPoint mapPosition) const;
    /// The pixels that a rectangle of the map takes.
    QRect toScreen(const QRect& mapRect) const;
    /// The pixel of the map that lies at a position.
    QPoint toMap(QPoint screenPosition) const;
    /// Every pixel of the map that a rectangle touches.
    QRect toMap(const QRect& screenRect) const;
    /// The rectangle of the map whose sides lie nearest to those of one on the screen.
    QRect nearest(const QRect& screenRect) const;

    bool operator==(const Zoom&) const = default;

  private:
    int percent_;
};

}  // namespace nubivane
