#pragma once

#include <QString>

namespace nubivane {

/// Who watches an export: its run window, or nobody. Called often enough that a window which lets
/// its events run in `setProgress` and `working` stays alive.
class ExportWatcher {
  public:
    virtual ~ExportWatcher() = default;

    virtual void setCaption(const QString&) {}
    virtual void setProgress(int) {}  ///< percent
    virtual void working() {}
};

}  // namespace nubivane
