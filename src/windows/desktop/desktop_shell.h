// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/shell.h"

#include <memory>

class QProgressBar;
class QWidget;

namespace nubivane {

class frmHelp;

/// The shell of the desktop: message boxes, file dialogs, the progress bar of the main window.
class DesktopShell : public Shell {
  public:
    DesktopShell();
    ~DesktopShell() override;

    /// The bar that `setProgress` moves; none before the main window is there.
    void setProgressBar(QProgressBar* bar) { progressBar_ = bar; }

    Answer messageBox(const Message& message) override;
    QString openFileName(const FileRequest& request) override;
    QString saveFileName(const FileRequest& request) override;
    QString chooseFolder(const FileRequest& request) override;
    std::optional<qint32> chooseColor(qint32 initial) override;
    void setProgress(int percent) override;
    void hideProgress() override;
    void setPointer(Pointer pointer) override;
    void processEvents() override;
    void wait(int milliseconds) override;
    void openInBrowser(const QString& hostFile) override;
    bool openHelp(const QString& hostFile, const QString& topic) override;
    void openAddress(const QString& url) override;
    bool networkPresent() override;

  private:
    /// The window over which a dialog opens: the active one, else the main window.
    QWidget* dialogParent() const;

    QProgressBar* progressBar_ = nullptr;
    std::unique_ptr<frmHelp> help_;  ///< made when it is first asked for
};

}  // namespace nubivane
