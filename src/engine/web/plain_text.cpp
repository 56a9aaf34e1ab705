// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/plain_text.h"

#include <QUrl>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

bool isControl(char32_t c) {
    return (c < 0x20 && c != u'\t' && c != u'\n') || (c >= 0x7F && c <= 0x9F);
}

bool isNoncharacter(char32_t c) {
    return (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFE) == 0xFFFE;
}

}  // namespace

QString plainText(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'\r') {
            if (i + 1 == text.size() || text[i + 1] != u'\n') {
                plain += u'\n';
            }
        } else if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            if (!isNoncharacter(QChar::surrogateToUcs4(c, text[i + 1]))) {
                plain += c;
                plain += text[i + 1];
            }
            ++i;
        } else if (!c.isSurrogate() && !isControl(c.unicode()) && !isNoncharacter(c.unicode())) {
            plain += c;
        }
    }
    return plain;
}

QString plainLine(const QString& text) {
    return plainText(text).simplified();
}

QString htmlText(const QString& text) {
    QString html;
    html.reserve(text.size());
    for (const QChar c : text) {
        switch (c.unicode()) {
            case u'&':
                html += "&amp;"_L1;
                break;
            case u'<':
                html += "&lt;"_L1;
                break;
            case u'>':
                html += "&gt;"_L1;
                break;
            case u'"':
                html += "&quot;"_L1;
                break;
            default:
                html += c;
        }
    }
    return html;
}

QString cssString(const QString& text) {
    QString css = u"\""_s;
    for (const QChar c : text) {
        // What could end the string, or a style sheet within a page, goes in as its number.
        if (c.unicode() < 0x20 || c == u'"' || c == u'\\' || c == u'<' || c == u'>') {
            css += u'\\' + QString::number(c.unicode(), 16) + u' ';
        } else {
            css += c;
        }
    }
    return css + u'"';
}

QString urlSegment(const QString& name) {
    return QString::fromLatin1(QUrl::toPercentEncoding(name));
}

QString urlPath(const QString& name) {
    return QString::fromLatin1(QUrl::toPercentEncoding(name, "/"));
}

}  // namespace nubivane
