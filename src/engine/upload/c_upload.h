// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace nubivane {

/// One step of an upload.
struct cUpload {
    QString Command;              ///< "CHDIR", "MKDIR" or "UPLOAD"
    QString Param1;               ///< the folder's name, or the local file (with backslashes)
    QString Param2;               ///< the name on the server, of an UPLOAD alone
    bool ErrorCauseStop = false;  ///< its failure ends the run
};

using UploadPlan = std::vector<cUpload>;

inline cUpload newUploadStep(const QString& command, const QString& param1, const QString& param2,
                             bool errorCauseStop) {
    return {command, param1, param2, errorCauseStop};
}

}  // namespace nubivane
