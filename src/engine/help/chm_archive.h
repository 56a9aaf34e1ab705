// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace nubivane {

/// A compiled help file in memory as libmspack reads it, which works on files: here they are the
/// archive's bytes and a buffer for what is unpacked. Whatever the bytes ask for, the library gets
/// no more than `MaxMemory` for the directory and for each part of what unpacking takes, and
/// unpacks no more than it was asked to.
///
/// What cannot be read raises `Error`.
class ChmArchive {
  public:
    static constexpr qint64 MaxMemory = 32 << 20;

    /// One of the files in the archive.
    struct Entry {
        bool packed = false;
        qint64 offset = 0;  ///< in the packed content unpacked, or in the plain content
        qint64 length = 0;
    };
    /// Called with the name of each file in their order; those that the archive needs for itself
    /// begin with two colons.
    using Visitor = std::function<void(const QString& name, const Entry& entry)>;

    /// Reads the directory.
    ChmArchive(QByteArray bytes, const Visitor& visit);
    ~ChmArchive();
    ChmArchive(const ChmArchive&) = delete;
    ChmArchive& operator=(const ChmArchive&) = delete;

    /// The bytes of an entry, or of any other part of the content.
    QByteArray extract(const Entry& entry);

  private:
    struct Library;
    std::unique_ptr<Library> library_;
};

}  // namespace nubivane
