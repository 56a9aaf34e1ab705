// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/command_line.h"

#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/project/project_paths.h"

#include <QCoreApplication>

namespace nubivane {

using namespace Qt::StringLiterals;

QString projectArgument(const QStringList& arguments) {
    QString path = arguments.join(u' ');
    if (path.startsWith(u'"')) {
        path.remove(0, 1);
    }
    if (path.endsWith(u'"')) {
        path.chop(1);
    }
    return path;
}

bool isStartableProject(const QString& hostFile) {
    const QString path = host_files::toModel(hostFile);
    return projectStands(hostFile) && getExtension(hostFile).toLower() == u"nvpf" &&
           host_files::fileExists(stripExtension(path) + u".nvpx"_s);
}

QString notStartableText(const QString& hostFile) {
    return QCoreApplication::translate(
               "nubivane::CommandLine",
               "%1.\rThis is not a valid Nubivane file, or its format is not "
               "currently supported.")
        .arg(hostFile);
}

}  // namespace nubivane
