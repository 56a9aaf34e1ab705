// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/settings_store.h"
#include "engine/history/version_store.h"
#include "engine/model/workspace.h"

#include <QImage>
#include <QTemporaryDir>

namespace nubivane {

/// A kept version, read beside the project that is open and without a trace in it.
class KeptProject {
  public:
    /// Raises `Error` where it cannot be read.
    KeptProject(const KeptVersion& version, const ProgramFolder& folder);

    const cFrames& frames() const { return workspace_.Frames(); }
    /// The first Frame as it looks on the map. Raises `Error`.
    QImage firstFrame();

  private:
    QTemporaryDir temporary_;  ///< where its map and its settings go
    SettingsStore settings_;
    Workspace workspace_;
};

/// What differs between a version and what is open, in sentences.
QString differencesText(const KeptProject& version, const cFrames& now);

}  // namespace nubivane
