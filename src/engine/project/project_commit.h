// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

namespace nubivane {

/// Writing both files of a project so that whoever opens it finds the old project or the new one,
/// whatever happens meanwhile.
///
/// Both files are written in full beside their targets, under the targets' names and ".saving", and
/// flushed. Renaming the data file is the moment at which the new project counts: a project file
/// that still lies beside its target while the data file does not is put in place by the next
/// opening (`completeInterruptedSave`). Names are the host's; links are followed and permissions
/// kept. Raises `Error` (FileAccess); the old files are then as they were, unless the failure came
/// after that moment.
class ProjectCommit {
  public:
    ProjectCommit(const QString& hostProjectFile, const QString& hostDataFile);
    /// Takes away what was not committed.
    ~ProjectCommit();
    ProjectCommit(const ProjectCommit&) = delete;
    ProjectCommit& operator=(const ProjectCommit&) = delete;

    /// Appends to the new data file.
    void appendData(const QByteArray& bytes);

    /// Ends the data file with the tail of a longer old one, writes the project file and puts both
    /// in place.
    void commit(const QByteArray& xml);

  private:
    void copyOldTail();

    QString project_;
    QString data_;
    QFile newProject_;
    QFile newData_;
    bool dataInPlace_ = false;  ///< from here on the new project counts
};

/// Puts the project file of a save in place that was interrupted between its two renames. Returns
/// the host file to read: the project file itself, or where nothing may be renamed there, its
/// newer neighbour.
QString completeInterruptedSave(const QString& hostProjectFile, const QString& hostDataFile);

}  // namespace nubivane
