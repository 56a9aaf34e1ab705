// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/ftp_settings.h"

#include "engine/core/number_text.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/net/server_address.h"

#include <algorithm>

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
        .encryption = encryptionOf(store),
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
           store.set(Setting::UploadHtmlPage, flagText(groups.htmlPage)) &&
           store.set(Setting::FtpEncryption, QString::number(static_cast<int>(encryption)));
}

std::optional<FtpComplaint> validateFtpSettings(const FtpSettings& settings) {
    // Here stands a host alone: a port or folder behind it would go unheard.
    const QString url = trimBlanks(settings.url);
    const bool elsewhere = url.startsWith("file:"_L1) || url.startsWith("rclone:"_L1);
    if (!url.isEmpty() && !elsewhere) {
        const auto address = parseServerAddress(url);
        if (!address || address->port || !address->path.isEmpty() || !address->user.isEmpty()) {
            return FtpComplaint{FtpField::Url, u"Type the name of the host alone"_s};
        }
    }
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
    server.encryption = encryptionOf(store);
    server.user = store.text(Setting::FtpUserName);
    server.password = store.text(Setting::FtpPassword);
    server.fingerprint = trustedFingerprint(store, server);
    return server;
}

Encryption encryptionOf(const SettingsStore& store) {
    switch (store.number(Setting::FtpEncryption).value_or(-1)) {
        case 0:
            return Encryption::None;
        case 1:
            return Encryption::Offered;
        case 2:
            return Encryption::Required;
        default:
            break;
    }
    return trimBlanks(store.text(Setting::FtpUrl)).isEmpty() ? Encryption::Required
                                                             : Encryption::Offered;
}

int wantedConnections(const SettingsStore& store) {
    return std::clamp(store.number(Setting::FtpConnections).value_or(1), 1, MostConnections);
}

// One text for all servers: "host=fingerprint", parted by blanks, which neither holds.

QString trustedFingerprint(const SettingsStore& store, const FtpServer& server) {
    const QString key = server.host.trimmed().toLower() + u'=';
    for (const QString& entry : store.text(Setting::FtpFingerprints).split(u' ')) {
        if (entry.startsWith(key)) {
            return entry.mid(key.size());
        }
    }
    return {};
}

bool trustFingerprint(SettingsStore& store, const FtpServer& server, const QString& fingerprint) {
    const QString key = server.host.trimmed().toLower() + u'=';
    QStringList entries = store.text(Setting::FtpFingerprints).split(u' ', Qt::SkipEmptyParts);
    entries.removeIf([&](const QString& entry) { return entry.startsWith(key); });
    entries += key + fingerprint;
    return store.set(Setting::FtpFingerprints, entries.join(u' '));
}

}  // namespace nubivane
