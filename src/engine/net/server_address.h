// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace nubivane {

/// True for bytes that can stand in one line of a conversation: no control character.
bool isSendable(const QByteArray& text);

/// A host's name or address as the system looks it up, names of other scripts in their ASCII form;
/// empty for what is neither.
QByteArray hostForLookup(const QString& host);

/// What people write into a field for a host: "ftp://user@host:2121/folder" or parts of it.
struct ServerAddress {
    QString scheme;  ///< in lower case; empty when none was written
    QString user;
    QString host;
    std::optional<int> port;
    QString path;  ///< what stands behind the host, without the slash before it
};

/// The parts of such a text; nothing when it names no host.
std::optional<ServerAddress> parseServerAddress(const QString& text);

}  // namespace nubivane
