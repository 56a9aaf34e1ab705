// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/folder_lock.h"
#include "engine/project/recovery_state.h"
#include "engine/project/work_snapshot.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <utility>

namespace nubivane {

class SettingsStore;

/// What is open, kept in a folder of the user's own while an editor runs. The texts of each Frame
/// and each picture are a file of their own, which is never written again; the file "state",
/// replaced as a whole, names those that make up the project. So an edit costs what it changed,
/// however long the project, and whoever reads finds one state or the next and never a mix. The
/// folder is locked by its editor; one that nobody holds is what is left of an end that was not a
/// proper close.
class RecoveryCopy {
  public:
    /// A copy in a new folder below the user's own, which is made by the first write.
    explicit RecoveryCopy(QString recoveryFolder);
    ~RecoveryCopy();
    RecoveryCopy(const RecoveryCopy&) = delete;
    RecoveryCopy& operator=(const RecoveryCopy&) = delete;

    /// Raises `Error` (FileAccess); what was written before stands then.
    void write(const WorkSnapshot& snapshot);
    /// There is nothing unsaved any more. Raises nothing.
    void clear();

    /// Where copies lie. Raises `Error` for a user who has no home.
    static QString folderOfUser();

  private:
    /// By what a picture is known again.
    using PictureKey = std::pair<const void*, qint64>;
    struct PictureFile {
        Picture picture;  ///< keeps the identity by which it is known; none for pixels
        RecoveryPart part;
    };
    struct TextFile {
        std::shared_ptr<const FrameRecords> records;  ///< the same
        RecoveryPart part;
    };

    static PictureKey keyOf(const Picture& picture);
    void makeFolder();
    void forgetAll();
    RecoveryPart writePart(const char* kind, const QByteArray& bytes);
    RecoveryPart mapPart(const QString& mapFile);
    RecoveryPart picturePart(const Picture& picture, const QString& mapFile);
    RecoveryPart textPart(const std::shared_ptr<const FrameRecords>& records);
    void keepOnly(const RecoveryState& state);

    QString folder_;
    std::unique_ptr<FolderLock> lock_;
    QHash<PictureKey, PictureFile> pictures_;
    QHash<const void*, TextFile> texts_;
    QHash<QByteArray, RecoveryPart> textsByContent_;  ///< checksums, for Frames that only moved
    QByteArray mapChecksum_;
    RecoveryPart map_;
    int next_ = 1;
};

/// A copy that lies there.
struct RecoveryEntry {
    QString folder;  ///< host path
    QString project;
    std::optional<PairState> opened;
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
