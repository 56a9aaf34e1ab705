// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace nubivane {

// What can be learnt of a JPEG file (ITU-T T.81) beside its pixels. None of this raises anything:
// bytes that are no JPEG file have no quality, are not whole and have no scans.

/// True when the file was encoded in colour with the quantisation tables of a quality (0 to 100).
/// It may be passed on as it is where that quality is asked for: encoding it again would only lose
/// some.
bool hasJpegQuality(const QByteArray& bytes, int quality);

/// True when the file holds data for every pixel that its header claims. Decodes it.
bool isWholeJpeg(const QByteArray& bytes);

/// How often the file starts a scan. Nothing is decoded.
int jpegScans(const QByteArray& bytes);

}  // namespace nubivane
