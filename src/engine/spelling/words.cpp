// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/words.h"

#include <QRegularExpression>

namespace nubivane {

namespace {

/// What stands between blanks and is an address as a whole.
bool isAddress(const QString& token) {
    return token.contains(QLatin1String("://")) || token.contains(u'@') ||
           token.startsWith(QLatin1String("www."), Qt::CaseInsensitive);
}

bool isWord(const QString& text) {
    static const QRegularExpression digit(QStringLiteral("\\p{N}"));
    return text.size() > 1 && text != text.toUpper() && !text.contains(digit);
}

}  // namespace

std::vector<WordPlace> wordsIn(const QString& text) {
    static const QRegularExpression token(QStringLiteral("\\S+"));
    static const QRegularExpression word(
        QStringLiteral("[\\p{L}\\p{M}\\p{N}]+(?:['\\x{2019}][\\p{L}\\p{M}\\p{N}]+)*"));
    std::vector<WordPlace> places;
    auto tokens = token.globalMatch(text);
    while (tokens.hasNext()) {
        const QRegularExpressionMatch part = tokens.next();
        if (isAddress(part.captured())) {
            continue;
        }
        auto words = word.globalMatch(part.captured());
        while (words.hasNext()) {
            const QRegularExpressionMatch found = words.next();
            if (isWord(found.captured())) {
                places.push_back(
                    {part.capturedStart() + found.capturedStart(), found.capturedLength()});
            }
        }
    }
    return places;
}

}  // namespace nubivane
