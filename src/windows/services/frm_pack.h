// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/services/symbol_packs.h"

#include <QDialog>

class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace nubivane {

class PathLabel;

/// "Weather symbols extended pack": lists the packs of the publisher's server and downloads them.
class frmPack : public QDialog, private PackView {
    Q_OBJECT

  public:
    frmPack(const ProgramFolder& folder, const FtpServer& server, Shell& shell, QWidget* parent,
            FtpOptions options = {});

    /// Shows the window, which then asks for the packs, and waits until it is closed.
    void Init();

    /// The Escape key is the button's.
    void reject() override { cmdCancelClose_Click(); }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QWidget* makePack();
    QLayout* makeButtons();
    void cmdCancelClose_Click();

    // PackView.
    void setLblInfo(const QString& text) override;
    void setTxtInfo(const QString& text) override;
    void setLblProgress(const QString& text) override;
    void setProgress(int percent) override;
    void showProgress(bool shown) override;
    void enableStart(bool enabled) override;
    void setCancelCloseCaption(const QString& caption) override;

    QLabel* lblInfo_;
    QPlainTextEdit* txtInfo_;
    PathLabel* lblProgress_;
    QProgressBar* ProgressBar_;
    QPushButton* cmdStart_;
    QPushButton* cmdCancelClose_;
    SymbolPacks packs_;
};

}  // namespace nubivane
