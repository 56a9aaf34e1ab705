// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/clean_text.h"

namespace nubivane {

QString cleanText(QByteArrayView bytes) {
    QString text = QString::fromUtf8(bytes);
    for (QChar& c : text) {
        const QChar::Category category = c.category();
        if (category == QChar::Other_Control || category == QChar::Other_Format ||
            category == QChar::Separator_Line || category == QChar::Separator_Paragraph) {
            c = u' ';
        }
    }
    return text.simplified();
}

}  // namespace nubivane
