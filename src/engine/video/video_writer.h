// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

#include <memory>

namespace nubivane {

enum class VideoFormat {
    Avi,  ///< MJPEG with full colour resolution, at a whole number of pictures a second
    Mp4,  ///< H.264 as sites and phones play it, while it loads; sides are even numbers of pixels
};

/// How often the pictures of a video follow each other: `count` of them in `seconds`.
struct VideoRate {
    int count;
    int seconds = 1;
};

/// Largest side of a video in pixels: what players take.
inline constexpr int MaxVideoSide = 4096;

/// Writes pictures as a video, one after the other, each scaled to the video's size without regard
/// to its proportions. The file appears under its name when it is whole. Everything raises `Error`:
/// `InvalidVideo` when the encoder refuses, FileAccess when the file cannot be written.
class VideoWriter {
  public:
    /// `path` is a path text.
    VideoWriter(const QString& path, VideoFormat format, QSize size, VideoRate rate);
    ~VideoWriter();

    /// The size in which a format writes a size asked for.
    static QSize sizeFor(VideoFormat format, QSize asked);

    void add(const QImage& picture);
    /// Writes what is still on its way and puts the file in its place.
    void finish();

  private:
    class Encoder;
    std::unique_ptr<Encoder> encoder_;
};

}  // namespace nubivane
