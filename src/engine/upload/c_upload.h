// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace nubivane {

/// What a step of an upload does.
enum class UploadCommand { ChangeFolder, MakeFolder, Upload };

/// Its name as the plan is printed: "CHDIR", "MKDIR" or "UPLOAD".
QString nameOf(UploadCommand command);

/// One step of an upload.
struct cUpload {
    UploadCommand Command = UploadCommand::Upload;
    QString Param1;               ///< the folder's name, or the local file (with backslashes)
    QString Param2;               ///< the name on the server, of an upload alone
    bool ErrorCauseStop = false;  ///< its failure ends the run
};

using UploadPlan = std::vector<cUpload>;

inline cUpload newUploadStep(UploadCommand command, const QString& param1, const QString& param2,
                             bool errorCauseStop) {
    return {command, param1, param2, errorCauseStop};
}

}  // namespace nubivane
