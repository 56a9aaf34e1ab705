// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/file_state.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QString>

#include <memory>
#include <optional>

namespace nubivane {

/// What a save that stopped between its two renames leaves behind, and how it is told from other
/// leftovers.
///
/// Such a save has put the new data file in place, and its document waits beside the project file
/// under a temporary name whose note says what it belongs to: the lengths of both files, a checksum
/// over both, and one of the document that lay there before. A waiting document counts only where
/// all of this is found again, so that neither a half-written one nor one that somebody's restored
/// copy has overtaken is ever used. Paths are the host's, links followed.

/// Length and checksum of a file's content.
struct Fingerprint {
    qint64 size = 0;
    QByteArray checksum;

    bool operator==(const Fingerprint&) const = default;
};

/// Makes the fingerprint of what is added piece by piece.
class Fingerprinter {
  public:
    void add(const QByteArray& bytes);
    Fingerprint result() const;

  private:
    QCryptographicHash hash_{QCryptographicHash::Blake2b_256};
    qint64 size_ = 0;
};

Fingerprint fingerprintOf(const QByteArray& bytes);
/// That of a file; nothing for what is no ordinary file, or is longer than `maxBytes`.
std::optional<Fingerprint> fingerprintOf(const QString& hostPath, qint64 maxBytes);

/// The note in the name of a waiting document. `old` is the project file that lies there; nothing
/// where there is none.
QByteArray waitingNote(const Fingerprint& document, const Fingerprint& data,
                       const std::optional<Fingerprint>& old);

/// The document that belongs to the data file in place and waits to follow it, open for reading.
struct WaitingDocument {
    QString path;
    std::unique_ptr<QFile> file;
};
std::optional<WaitingDocument> findWaitingDocument(const QString& projectFile,
                                                   const QString& dataFile);

/// Puts the document of an interrupted save in place, unless a living program is at it. Returns the
/// file to read: the project file itself, or where nothing could be renamed, its newer neighbour.
QString completeInterruptedSave(const QString& projectFile, const QString& dataFile);

/// Whether there is a project file at that path, or one that waits to take this place. Links may be
/// given.
bool projectFileStands(const QString& projectFile, const QString& dataFile);

/// Where a person has removed a waiting document, an old project file lies beside a new data file,
/// and nothing in the two may say so: their form is fixed. So a data file that comes before its
/// document carries, in the fraction of a second of its time stamp, which document it makes
/// obsolete.
void markObsolete(QFileDevice& newData, const Fingerprint& oldDocument);
/// True where a data file in that state says that it has made this document obsolete.
bool isObsolete(const Fingerprint& document, const FileState& data);
bool isObsolete(QFile& document, const FileState& data);

/// A longer data file has no fingerprint, bytes: reading it would take too long.
inline constexpr qint64 MaxDataBytes = qint64{4} * 1024 * 1024 * 1024;

}  // namespace nubivane
