// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/streams.h"

#include "engine/core/sentence.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>

using namespace Qt::StringLiterals;
#endif

namespace nubivane::streams {

bool writeResult(const QByteArray& bytes) {
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) {
        return true;
    }
    printError(u"The result could not be written."_s, QString::fromLocal8Bit(std::strerror(errno)));
    return false;
}

QString printable(QString text) {
    for (QChar& c : text) {
        const char16_t code = c.unicode();
        if ((code < 0x20 && code != u'\n' && code != u'\r' && code != u'\t') ||
            (code >= 0x7F && code < 0xA0)) {
            c = u' ';
        }
    }
    return text;
}

void writeError(const QString& text) {
    const QByteArray bytes = printable(text).toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

void printError(const QString& text, const QString& cause) {
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    lines += u'\n';
    if (!cause.isEmpty()) {
        lines += u"  "_s + sentence(cause) + u'\n';
    }
    writeError(lines);
}

void printUsageError(const QString& text) {
    writeError(u"nubivane-cli: "_s + text + u"\n  see nubivane-cli --help\n"_s);
}

bool errorIsTerminal() {
#ifdef Q_OS_WIN
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace nubivane::streams
