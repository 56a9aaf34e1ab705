// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

#include <optional>

namespace nubivane {

/// What the blocks of a GIF tell without decoding a pixel.
struct GifOutline {
    QSize size;      ///< of the screen as it will be shown: the first image may widen it
    int images = 0;  ///< whose data is there to its end
};

/// Walks the blocks of a GIF; nothing when they do not lead to its trailer, as in a file that is
/// cut short.
std::optional<GifOutline> gifOutline(const QByteArray& bytes);

}  // namespace nubivane
