// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace nubivane {

/// Where a command's picture goes: into a file, or with "-" to the standard output.
class ExportTarget {
  public:
    /// `file` is the name that the person gave. `ending` is that of the format which is written to
    /// the standard output. Raises `Error` (FileAccess) when there is no place to put it meanwhile.
    ExportTarget(const QString& file, const QString& ending);

    /// The file to be written, as a path text.
    QString path() const;
    /// When it is written: prints its name, or the file itself. Returns the exit code.
    int deliver() const;

    static bool isStandardOutput(const QString& file);

  private:
    QString file_;  ///< host path
    /// What goes to the standard output comes to be here: an export that fails prints nothing.
    std::unique_ptr<QTemporaryDir> scratch_;
};

/// Refuses a name whose ending promises something else than one of `endings`, such as a moving GIF
/// named ".png". One that stands for no format that people know is let pass. Raises `Error`
/// (InvalidArgument).
void checkEnding(const QString& file, const QStringList& endings);

/// Refuses "-" for formats whose writers go back to what they have written. Raises `Error`
/// (InvalidArgument).
void checkSeekable(const QString& file, const QString& format);

}  // namespace nubivane
