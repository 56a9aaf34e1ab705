// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>

namespace nubivane {

/// The pixels of a rectangle before and after something was drawn there, encoded: runs of what
/// stayed the same are counted, of what became another colour both colours are kept. A stroke over
/// a large rectangle so takes the room of its line.
class PixelChange {
  public:
    PixelChange() = default;
    /// `before` is what lay at `corner` of `picture`, which shows what lies there now. Both have 32
    /// bits a pixel in one format.
    PixelChange(const QImage& before, const QImage& picture, QPoint corner);

    bool isEmpty() const { return runs_.isEmpty(); }
    /// Where pixels differ, as a rectangle of the picture.
    const QRect& area() const { return area_; }
    qsizetype bytes() const { return runs_.size(); }

    /// Gives the pixels of a picture of that format the colours from after or before.
    void apply(QImage& picture) const { write(picture, true); }
    void revert(QImage& picture) const { write(picture, false); }
    /// Like `revert`, but leaves alone what was drawn over since. False when nothing was left of
    /// it.
    bool lift(QImage& picture) const;

  private:
    void write(QImage& picture, bool after) const;
    template <class Visit>
    void forEachRun(Visit visit) const;

    QRect area_;
    QByteArray runs_;  ///< compressed where that takes no time worth mentioning
    bool packed_ = false;
};

}  // namespace nubivane
