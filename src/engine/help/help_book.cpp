// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/help_book.h"

#include "engine/help/help_error.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MaxTextCharacters = 8 << 20;  // that a search goes through
constexpr int ExcerptBefore = 40;                 // characters
constexpr int ExcerptLength = 140;
constexpr int TitleWeight = 20;  // a word in the title counts as much as so many in the text

QByteArray readFile(const QString& hostFile) {
    QFile file(hostFile);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Error(error_number::FileNotFound, u"help"_s, u"The help file cannot be read."_s,
                    file.errorString());
    }
    return file.read(ChmFile::MaxBytes + 1);
}

bool isPage(const QString& name) {
    return name.endsWith(QLatin1String(".htm"), Qt::CaseInsensitive) ||
           name.endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
}

/// The lines of the first file with an ending; none when there is no such file.
std::vector<HelpEntry> siteMapOf(const ChmFile& file, const char* ending) {
    for (const QString& name : file.names()) {
        if (name.endsWith(QLatin1String(ending), Qt::CaseInsensitive)) {
            return readSiteMap(QString::fromUtf8(file.read(name)));
        }
    }
    return {};
}

/// Where a word begins with `word` for the first time, from a position on; -1 when none does.
qsizetype wordStart(const QString& text, const QString& word, qsizetype from = 0) {
    for (;;) {
        const qsizetype at = text.indexOf(word, from, Qt::CaseInsensitive);
        if (at <= 0 || !text[at - 1].isLetterOrNumber()) {
            return at;
        }
        from = at + 1;
    }
}

int occurrences(const QString& text, const QString& word) {
    int count = 0;
    for (qsizetype at = wordStart(text, word); at >= 0; at = wordStart(text, word, at + 1)) {
        ++count;
    }
    return count;
}

QString excerptOf(const QString& text, const QString& word) {
    qsizetype from = std::max<qsizetype>(0, wordStart(text, word) - ExcerptBefore);
    if (from > 0) {
        from = text.indexOf(u' ', from) + 1;
    }
    QString excerpt = text.mid(from, ExcerptLength);
    if (from + ExcerptLength < text.size()) {
        excerpt.truncate(std::max<qsizetype>(excerpt.lastIndexOf(u' '), 1));
        excerpt += QLatin1String(" ...");
    }
    return from > 0 ? u"... "_s + excerpt : excerpt;
}

/// A page without the elements of a name, as far as they are closed. One pass: no page, whatever it
/// holds, takes longer than its length.
QString withoutElements(const QString& html, const char* name) {
    const QString opening = u'<' + QLatin1String(name);
    const QString closing = QLatin1String("</") + QLatin1String(name) + u'>';
    QString rest;
    qsizetype done = 0;
    for (;;) {
        const qsizetype begin = html.indexOf(opening, done, Qt::CaseInsensitive);
        const qsizetype end = begin < 0 ? -1 : html.indexOf(closing, begin, Qt::CaseInsensitive);
        if (end < 0) {
            return rest + html.mid(done);
        }
        rest += QStringView(html).mid(done, begin - done);
        done = end + closing.size();
    }
}

/// Whether a tag may stand inside a word: "<b>F</b>rame" is one.
bool isInsideWords(QStringView tag) {
    static const QStringList names{u"b"_s,    u"i"_s, u"em"_s,   u"strong"_s,
                                   u"code"_s, u"a"_s, u"span"_s, u"kbd"_s};
    const QStringView name = tag.startsWith(u'/') ? tag.mid(1) : tag;
    qsizetype length = 0;
    while (length < name.size() && name[length].isLetterOrNumber()) {
        ++length;
    }
    return names.contains(name.first(length), Qt::CaseInsensitive);
}

}  // namespace

QStringList searchWords(const QString& text) {
    static const QRegularExpression between(u"[^\\w]+"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    QStringList words = text.toLower().split(between, Qt::SkipEmptyParts);
    words.removeDuplicates();
    return words;
}

QString pageTitle(const QString& html) {
    static const QRegularExpression title(u"<title>([^<]*)</title>"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return withoutReferences(title.match(html).captured(1)).simplified();
}

QString pageText(const QString& html) {
    // The heading says again what the title says.
    QString text = withoutElements(withoutElements(html, "head"), "h1");
    QString plain;
    qsizetype done = 0;
    for (qsizetype begin = text.indexOf(u'<'); begin >= 0; begin = text.indexOf(u'<', done)) {
        const qsizetype end = text.indexOf(u'>', begin);
        if (end < 0) {
            break;
        }
        plain += QStringView(text).mid(done, begin - done);
        done = end + 1;
        if (!isInsideWords(QStringView(text).mid(begin + 1, end - begin - 1))) {
            plain += u' ';
        }
    }
    plain += QStringView(text).mid(done);
    return withoutReferences(plain).simplified();
}

HelpBook::HelpBook(const QString& hostFile) : file_(readFile(hostFile)) {
    std::copy_if(file_.names().cbegin(), file_.names().cend(), std::back_inserter(pages_), isPage);
    contents_ = siteMapOf(file_, ".hhc");
    index_ = siteMapOf(file_, ".hhk");
    std::stable_sort(index_.begin(), index_.end(), [](const HelpEntry& a, const HelpEntry& b) {
        return QString::compare(a.title, b.title, Qt::CaseInsensitive) < 0;
    });
}

const std::vector<HelpBook::PageText>& HelpBook::texts() const {
    if (!texts_.empty()) {
        return texts_;
    }
    qsizetype characters = 0;
    for (const QString& name : pages_) {
        try {
            const QString html = QString::fromUtf8(file_.read(name));
            texts_.push_back({name, pageTitle(html), pageText(html)});
        } catch (const Error&) {
            continue;  // the other pages can still be found
        }
        characters += texts_.back().text.size();
        if (characters > MaxTextCharacters) {
            break;
        }
    }
    return texts_;
}

std::vector<HelpHit> HelpBook::search(const QString& words) const {
    const QStringList wanted = searchWords(words);
    if (wanted.isEmpty()) {
        return {};
    }
    std::vector<std::pair<int, HelpHit>> found;
    for (const PageText& page : texts()) {
        int weight = 0;
        const bool all =
            std::all_of(wanted.cbegin(), wanted.cend(), [&weight, &page](const QString& word) {
                const int count =
                    occurrences(page.text, word) + TitleWeight * occurrences(page.title, word);
                weight += count;
                return count > 0;
            });
        if (all) {
            found.emplace_back(
                weight, HelpHit{page.title, page.name, excerptOf(page.text, wanted.first())});
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<HelpHit> hits;
    hits.reserve(found.size());
    for (auto& [weight, hit] : found) {
        hits.push_back(std::move(hit));
    }
    return hits;
}

}  // namespace nubivane
