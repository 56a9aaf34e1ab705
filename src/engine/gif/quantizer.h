// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRgb>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

struct liq_attr;
struct liq_histogram;

namespace nubivane {

/// A colour and the number of its pixels.
struct CountedColor {
    QRgb color;
    quint32 pixels;
};

/// Finds the palette that suits many colours best. Raises `Error`
/// (InvalidPicture) when that fails, which only a lack of memory explains.
class Quantizer {
  public:
    enum class Effort { Usual, Thorough };

    /// For a palette of 2 to 256 colours.
    explicit Quantizer(int colors, Effort effort = Effort::Usual);
    ~Quantizer();

    /// The pixels of a picture (RGB32); where `counts` is given, those that are not 0 in it, which
    /// holds a byte for each pixel.
    void add(const QImage& picture, const std::vector<uchar>& counts = {});
    /// Colours by the number of their pixels; at most `MaxColors` at a time.
    void add(const std::vector<CountedColor>& colors);
    static constexpr std::size_t MaxColors = 2048;
    /// Colours that the palette is to hold exactly.
    void keep(const std::vector<QRgb>& colors);

    std::vector<QRgb> palette();

  private:
    std::unique_ptr<liq_attr, void (*)(liq_attr*)> attributes_;
    std::unique_ptr<liq_histogram, void (*)(liq_histogram*)> histogram_;
};

/// A picture of one byte a pixel, row by row, and the colours that the bytes stand for.
struct IndexedPicture {
    std::vector<std::uint8_t> pixels;
    std::vector<QRgb> palette;
    std::optional<int> transparent = {};  ///< the index of what is see-through
};

/// A picture (ARGB32) in the 256 colours that suit it best, a little dithered. A pixel that is not
/// wholly see-through is wholly there. Raises `Error` as the `Quantizer` does.
IndexedPicture withFewColors(const QImage& argb);

/// Answers with the nearest colour of a palette, each question once.
class NearestColor {
  public:
    explicit NearestColor(std::vector<QRgb> palette);

    QRgb of(QRgb color);

  private:
    struct Answer {
        QRgb color;
        QRgb nearest;
    };
    std::vector<QRgb> palette_;
    std::vector<Answer> known_;
};

}  // namespace nubivane
