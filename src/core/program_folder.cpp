#include "core/program_folder.h"

#include "core/host_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>

namespace nubivane {

namespace {

/// Copies what `target` lacks of the tree `source`; files that are there stay as the user has them.
void fill(const QString& source, const QString& target) {
    QDir().mkpath(target);
    QDirIterator entries(source, QDir::AllEntries | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString from = entries.next();
        const QString to = target + u'/' + QDir(source).relativeFilePath(from);
        if (entries.fileInfo().isDir()) {
            QDir().mkpath(to);
        } else if (!QFileInfo::exists(to) && QFile::copy(from, to)) {
            QFile::setPermissions(to, QFile::permissions(to) | QFileDevice::WriteOwner);
        }
    }
}

}  // namespace

ProgramFolder ProgramFolder::ofThisProgram() {
    const QString executables = QCoreApplication::applicationDirPath();
    if (QFileInfo(executables).isWritable()) {
        return ProgramFolder(host_files::toModel(executables));
    }
    const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                        QStringLiteral("/Nubivane");
    if (!QFileInfo::exists(own)) {
        for (const char* name : {"Maps", "Symbols", "Web", "Help", "Media"}) {
            fill(executables + u'/' + QLatin1String(name), own + u'/' + QLatin1String(name));
        }
    }
    return ProgramFolder(host_files::toModel(own));
}

}  // namespace nubivane
