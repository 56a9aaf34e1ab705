// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/weather/curve.h"

#include <QPainterPath>
#include <QString>

#include <vector>

namespace nubivane::weather {

/// A line of text as outlines, which look the same at any angle and on any screen. Needs an
/// application object with fonts.
class Letters {
  public:
    /// `size` is that of the font, in pixels. A text of more than 200 characters is cut.
    Letters(const QString& text, qreal size);

    qreal width() const { return width_; }
    /// How far a capital letter reaches above the line on which the letters stand.
    qreal capHeight() const { return capHeight_; }

    /// The text around a point, its line in a direction of length 1.
    QPainterPath around(const QPointF& middle, const QPointF& direction) const;
    /// The text in the middle of a curve, each letter standing on it and turned with it. Letters
    /// for which the curve has no room stand on the straight lines that go on at its ends.
    QPainterPath along(const Curve& curve) const;

  private:
    /// A letter that stands on the origin, and where its own origin is on the line.
    struct Glyph {
        QPainterPath path;
        qreal x;
    };

    std::vector<Glyph> glyphs_;
    qreal width_ = 0;
    qreal capHeight_ = 0;
};

}  // namespace nubivane::weather
