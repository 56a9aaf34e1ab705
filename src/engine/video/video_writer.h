// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/video/video_format.h"

#include <QImage>
#include <QString>

#include <memory>

namespace nubivane {

class VideoEncoder;

/// Largest side of a video in pixels: what players take.
inline constexpr int MaxVideoSide = 4096;

/// Writes pictures as a video, one after the other, each scaled to the video's size without regard
/// to its proportions. The file appears under its name when it is whole. Everything raises `Error`:
/// `InvalidVideo` when the encoder refuses or is not installed, FileAccess when the file cannot be
/// written.
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
    class File;
    std::unique_ptr<File> file_;
    std::unique_ptr<VideoEncoder> encoder_;

    template <class Part>
    void doing(Part part);
};

}  // namespace nubivane
