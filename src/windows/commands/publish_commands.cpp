// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/publish_commands.h"

#include "engine/core/shell.h"
#include "engine/model/workspace.h"
#include "engine/upload/site_upload.h"
#include "windows/commands/commands.h"
#include "windows/publish/frm_ftp.h"
#include "windows/widgets/help_topic.h"

#include <QCoreApplication>

namespace nubivane {

using namespace Qt::StringLiterals;

PublishCommands::PublishCommands(Editor editor, Commands& commands, QWidget* window,
                                 FtpOptions options)
    : editor_(editor), window_(window), upload_(editor, *this, std::move(options)) {
    commands.handle(Command::mnuInvia, [this] { upload_.mnuInvia(); });
    commands.handle(Command::mnuInitialize, [this] { upload_.mnuInitialize(); });
    commands.handle(Command::mnuFtpSetting, [this] { openFtpSettings(FtpTab::Server); });
}

void PublishCommands::openFtpSettings(FtpTab tab) {
    frmFtp dialog(editor_.workspace, editor_.shell, window_);
    QObject::connect(&dialog, &frmFtp::helpAsked, &dialog, [this](const QString& topic) {
        openHelpTopic(editor_.workspace, editor_.shell, topic);
    });
    dialog.Init(tab);
}

/// The window of the run before goes only now: its Cancel button may have been at work to the end.
void PublishCommands::Init(const QString& caption) {
    frmWait_ = std::make_unique<frmWait>(editor_.workspace, window_);
    QObject::connect(frmWait_.get(), &frmWait::cancelled, frmWait_.get(),
                     [this] { upload_.run().cancel(); });
    frmWait_->Init(caption);
}

/// Whoever presses Enter without reading trusts nobody.
bool PublishCommands::trust(const Untrusted& untrusted) {
    const QString question = QCoreApplication::translate(
        "PublishCommands",
        "The server cannot prove who it is:\r\n\r\n%1\r\n\r\n"
        "Compare the fingerprint with the one that the server's keeper tells you. "
        "Do you want to trust this server from now on ?");
    const Answer answer = editor_.shell.messageBox(
        {question.arg(QString(untrusted.description).replace("; "_L1, "\r\n"_L1)),
         Icon::Question,
         Buttons::YesNo,
         {},
         true});
    return answer == Answer::Yes;
}

QString PublishCommands::conversation() const {
    return frmWait_ ? frmWait_->conversation() : QString();
}

void PublishCommands::showUnsendable(const QStringList& names) {
    const QString text = QCoreApplication::translate(
        "PublishCommands", "All else was sent, but for their names these cannot be:");
    editor_.shell.messageBox(
        {text + u"\r\n\r\n"_s + names.join(u"\r\n"_s), Icon::Exclamation, Buttons::Ok, {}});
}

/// A run can fail before its window has come.
void PublishCommands::close() {
    if (frmWait_) {
        frmWait_->hide();
    }
}

}  // namespace nubivane
