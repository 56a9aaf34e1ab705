// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit_watcher.h"
#include "engine/project/recovery_copy.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <chrono>
#include <memory>

namespace nubivane {

/// Keeps a recovery copy of what is open and unsaved. It follows the edits: a second after the last
/// one, and while they go on without a pause every four seconds, it takes a snapshot, which another
/// thread writes. The person's own file is never touched.
class RecoveryKeeper : public QObject, private EditWatcher {
    Q_OBJECT

  public:
    /// When to write, after the last edit and after the first that is not yet written.
    struct Delays {
        std::chrono::milliseconds idle{1000};
        std::chrono::milliseconds longest{4000};
        std::chrono::milliseconds retry{10'000};  ///< after a failure
    };

    RecoveryKeeper(Workspace& workspace, const QString& recoveryFolder, const Delays& delays,
                   QObject* parent = nullptr);
    ~RecoveryKeeper() override;

    /// Writes what is unsaved before it returns: the process is about to end.
    void writeNow();
    /// The editor is closed as it should be: nothing is left.
    void close();

  Q_SIGNALS:
    /// A copy could not be written; told once until one could. The reason is the system's.
    void failed(const QString& reason);
    /// After a failure that was told, a copy was written.
    void succeeded();

  private:
    // EditWatcher.
    void edited(const ProjectChange& change) override { snapshots_.note(change); }
    void historyChanged() override;

    void write();
    void discard();
    void finished(const QString& reason);

    Workspace& workspace_;
    const Delays delays_;
    WorkSnapshots snapshots_;
    std::shared_ptr<RecoveryCopy> copy_;  ///< the writing thread's
    bool stands_ = false;                 ///< there is a copy, or one is being written
    bool writing_ = false;
    bool told_ = false;
    QThreadPool thread_;
    QTimer idle_;
    QTimer longest_;
};

}  // namespace nubivane
