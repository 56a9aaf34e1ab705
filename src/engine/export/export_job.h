// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace nubivane {

class ExportWatcher;

/// One export. It takes what it needs from the model when it is made; from then on it touches the
/// model no more, so that a window may have it done on another thread.
class ExportJob {
  public:
    virtual ~ExportJob() = default;

    /// Reads map and symbols and plans what is to be captured. Nothing is written yet. Raises
    /// `Error`.
    virtual void load() = 0;
    /// Writes the file. Raises `Error`, and whatever the watcher raises.
    virtual void save(ExportWatcher& watcher) = 0;
};

}  // namespace nubivane
