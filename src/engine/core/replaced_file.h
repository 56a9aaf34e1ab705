// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

namespace nubivane {

/// A file that is written piece by piece beside its target and takes its place when it is whole.
/// Until then the target stays as it was; without a `commit` nothing is left. Everything raises
/// `Error` (FileAccess) with the system's reason.
class ReplacedFile {
  public:
    /// Opens the neighbour of a path text.
    explicit ReplacedFile(const QString& path);

    void append(const QByteArray& bytes);
    /// Writes over what was written before.
    void overwrite(qint64 position, const QByteArray& bytes);
    /// Renames the neighbour over the target.
    void commit();

    /// For encoders that write by themselves, anywhere in the file. Whether they could shows at
    /// `commit`.
    QFileDevice& device() { return file_; }

  private:
    [[noreturn]] void fail();

    QSaveFile file_;
};

}  // namespace nubivane
