// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_listing.h"

#include "engine/core/host_files.h"

#include <QSet>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using EntryKind = RemoteEntry::Kind;

/// The next word of a line and where it ends; words are parted by blanks.
struct Word {
    QByteArrayView text;
    qsizetype end = 0;
};

Word nextWord(QByteArrayView line, qsizetype from) {
    while (from < line.size() && (line[from] == ' ' || line[from] == '\t')) {
        ++from;
    }
    qsizetype end = from;
    while (end < line.size() && line[end] != ' ' && line[end] != '\t') {
        ++end;
    }
    return {line.sliced(from, end - from), end};
}

std::optional<qint64> sizeOf(QByteArrayView text) {
    constexpr qsizetype mostDigits = 18;  // what surely fits
    if (text.isEmpty() || text.size() > mostDigits) {
        return std::nullopt;
    }
    qint64 size = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        size = 10 * size + (c - '0');
    }
    return size;
}

bool isMonth(QByteArrayView text) {
    constexpr std::array months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (const char* month : months) {
        if (text.compare(QByteArrayView(month), Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

/// "1999-12-31", which some servers write in the place of month and day.
bool isIsoDate(QByteArrayView text) {
    return text.size() == 10 && text[4] == '-' && text[7] == '-' &&
           sizeOf(text.first(4)).has_value();
}

/// The entries, each name once.
class Entries {
  public:
    void add(QByteArrayView bytes, EntryKind kind, qint64 size, const QByteArray& modified = {}) {
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString name = decoder.decode(bytes);
        if (decoder.hasError() || !host_files::isPlainName(name) || hasControl(name) ||
            known_.contains(name)) {
            return;
        }
        known_.insert(name);
        list_.push_back({name, kind, kind == EntryKind::File ? size : -1, modified});
    }
    RemoteListing take() { return std::move(list_); }

  private:
    static bool hasControl(const QString& name) {
        return std::any_of(name.begin(), name.end(),
                           [](QChar c) { return c.category() == QChar::Other_Control; });
    }

    QSet<QString> known_;
    RemoteListing list_;
};

template <class Take>
RemoteListing eachLine(const QByteArray& listing, const Take& take) {
    Entries entries;
    for (qsizetype from = 0; from < listing.size();) {
        qsizetype end = listing.indexOf('\n', from);
        end = end < 0 ? listing.size() : end;
        QByteArrayView line = QByteArrayView(listing).sliced(from, end - from);
        while (line.endsWith('\r')) {
            line.chop(1);
        }
        take(line, entries);
        from = end + 1;
    }
    return entries.take();
}

/// A time as RFC 3659 writes it: digits, perhaps with a part of a second.
QByteArray timeIn(const QByteArray& value) {
    constexpr qsizetype longest = 32;
    const bool fits = value.size() <= longest &&
                      std::all_of(value.begin(), value.end(),
                                  [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
    return fits ? value : QByteArray();
}

void takeFacts(QByteArrayView line, Entries& entries) {
    const qsizetype blank = line.indexOf(' ');
    if (blank < 0) {  // no facts at all: a server that lists names alone
        entries.add(line, EntryKind::Unknown, -1);
        return;
    }
    bool file = false;
    bool folder = false;
    qint64 size = -1;
    QByteArray modified;
    for (qsizetype from = 0; from < blank;) {
        qsizetype end = line.indexOf(';', from);
        end = end < 0 || end > blank ? blank : end;
        const QByteArrayView fact = line.sliced(from, end - from);
        const qsizetype sign = fact.indexOf('=');
        if (sign > 0) {
            const QByteArray name = fact.first(sign).toByteArray().toLower();
            const QByteArray value = fact.sliced(sign + 1).toByteArray().toLower();
            file = file || (name == "type" && value == "file");
            folder = folder || (name == "type" && value == "dir");
            size = name == "size" ? sizeOf(value).value_or(-1) : size;
            modified = name == "modify" ? timeIn(value) : modified;
        }
        from = end + 1;
    }
    if (file || folder) {  // not the folder itself nor the one above it
        entries.add(line.sliced(blank + 1), folder ? EntryKind::Folder : EntryKind::File, size,
                    modified);
    }
}

/// "drwxr-xr-x 2 owner group 4096 Jan  2 2020 name": what stands before the size varies, so the
/// date is looked for.
bool takeUnix(QByteArrayView line, Entries& entries) {
    constexpr qsizetype modeLength = 10;
    const QByteArrayView kinds("-dl");
    if (line.size() < modeLength || !kinds.contains(line[0])) {
        return false;
    }
    Word before;
    Word word = nextWord(line, 0);
    constexpr int mostWords = 8;
    for (int i = 0; i < mostWords && word.end < line.size(); ++i) {
        before = word;
        word = nextWord(line, before.end);
        const auto size = sizeOf(before.text);
        const bool iso = isIsoDate(word.text);
        if (!size || !(iso || isMonth(word.text))) {
            continue;
        }
        const Word second = nextWord(line, word.end);
        const Word last = iso ? second : nextWord(line, second.end);
        if (last.end + 1 >= line.size()) {
            return false;
        }
        QByteArrayView name = line.sliced(last.end + 1);
        EntryKind kind = line[0] == 'd' ? EntryKind::Folder : EntryKind::File;
        if (line[0] == 'l') {
            const qsizetype arrow = name.indexOf(" -> ");
            name = arrow > 0 ? name.first(arrow) : name;
            kind = EntryKind::Unknown;
        }
        entries.add(name, kind, *size);
        return true;
    }
    return false;
}

/// "01-02-20  03:04PM       <DIR>          name", or the size in the place of the mark.
void takeDos(QByteArrayView line, Entries& entries) {
    const Word date = nextWord(line, 0);
    const Word time = nextWord(line, date.end);
    const Word size = nextWord(line, time.end);
    const bool dated =
        date.text.size() >= 8 && (date.text.count('-') == 2 || date.text.count('/') == 2);
    if (!dated || time.text.indexOf(':') < 0 || size.end >= line.size()) {
        return;
    }
    const bool folder = size.text.compare("<DIR>", Qt::CaseInsensitive) == 0;
    const auto bytes = sizeOf(size.text);
    if (!folder && !bytes) {
        return;
    }
    // Names are set under one another after a mark; after a size a single blank parts them.
    qsizetype from = size.end + 1;
    while (folder && from < line.size() && line[from] == ' ') {
        ++from;
    }
    if (from < line.size()) {
        entries.add(line.sliced(from), folder ? EntryKind::Folder : EntryKind::File,
                    bytes.value_or(-1));
    }
}

}  // namespace

RemoteListing parseMlsd(const QByteArray& listing) {
    return eachLine(listing, takeFacts);
}

RemoteListing parseList(const QByteArray& listing) {
    return eachLine(listing, [](QByteArrayView line, Entries& entries) {
        if (!takeUnix(line, entries)) {
            takeDos(line, entries);
        }
    });
}

RemoteListing parseNames(const QByteArray& listing) {
    return eachLine(listing, [](QByteArrayView line, Entries& entries) {
        entries.add(line, EntryKind::Unknown, -1);
    });
}

}  // namespace nubivane
