// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_error.h"

namespace nubivane {

using namespace Qt::StringLiterals;

Error damagedProject(const QString& cause) {
    return {error_number::DamagedProject, u"OpenProject"_s,
            u"Cannot open the specified file. It could be damaged or not valid."_s, cause};
}

Error unsupportedVersion(const QString& cause) {
    return {error_number::UnsupportedVersion, u"OpenProject"_s,
            u"Version format not currently supported."_s, cause};
}

}  // namespace nubivane
