// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_paths.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/project/interrupted_save.h"

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

QString requireDataFileOf(const QString& projectFile) {
    const QString dataFile = dataFileOf(projectFile);
    const auto fail = [](const QString& reason) {
        throw Error(error_number::FileAccess, u"saveProject"_s, u"Cannot write the file."_s,
                    reason);
    };
    if (dataFile.isEmpty()) {
        fail(u"the file name has no ending; type it with \".nvpf\" behind it"_s);
    }
    if (dataFile.compare(projectFile, Qt::CaseInsensitive) == 0) {
        fail(u"the file name is that of the data file"_s);
    }
    return dataFile;
}

bool projectStands(const QString& hostProjectFile) {
    const QString dataFile = dataFileOf(host_files::toModel(hostProjectFile));
    return projectFileStands(hostProjectFile,
                             dataFile.isEmpty() ? QString() : host_files::toHost(dataFile));
}

bool isValidProjectFile(const QString& projectFile) {
    const QString dataFile = projectFile.chopped(1) + u'x';
    return getExtension(projectFile).toLower() == u"nvpf" && host_files::fileExists(dataFile) &&
           projectFileStands(host_files::toHost(projectFile), host_files::toHost(dataFile));
}

}  // namespace nubivane
