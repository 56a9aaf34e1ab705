// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QRect>
#include <QRgb>
#include <QString>

#include <optional>
#include <vector>

namespace nubivane {

/// The blocks of a GIF file (GIF89a) that do not depend on how its pixels are coded. A still
/// picture and a moving one are made of the same.
namespace gif_blocks {

inline constexpr int MaxSide = 65535;   ///< pixels: sizes have 16 bits
inline constexpr int MaxDelay = 65535;  ///< hundredths of a second: delays too
inline constexpr char Trailer = ';';

/// Raises `Error` (InvalidPicture) with this cause.
[[noreturn]] void fail(const QString& cause);

/// Raises `Error` unless a GIF can be of this size.
void requireSize(QSize size);

/// The bits, one at least, that the largest of `count` indexes takes.
int bitsFor(std::size_t count);

/// What a file begins with: its version, its size and the colours of all images that have none of
/// their own. `grayBits` is what the file says of the colours that its picture once had, 1 to 8.
QByteArray header(QSize size, const std::vector<QRgb>& palette, int grayBits);

/// That the images are shown again and again, without end.
QByteArray endlessLoop();

/// How an image comes and goes.
struct Control {
    int hundredths = 0;                   ///< how long it stays
    bool leftStanding = false;            ///< the next image comes on top of it
    std::optional<int> transparent = {};  ///< the index of what is see-through
};
QByteArray control(const Control& control);

/// What stands before an image's data: where it lies, and its palette if it has one of its own.
QByteArray image(const QRect& rect, const std::vector<QRgb>& ownPalette = {});

}  // namespace gif_blocks

}  // namespace nubivane
