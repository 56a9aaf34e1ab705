// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/help/chm_archive.h"

#include <QCache>
#include <QHash>
#include <QStringList>

namespace nubivane {

/// A compiled help file (.chm): files under their names in one archive, most of them packed.
///
/// The bytes may be anything. What cannot be read raises `Error`; sizes and counts are held against
/// the bytes that are there and against the limits below before anything is made for them.
/// A file is unpacked with the whole run it stands in, which is kept for the files beside it: files
/// listed in any order cost no more than the content.
class ChmFile {
  public:
    static constexpr qint64 MaxBytes = 64 << 20;       // of the whole file
    static constexpr qint64 MaxEntryBytes = 16 << 20;  // of one of its files, unpacked
    static constexpr int MaxEntries = 20000;

    /// Reads the directory; the rest is read when it is asked for.
    explicit ChmFile(QByteArray bytes);

    /// Names of the files, without the slash that they begin with, in the archive's order. What the
    /// compiler put there for itself is left out.
    const QStringList& names() const { return names_; }

    /// Names are found without regard to case.
    bool contains(const QString& name) const;
    QByteArray read(const QString& name) const;

  private:
    void addEntry(const QString& name, const ChmArchive::Entry& entry);
    void readControlData(const QByteArray& control);
    void readResetTable(const QByteArray& table);
    QByteArray plainEntry(const char* name) const;
    QByteArray unpack(qint64 offset, qint64 length) const;
    QByteArray runAt(qint64 run) const;

    std::unique_ptr<ChmArchive> archive_;
    QHash<QString, ChmArchive::Entry> entries_;  ///< by name in lower case
    QStringList names_;
    qint64 packedLength_ = 0;  ///< of the packed content, unpacked
    qint64 runBytes_ = 0;      ///< of the parts that are packed by themselves, unpacked
    mutable QCache<qint64, QByteArray> runs_;  ///< unpacked lately; costs are bytes
};

}  // namespace nubivane
