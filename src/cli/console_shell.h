// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/shell.h"

#include <QStringList>

namespace nubivane {

/// The shell of the command line: messages go to stderr with their causes, questions are answered
/// with Cancel, and nothing is shown on any display. Progress appears on stderr when that is a
/// terminal.
class ConsoleShell : public Shell {
  public:
    ConsoleShell();

    Answer messageBox(const Message& message) override;
    QString openFileName(const FileRequest&) override { return {}; }
    QString saveFileName(const FileRequest&) override { return {}; }
    QString chooseFolder(const FileRequest&) override { return {}; }
    std::optional<qint32> chooseColor(qint32) override { return std::nullopt; }
    void setProgress(int percent) override;
    void hideProgress() override;
    void setPointer(Pointer) override {}
    void processEvents() override {}
    void wait(int) override {}
    void openInBrowser(const QString&) override {}
    bool openHelp(const QString&, const QString&) override { return false; }
    void openAddress(const QString&) override {}
    bool networkPresent() override { return true; }  // connecting tells

    /// Texts of the warnings so far.
    const QStringList& warnings() const { return warnings_; }

  private:
    bool terminal_;
    int shownPercent_ = -1;
    QStringList warnings_;
};

}  // namespace nubivane
