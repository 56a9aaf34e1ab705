#pragma once

#include "support/fixtures.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

namespace nubivane::testing {

/// A file under src/: its path relative to it and its text.
struct SourceFile {
    QString path;
    QString text;

    QString folder() const { return path.section(u'/', 0, 0); }
};

/// True for what belongs to the windows and not to the engine: their own folders, and files named
/// after a window anywhere.
inline bool isWindow(const QString& path) {
    const QString folder = path.section(u'/', 0, 0);
    return folder == u"app" || folder == u"editor" || folder == u"dialogs" ||
           folder == u"widgets" || path.section(u'/', -1).startsWith(QLatin1String("frm"));
}

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

/// What a file includes in quotes (`"web/x.h"`) or in angle brackets, as it stands there.
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
