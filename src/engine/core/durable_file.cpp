// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/durable_file.h"

#include "engine/core/error.h"

#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
#endif

namespace nubivane::durable_file {

namespace {

[[noreturn]] void fail(const QString& path, const QString& reason) {
    throw Error(error_number::FileAccess, u"durable_file"_s, u"Cannot write the file."_s,
                path + u": "_s + reason);
}

bool flushToDisk(int handle) {
#ifdef Q_OS_UNIX
    return ::fsync(handle) == 0;
#else
    Q_UNUSED(handle);
    return true;
#endif
}

/// A rename is on disk only when its folder is. A file system that cannot flush a folder has
/// nothing to flush.
void flushFolderOf(const QString& path) {
#ifdef Q_OS_UNIX
    const int folder = ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(),
                              O_RDONLY | O_DIRECTORY);
    if (folder >= 0) {
        flushToDisk(folder);
        ::close(folder);
    }
#else
    Q_UNUSED(path);
#endif
}

}  // namespace

void create(QFile& file) {
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        fail(file.fileName(), reasonOf(file));
    }
}

void append(QFile& file, const QByteArray& bytes) {
    if (file.write(bytes) != bytes.size()) {
        fail(file.fileName(), reasonOf(file));
    }
}

void finish(QFile& file) {
    if (!file.flush() || !flushToDisk(file.handle())) {
        fail(file.fileName(), reasonOf(file));
    }
    file.close();
}

void replace(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(),
                            QFileInfo(to).filesystemFilePath(), error);
    if (error) {
        fail(to, QString::fromStdString(error.message()));
    }
}

void renameOver(const QString& from, const QString& to) {
    replace(from, to);
    flushFolderOf(to);
}

QString reasonOf(const QFileDevice& file) {
    // Qt knows no words for some of the system's refusals, such as a limit on the size of files.
    const int number = errno;
    const QString reason = file.errorString();
    return reason == u"Unknown error" && number != 0 ? QString::fromLocal8Bit(std::strerror(number))
                                                     : reason;
}

}  // namespace nubivane::durable_file
