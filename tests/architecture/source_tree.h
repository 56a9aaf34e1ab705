// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fixtures.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

namespace nubivane::testing {

/// The target of a path below src/: "engine", "windows", "cli" or "app".
inline QString targetOf(const QString& path) {
    return path.section(u'/', 0, 0);
}

/// The folder of a path below src/: "engine/web", or its target's where that has no folders. What
/// stands in a folder of its own there ("engine/model/edits") is part of it.
inline QString folderOf(const QString& path) {
    return path.section(u'/', 0, -2).section(u'/', 0, 1);
}

/// A file under src/: its path relative to it and its text.
struct SourceFile {
    QString path;
    QString text;

    QString target() const { return targetOf(path); }
    QString folder() const { return folderOf(path); }
};

inline QString sourceFolder() {
    return QStringLiteral(NUBIVANE_SOURCES "/src");
}

/// All headers and sources, in the order of their paths.
inline std::vector<SourceFile> sourceFiles() {
    QStringList paths;
    QDirIterator entries(sourceFolder(), {"*.h", "*.cpp", "*.in"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        paths += QDir(sourceFolder()).relativeFilePath(entries.next());
    }
    paths.sort();
    std::vector<SourceFile> files;
    for (const QString& path : paths) {
        files.push_back({path, QString::fromUtf8(readFile(sourceFolder() + u'/' + path))});
    }
    return files;
}

/// What a file includes in quotes (`"engine/web/x.h"`) or in angle brackets, as it stands there.
inline QStringList includesOf(const SourceFile& file, bool quoted) {
    static const QRegularExpression inQuotes(R"re(^[ \t]*#[ \t]*include[ \t]*"([^"]+)")re",
                                             QRegularExpression::MultilineOption);
    static const QRegularExpression inBrackets(R"re(^[ \t]*#[ \t]*include[ \t]*<([^>]+)>)re",
                                               QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = (quoted ? inQuotes : inBrackets).globalMatch(file.text);
    while (matches.hasNext()) {
        names += matches.next().captured(1);
    }
    return names;
}

}  // namespace nubivane::testing
