// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>

namespace nubivane {

/// The words that somebody has added to the dictionaries: a UTF-8 text of a line each, in a file of
/// the user's own. Other editors that run may add to it too.
class OwnWords {
  public:
    /// Longest file that is read, bytes.
    static constexpr qint64 MaxBytes = qint64{1024} * 1024;

    /// Reads the file (host path), which need not exist. One that cannot be read is empty and stays
    /// as it is.
    explicit OwnWords(const QString& hostFile);

    /// Also for one with a capital at the beginning of a sentence.
    bool contains(const QString& word) const;
    /// Adds a word for good. Raises `Error` (FileAccess) when it cannot be written.
    void add(const QString& word);

  private:
    /// False with the reason for something that is not our file.
    bool read(QString& reason);

    QString hostFile_;
    QStringList lines_;  ///< in the order in which they were added
    QSet<QString> words_;
};

}  // namespace nubivane
