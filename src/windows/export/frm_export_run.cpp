// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_export_run.h"

#include "engine/core/shell.h"
#include "engine/export/export_watcher.h"
#include "engine/model/workspace.h"
#include "windows/widgets/picture_box.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QProgressBar>
#include <QScreen>
#include <QStatusTipEvent>
#include <QVBoxLayout>

#include <atomic>
#include <mutex>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

/// Hands what the working thread tells to the window's own.
class ExportRunWindow::Watcher : public ExportWatcher {
  public:
    explicit Watcher(ExportRunWindow& window) : window_(window) {}

    void stop() { stopped_ = true; }
    bool stopped() const { return stopped_; }

    void setCaption(const QString& text) override { Q_EMIT window_.captionTold(text); }

    void setProgress(int percent) override {
        if (std::exchange(percent_, percent) != percent) {
            Q_EMIT window_.progressTold(percent);
        }
    }

    /// The window shows what it has time for; the captures do not wait for it.
    void showStage(const QImage& picture) override {
        working();
        bool waiting = false;
        {
            const std::lock_guard lock(mutex_);
            waiting = !std::exchange(picture_, picture).isNull();
        }
        if (!waiting) {
            Q_EMIT window_.stageTold();
        }
    }

    void working() override {
        if (stopped_) {
            throw Error(error_number::FileAccess, u"export"_s,
                        ExportRunWindow::tr("The export was stopped."));
        }
    }

    void remark(const QString& sentence) override {
        const std::lock_guard lock(mutex_);
        if (!remarks_.contains(sentence)) {
            remarks_ += sentence;
        }
    }

    QStringList remarks() {
        const std::lock_guard lock(mutex_);
        return remarks_;
    }

    /// The last picture that was told.
    QImage takePicture() {
        const std::lock_guard lock(mutex_);
        return std::exchange(picture_, QImage());
    }

  private:
    ExportRunWindow& window_;
    std::atomic<bool> stopped_ = false;
    int percent_ = -1;
    std::mutex mutex_;
    QImage picture_;  ///< null when the last one has been taken
    QStringList remarks_;
};

ExportRunWindow::ExportRunWindow(const char* name, Workspace& workspace, Shell& shell,
                                 QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      workspace_(workspace),
      shell_(shell),
      pctMap_(new PictureBox(this)),
      ProgressBar_(new QProgressBar(this)),
      watcher_(std::make_unique<Watcher>(*this)) {
    constexpr int Gap = 3;
    setObjectName(name);
    pctMap_->setObjectName("pctMap");
    pctMap_->setAccessibleName(tr("The map as it is exported"));
    ProgressBar_->setObjectName("ProgressBar");
    ProgressBar_->setAccessibleName(tr("Progress of the export"));
    ProgressBar_->setTextVisible(false);
    ProgressBar_->setValue(0);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(Gap);
    column->addWidget(pctMap_, 0, Qt::AlignHCenter);
    column->addWidget(ProgressBar_);
    column->setSizeConstraint(QLayout::SetFixedSize);
    fitToMap();
    tmrStart_.setSingleShot(true);
    connect(&tmrStart_, &QTimer::timeout, this, &ExportRunWindow::tmrStart_Timer);
    connect(this, &ExportRunWindow::captionTold, this, &QWidget::setWindowTitle,
            Qt::QueuedConnection);
    connect(this, &ExportRunWindow::progressTold, ProgressBar_, &QProgressBar::setValue,
            Qt::QueuedConnection);
    connect(
        this, &ExportRunWindow::stageTold, this,
        [this] { pctMap_->setImage(watcher_->takePicture()); }, Qt::QueuedConnection);
}

ExportRunWindow::~ExportRunWindow() = default;

/// A map that is too large for the screen is shown smaller.
void ExportRunWindow::fitToMap() {
    constexpr int Frame = 4;
    constexpr double PartOfScreen = 0.75;
    QSize size(workspace_.pctMap.ScaleWidth(), workspace_.pctMap.ScaleHeight());
    const QSize room = (QSizeF(screen()->availableSize()) * PartOfScreen).toSize();
    if (size.width() > room.width() || size.height() > room.height()) {
        size.scale(room, Qt::KeepAspectRatio);
    }
    pctMap_->setFixedSize(size.grownBy({Frame, Frame, Frame, Frame}));
}

void ExportRunWindow::run(const ExportRequest& request, int delay) {
    std::unique_ptr<ExportJob> job;
    try {
        job = makeJob(workspace_, request);
    } catch (const Error& error) {
        tell(error);
        return;
    }
    run(std::move(job), delay);
}

void ExportRunWindow::run(std::unique_ptr<ExportJob> job, int delay) {
    job_ = std::move(job);
    const HourglassGuard hourglass(shell_);
    tmrStart_.start(delay);
    exec();
    // A box and this window under it go so fast one after the other that some window managers give
    // the keyboard to neither of those that are left.
    if (parentWidget()) {
        parentWidget()->window()->activateWindow();
    }
}

void ExportRunWindow::tmrStart_Timer() {
    const std::optional<Failure> failure = work();
    shell_.setPointer(Pointer::Default);
    // When the program ends, the export was stopped, and there is nobody to tell.
    if (failure && !watcher_->stopped()) {
        if (failure->saving) {
            savingFailed(failure->error);
        } else {
            tell(failure->error);
        }
    }
    tellRemarks();
    accept();
}

/// In the status line of the window that this one stands over.
void ExportRunWindow::tellRemarks() {
    const QStringList remarks = watcher_->remarks();
    if (!remarks.isEmpty() && parentWidget()) {
        QStatusTipEvent tip(remarks.join(QLatin1Char(' ')));
        QCoreApplication::sendEvent(parentWidget()->window(), &tip);
    }
}

std::optional<ExportRunWindow::Failure> ExportRunWindow::work() {
    const Meanwhile meanwhile{.interrupted = [this] { watcher_->stop(); }};
    bool saving = false;
    try {
        worker_.run([this] { job_->load(); }, meanwhile);
        saving = true;
        beforeSaving();
        worker_.run([this] { job_->save(*watcher_); }, meanwhile);
    } catch (const Error& error) {
        return Failure{error, saving};
    }
    return std::nullopt;
}

void ExportRunWindow::tell(const Error& error) {
    shell_.messageBox({error.description(), Icon::Critical, Buttons::Ok, error.cause()});
}

void ExportRunWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
}

}  // namespace nubivane
