// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/page_guard.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QTextFrame>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MaxBytes = 1 << 19;
constexpr qsizetype MaxTables = 200;
constexpr int MaxDepth = 4;  // of tables inside tables

/// How deep frames stand inside each other, as far as anybody wants to know.
int depthOf(const QTextFrame* root) {
    QList<QTextFrame*> level = root->childFrames();
    int depth = 0;
    while (!level.isEmpty() && depth <= MaxDepth) {
        QList<QTextFrame*> next;
        for (const QTextFrame* frame : level) {
            next += frame->childFrames();
        }
        level = next;
        ++depth;
    }
    return depth;
}

}  // namespace

bool isHarmlessPage(const QByteArray& html) {
    static const QRegularExpression table(
        u"<\\s*table"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression span(u"(col|row)span"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    const QString text = QString::fromUtf8(html.first(std::min(html.size(), MaxBytes)));
    if (html.size() > MaxBytes || text.count(table) > MaxTables || text.contains(span)) {
        return false;
    }
    QTextDocument document;  // is taken apart, not laid out
    document.setHtml(text);
    return depthOf(document.rootFrame()) <= MaxDepth;
}

}  // namespace nubivane
