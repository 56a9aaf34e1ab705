// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/quiet_shell.h"

#include <QStringList>

namespace nubivane {

/// The shell of the command line: messages go to stderr with their causes, questions are answered
/// with Cancel, and nothing is shown on any display. Progress appears on stderr when that is a
/// terminal.
class ConsoleShell : public QuietShell {
  public:
    ConsoleShell();

    Answer messageBox(const Message& message) override;
    void setProgress(int percent) override;
    void hideProgress() override;
    bool networkPresent() override { return true; }  // connecting tells

    /// Texts of the warnings so far.
    const QStringList& warnings() const { return warnings_; }

  private:
    bool terminal_;
    int shownPercent_ = -1;
    QStringList warnings_;
};

}  // namespace nubivane
