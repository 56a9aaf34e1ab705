// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_format.h"

#include <QStringDecoder>

#include <algorithm>

namespace nubivane {

namespace {

constexpr char Header[] = "# Nubivane settings";

/// Control characters, "%" and, in keys, "=" and the "#" that would begin a comment as "%XX";
/// blanks at the ends too, which editors strip.
QByteArray escaped(const QString& text, bool isKey) {
    const QByteArray utf8 = text.toUtf8();
    QByteArray result;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const auto c = static_cast<uchar>(utf8[i]);
        const bool atEnd = i == 0 || i + 1 == utf8.size();
        const bool wouldMislead = isKey && (c == '=' || (c == '#' && i == 0));
        if (c < 0x20 || c == 0x7F || c == '%' || wouldMislead || (c == ' ' && atEnd)) {
            result += '%' + QByteArray::number(c, 16).toUpper().rightJustified(2, '0');
        } else {
            result += static_cast<char>(c);
        }
    }
    return result;
}

/// The text of bytes; nothing when they are no UTF-8.
std::optional<QString> decoded(const QByteArray& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    // Whether the last character was cut shows only when nothing follows it.
    const QString text = decoder(bytes) + decoder(QByteArray());
    return decoder.hasError() || QString(text).toUtf8() != bytes ? std::nullopt
                                                                 : std::optional(text);
}

bool hasControlCharacter(const QByteArray& line) {
    return std::any_of(line.begin(), line.end(),
                       [](char c) { return static_cast<uchar>(c) < 0x20; });
}

}  // namespace

std::optional<SettingsContent> parseSettings(const QByteArray& text) {
    SettingsContent content;
    const QList<QByteArray> lines = text.split('\n');
    for (QByteArray line : lines) {
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        if (line.isEmpty() || line.startsWith('#')) {
            continue;
        }
        const qsizetype middle = line.indexOf('=');
        const auto key = decoded(QByteArray::fromPercentEncoding(line.left(middle)));
        const auto value = decoded(QByteArray::fromPercentEncoding(line.mid(middle + 1)));
        if (!decoded(line) || !key || !value) {
            content.unreadable += line;
        } else if (middle <= 0 || hasControlCharacter(line)) {
            return std::nullopt;
        } else {
            content.entries.insert(*key, *value);
        }
    }
    return content;
}

QByteArray settingsText(const SettingsContent& content) {
    QByteArray text = Header;
    text += '\n';
    const SettingsMap& entries = content.entries;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        text += escaped(entry.key(), true) + '=' + escaped(entry.value(), false) + '\n';
    }
    for (const QByteArray& line : content.unreadable) {
        text += line + '\n';
    }
    return text;
}

}  // namespace nubivane
