// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/path_text.h"

namespace nubivane {

namespace {

/// Position of the last `what` in the trimmed path, or -1.
qsizetype findLast(const QString& path, QChar what) {
    return trimBlanks(path).lastIndexOf(what);
}

}  // namespace

QString trimBlanks(const QString& text) {
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == u' ') {
        ++begin;
    }
    while (end > begin && text[end - 1] == u' ') {
        --end;
    }
    return text.mid(begin, end - begin);
}

QString getFileName(const QString& path) {
    return path.mid(findLast(path, u'\\') + 1);
}

QString getFolder(const QString& path) {
    const qsizetype at = findLast(path, u'\\');
    return at < 0 ? QString() : path.left(at);
}

QString stripExtension(const QString& path) {
    const qsizetype at = findLast(path, u'.');
    return at < 0 ? QString() : path.left(at);
}

QString getExtension(const QString& path) {
    return path.mid(findLast(path, u'.') + 1);
}

QString getLastFolder(const QString& path) {
    const QString folder = getFolder(path);
    return folder.contains(u'\\') ? getFileName(folder) : path;
}

QString getField(const QString& text, qint16 n) {
    qsizetype afterSeparator = 0;
    for (qint16 i = 1; i < n; ++i) {
        // A miss gives -1 and so position 0: the next search starts over.
        afterSeparator = text.indexOf(u'|', afterSeparator) + 1;
    }
    const qsizetype end = text.indexOf(u'|', afterSeparator);
    return text.mid(afterSeparator, end < 0 ? -1 : end - afterSeparator);
}

QString uniqueFileName(const QString& name, int n) {
    const qsizetype at = name.lastIndexOf(u'.');
    if (at < 0) {
        return name;
    }
    return name.left(at) + u'_' + QString::number(n) + name.mid(at);
}

}  // namespace nubivane
