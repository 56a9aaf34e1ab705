// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/site_map.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int DeepestEntry = 16;
constexpr std::size_t MaxLines = 10000;
constexpr qsizetype LongestTag = 4000;  // characters

/// The value of an attribute of a tag, in single, double or no quotes.
QString attribute(const QString& tag, const char* name) {
    const QRegularExpression pattern(
        QLatin1String("\\b%1\\s*=\\s*(\"([^\"]*)\"|'([^']*)'|([^\\s>]*))").arg(QLatin1String(name)),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(tag);
    for (const int group : {2, 3, 4}) {
        if (!match.capturedView(group).isEmpty()) {
            return withoutReferences(match.captured(group));
        }
    }
    return {};
}

/// The lower-case name of what stands between "<" and ">", with the slash of a closing tag.
QString tagName(const QString& tag) {
    const QString start = tag.trimmed();
    qsizetype length = start.startsWith(u'/') ? 1 : 0;
    while (length < start.size() && start[length].isLetterOrNumber()) {
        ++length;
    }
    return start.first(length).toLower();
}

/// In an index the first name is the word, those that follow are titles of pages.
void addParameter(HelpEntry& line, const QString& tag) {
    const QString name = attribute(tag, "name").toLower();
    if (name == u"name" && line.title.isEmpty()) {
        line.title = attribute(tag, "value");
    } else if (name == u"local" && line.page.isEmpty()) {
        line.page = attribute(tag, "value");
    }
}

QString character(const QString& reference) {
    static const QHash<QString, QString> named = {{u"amp"_s, u"&"_s},  {u"lt"_s, u"<"_s},
                                                  {u"gt"_s, u">"_s},   {u"quot"_s, u"\""_s},
                                                  {u"apos"_s, u"'"_s}, {u"nbsp"_s, u" "_s}};
    if (!reference.startsWith(u'#')) {
        return named.value(reference.toLower());
    }
    const bool hexadecimal = reference.mid(1, 1).toLower() == u"x";
    bool valid = false;
    const uint code =
        hexadecimal ? reference.mid(2).toUInt(&valid, 16) : reference.mid(1).toUInt(&valid, 10);
    constexpr uint LastCharacter = 0x10FFFF;
    if (!valid || code < ' ' || code > LastCharacter || QChar::isSurrogate(code)) {
        return {};
    }
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(&code), 1);
}

}  // namespace

QString withoutReferences(const QString& html) {
    static const QRegularExpression pattern(u"&(#[xX]?[0-9A-Fa-f]{1,6}|[A-Za-z]{1,8});"_s);
    QString text;
    qsizetype done = 0;
    auto matches = pattern.globalMatch(html);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString meant = character(match.captured(1));
        text += QStringView(html).mid(done, match.capturedStart() - done);
        text += meant.isEmpty() ? match.captured(0) : meant;
        done = match.capturedEnd();
    }
    return text + html.mid(done);
}

std::vector<HelpEntry> readSiteMap(const QString& html) {
    std::vector<HelpEntry> lines;
    HelpEntry line;
    int depth = -1;
    const auto read = [&](const QString& tag) {
        const QString name = tagName(tag);
        if (name == u"ul") {
            depth = std::min(depth + 1, DeepestEntry);
        } else if (name == u"/ul") {
            depth = std::max(depth - 1, -1);
        } else if (name == u"object") {
            line = {};
        } else if (name == u"param") {
            addParameter(line, tag);
        } else if (name == u"/object" && depth >= 0 && !line.title.isEmpty()) {
            line.depth = depth;
            lines.push_back(line);
            line = {};
        }
    };
    qsizetype end = 0;
    for (qsizetype begin = html.indexOf(u'<'); begin >= 0 && lines.size() < MaxLines;
         begin = html.indexOf(u'<', end)) {
        end = html.indexOf(u'>', begin);
        if (end < 0) {
            break;
        }
        if (end - begin < LongestTag) {
            read(html.mid(begin + 1, end - begin - 1));
        }
    }
    return lines;
}

}  // namespace nubivane
