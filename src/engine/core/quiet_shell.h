// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/shell.h"

namespace nubivane {

/// A shell with nobody behind it: every question is cancelled, nothing is shown, nothing is opened.
/// Shells that can do only a few things begin with it.
class QuietShell : public Shell {
  public:
    Answer messageBox(const Message&) override { return Answer::Cancel; }
    QString openFileName(const FileRequest&) override { return {}; }
    QString saveFileName(const FileRequest&) override { return {}; }
    QString chooseFolder(const FileRequest&) override { return {}; }
    std::optional<qint32> chooseColor(qint32) override { return std::nullopt; }
    void setProgress(int) override {}
    void hideProgress() override {}
    void setPointer(Pointer) override {}
    void processEvents() override {}
    void wait(int) override {}
    void openInBrowser(const QString&) override {}
    bool openHelp(const QString&, const QString&) override { return false; }
    void openAddress(const QString&) override {}
    bool networkPresent() override { return false; }
};

}  // namespace nubivane
