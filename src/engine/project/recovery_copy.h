// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/folder_lock.h"
#include "engine/picture/picture.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace nubivane {

class SettingsStore;
class Workspace;

/// Everything that is open at one moment, cheap to take and safe to use on another thread.
struct RecoverySnapshot {
    QString project;  ///< path text; empty for a project that was never saved
    QString mapFile;  ///< path text
    QDateTime time;
    /// The document, with a number of its own in place of each block's length, since the lengths
    /// show only when the pictures are encoded.
    QByteArray document;
    qint64 firstLength = 0;  ///< stands for the map's; those of the Frames follow
    std::vector<Picture> pictures;
};
RecoverySnapshot takeSnapshot(const Workspace& workspace);
/// By what a picture is known again.
using PictureKey = std::pair<const void*, qint64>;

/// True where both would be saved as the same project.
bool sameWork(const RecoverySnapshot& one, const RecoverySnapshot& other);

/// What is open, kept in a folder of the user's own while an editor runs: the blocks of the data
/// file one by one, so that a picture that has not changed is not written again, and a file
/// "state", replaced as a whole, which names them and holds the document. The folder is locked by
/// its editor; one that nobody holds is what is left of an end that was not a proper close.
class RecoveryCopy {
  public:
    /// A copy in a new folder below the user's own, which is made by the first write.
    explicit RecoveryCopy(QString recoveryFolder);
    ~RecoveryCopy();
    RecoveryCopy(const RecoveryCopy&) = delete;
    RecoveryCopy& operator=(const RecoveryCopy&) = delete;

    /// Raises `Error` (FileAccess); what was written before stands then.
    void write(const RecoverySnapshot& snapshot);
    /// There is nothing unsaved any more. Raises nothing.
    void clear();

    /// Where copies lie. Raises `Error` for a user who has no home.
    static QString folderOfUser();

  private:
    struct Block {
        Picture picture;  ///< keeps the identity by which it is known
        QString name;
        qint64 size = 0;
    };

    void makeFolder();
    Block writeBlock(const QByteArray& bytes);
    Block blockOf(const Picture& picture, const QString& mapFile);
    void removeBlocksBut(const QStringList& names);

    QString folder_;
    std::unique_ptr<FolderLock> lock_;
    QHash<PictureKey, Block> blocks_;
    QByteArray map_;
    Block mapBlock_;
    int next_ = 1;
};

/// A copy that lies there.
struct RecoveryEntry {
    QString folder;  ///< host path
    QString project;
    QDateTime time;
    bool isOpen = false;  ///< its editor lives
};

/// All copies, the newest first. What is of a later form or damaged is left aside and told in
/// `faults`.
QList<RecoveryEntry> recoveryEntries(const QString& recoveryFolder, QStringList& faults);

/// Writes a copy as a project of its own (path text). Raises `Error` (FileAccess).
void writeRecovered(const RecoveryEntry& entry, const QString& target,
                    const SettingsStore& settings);

/// Takes a copy away, unless its editor lives. Raises nothing.
void discardRecovered(const RecoveryEntry& entry);

}  // namespace nubivane
