// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/server_memory.h"

#include "engine/core/error.h"
#include "engine/core/file_state.h"
#include "engine/core/replaced_file.h"
#include "engine/core/settings_store.h"
#include "engine/core/user_folders.h"
#include "engine/net/ftp_types.h"
#include "engine/net/targets.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr char MemoryHead[] = "nubivane-server 1\n";
constexpr qint64 MaxBytes = 2 * SiteManifest::MaxBytes;

}  // namespace

QString ServerMemory::folder() {
    return user_folders::state() + u"/Nubivane"_s;
}

QString ServerMemory::placeOf(const FtpServer& server, const SettingsStore& settings) {
    const QString host = server.host.trimmed();
    return QStringList{isLocalTarget(host) ? host : host.toLower(), QString::number(server.port),
                       server.user, settings.text(Setting::FtpRemoteFolder),
                       settings.text(Setting::FtpNubivaneFolderInPlan)}
        .join(u'\n');
}

ServerMemory::ServerMemory(const QString& place) {
    const QByteArray digest =
        QCryptographicHash::hash(place.toUtf8(), QCryptographicHash::Sha256).toHex().first(32);
    try {
        hostFile_ = folder() + u"/uploads/"_s + QString::fromLatin1(digest);
    } catch (const Error&) {
        return;  // a user without a home has no memory
    }
    load();
}

void ServerMemory::load() {
    QFile file;
    QString reason;
    if (!openOrdinary(file, hostFile_, reason) || file.size() > MaxBytes) {
        return;
    }
    const QByteArray bytes = file.readAll();
    const qsizetype manifestAt = bytes.indexOf("\n\n") + 2;
    const auto manifest = SiteManifest::fromBytes(bytes.mid(manifestAt));
    if (!bytes.startsWith(MemoryHead) || manifestAt < 2 || !manifest) {
        return;
    }
    known = true;
    site = *manifest;
    for (const QByteArray& line : bytes.first(manifestAt).split('\n')) {
        if (line.startsWith("folder ")) {
            folders.insert(QString::fromUtf8(line.mid(7)));
        } else if (line == "everything") {
            everything = true;
        } else if (line.startsWith("time ")) {
            const qsizetype blank = line.indexOf(' ', 5);
            times.insert(QString::fromUtf8(line.mid(blank + 1)), line.mid(5, blank - 5));
        } else if (line.startsWith("unfinished ")) {
            unfinished.insert(QString::fromUtf8(line.mid(11)));
        } else if (line.startsWith("manifest ")) {
            manifestSize = line.mid(9).toLongLong();
        }
    }
}

QString ServerMemory::save() const {
    if (hostFile_.isEmpty()) {
        return {};
    }
    const QString folder = QFileInfo(hostFile_).path();
    if (!QDir().mkpath(folder)) {
        return u"the folder \"%1\" cannot be made"_s.arg(folder);
    }
    QByteArray bytes = MemoryHead;
    bytes += "manifest " + QByteArray::number(manifestSize) + '\n';
    for (const QString& name : folders) {
        bytes += "folder " + name.toUtf8() + '\n';
    }
    for (auto time = times.cbegin(); time != times.cend(); ++time) {
        bytes += "time " + *time + ' ' + time.key().toUtf8() + '\n';
    }
    if (everything) {
        bytes += "everything\n";
    }
    for (const QString& name : unfinished) {
        bytes += "unfinished " + name.toUtf8() + '\n';
    }
    try {
        ReplacedFile file(hostFile_, Durability::Quick, {.secret = true});
        file.append(bytes + '\n' + site.toBytes());
        file.commit();
        return {};
    } catch (const Error& error) {
        return error.cause().isEmpty() ? error.description() : error.cause();
    }
}

}  // namespace nubivane
