// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/one_line.h"

#include <QLineEdit>
#include <QValidator>

#include <algorithm>

namespace nubivane {

namespace {

/// Line feed, carriage return, tabs, form feed, and the line and paragraph ends of Unicode.
bool partsWords(QChar c) {
    return (c.unicode() >= 9 && c.unicode() <= 13) || c == QChar(0x85) ||
           c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

bool isControl(QChar c) {
    return c.category() == QChar::Other_Control;
}

/// Refuses nothing: what does not belong in one line is taken out.
class OneLine : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int& cursor) const override {
        const QString line = asOneLine(text);
        if (line != text) {
            cursor = static_cast<int>(std::min(asOneLine(text.left(cursor)).size(), line.size()));
            text = line;
        }
        return Acceptable;
    }
};

}  // namespace

QString asOneLine(const QString& text) {
    QString line;
    bool parted = false;
    for (const QChar c : text) {
        if (partsWords(c)) {
            parted = true;
        } else if (!isControl(c)) {
            if (parted && !line.isEmpty() && !line.endsWith(u' ') && c != u' ') {
                line += u' ';
            }
            parted = false;
            line += c;
        }
    }
    return line;
}

void keepOneLine(QLineEdit& field) {
    field.setValidator(new OneLine(&field));
}

}  // namespace nubivane
