// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/command.h"
#include "engine/export/export_watcher.h"
#include "engine/gif/gif_colors.h"

#include <QString>
#include <QStringList>

#include <mutex>

namespace nubivane {

/// What the commands that export have in common.

/// The number of a Frame of the open project. Raises `Error` when there is none of that name.
qint32 frameNumber(const CommandContext& context, const QString& text);

/// The number of `--compression`, 1 when it is not given.
int compressionOf(const CommandContext& context);

/// What `--fine` asks for.
GifQuality qualityOf(const CommandContext& context);

/// Prints what an export remarked, each sentence once, when it has ended: progress stands on the
/// same line until then. Any number of threads may tell it.
class RemarkWatcher : public ExportWatcher {
  public:
    RemarkWatcher() = default;
    ~RemarkWatcher() override;
    RemarkWatcher(const RemarkWatcher&) = delete;
    RemarkWatcher& operator=(const RemarkWatcher&) = delete;

    void remark(const QString& sentence) override;

  private:
    std::mutex mutex_;
    QStringList told_;
};

/// Shows the progress of an export on the console, too.
class ConsoleWatcher : public RemarkWatcher {
  public:
    explicit ConsoleWatcher(ConsoleShell& shell) : progress_(shell, 0), shell_(shell) {}

    void setProgress(int percent) override { shell_.setProgress(percent); }

  private:
    ProgressGuard progress_;
    ConsoleShell& shell_;
};

/// Prints the names of files that were written, and returns the exit code.
int printWritten(const QStringList& hostFiles);

/// Ends an export that raised an error: its text as the windows show it, with the cause.
[[noreturn]] void failSaving(const Error& error);

}  // namespace nubivane
