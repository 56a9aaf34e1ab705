// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_paths.h"

#include "engine/core/host_files.h"
#include "engine/core/path_text.h"

namespace nubivane {

using namespace Qt::StringLiterals;

QString dataFileOf(const QString& projectFile) {
    const qsizetype point = projectFile.lastIndexOf(u'.');
    // A point in the name of a folder is none of the file's: it must not lead out of that folder.
    if (point <= projectFile.lastIndexOf(u'\\')) {
        return {};
    }
    return projectFile.left(point + 1) + u"nvpx"_s;
}

bool isValidProjectFile(const QString& projectFile) {
    return getExtension(projectFile).toLower() == u"nvpf" && host_files::fileExists(projectFile) &&
           host_files::fileExists(projectFile.chopped(1) + u'x');
}

}  // namespace nubivane
