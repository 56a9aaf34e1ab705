// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/program_folder.h"

#include "engine/core/host_files.h"
#include "engine/core/shipped_content.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace nubivane {

ProgramFolder ProgramFolder::ofThisProgram() {
    const QString executables = QCoreApplication::applicationDirPath();
    const QString shared = QDir::cleanPath(executables + QStringLiteral("/../share/nubivane"));
    const bool systemWide =
        !QFileInfo(executables + QStringLiteral("/Maps")).isDir() && QFileInfo(shared).isDir();
    // Nobody works in a system-wide installation, not even somebody who could write there: its
    // files belong to whoever upgrades and removes it.
    if (!systemWide && QFileInfo(executables).isWritable()) {
        return ProgramFolder(host_files::toModel(executables));
    }
    const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                        QStringLiteral("/Nubivane");
    deliverContent(systemWide ? shared : executables, own);
    return ProgramFolder(host_files::toModel(own));
}

}  // namespace nubivane
