// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/help/lzx_decoder.h"

#include <QCache>
#include <QHash>
#include <QStringList>

namespace nubivane {

/// A compiled help file (.chm): files under their names in one archive, most of them packed.
///
/// The bytes may be anything. What cannot be read raises `Error`; sizes and counts are held against
/// the bytes that are there and against the limits below before anything is made for them.
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
    struct Entry {
        bool packed = false;
        qint64 offset = 0;  ///< in the content, unpacked
        qint64 length = 0;
    };
    /// The packed content: frames, and how many of them make a run.
    struct Packed {
        QByteArrayView bytes;
        qint64 length = 0;           ///< unpacked
        QList<qint64> frameOffsets;  ///< in `bytes`
        qint64 framesPerRun = 0;
        qint64 windowSize = 0;
    };

    void readDirectory();
    void readChunk(QByteArrayView chunk);
    void addEntry(const QString& name, const Entry& entry);
    void preparePacked();
    void readResetTable(QByteArrayView table);
    void readControlData(QByteArrayView control);

    QByteArrayView plainEntry(const char* name) const;
    QByteArray unpack(qint64 offset, qint64 length) const;
    QByteArray runAt(qint64 run) const;

    QByteArray bytes_;
    qint64 contentOffset_ = 0;
    QHash<QString, Entry> entries_;  ///< by name in lower case
    QStringList names_;
    Packed packed_;
    mutable QCache<qint64, QByteArray> runs_;  ///< unpacked lately; costs are bytes
};

}  // namespace nubivane
