// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/trash.h"

#include "engine/core/host_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nubivane::trash {

bool discardFile(const QString& path) {
    const QString host = host_files::toHost(path);
    const QFileInfo file(host);
    if (!file.isSymLink() && file.isFile() && QFile::moveToTrash(host)) {
        return true;
    }
    return host_files::removeFile(path);
}

void discardFolder(const QString& path) {
    const QString host = host_files::toHost(path);
    const QDir folder(host);
    // Of a link to a folder elsewhere the link alone goes, not what lies there.
    if (QFileInfo(host).isSymLink()) {
        host_files::removeFolder(path);
        return;
    }
    const bool plain = folder.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty();
    if (plain && folder.exists() && QFile::moveToTrash(host)) {
        return;
    }
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (!QFile::moveToTrash(folder.filePath(name))) {
            QFile::remove(folder.filePath(name));
        }
    }
    host_files::removeFolder(path);
}

}  // namespace nubivane::trash
