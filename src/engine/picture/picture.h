// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/image_codec.h"

#include <QImage>

#include <memory>

namespace nubivane {

/// A picture that stays encoded until somebody needs its pixels.
///
/// Copies share one content and cost nothing, so that hundreds of Frames showing the bare map hold
/// it once. A picture that was read keeps its bytes and can be written back as it was read.
class Picture {
  public:
    /// No picture.
    Picture() = default;

    /// A picture of pixels.
    explicit Picture(QImage image);

    /// A picture from an encoded file; only the header is read. Raises `Error` (InvalidPicture).
    static Picture fromEncoded(QByteArray bytes);

    bool isEmpty() const { return !content_; }

    /// Width and height in pixels.
    QSize size() const { return content_ ? content_->size : QSize(); }

    /// The pixels, decoded anew at each call when the picture is kept encoded: ask once. Raises
    /// `Error` (InvalidPicture) when the data behind a sound header is damaged.
    QImage image() const;

    /// The picture as a file of `format`: the very bytes that were read where they have that
    /// format, encoded otherwise.
    QByteArray encoded(PictureFormat format) const;

    /// The bytes that were read; empty when the picture is kept as pixels.
    QByteArray originalBytes() const { return content_ ? content_->bytes : QByteArray(); }
    /// True when the picture was read as a file of `format`.
    bool wasReadAs(PictureFormat format) const;

    /// True when both are copies of one picture.
    bool sharesContentWith(const Picture& other) const { return content_ == other.content_; }
    /// A value equal for copies of one picture, and only for these while they live.
    const void* identity() const { return content_.get(); }

  private:
    struct Content {
        QSize size;
        QImage pixels;     ///< null while the picture is kept encoded
        QByteArray bytes;  ///< empty when it is kept as pixels
        PictureFormat format = PictureFormat::Jpeg;
    };

    std::shared_ptr<const Content> content_;
};

}  // namespace nubivane
