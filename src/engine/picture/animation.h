// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <optional>
#include <vector>

namespace nubivane {

/// One image of an `Animation`.
struct AnimationImage {
    QImage picture;  ///< ARGB32_Premultiplied, as large as the animation
    int hundredths;  ///< how long it stays, in hundredths of a second, as the file has it
    int duration;    ///< how long it stays, in milliseconds, as browsers play it
};

/// A picture file decoded whole: a moving GIF, or a still picture, which is an animation of one
/// image. It never changes, so any number of sprites and threads may share one.
///
/// Times are milliseconds since the animation was started, 0 or more. It plays without end: what
/// the file says of the number of repetitions does not count.
class Animation {
  public:
    /// Decodes a file of at most `MaxPictureBytes` (image_codec.h) by its path text. Raises
    /// `Error`: FileNotFound, FileAccess, or InvalidPicture.
    static Animation read(const QString& path);

    /// Decodes a bmp, gif, jpg, png or tif picture. Raises `Error` (InvalidPicture).
    static Animation fromEncoded(const QByteArray& bytes);

    QSize size() const { return images_.front().picture.size(); }
    /// At least one.
    const std::vector<AnimationImage>& images() const { return images_; }
    bool moves() const { return images_.size() > 1; }
    /// Memory that the images take.
    qint64 bytes() const {
        return images_.front().picture.sizeInBytes() * static_cast<qint64>(images_.size());
    }
    /// The first image alone, scaled down where it is larger than `largest`.
    Animation still(QSize largest) const;

    /// One pass through all images; 0 for a still picture.
    qint64 totalDuration() const { return moves() ? ends_.back() : 0; }
    /// The shortest time that an image stays; 0 for a still picture.
    int shortestDuration() const;

    /// Position in `images()` of the image that shows at a time.
    int imageAt(qint64 time) const;
    /// That image.
    const QImage& pictureAt(qint64 time) const {
        return images_[static_cast<std::size_t>(imageAt(time))].picture;
    }
    /// Milliseconds from a time to the next image; nothing for a still picture.
    std::optional<int> nextChange(qint64 time) const;

  private:
    explicit Animation(std::vector<AnimationImage> images);

    std::vector<AnimationImage> images_;
    std::vector<qint64> ends_;  ///< when each image of the first pass ends
};

}  // namespace nubivane
