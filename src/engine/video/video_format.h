// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

}  // namespace nubivane
