// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/editor.h"
#include "engine/upload/upload_commands.h"
#include "windows/publish/frm_wait.h"

#include <memory>

namespace nubivane {

class Commands;

/// The commands that send the site to the user's server, with their windows.
class PublishCommands : private UploadView {
  public:
    PublishCommands(Editor editor, Commands& commands, QWidget* window, FtpOptions options = {});

  private:
    // UploadView.
    void openFtpSettings(FtpTab tab) override;
    void Init(const QString& caption) override;
    void setInfo(const QString& text) override { frmWait_->setInfo(text); }
    void setProgress(int percent) override { frmWait_->setProgress(percent); }
    void setAmount(qint64 sent, qint64 total) override { frmWait_->setAmount(sent, total); }
    void setChosen(qsizetype files, qsizetype all, qint64 bytes) override {
        frmWait_->setChosen(files, all, bytes);
    }
    void addLine(const QString& line) override { frmWait_->addLine(line); }
    QString conversation() const override;
    void showUnsendable(const QStringList& names) override;
    void showOpenLock() override { frmWait_->showOpenLock(); }
    bool trust(const Untrusted& untrusted) override;
    void disableCancel() override { frmWait_->disableCancel(); }
    void close() override;

    Editor editor_;
    QWidget* window_;
    std::unique_ptr<frmWait> frmWait_;  ///< of the last run
    UploadCommands upload_;
};

}  // namespace nubivane
