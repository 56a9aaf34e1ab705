// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/period_ids.h"

#include <QHash>
#include <QSet>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestId = 60;  // an address is read out and typed

QString idOf(const QString& caption) {
    QString id;
    for (const char32_t c : caption.normalized(QString::NormalizationForm_C).toLower().toUcs4()) {
        if (QChar::isLetterOrNumber(c) || (QChar::isMark(c) && !id.isEmpty())) {
            id += QString::fromUcs4(&c, 1);
        } else if (!id.isEmpty() && !id.endsWith(u'-')) {
            id += u'-';
        }
        if (id.size() >= LongestId) {
            break;
        }
    }
    if (id.endsWith(u'-')) {
        id.chop(1);
    }
    return id.isEmpty() ? u"period"_s : id;
}

}  // namespace

QStringList periodIds(const QStringList& captions) {
    QStringList ids;
    QSet<QString> issued;
    QHash<QString, int> nextNumber;  // of captions that hundreds of Frames share
    for (const QString& caption : captions) {
        const QString wish = idOf(caption);
        QString id = wish;
        for (int& n = nextNumber[wish]; issued.contains(id); ++n) {
            id = wish + u'-' + QString::number(n + 2);
        }
        issued.insert(id);
        ids += id;
    }
    return ids;
}

}  // namespace nubivane
