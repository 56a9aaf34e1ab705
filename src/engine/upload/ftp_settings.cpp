// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/ftp_settings.h"

#include "engine/core/number_text.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/net/server_address.h"
#include "engine/upload/protocol.h"
#include "engine/upload/stored_password.h"

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

/// What is wrong with an address, empty when nothing is. Nothing at all may be typed later.
QString complaintOfPlace(const QString& url) {
    const QString place = trimBlanks(placeOf(url));
    if (place.isEmpty()) {
        return {};
    }
    switch (protocolOf(url)) {
        case Protocol::Folder:
            return place.startsWith(u'/') ? QString() : u"Type the whole path of the folder"_s;
        case Protocol::Rclone:
            return place.indexOf(u':') > 0
                       ? QString()
                       : u"Type a remote of rclone and a folder, such as remote:folder"_s;
        default:
            break;
    }
    // Here stands a host alone: a port or folder behind it would go unheard.
    const auto address = parseServerAddress(place);
    const bool hostAlone = address && address->scheme.isEmpty() && !address->port &&
                           address->path.isEmpty() && address->user.isEmpty();
    return hostAlone ? QString() : u"Type the name of the host alone"_s;
}

/// Uploads by FTP go to its port whatever the settings say; the newer ways heed them.
int portFor(const SettingsStore& store, const QString& url) {
    const Protocol protocol = protocolOf(url);
    const int stored = store.number(Setting::FtpPort).value_or(0);
    const bool heeded = protocol == Protocol::Sftp || protocol == Protocol::FtpOverTls;
    const bool another = stored > 0 && stored <= 65535 && stored != portOf(Protocol::Ftp);
    return heeded && another ? stored : portOf(Protocol::Ftp);
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
           store.set(Setting::FtpUserName, userName) &&
           storePassword(store, url, userName, password) &&
           store.set(Setting::FtpRemoteFolder, remoteFolder) &&
           store.set(Setting::FtpNubivaneFolder, nubivaneFolder) &&
           store.set(Setting::FtpLoginType, flagText(login == FtpLogin::Anonymous)) &&
           store.set(Setting::UploadSymbols, flagText(groups.symbols)) &&
           store.set(Setting::UploadMaps, flagText(groups.maps)) &&
           store.set(Setting::UploadHtmlPage, flagText(groups.htmlPage)) &&
           store.set(Setting::FtpEncryption, QString::number(static_cast<int>(encryption)));
}

std::optional<FtpComplaint> validateFtpSettings(const FtpSettings& settings) {
    if (const QString text = complaintOfPlace(settings.url); !text.isEmpty()) {
        return FtpComplaint{FtpField::Url, text};
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
    if (settings.login == FtpLogin::Normal && settings.userName.isEmpty() &&
        hasLogin(protocolOf(settings.url))) {
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
    server.port = portFor(store, server.host);
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
