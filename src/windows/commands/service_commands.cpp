// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/service_commands.h"

#include "engine/core/shell.h"
#include "engine/core/version.h"
#include "engine/model/editor_view.h"
#include "engine/model/workspace.h"
#include "engine/services/check_version.h"
#include "windows/commands/commands.h"
#include "windows/services/frm_about.h"
#include "windows/services/frm_bug_report.h"
#include "windows/services/frm_download.h"
#include "windows/services/frm_pack.h"

#include <QProgressDialog>
#include <QWidget>

#include <utility>

namespace nubivane {

namespace {

constexpr int PatienceMs = 500;  // nobody reads a window that comes and goes

}  // namespace

ServiceCommands::ServiceCommands(Editor editor, Commands& commands, QWidget* window,
                                 Publisher publisher, FtpOptions options)
    : editor_(editor),
      window_(window),
      publisher_(std::move(publisher)),
      options_(std::move(options)) {
    commands.handle(Command::mnuPack, [this] { mnuPack(); });
    commands.handle(Command::mnuBugReport, [this] { mnuBugReport(); });
    commands.handle(Command::mnuLastVersion, [this] { mnuLastVersion(); });
    commands.handle(Command::mnuInfo, [this] { mnuInfo(); });
    commands.handle(Command::mnuWeb, [this] { mnuWeb(); });
}

void ServiceCommands::mnuPack() {
    frmPack(editor_.workspace.folder, publisher_.packs, editor_.shell, window_, options_).Init();
}

void ServiceCommands::mnuBugReport() {
    frmBugReport(editor_.workspace.folder, publisher_.reports, editor_.shell, window_, options_)
        .exec();
}

/// Events run while the server is asked; input to the editor has to wait, as under any hourglass.
/// Where the server lets it wait too, a small window offers to give up.
void ServiceCommands::mnuLastVersion() {
    const InputGuard noInput(editor_.view);
    ftpTransfer transfer(options_);
    QProgressDialog asking(tr("Asking the server for a new version..."), tr("&Cancel"), 0, 0,
                           window_);
    asking.setObjectName("dlgAsking");
    asking.setWindowTitle(ProgramTitle);
    asking.setMinimumDuration(PatienceMs);
    // Escape is the button's while the window is active, and the window's own in the moment before.
    const auto giveUp = [&transfer] { transfer.AbortTransfer(); };
    QObject::connect(&asking, &QProgressDialog::canceled, &asking, giveUp);
    QObject::connect(&asking, &QDialog::rejected, &asking, giveUp);
    nubivane::mnuLastVersion(
        publisher_, editor_.shell, transfer,
        [this](const QString& url) { frmDownload(editor_.shell, window_).Init(url); },
        [&asking] { asking.reset(); });
}

void ServiceCommands::mnuInfo() {
    frmAbout(publisher_, editor_.shell, window_).exec();
}

void ServiceCommands::mnuWeb() {
    if (publisher_.webAddress.isEmpty()) {
        editor_.shell.messageBox(
            {tr("The publisher's web address is not known."), Icon::Exclamation, Buttons::Ok, {}});
        return;
    }
    editor_.shell.openAddress(publisher_.webAddress);
}

}  // namespace nubivane
