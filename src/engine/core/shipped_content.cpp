// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/shipped_content.h"

#include "engine/core/error.h"
#include "engine/core/folder_lock.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace nubivane {

namespace {

/// The list of what has been delivered holds a line for each file; a larger one is not ours.
constexpr qint64 MaxListBytes = qint64{4} * 1024 * 1024;

QString listFile(const QString& own) {
    return own + QStringLiteral("/.delivered");
}

QStringList readDelivered(const QString& own) {
    QFile file(listFile(own));
    if (!file.open(QIODevice::ReadOnly) || file.size() > MaxListBytes) {
        return {};
    }
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

void writeDelivered(const QString& own, const QStringList& names) {
    try {
        host_files::writeHostFile(listFile(own), names.join(u'\n').toUtf8() + '\n');
    } catch (const Error&) {
        // What was delivered is looked at again at the next start.
    }
}

/// Every file below a folder, as paths relative to it, sorted.
QStringList filesBelow(const QString& folder) {
    QStringList names;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        names += files.next().mid(folder.size() + 1);
    }
    names.sort();
    return names;
}

/// A copy, as old as the original, so that a newer one can be told. False where it could not be
/// made.
bool copyFile(const QString& from, const QString& to) {
    constexpr qint64 Piece = 1 << 20;
    QDir().mkpath(QFileInfo(to).path());
    QFile original(from);
    if (!original.open(QIODevice::ReadOnly)) {
        return false;
    }
    try {
        ReplacedFile copy(to, Durability::Quick, {.links = LinkUse::Itself});
        for (QByteArray bytes = original.read(Piece); !bytes.isEmpty();
             bytes = original.read(Piece)) {
            copy.append(bytes);
        }
        copy.finish();
        copy.device().setFileTime(QFileInfo(from).lastModified(),
                                  QFileDevice::FileModificationTime);
        copy.commit();
    } catch (const Error&) {
        return false;
    }
    return true;
}

bool isSame(const QFileInfo& one, const QFileInfo& other) {
    return other.isFile() && one.size() == other.size() &&
           one.lastModified().toSecsSinceEpoch() == other.lastModified().toSecsSinceEpoch();
}

/// The user's own version of one of the program's folders, which may differ in case.
QString ownFolder(const QString& own, const char* name) {
    const QString path = host_files::toModel(own) + u'\\' + QLatin1String(name);
    QString host = host_files::toHost(path);
    QDir().mkpath(host);
    return host;
}

void deliverOnce(const QString& shipped, const QString& own, const char* folder,
                 QStringList& delivered) {
    const QString target = ownFolder(own, folder);
    const QString source = shipped + u'/' + QLatin1String(folder);
    for (const QString& name : filesBelow(source)) {
        const QString entry = QLatin1String(folder) + u'/' + name;
        if (std::binary_search(delivered.begin(), delivered.end(), entry)) {
            continue;
        }
        const QString to = target + u'/' + name;
        if (QFileInfo::exists(to) || copyFile(source + u'/' + name, to)) {
            delivered.insert(std::lower_bound(delivered.begin(), delivered.end(), entry), entry);
        }
    }
}

void keepEqual(const QString& shipped, const QString& own, const char* folder) {
    const QString target = ownFolder(own, folder);
    const QString source = shipped + u'/' + QLatin1String(folder);
    for (const QString& name : filesBelow(source)) {
        const QString from = source + u'/' + name;
        const QString to = target + u'/' + name;
        if (!isSame(QFileInfo(from), QFileInfo(to))) {
            copyFile(from, to);
        }
    }
}

}  // namespace

void deliverContent(const QString& shipped, const QString& own) {
    if (!QDir().mkpath(own)) {
        return;
    }
    // The editor and a scheduled run of the command line may start for the first time together.
    const FolderLock lock(own);
    QStringList delivered = readDelivered(own);
    delivered.sort();
    const QStringList before = delivered;
    for (const char* folder : {"Maps", "Symbols", "Web"}) {
        deliverOnce(shipped, own, folder, delivered);
    }
    for (const char* folder : {"Help", "Media"}) {
        keepEqual(shipped, own, folder);
    }
    if (delivered != before) {
        writeDelivered(own, delivered);
    }
}

}  // namespace nubivane
