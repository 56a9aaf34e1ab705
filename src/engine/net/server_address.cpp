// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/server_address.h"

#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

bool isSendable(const QByteArray& text) {
    return std::none_of(text.begin(), text.end(),
                        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

QByteArray hostForLookup(const QString& host) {
    QString trimmed = host.trimmed();
    if (trimmed.contains(u':')) {
        static const QRegularExpression address(u"^\\[?([0-9A-Fa-f:.]+)\\]?$"_s);
        return address.match(trimmed).captured(1).toLatin1();
    }
    static const QRegularExpression name(u"^[0-9A-Za-z._-]+$"_s);
    const QByteArray ascii = QUrl::toAce(trimmed);
    return name.match(QString::fromLatin1(ascii)).hasMatch() ? ascii : QByteArray();
}

std::optional<ServerAddress> parseServerAddress(const QString& text) {
    static const QRegularExpression form(
        u"^(?:([A-Za-z][A-Za-z0-9+.-]*)://)?(?:([^@/]*)@)?(\\[[^\\]/]*\\]|[^:/@]*|[^/@\\[]*:[^/@\\[]*:[^/@]*)(?::([0-9]{1,5}))?(?:/(.*))?$"_s);
    const auto match = form.match(text.trimmed());
    ServerAddress address;
    address.scheme = match.captured(1).toLower();
    address.user = match.captured(2);
    address.host = match.captured(3);
    address.path = match.captured(5);
    if (!match.captured(4).isEmpty()) {
        address.port = match.captured(4).toInt();
    }
    const bool portFits = !address.port || (*address.port >= 1 && *address.port <= 65535);
    if (!match.hasMatch() || !portFits || hostForLookup(address.host).isEmpty()) {
        return std::nullopt;
    }
    return address;
}

}  // namespace nubivane
