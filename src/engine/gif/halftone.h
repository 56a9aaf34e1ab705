// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRgb>

#include <array>
#include <cstdint>
#include <vector>

namespace nubivane {

/// A pixel that has no colour yet: no opaque colour.
inline constexpr QRgb Undecided = 0;

/// What counts when a pixel's colour is chosen, beside how far it is from the right one.
struct HalftoneWeights {
    float blurred;  ///< the same of the picture as it is seen from afar, where bands would show
    float changes;  ///< that neighbours differ, which costs bytes: as much as so many times the
                    ///< square by which the nearest colours miss the right ones on an average
};

/// Lays the colours of a palette on a picture of many more: as a mixture of dots where none is near
/// enough, in plain areas where one is.
class Halftone {
  public:
    Halftone(const std::vector<QRgb>& palette, HalftoneWeights weights);

    /// Decides the undecided pixels of `shown` (ARGB32) within a rectangle so that together with
    /// the others, which stay, they look like `picture` (RGB32, of the same size).
    void decide(const QImage& picture, const QRect& rect, QImage& shown);

  private:
    class Band;

    /// The palette's colours that are near a colour, by their places, in no order.
    static constexpr std::size_t Choices = 6;
    using Near = std::array<std::uint8_t, Choices>;
    const Near& nearTo(QRgb color);
    std::uint8_t nearest(QRgb color);

    struct Entry {
        QRgb color;
        std::array<float, 3> channels;
    };

    HalftoneWeights weights_;
    float costOfChange_ = 0;  ///< in the picture at hand
    std::vector<Entry> palette_;
    std::vector<int> cells_;  ///< by the upper bits of a colour: the place in `known_`, or -1
    std::vector<Near> known_;
};

}  // namespace nubivane
