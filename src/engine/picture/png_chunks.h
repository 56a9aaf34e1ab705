// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace nubivane {

/// True when the bytes begin as a PNG does.
bool isPng(const QByteArray& bytes);

/// A PNG without its texts, for decoding. Decoders unpack every compressed text into memory, a
/// thousand bytes for each byte of the file, though nobody here reads one.
///
/// Raises `Error` (InvalidPicture) when the file is cut short, or carries more data for its pixels
/// than they would take uncompressed: unpacking what lies behind the last pixel takes minutes.
QByteArray pngWithoutTexts(const QByteArray& bytes);

}  // namespace nubivane
