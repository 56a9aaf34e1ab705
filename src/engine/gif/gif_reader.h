// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>
#include <optional>
#include <vector>

namespace nubivane {

/// A GIF beyond these limits is refused, each before memory or time is spent on what exceeds it.
/// The screen itself is bound by `MaxPictureSide` and `MaxPicturePixels`, and the images together
/// by `MaxPicturePixels` too, so that images far larger than a small screen cannot cost minutes.
inline constexpr int MaxGifImages = 4096;  ///< minutes of film; a small screen could hold millions
inline constexpr qint64 MaxGifBytes = qint64{64} * 1024 * 1024;  ///< 268 images of 250 x 250 pixels

/// One image of a GIF.
struct GifImage {
    QImage picture;  ///< the whole screen as it then shows (ARGB32_Premultiplied)
    int delay;       ///< hundredths of a second, as the file has them
};

/// True when the bytes begin as a GIF does.
bool isGif(const QByteArray& bytes);

/// Decodes a GIF to the pictures that a browser would show one after the other; there is at least
/// one. Of a file that is cut short or damaged, the images before that place.
///
/// Where the format leaves room or a file strays from it, browsers decide: canvas that no image has
/// covered, or that was disposed of, is transparent whatever the background colour; a first image
/// that reaches beyond the screen widens it, a later one is cut off; an index without a colour is
/// black.
///
/// Raises `Error` (InvalidPicture) when not one image is whole or a limit is exceeded. A still
/// picture may be as large as any other; `MaxGifBytes` counts where there are several images.
std::vector<GifImage> readGif(const QByteArray& bytes);

class GifReader;

/// The images of a GIF one after the other, for files of our own that may be longer than could be
/// held decoded: of the limits only those of the screen count. Raises `Error` (InvalidPicture) when
/// the bytes are no GIF.
class GifImages {
  public:
    explicit GifImages(const QByteArray& bytes);
    ~GifImages();

    /// Nothing at the end of the file or where it is damaged.
    std::optional<GifImage> next();
    /// True when the end was reached and nothing was damaged.
    bool complete() const;

  private:
    std::unique_ptr<GifReader> reader_;
};

}  // namespace nubivane
