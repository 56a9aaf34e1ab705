// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/video/video_format.h"

#include <QImage>

#include <memory>

namespace nubivane {

/// The file that an encoder writes.
class VideoOutput {
  public:
    virtual ~VideoOutput() = default;

    /// False when not all of it was written; the output knows why.
    virtual bool write(const char* bytes, qint64 size) = 0;
    virtual bool seek(qint64 place) = 0;
    virtual qint64 place() = 0;
    virtual qint64 size() = 0;
    /// The host path at which what has been written can be read again.
    virtual QByteArray path() const = 0;
};

/// Makes the bytes of a video from pictures of any size. It is at home in a library of its own,
/// which is loaded with the first video: ninety other libraries come with it, and a start that
/// writes no video, as most do, would take twice as long. Raises std::runtime_error with the
/// cause; no type of ours crosses that border by value but plain ones.
class VideoEncoder {
  public:
    virtual ~VideoEncoder() = default;

    virtual void add(const QImage& picture) = 0;
    /// Writes what is still on its way. Nothing can be added any more.
    virtual void finish() = 0;

    /// Loads the library. Raises std::runtime_error also where that cannot be done.
    static std::unique_ptr<VideoEncoder> make(VideoOutput& output, VideoFormat format, QSize size,
                                              VideoRate rate);
};

/// What the library offers, under this name. The pointer is the caller's.
using MakeVideoEncoder = VideoEncoder*(VideoOutput& output, VideoFormat format, QSize size,
                                       VideoRate rate);
inline constexpr char MakeVideoEncoderName[] = "nubivane_make_video_encoder";

}  // namespace nubivane
