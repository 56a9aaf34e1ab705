// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileDevice>
#include <QString>

/// Steps of bringing files onto the disk. Paths are the host's.
namespace nubivane::durable_file {

/// Brings what was written to an open file onto the disk.
[[nodiscard]] bool flush(QFileDevice& file);

/// A rename is on disk only when its folder is. A file system that cannot flush a folder has
/// nothing to flush, so this does not fail.
void flushFolder(const QString& folder);

/// Why the last operation on a file failed, in the system's words.
QString reasonOf(const QFileDevice& file);

}  // namespace nubivane::durable_file
