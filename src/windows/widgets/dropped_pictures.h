// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QMimeData;

namespace nubivane {

/// The picture files of this machine that a drag brings, as paths with backslashes; empty when it
/// brings anything else beside them.
QStringList droppedPictures(const QMimeData& data);

}  // namespace nubivane
