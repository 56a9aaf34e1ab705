// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// The folder in which everything that the program owns lies: Maps, Symbols, Web, Help, Media and
/// the pages it makes. Paths are texts with backslashes, without one at their end.
class ProgramFolder {
  public:
    explicit ProgramFolder(QString path) : path_(std::move(path)) {}

    /// The folder of the executable. In its place comes the user's own data folder, filled from the
    /// shipped content, where that folder cannot be written or where the programs are installed
    /// system-wide: executables in one folder, content in "../share/nubivane" beside it. Raises
    /// `Error` (FileAccess) where neither can be written.
    static ProgramFolder ofThisProgram();

    const QString& path() const { return path_; }
    QString maps() const { return path_ + QStringLiteral("\\Maps"); }
    QString symbols() const { return path_ + QStringLiteral("\\Symbols"); }
    QString web() const { return path_ + QStringLiteral("\\Web"); }

    /// The path of an entry directly in the program folder.
    QString entry(const QString& name) const { return path_ + u'\\' + name; }

  private:
    QString path_;
};

}  // namespace nubivane
