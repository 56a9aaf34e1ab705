// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/publish_commands.h"

#include "engine/model/workspace.h"
#include "windows/commands/commands.h"
#include "windows/publish/frm_ftp.h"
#include "windows/widgets/help_topic.h"

namespace nubivane {

PublishCommands::PublishCommands(Editor editor, Commands& commands, QWidget* window,
                                 FtpOptions options)
    : editor_(editor), window_(window), upload_(editor, *this, std::move(options)) {
    commands.handle(Command::mnuInvia, [this] { upload_.mnuInvia(); });
    commands.handle(Command::mnuInitialize, [this] { upload_.mnuInitialize(); });
    commands.handle(Command::mnuFtpSetting, [this] { openFtpSettings(FtpTab::Server); });
}

void PublishCommands::openFtpSettings(FtpTab tab) {
    frmFtp dialog(editor_.workspace.settings, editor_.shell, window_);
    dialog.openHelp = [this](const QString& topic) {
        openHelpTopic(editor_.workspace, editor_.shell, topic);
    };
    dialog.Init(tab);
}

/// The window of the run before goes only now: its Cancel button may have been at work to the end.
void PublishCommands::Init(const QString& caption) {
    frmWait_ = std::make_unique<frmWait>(editor_.workspace, window_);
    frmWait_->cancelled = [this] { upload_.run().cancel(); };
    frmWait_->Init(caption);
}

/// A run can fail before its window has come.
void PublishCommands::close() {
    if (frmWait_) {
        frmWait_->hide();
    }
}

}  // namespace nubivane
