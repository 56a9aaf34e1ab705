// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/ftp_settings.h"

#include <QString>

#include <vector>

namespace nubivane {

class Workspace;

/// What an upload would send by what this machine remembers of the server, which is not asked.
struct UploadOutlook {
    struct File {
        QString name;  ///< below the Nubivane folder, parted by slashes
        qint64 bytes = 0;
    };

    std::vector<File> files;
    qint64 bytes = 0;         ///< of these
    qsizetype unchanged = 0;  ///< files that are there already

    /// "12 of 205 files, 3400 bytes"
    QString summary() const;
};

/// Raises `Error` for a file that cannot be read and has to be sent.
UploadOutlook outlookOf(const Workspace& workspace, const UploadGroups& groups, bool everything);

}  // namespace nubivane
