// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"

#include "engine/core/error.h"
#include "engine/core/file_state.h"
#include "engine/core/replaced_file.h"
#include "engine/core/temporary_name.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nubivane::host_files {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(int number, const QString& what, const QString& hostPath,
                       const QString& reason) {
    throw Error(number, u"host_files"_s, what, hostPath + u": "_s + reason);
}

/// The entry of `folder` named like `name` but for case, or `name` itself.
QString matchEntry(const QString& folder, const QString& name) {
    if (QFileInfo::exists(folder + u'/' + name)) {
        return name;
    }
    const QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden |
                                                       QDir::System | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0) {
            return entry;
        }
    }
    return name;
}

QStringList names(const QString& path, QDir::Filters filter) {
    return QDir(toHost(path)).entryList(filter | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void replace(const QString& hostPath, const QByteArray& bytes, Durability durability) {
    ReplacedFile file(hostPath, durability);
    file.append(bytes);
    file.commit();
}

}  // namespace

QString toHost(const QString& path) {
    QString host = path;
    host.replace(u'\\', u'/');
    if (QFileInfo::exists(host)) {
        return host;
    }
    QString found;
    qsizetype begin = 0;
    while (begin <= host.size()) {
        qsizetype end = host.indexOf(u'/', begin);
        if (end < 0) {
            end = host.size();
        }
        const QString part = host.mid(begin, end - begin);
        if (begin > 0) {
            found += u'/';
        }
        const QString folder = begin == 0 ? QStringLiteral(".") : found;
        found += part.isEmpty() || part == u"." || part == u".." ? part : matchEntry(folder, part);
        begin = end + 1;
    }
    return found;
}

QString toModel(const QString& hostPath) {
    QString path = hostPath;
    return path.replace(u'/', u'\\');
}

bool isPlainName(const QString& name) {
    constexpr qsizetype longestName = 255;  // bytes; no file system takes more
    if (name.isEmpty() || name == u"." || name == u".." || name.toUtf8().size() > longestName) {
        return false;
    }
    for (const QChar c : name) {
        if (c == u'/' || c == u'\\' || c == u':' || c < u' ' || c == QChar(0x7F)) {
            return false;
        }
    }
    return true;
}

std::optional<QString> pathInside(const QString& folder, const QString& relative) {
    constexpr qsizetype longestPath = 1000;  // no tree of symbols is deeper
    if (relative.size() > longestPath) {
        return std::nullopt;
    }
    const QStringList parts = relative.split(u'\\');
    for (const QString& part : parts) {
        if (!isPlainName(part)) {
            return std::nullopt;
        }
    }
    return folder + u'\\' + relative;
}

bool fileExists(const QString& path) {
    return QFileInfo(toHost(path)).isFile();
}

bool fileWithin(const QString& path, qint64 maxBytes) {
    const QFileInfo info(toHost(path));
    return info.isFile() && info.size() <= maxBytes;
}

bool folderExists(const QString& path) {
    return QFileInfo(toHost(path)).isDir();
}

QStringList folderNames(const QString& path) {
    return names(path, QDir::Dirs);
}

QStringList fileNames(const QString& path) {
    return names(path, QDir::Files);
}

QByteArray read(const QString& path, qint64 maxBytes) {
    const QString host = toHost(path);
    if (!QFileInfo(host).isFile()) {
        fail(error_number::FileNotFound, u"File not found."_s, host, u"there is no such file"_s);
    }
    QFile file;
    QString reason;
    if (!openOrdinary(file, host, reason)) {
        fail(error_number::FileAccess, u"Cannot read the file."_s, host, reason);
    }
    if (file.size() > maxBytes) {
        fail(error_number::FileAccess, u"The file is too large."_s, host,
             QStringLiteral("%1 bytes where at most %2 are read").arg(file.size()).arg(maxBytes));
    }
    QByteArray bytes = file.read(maxBytes);
    if (file.error() != QFileDevice::NoError) {
        fail(error_number::FileAccess, u"Cannot read the file."_s, host, file.errorString());
    }
    return bytes;
}

void write(const QString& path, const QByteArray& bytes) {
    replace(toHost(path), bytes, Durability::Flushed);
}

void writeHostFile(const QString& hostPath, const QByteArray& bytes) {
    replace(hostPath, bytes, Durability::Quick);
}

void writeOver(const QString& path, const QByteArray& bytes, qint64 maxBytes) {
    const QString host = toHost(path);
    QFile old;
    QString reason;
    QByteArray tail;
    if (openOrdinary(old, host, reason, LinkUse::Itself) && old.size() <= maxBytes) {
        if (old.read(bytes.size()) == bytes) {
            return;
        }
        tail = old.read(maxBytes);
    }
    ReplacedFile file(host, Durability::Flushed, {.links = LinkUse::Itself});
    file.append(bytes);
    file.append(tail);
    file.commit();
}

bool removeFiles(const QString& folder, const QSet<QString>& kept) {
    QDir dir(toHost(folder));
    bool all = true;
    for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden)) {
        if (temporary_name::isOurs(name)) {
            // Another run may be about to put it in place.
            temporary_name::removeIfDead(dir.path(), name);
        } else if (!kept.contains(name)) {
            all = dir.remove(name) && all;
        }
    }
    return all;
}

bool removeFile(const QString& path) {
    const QString host = toHost(path);
    return !QFileInfo(host).isDir() && QFile::remove(host);
}

bool removeFolder(const QString& path) {
    const QString host = toHost(path);
    return QFileInfo(host).isSymLink() ? QFile::remove(host) : QDir().rmdir(host);
}

bool rename(const QString& path, const QString& newName) {
    const QFileInfo old(toHost(path));
    if (!isPlainName(newName) || !old.exists()) {
        return false;
    }
    const QString target = old.path() + u'/' + matchEntry(old.path(), newName);
    if (QFileInfo::exists(target)) {
        return false;
    }
    std::error_code error;
    std::filesystem::rename(old.filesystemFilePath(), QFileInfo(target).filesystemFilePath(),
                            error);
    return !error;
}

void makeFolder(const QString& path) {
    const QString host = toHost(path);
    if (!QDir().mkpath(host)) {
        fail(error_number::FileAccess, u"Cannot create the folder."_s, host,
             u"the system refused it"_s);
    }
}

}  // namespace nubivane::host_files
