// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace nubivane {

/// True when a JPEG file (ITU-T T.81) was encoded with the quantisation tables of `JpegQuality`.
/// Such a file may be passed on as it is: encoding it again would only lose quality.
bool hasOurJpegQuality(const QByteArray& jpeg);

}  // namespace nubivane
