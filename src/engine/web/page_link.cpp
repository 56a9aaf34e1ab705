// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_link.h"

#include "engine/web/plain_text.h"

#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

bool isRelative(const QString& link) {
    return link.startsWith(u'#') || link.startsWith(u'?') || link.startsWith("./"_L1) ||
           link.startsWith("../"_L1) || (link.startsWith(u'/') && !link.startsWith("//"_L1));
}

/// The scheme of an address, in lower case; empty when it has none. "host:8080/x" has none.
QString schemeOf(const QString& link) {
    static const QRegularExpression scheme(u"^([A-Za-z][A-Za-z0-9+.-]*):(.*)$"_s);
    static const QRegularExpression port(u"^[0-9]+([/?#].*)?$"_s);
    const auto match = scheme.match(link);
    if (!match.hasMatch()) {
        return {};
    }
    const QString name = match.captured(1).toLower();
    const bool isHost = name.contains(u'.') || name == "localhost"_L1;
    return isHost && port.match(match.captured(2)).hasMatch() ? QString() : name;
}

/// The address with everything escaped that may not stand in one.
std::optional<QString> encoded(const QString& address) {
    const QUrl url(address, QUrl::TolerantMode);
    if (!url.isValid()) {
        return std::nullopt;
    }
    const bool isWeb = url.scheme() == "http"_L1 || url.scheme() == "https"_L1;
    if (isWeb && (url.host().isEmpty() || !url.userInfo().isEmpty())) {
        return std::nullopt;
    }
    const QString text = QString::fromLatin1(url.toEncoded());
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

}  // namespace

std::optional<QString> pageLink(const QString& link) {
    // Browsers pass over tabs and line ends wherever they stand in an address.
    QString address = plainText(link).trimmed();
    address.removeIf([](QChar c) { return c == u'\t' || c == u'\n'; });
    if (address.isEmpty()) {
        return std::nullopt;
    }
    if (isRelative(address)) {
        return encoded(address);
    }
    const QString scheme = schemeOf(address);
    constexpr std::array allowed = {"http"_L1, "https"_L1, "mailto"_L1, "tel"_L1};
    if (scheme.isEmpty()) {
        return encoded((address.startsWith("//"_L1) ? "http:"_L1 : "http://"_L1) + address);
    }
    if (std::find(allowed.begin(), allowed.end(), scheme) == allowed.end()) {
        return std::nullopt;
    }
    return encoded(address);
}

bool leadsAway(const QString& address) {
    return address.startsWith("http:"_L1) || address.startsWith("https:"_L1);
}

}  // namespace nubivane
