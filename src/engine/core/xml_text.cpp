// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/xml_text.h"

namespace nubivane {

QString allowedInXml(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            result += c;
            result += text[++i];
        } else if (!c.isSurrogate() && c < QChar(0xFFFE) &&
                   (c >= u' ' || c == u'\t' || c == u'\n' || c == u'\r')) {
            result += c;
        }
    }
    return result;
}

}  // namespace nubivane
