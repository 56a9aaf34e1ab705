// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace nubivane {

/// True when a JPEG file holds data for every pixel that its header claims.
bool isWholeJpeg(const QByteArray& bytes);

}  // namespace nubivane
