// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/protocol.h"

#include "engine/net/server_address.h"

#include <algorithm>
#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

struct Row {
    Protocol protocol;
    const char* prefix;
    int port;
};

constexpr std::array rows{
    Row{Protocol::FtpOverTls, "ftps://", 990},
    Row{Protocol::Sftp, "sftp://", 22},
    Row{Protocol::Folder, "file:", 0},
    Row{Protocol::Rclone, "rclone:", 0},
    Row{Protocol::Ftp, "", 21},  // the last: every text begins so
};

const Row& rowOf(Protocol protocol) {
    return *std::find_if(rows.begin(), rows.end(),
                         [&](const Row& row) { return row.protocol == protocol; });
}

const Row& rowOf(const QString& url) {
    const QString text = url.trimmed();
    return *std::find_if(rows.begin(), rows.end(), [&](const Row& row) {
        return text.startsWith(QLatin1String(row.prefix), Qt::CaseInsensitive);
    });
}

}  // namespace

Protocol protocolOf(const QString& url) {
    return rowOf(url).protocol;
}

QString placeOf(const QString& url) {
    const Row& row = rowOf(url);
    return row.protocol == Protocol::Ftp ? url
                                         : url.trimmed().mid(QLatin1String(row.prefix).size());
}

QString urlOf(Protocol protocol, const QString& place) {
    return protocol == Protocol::Ftp ? place
                                     : QLatin1String(rowOf(protocol).prefix) + place.trimmed();
}

int portOf(Protocol protocol) {
    return rowOf(protocol).port;
}

bool hasLogin(Protocol protocol) {
    return portOf(protocol) != 0;
}

std::optional<TypedAddress> takeApart(Protocol chosen, const QString& text) {
    const Protocol named = protocolOf(text);
    if (!hasLogin(named)) {
        return TypedAddress{named, placeOf(text)};
    }
    if (!hasLogin(chosen)) {
        return std::nullopt;
    }
    const auto address = parseServerAddress(text);
    const bool known = address && (address->scheme.isEmpty() || address->scheme == "ftp"_L1 ||
                                   named != Protocol::Ftp);
    if (!known || (address->scheme.isEmpty() && address->user.isEmpty() && !address->port &&
                   address->path.isEmpty())) {
        return std::nullopt;
    }
    QString folder = address->path;
    while (folder.endsWith(u'/')) {
        folder.chop(1);
    }
    return TypedAddress{address->scheme.isEmpty() ? chosen : named, address->host, address->user,
                        folder, address->port};
}

}  // namespace nubivane
