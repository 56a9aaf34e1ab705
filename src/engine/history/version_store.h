// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace nubivane {

class ReplacedFile;
class SettingsStore;

/// Why a state of a project was kept.
enum class VersionCause { Saved, ClosedWithoutSaving, BeforeOpening };

/// The words in which people and programs are told.
QString causeText(VersionCause cause);

/// How much is kept.
struct VersionLimits {
    int last = 20;  ///< versions of each project, however old
    int days = 30;  ///< beyond these, the last of each day that is not longer ago
    qint64 bytes = qint64{500} * 1024 * 1024;  ///< of all projects
};

/// A pair of files as it once was; host paths.
struct KeptVersion {
    QDateTime time;
    VersionCause cause = VersionCause::Saved;
    QString document;
    QString data;
};

/// Earlier states of projects, in a folder of the user's own: below "versions" a folder for each
/// project, named after its path, and in it the pairs, named after the moment at which they were
/// kept. A file that is about to be replaced is linked, which costs nothing; one that stays where
/// it is is shared with the version before or copied, so that nobody who writes into it changes
/// what was kept.
class VersionStore {
  public:
    VersionStore(QString hostFolder, const VersionLimits& limits);

    /// The store of the current user. Raises `Error` for one who has no home.
    static VersionStore ofUser(const VersionLimits& limits);
    /// The same with the limits of the settings; nothing where these want no versions.
    static std::optional<VersionStore> ofUser(const SettingsStore& settings);

    /// Which of the two files will be replaced in a moment.
    struct Replaced {
        bool document = true;
        bool data = true;
    };

    /// Keeps a pair as it lies there (links followed). A project of which one file is missing is
    /// not kept, nor is one beyond all limits. Raises `Error` (FileAccess).
    std::optional<KeptVersion> keep(const QString& projectFile, const QString& dataFile,
                                    VersionCause cause, Replaced replaced) const;
    /// Keeps a pair that stands nowhere yet: `write` is given what to append the data file's bytes
    /// to, and returns the document. An empty project file is that of projects without a name.
    /// Raises what `write` raises and `Error` (FileAccess); nothing is kept then.
    void add(const QString& projectFile, VersionCause cause,
             const std::function<QByteArray(ReplacedFile& data)>& write) const;
    /// Takes one away again.
    static void forget(const KeptVersion& version);

    /// What is kept of a project, the newest first, without what lies there now.
    QList<KeptVersion> versionsOf(const QString& projectFile, const QString& dataFile) const;

    /// Takes away what the limits do not allow.
    void prune() const;

  private:
    QString folderOf(const QString& projectFile) const;
    KeptVersion next(const QString& projectFile, VersionCause cause) const;

    QString folder_;
    VersionLimits limits_;
};

/// How many Frames and sprites a project's document tells of.
struct DocumentCount {
    int frames = 0;
    int sprites = 0;
};
/// Counts without building anything; a damaged document counts as far as it can be read.
DocumentCount countDocument(const QString& hostFile);

}  // namespace nubivane
