// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRgb>

#include <functional>
#include <vector>

namespace nubivane {

/// How hard `GifWriter` tries to find the fewest bytes for an image.
enum class GifEffort {
    Quick,   ///< one way of writing each image
    Search,  ///< tries palettes and codings, and takes the shortest
};

/// A picture (RGB32) and how long it stays, in hundredths of a second.
struct TimedPicture {
    QImage picture;
    qint64 hundredths;
};

/// Writes a moving GIF (GIF89a, endless) of opaque pictures (RGB32), all of one size, without
/// changing a colour. Of each image only the rectangle that differs from the one before is written,
/// and in it what has not changed may be transparent.
///
/// The pictures must be such that a GIF can hold them: the first of at most 256 colours; in each
/// later one at most 255 among the pixels that changed, or 256 in the whole. `Error`
/// (InvalidPicture) otherwise.
class GifWriter {
  public:
    using Sink = std::function<void(const QByteArray&)>;

    /// `palette`: the colours of the whole animation where they are known and at most 256, those
    /// first that most images need; every image then does with it alone. Otherwise the colours of
    /// the first image serve as the common ones, and others have palettes of their own.
    GifWriter(QSize size, Sink sink, GifEffort effort, std::vector<QRgb> palette = {});

    /// Pictures in their order, worked on side by side. What exceeds the 65535 hundredths that an
    /// image can stay is written as further images that change nothing.
    void addImages(const std::vector<TimedPicture>& images);
    void finish();

    /// How many pictures of a size are best given at a time: enough to keep all cores at work, few
    /// enough to be held.
    static std::size_t picturesAtATime(QSize size);

  private:
    void start(const QImage& picture);
    QByteArray coded(const QImage& before, const TimedPicture& image) const;
    QByteArray codedOnce(const QImage& before, const QImage& picture, int hundredths) const;

    QSize size_;
    Sink sink_;
    GifEffort effort_;
    bool paletteHoldsAll_;
    std::vector<QRgb> palette_;
    QImage last_;
};

/// The part of two pictures of one size in which they differ; empty when they are equal.
QRect changedRect(const QImage& before, const QImage& after);

}  // namespace nubivane
