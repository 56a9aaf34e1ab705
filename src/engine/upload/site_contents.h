// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/c_upload.h"
#include "engine/upload/site_manifest.h"

#include <QSet>
#include <QStringList>

#include <functional>
#include <vector>

namespace nubivane {

/// One file of a plan, with its place below the Nubivane folder.
struct PlannedFile {
    const cUpload* step = nullptr;
    QString hostFile;
    QString name;  ///< parted by slashes
    SentFile content;
    qsizetype number = 0;  ///< among the files of the plan
    bool page = false;     ///< shows the others, and so comes after them
};

/// What the steps of a plan make and bring, by place and not by order.
struct SiteContents {
    QString remoteFolder;  ///< entered first; may be empty
    QString nubivaneFolder;
    QStringList folders;  ///< below the Nubivane folder, parted by slashes
    std::vector<PlannedFile> files;

    /// Walks the steps as a server would.
    static SiteContents of(const UploadPlan& plan);
    /// Reads sizes and hashes of all files on this disk. Raises `Error` with the text of its step
    /// for one that cannot be read and has to be sent.
    void readFiles(const std::function<bool()>& stopped);

    /// The folders that hold files, "" for the Nubivane folder itself.
    QStringList foldersOfFiles() const;
};

/// The folder of a name parted by slashes, "" for none.
QString folderOf(const QString& name);
/// What a step's failure is told with.
QString failureText(const cUpload& step);

}  // namespace nubivane
