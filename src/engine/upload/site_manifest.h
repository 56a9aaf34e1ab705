// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

namespace nubivane {

/// What one file held when it was sent.
struct SentFile {
    qint64 size = 0;
    QByteArray hash;  ///< SHA-256, 64 hexadecimal digits
    bool operator==(const SentFile&) const = default;
};

/// What an upload has put beside a site: names below the Nubivane folder, parted by slashes, with
/// sizes and hashes. It lies on the server as `SiteManifest::FileName` and in the memory of each
/// machine.
///
/// A text of lines: the format and its number; hash, size and name of each file; "mark" and a text
/// of random length, by which the sizes of two manifests differ; "end" and the hash of all that
/// stands before. What has been cut, changed or made by another program is no manifest.
class SiteManifest {
  public:
    static constexpr char FileName[] = ".nubivane-manifest";
    static constexpr qint64 MaxBytes = qint64{16} * 1024 * 1024;

    QMap<QString, SentFile> files;

    QByteArray toBytes() const;
    static std::optional<SiteManifest> fromBytes(const QByteArray& bytes);

    /// True for a name that can stand in a manifest: plain names parted by slashes.
    static bool isName(const QString& name);
};

}  // namespace nubivane
