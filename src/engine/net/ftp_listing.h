// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace nubivane {

/// An entry of a folder on a server.
struct RemoteEntry {
    enum class Kind { Unknown, File, Folder };

    QString name;  ///< a plain name
    Kind kind = Kind::Unknown;
    qint64 size = -1;       ///< bytes of a file, -1 where the server does not tell
    QByteArray modified{};  ///< when, in the server's own form; empty where it does not tell

    bool operator==(const RemoteEntry&) const = default;
};

using RemoteListing = std::vector<RemoteEntry>;

/// More than any site's folder needs: a server could send without end.
inline constexpr qsizetype MaxListingBytes = qsizetype{2} * 1024 * 1024;

/// The reply to MLSD (RFC 3659, 7). Lines that are none, names that are no UTF-8 and names that
/// could mean something else than an entry of this folder are left out.
RemoteListing parseMlsd(const QByteArray& listing);

/// The reply to LIST, whose form no standard tells: as "ls -l" writes it, or as DIR does. What is
/// not understood is left out.
RemoteListing parseList(const QByteArray& listing);

/// The reply to NLST: names alone, of which it is not known whether they are files.
RemoteListing parseNames(const QByteArray& listing);

}  // namespace nubivane
