// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QString>

#include <map>

namespace nubivane::testing {

/// Everything in a folder: relative path to content; a folder ends in "/", a link tells its target.
using Snapshot = std::map<QString, QByteArray>;

inline Snapshot snapshotOf(const QString& folder) {
    Snapshot entries;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        const QString name = QDir(folder).relativeFilePath(path);
        if (walk.fileInfo().isSymLink()) {
            entries[name] = "-> " + QFile::encodeName(walk.fileInfo().symLinkTarget());
        } else if (walk.fileInfo().isDir()) {
            entries[name + '/'] = {};
        } else {
            QFile file(path);
            entries[name] = file.open(QIODevice::ReadOnly) ? file.readAll() : "cannot be read";
        }
    }
    return entries;
}

/// Names of the entries that differ between two snapshots.
inline QStringList differences(const Snapshot& before, const Snapshot& after) {
    QStringList names;
    for (const auto& [name, bytes] : before) {
        const auto found = after.find(name);
        if (found == after.end()) {
            names << "gone: " + name;
        } else if (found->second != bytes) {
            names << "changed: " + name;
        }
    }
    for (const auto& [name, bytes] : after) {
        if (!before.contains(name)) {
            names << "new: " + name;
        }
    }
    return names;
}

}  // namespace nubivane::testing
