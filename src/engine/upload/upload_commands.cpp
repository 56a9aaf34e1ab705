// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_commands.h"

#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "engine/model/workspace.h"
#include "engine/net/reachable.h"

namespace nubivane {

using namespace Qt::StringLiterals;

UploadCommands::UploadCommands(Editor editor, UploadView& view, FtpOptions options)
    : editor_(editor), view_(view), run_(editor, view, std::move(options)) {}

QString textOf(FtpCheck check) {
    switch (check) {
        case FtpCheck::NoAddress:
            return u"Enter a valid ftp address"_s;
        case FtpCheck::NoUserName:
            return u"Enter a valid ftp username"_s;
        case FtpCheck::NoNubivaneFolder:
            return u"Enter a valid Nubivane folder"_s;
        case FtpCheck::Complete:
            break;
    }
    return {};
}

FtpTab tabOf(FtpCheck check) {
    return check == FtpCheck::NoNubivaneFolder ? FtpTab::Folders : FtpTab::Server;
}

void rememberInitialized(SettingsStore& store) {
    constexpr QLatin1String Sent("2");  // neither chosen nor never asked
    store.set(Setting::UploadInitialized, u"1"_s);
    store.set(Setting::UploadMaps, Sent);
    store.set(Setting::UploadSymbols, Sent);
    store.set(Setting::UploadHtmlPage, Sent);
}

/// False when nothing can be sent, which the user has been told.
bool UploadCommands::ready() {
    const FtpSettings settings = FtpSettings::read(editor_.workspace.settings);
    if (!isReachable(editor_.shell, settings.url)) {
        editor_.shell.messageBox({u"No connection to the internet is currently available"_s,
                                  Icon::Critical,
                                  Buttons::Ok,
                                  {}});
        return false;
    }
    const FtpCheck check = checkFtpSettings(settings);
    if (check == FtpCheck::Complete) {
        return true;
    }
    editor_.shell.messageBox({textOf(check), Icon::Exclamation, Buttons::Ok, {}});
    view_.openFtpSettings(tabOf(check));
    return false;
}

void UploadCommands::mnuInvia() {
    if (!run_.running() && ready()) {
        run_.runUpload(false);
    }
}

void UploadCommands::mnuInitialize() {
    if (run_.running() || !ready()) {
        return;
    }
    Workspace& workspace = editor_.workspace;
    if (workspace.settings.text(Setting::UploadInitialized) == u"1") {
        const Answer answer = editor_.shell.messageBox(
            {u"Initialization has already been successfully completed. \r\n"
             "Do you want to proceed anyway ?"_s,
             Icon::Question,
             Buttons::YesNo,
             {}});
        if (answer != Answer::Yes) {
            return;
        }
    }
    if (run_.runUpload(true)) {
        rememberInitialized(workspace.settings);
        editor_.shell.messageBox(
            {u"Initialition completed successfully"_s, Icon::Information, Buttons::Ok, {}});
    }
}

}  // namespace nubivane
