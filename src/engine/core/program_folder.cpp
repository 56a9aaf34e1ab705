// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/program_folder.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/shipped_content.h"
#include "engine/core/user_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace nubivane {

using namespace Qt::StringLiterals;

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
    const QString own = user_folders::data() + QStringLiteral("/Nubivane");
    // Told here: later the first file that cannot be written would be taken for a damaged one.
    if (!QDir().mkpath(own) || !QFileInfo(own).isWritable()) {
        throw Error(error_number::FileAccess, u"program folder"_s,
                    u"There is no folder that the program may write: neither its own nor yours."_s,
                    executables + u", "_s + own);
    }
    deliverContent(systemWide ? shared : executables, own);
    return ProgramFolder(host_files::toModel(own));
}

}  // namespace nubivane
