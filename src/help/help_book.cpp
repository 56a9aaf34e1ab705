#include "help/help_book.h"

#include "help/help_error.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace nubivane {

namespace {

constexpr qsizetype MaxTextCharacters = 8 << 20;  // that a search goes through
constexpr int ExcerptBefore = 40;                 // characters
constexpr int ExcerptLength = 140;
constexpr int TitleWeight = 20;  // a word in the title counts as much as so many in the text

QByteArray readFile(const QString& hostFile) {
    QFile file(hostFile);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Error(error_number::FileNotFound, "help", "The help file cannot be read.",
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
    return from > 0 ? "... " + excerpt : excerpt;
}

}  // namespace

QStringList searchWords(const QString& text) {
    static const QRegularExpression between("[^\\w]+",
                                            QRegularExpression::UseUnicodePropertiesOption);
    QStringList words = text.toLower().split(between, Qt::SkipEmptyParts);
    words.removeDuplicates();
    return words;
}

QString pageTitle(const QString& html) {
    static const QRegularExpression title("<title>([^<]*)</title>",
                                          QRegularExpression::CaseInsensitiveOption);
    return withoutReferences(title.match(html).captured(1)).simplified();
}

QString pageText(const QString& html) {
    // The heading says again what the title says.
    static const QRegularExpression head(
        "<(head|h1)\\b.*?</\\1>",
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    // Between these there is no blank to be thought of: "<b>F</b>rame" is one word.
    static const QRegularExpression inside("</?(?:b|i|em|strong|code|a|span|kbd)\\b[^>]*>",
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression tag("<[^>]*>");
    QString text = html;
    text.remove(head).remove(inside).replace(tag, " ");
    return withoutReferences(text).simplified();
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
