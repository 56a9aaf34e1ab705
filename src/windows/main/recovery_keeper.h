// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"
#include "engine/project/recovery_copy.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <memory>
#include <optional>

namespace nubivane {

/// Keeps a recovery copy of what is open: looks every two seconds whether it is another work than
/// was opened or saved last, and has it written on another thread. The person's own file is never
/// touched.
class RecoveryKeeper : public QObject {
    Q_OBJECT

  public:
    RecoveryKeeper(const Workspace& workspace, const QString& recoveryFolder,
                   QObject* parent = nullptr);
    ~RecoveryKeeper() override;

    /// Looks now, as the timer does.
    void look();
    /// Looks, and waits until all is written: the process is about to end.
    void writeNow();
    /// What is open now is unsaved, though it was opened a moment ago.
    void isUnsaved();
    /// The editor is closed as it should be: nothing is left.
    void close();

  Q_SIGNALS:
    /// A copy could not be written; told once until one could. The reason is the system's.
    void failed(const QString& reason);

  private:
    /// What decides whether a project is the one that was opened or saved last.
    struct Base {
        const cWrapper* model = nullptr;
        std::optional<PairState> state;
        bool operator==(const Base&) const = default;
    };

    Base baseNow() const;
    bool isNewBase() const;
    void start(RecoverySnapshot snapshot);
    void finished(const QString& reason);

    const Workspace& workspace_;
    std::shared_ptr<RecoveryCopy> copy_;  ///< the writing thread's while it writes
    Base base_;
    std::optional<RecoverySnapshot> saved_;  ///< as it was opened or saved last
    std::optional<RecoverySnapshot> written_;
    bool writing_ = false;
    bool told_ = false;
    QThreadPool thread_;
    QTimer timer_;
};

}  // namespace nubivane
