// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/picture.h"

#include <QHash>

#include <vector>

class QFile;

namespace nubivane {

/// The blocks of a ".nvpx" file, which lie one behind the other without separators.
struct DataBlocks {
    QByteArray map;               ///< block 0: the map file
    std::vector<Picture> frames;  ///< blocks 1 to n, still encoded
};

/// Reads the map's block and those of `frameCount` Frames. `sizes` gives the length of each of the
/// `claimed` blocks behind the map's; one not in it has none. Every Frame's block is tested to be a
/// picture. Raises `Error` (DamagedProject).
DataBlocks readDataBlocks(QFile& file, const QHash<qint32, qint32>& sizes, qint32 claimed,
                          qint32 frameCount);

}  // namespace nubivane
