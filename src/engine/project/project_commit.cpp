// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_commit.h"

#include "engine/core/durable_file.h"
#include "engine/core/error.h"

#include <QFileInfo>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// The file that a path means when it is a link.
QString target(const QString& path) {
    const QFileInfo info(path);
    return info.exists() ? info.canonicalFilePath() : path;
}

QString beside(const QString& path) {
    return path + QStringLiteral(".saving");
}

/// Closing first: a file that cannot be flushed is not removed while it is open.
void discard(QFile& file) {
    file.close();
    QFile::remove(file.fileName());
}

/// Found out before anything is renamed: afterwards there would be no way back.
void requireReplaceable(const QString& path) {
    const QFileInfo info(path);
    if (info.exists() && !(info.isFile() && info.isWritable())) {
        throw Error(
            error_number::FileAccess, u"saveProject"_s, u"Cannot write the file."_s,
            path + (info.isFile() ? u": it is protected from writing"_s : u": it is not a file"_s));
    }
}

void keepPermissions(QFile& file, const QString& old) {
    if (QFileInfo::exists(old)) {
        file.setPermissions(QFile::permissions(old));
    }
}

}  // namespace

ProjectCommit::ProjectCommit(const QString& hostProjectFile, const QString& hostDataFile)
    : project_(target(hostProjectFile)),
      data_(target(hostDataFile)),
      newProject_(beside(project_)),
      newData_(beside(data_)) {
    // A new data file beside would make an older save that waits to be completed look unfinished.
    if (completeInterruptedSave(project_, data_) != project_) {
        throw Error(error_number::FileAccess, u"saveProject"_s, u"Cannot write the file."_s,
                    project_ + u": an interrupted save cannot be completed"_s);
    }
    requireReplaceable(project_);
    requireReplaceable(data_);
    durable_file::create(newData_);
    keepPermissions(newData_, data_);
}

ProjectCommit::~ProjectCommit() {
    if (!dataInPlace_) {
        // In this order: a project file that waits alone would count as a save to be completed.
        discard(newProject_);
        discard(newData_);
    }
}

void ProjectCommit::appendData(const QByteArray& bytes) {
    durable_file::append(newData_, bytes);
}

void ProjectCommit::commit(const QByteArray& xml) {
    copyOldTail();
    durable_file::finish(newData_);

    durable_file::create(newProject_);
    keepPermissions(newProject_, project_);
    durable_file::append(newProject_, xml);
    durable_file::finish(newProject_);

    durable_file::renameOver(newData_.fileName(), data_);
    dataInPlace_ = true;
    try {
        durable_file::renameOver(newProject_.fileName(), project_);
    } catch (const Error&) {
        // Another process that opened the project in between has done this step already.
        if (QFileInfo::exists(newProject_.fileName())) {
            throw;
        }
    }
}

/// A save does not truncate the data file: what an older, longer one holds behind the new end
/// stays.
void ProjectCommit::copyOldTail() {
    QFile old(data_);
    if (!old.open(QIODevice::ReadOnly) || old.size() <= newData_.pos()) {
        return;
    }
    old.seek(newData_.pos());
    while (!old.atEnd()) {
        const QByteArray part = old.read(1 << 20);
        if (part.isEmpty()) {
            throw Error(error_number::FileAccess, u"saveProject"_s, u"Cannot read the file."_s,
                        data_ + u": "_s + old.errorString());
        }
        durable_file::append(newData_, part);
    }
}

QString completeInterruptedSave(const QString& hostProjectFile, const QString& hostDataFile) {
    const QString project = target(hostProjectFile);
    const QString waiting = beside(project);
    if (!QFileInfo(waiting).isFile() || QFileInfo::exists(beside(target(hostDataFile)))) {
        return project;
    }
    try {
        durable_file::renameOver(waiting, project);
    } catch (const Error&) {
        return QFileInfo::exists(waiting) ? waiting : project;
    }
    return project;
}

}  // namespace nubivane
