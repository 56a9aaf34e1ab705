// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/file_state.h"
#include "engine/picture/picture.h"
#include "engine/project/project_writer.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace nubivane {

class Workspace;
enum class VersionCause;
struct ProjectChange;

/// Everything that is open at one moment, safe to use on another thread. Frames that have not
/// changed are shared with the snapshot before.
struct WorkSnapshot {
    struct Frame {
        std::shared_ptr<const FrameRecords> records;
        Picture picture;  ///< empty for the bare map
    };

    QString project;                  ///< path text; empty for a project that was never saved
    std::optional<PairState> opened;  ///< how its files stood when they were read or written last
    QString mapFile;                  ///< path text
    QDateTime time;
    DocumentHead head;
    std::vector<Frame> frames;
};

/// A snapshot of all that is open.
WorkSnapshot takeSnapshot(const Workspace& workspace);

/// Takes one snapshot after the other, and copies each time no more than has changed in between.
class WorkSnapshots {
  public:
    explicit WorkSnapshots(const Workspace& workspace) : workspace_(workspace) {}

    void note(const ProjectChange& change);
    /// Another project is open: nothing is known of it.
    void forgetAll() { known_.clear(); }

    WorkSnapshot take();

  private:
    const Workspace& workspace_;
    std::vector<std::shared_ptr<const FrameRecords>> known_;  ///< null for a Frame that has changed
};

/// Writes a snapshot as a save would: gives the data file's bytes to `append` piece by piece and
/// returns the document. Raises `Error` where the map cannot be read or a picture not encoded.
QByteArray writeSnapshot(const WorkSnapshot& snapshot,
                         const std::function<void(const QByteArray&)>& append);

/// Keeps what is open, and would be left behind without having been saved, as a version of its
/// project, where the settings want versions. Nothing where nothing is unsaved; that it could not
/// be kept stops nobody.
void keepUnsavedWork(const Workspace& workspace, VersionCause cause);

}  // namespace nubivane
