// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_error.h"

namespace nubivane {

Error damagedProject(const QString& cause) {
    return {error_number::DamagedProject, "OpenProject",
            "Cannot open the specified file. It could be damaged or not valid.", cause};
}

Error unsupportedVersion(const QString& cause) {
    return {error_number::UnsupportedVersion, "OpenProject",
            "Version format not currently supported.", cause};
}

}  // namespace nubivane
