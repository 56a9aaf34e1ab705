// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/frame_panels.h"

#include <QImage>

#include <vector>

namespace nubivane {

/// Frames that show one picture.
struct SharedPicture {
    Picture picture;
    std::vector<qint32> frames;  ///< numbers from 1
};

std::vector<SharedPicture> groupByPicture(const FramePanels& panels);

/// A page's picture as JPEG of our quality, passed on as it is where it already is one. `pixels`
/// are those of the picture where the caller has them.
QByteArray pageJpeg(const Picture& picture, const QImage& pixels = {});

}  // namespace nubivane
