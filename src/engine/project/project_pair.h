// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/file_state.h"

#include <QFile>
#include <QString>

#include <memory>

namespace nubivane {

/// The state of the pair behind these host paths.
PairState pairStateOf(const QString& hostProjectFile, const QString& hostDataFile);

/// Both files of a project, open for reading, and sure to belong together.
struct ProjectPair {
    std::unique_ptr<QFile> document;
    std::unique_ptr<QFile> data;
    PairState state;
};

/// Opens a pair of host paths. A save that was interrupted is completed first; one that another
/// program is in the middle of is waited for. Raises `Error` (DamagedProject) where the two cannot
/// be had, or are known not to belong together.
ProjectPair openProjectPair(const QString& hostProjectFile, const QString& hostDataFile);

}  // namespace nubivane
