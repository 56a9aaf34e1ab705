// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_format.h"

#include <QStringDecoder>

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

/// False for bytes that `escaped` never writes.
bool unescape(const QByteArray& bytes, QString& text) {
    for (const char c : bytes) {
        if (static_cast<uchar>(c) < 0x20) {
            return false;
        }
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    text = decoder(QByteArray::fromPercentEncoding(bytes));
    return !decoder.hasError();
}

}  // namespace

std::optional<SettingsMap> parseSettings(const QByteArray& text) {
    SettingsMap entries;
    const QList<QByteArray> lines = text.split('\n');
    for (QByteArray line : lines) {
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        if (line.isEmpty() || line.startsWith('#')) {
            continue;
        }
        const qsizetype middle = line.indexOf('=');
        QString key;
        QString value;
        if (middle <= 0 || !unescape(line.left(middle), key) ||
            !unescape(line.mid(middle + 1), value)) {
            return std::nullopt;
        }
        entries.insert(key, value);
    }
    return entries;
}

QByteArray settingsText(const SettingsMap& entries) {
    QByteArray text = Header;
    text += '\n';
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        text += escaped(entry.key(), true) + '=' + escaped(entry.value(), false) + '\n';
    }
    return text;
}

}  // namespace nubivane
