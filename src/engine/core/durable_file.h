// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

namespace nubivane::durable_file {

/// Steps of a save that survives a crash. Paths are the host's. All raise `Error` (FileAccess) with
/// the system's reason.

/// Opens a file for writing from its start, emptied.
void create(QFile& file);

/// Writes all of `bytes`; a short write is a failure.
void append(QFile& file, const QByteArray& bytes);

/// Brings what was written onto the disk and closes the file.
void finish(QFile& file);

/// Renames over an existing file in one step.
void replace(const QString& from, const QString& to);

/// The same, and brings the folder onto the disk.
void renameOver(const QString& from, const QString& to);

/// Why the last operation on a file failed, in the system's words.
QString reasonOf(const QFileDevice& file);

}  // namespace nubivane::durable_file
