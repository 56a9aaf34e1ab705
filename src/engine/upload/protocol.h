// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace nubivane {

/// How a site travels. The setting of the address holds it as what stands before the address; plain
/// FTP, which asks for encryption on its way, has nothing there.
enum class Protocol { Ftp, FtpOverTls, Sftp, Folder, Rclone };

/// What an address in the settings says of it.
Protocol protocolOf(const QString& url);
/// An address of the settings without it: the host, the folder, or rclone's remote.
QString placeOf(const QString& url);
/// The address that is stored for both; of FTP the text as it was typed.
QString urlOf(Protocol protocol, const QString& place);

/// The port of a server that says nothing else; 0 where there is no server of our own.
int portOf(Protocol protocol);
/// True where a name and a password are asked for.
bool hasLogin(Protocol protocol);

/// What a person has typed or pasted into the field of the host, "ftp://me@host/folder" for
/// example, as the fields that belong to it.
struct TypedAddress {
    Protocol protocol = Protocol::Ftp;
    QString place{};
    QString user{};  ///< empty where none was typed
    QString folder{};
    std::optional<int> port{};
};

/// Nothing for a host alone, and for what has no such form: that is left as it is.
std::optional<TypedAddress> takeApart(Protocol chosen, const QString& text);

}  // namespace nubivane
