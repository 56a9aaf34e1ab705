// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/error.h"
#include "engine/core/worker_thread.h"
#include "engine/export/export_request.h"

#include <QDialog>
#include <QTimer>

#include <optional>

class QProgressBar;

namespace nubivane {

class PictureBox;
class Shell;
class Workspace;

/// What the windows of exports under way have in common: the stage, how far it is, and the work,
/// which is done on another thread. None can be left before its export has ended.
class ExportRunWindow : public QDialog {
    Q_OBJECT

  public:
    ~ExportRunWindow() override;

    void reject() override {}

  Q_SIGNALS:
    // What the working thread has to tell.
    void captionTold(const QString& text);
    void progressTold(int percent);
    void stageTold();

  protected:
    ExportRunWindow(const char* name, Workspace& workspace, Shell& shell, QWidget* parent);

    /// Shows the window until what was requested is done. It begins `delay` milliseconds after
    /// that.
    void run(const ExportRequest& request, int delay = 0);
    void run(std::unique_ptr<ExportJob> job, int delay = 0);

    /// What is to be done when all is read and the file is going to be written.
    virtual void beforeSaving() {}
    /// The file could not be written.
    virtual void savingFailed(const Error& error) = 0;

    void closeEvent(QCloseEvent* event) override;

    Workspace& workspace() { return workspace_; }
    Shell& shell() { return shell_; }
    QProgressBar& progressBar() { return *ProgressBar_; }

    /// Tells of a failure in its own words.
    void tell(const Error& error);

  private:
    class Watcher;
    struct Failure {
        Error error;
        bool saving;  ///< all was read by then
    };

    void fitToMap();
    void tmrStart_Timer();
    std::optional<Failure> work();
    void tellRemarks();

    Workspace& workspace_;
    Shell& shell_;
    PictureBox* pctMap_;
    QProgressBar* ProgressBar_;
    QTimer tmrStart_;
    std::unique_ptr<ExportJob> job_;
    std::unique_ptr<Watcher> watcher_;
    WorkerThread worker_;
};

}  // namespace nubivane
