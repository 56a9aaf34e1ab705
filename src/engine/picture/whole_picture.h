// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

namespace nubivane {

/// The size in pixels at which a gif, jpg or png picture will be shown, from its headers alone:
/// nothing is decoded. Raises `Error` (InvalidPicture) as `probePicture` does, and for a picture of
/// another format.
QSize shownSize(const QByteArray& bytes);

/// Decodes a gif, jpg or png picture and lets it go again. Raises `Error` (InvalidPicture) unless
/// all of it is there: decoders show what they find of a file that is cut short, and fill with grey
/// where it has fewer pixels than it claims.
void requireWholePicture(const QByteArray& bytes);

}  // namespace nubivane
