// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/ftp_settings.h"

#include "engine/core/number_text.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

bool isOne(const SettingsStore& store, Setting setting) {
    return toNumber(store.text(setting)) == 1.0;
}

bool hasSeparator(const QString& folder) {
    return folder.contains(u'/') || folder.contains(u'\\');
}

QString flagText(bool flag) {
    return flag ? QStringLiteral("1") : QStringLiteral("0");
}

}  // namespace

FtpSettings FtpSettings::read(const SettingsStore& store) {
    const QString port = store.text(Setting::FtpPort);
    return {
        .url = store.text(Setting::FtpUrl),
        .port = toNumber(port) ? port : QStringLiteral("0"),
        .userName = store.text(Setting::FtpUserName),
        .password = store.text(Setting::FtpPassword),
        .remoteFolder = store.text(Setting::FtpRemoteFolder),
        .nubivaneFolder = store.text(Setting::FtpNubivaneFolder),
        .login = isOne(store, Setting::FtpLoginType) ? FtpLogin::Anonymous : FtpLogin::Normal,
        .groups = {isOne(store, Setting::UploadSymbols), isOne(store, Setting::UploadMaps),
                   isOne(store, Setting::UploadHtmlPage)},
    };
}

bool FtpSettings::save(SettingsStore& store) const {
    return store.set(Setting::FtpUrl, url) && store.set(Setting::FtpPort, port) &&
           store.set(Setting::FtpUserName, userName) && store.set(Setting::FtpPassword, password) &&
           store.set(Setting::FtpRemoteFolder, remoteFolder) &&
           store.set(Setting::FtpNubivaneFolder, nubivaneFolder) &&
           store.set(Setting::FtpLoginType, flagText(login == FtpLogin::Anonymous)) &&
           store.set(Setting::UploadSymbols, flagText(groups.symbols)) &&
           store.set(Setting::UploadMaps, flagText(groups.maps)) &&
           store.set(Setting::UploadHtmlPage, flagText(groups.htmlPage));
}

std::optional<FtpComplaint> validateFtpSettings(const FtpSettings& settings) {
    if (!toNumber(trimBlanks(settings.port))) {
        return FtpComplaint{FtpField::Port, u"Type a valid ftp port"_s};
    }
    // Without a folder of its own the program leaves the remote folder to the user.
    if (!trimBlanks(settings.nubivaneFolder).isEmpty()) {
        const QString text = u"Insert the folder name without separators"_s;
        if (hasSeparator(settings.remoteFolder)) {
            return FtpComplaint{FtpField::RemoteFolder, text};
        }
        if (hasSeparator(settings.nubivaneFolder)) {
            return FtpComplaint{FtpField::NubivaneFolder, text};
        }
    }
    return std::nullopt;
}

FtpCheck checkFtpSettings(const FtpSettings& settings) {
    if (trimBlanks(settings.url).isEmpty()) {
        return FtpCheck::NoAddress;
    }
    if (settings.login == FtpLogin::Normal && settings.userName.isEmpty()) {
        return FtpCheck::NoUserName;
    }
    if (settings.nubivaneFolder.isEmpty()) {
        return FtpCheck::NoNubivaneFolder;
    }
    return FtpCheck::Complete;
}

FtpServer uploadServer(const SettingsStore& store) {
    FtpServer server;
    server.host = store.text(Setting::FtpUrl);
    server.user = store.text(Setting::FtpUserName);
    server.password = store.text(Setting::FtpPassword);
    return server;
}

}  // namespace nubivane
