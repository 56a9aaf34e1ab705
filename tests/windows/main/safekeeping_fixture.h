// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/host_files.h"
#include "engine/model/edits/project_edits.h"
#include "support/project_snapshot.h"
#include "windows/commands/random_edits.h"
#include "windows/main/notice_bar.h"
#include "windows/main/safekeeping.h"

#include <QLabel>
#include <QPushButton>

namespace nubivane::testing {

/// An editor whose work is kept, as the program has it, with a folder of copies of its own and no
/// long delays.
class SafekeepingFixture : public RandomEditing {
  protected:
    ~SafekeepingFixture() override {
        workspace.ProjectChanged = false;
        safe_.reset();
    }

    void startSafe(const QString& project = {}) {
        startRandom(1, project);
        keep({std::chrono::milliseconds(10), std::chrono::milliseconds(50),
              std::chrono::milliseconds(20)});
    }
    void keep(const RecoveryKeeper::Delays& delays) {
        safe_ = std::make_unique<Safekeeping>(window(), workspace, copies(), delays);
        safe_->offer();
    }
    /// As kill -9 does: the copy stays as it is, and its lock goes.
    void crash() { safe_.reset(); }
    Safekeeping& safe() { return *safe_; }

    QString copies() const { return temporary.file("recovery"); }
    QList<RecoveryEntry> entries() const {
        QStringList faults;
        return recoveryEntries(copies(), faults);
    }
    /// The one copy that is wanted, once it is written.
    bool waitForCopy() {
        return QTest::qWaitFor([this] { return !entries().isEmpty(); });
    }
    bool waitForNoCopy() {
        return QTest::qWaitFor([this] { return entries().isEmpty(); });
    }
    /// Another editor's unsaved work with one sprite, which crashed some seconds ago.
    void leaveCrashed(const QString& project, int secondsAgo = 0) {
        RecoveryCopy copy(copies());
        WorkSnapshot snapshot = takeSnapshot(workspace);
        snapshot.project = project;
        snapshot.time = snapshot.time.addSecs(-secondsAgo);
        copy.write(snapshot);
    }

    QStringList told() {
        QStringList sentences;
        for (const Notice* notice : notices()) {
            sentences << notice->text();
        }
        return sentences;
    }
    QList<Notice*> notices() {
        QList<Notice*> shown;
        for (Notice* notice : safe_->bar().findChildren<Notice*>("notice")) {
            if (!notice->isHidden()) {
                shown << notice;
            }
        }
        return shown;
    }
    void press(int notice, const char* button) {
        auto* wanted = notices().value(notice)->findChild<QPushButton*>(button);
        ASSERT_TRUE(wanted) << button;
        QTest::mouseClick(wanted, Qt::LeftButton);
    }

  private:
    std::unique_ptr<Safekeeping> safe_;
};

}  // namespace nubivane::testing
