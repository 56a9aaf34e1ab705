// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QFile;

namespace nubivane {

/// What tells one state of a file on disk from another without reading it.
struct FileState {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = -1;     ///< bytes; -1 where there is no file
    qint64 modified = 0;  ///< nanoseconds since 1970

    bool exists() const { return size >= 0; }
    bool operator==(const FileState&) const = default;
};

/// How both files of a project stood on the disk at one moment.
struct PairState {
    FileState project;
    FileState data;

    bool operator==(const PairState&) const = default;
};

/// The state of the file that a host path leads to, links followed.
FileState fileStateOf(const QString& hostPath);
/// The same of a file that is open, whatever its name leads to by now.
FileState fileStateOf(const QFile& file);

/// Whether a link in the last part of a path stands for its target or for itself.
enum class LinkUse { Followed, Itself };

/// Opens an ordinary file for reading. False, with the reason in `reason`, for all else: a pipe, a
/// device or a folder is neither waited for nor touched. The opened `QFile` has no name of its own.
[[nodiscard]] bool openOrdinary(QFile& file, const QString& hostPath, QString& reason,
                                LinkUse links = LinkUse::Followed);

}  // namespace nubivane
