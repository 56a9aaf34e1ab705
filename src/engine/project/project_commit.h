// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/replaced_file.h"
#include "engine/history/version_store.h"
#include "engine/project/interrupted_save.h"
#include "engine/project/project_pair.h"

#include <QString>

#include <optional>

namespace nubivane {

/// Writing both files of a project so that whoever opens it finds the old project or the new one,
/// whatever happens meanwhile.
///
/// Both files are written in full beside their targets and flushed. Renaming the data file is the
/// moment at which the new project counts: its document, which then still waits beside its target,
/// says by its name that it belongs to that data file, and is put in place by the next opening if
/// this program cannot (interrupted_save.h). Where only one of the two files changes, one rename is
/// the whole save.
///
/// Several programs may save at once. Each puts its files in place under the folder's lock, and
/// finds out there whether another one was faster: its own result is then lost, unless it is the
/// very same, and it fails.
///
/// Names are the host's; links are followed and permissions kept. Everything raises `Error`
/// (FileAccess); the old files are then as they were, unless the failure came after that moment.
class ProjectCommit {
  public:
    struct Rules {
        /// How the pair stood when it was read by whoever saves now; without it, what is there at
        /// this moment may be replaced.
        std::optional<PairState> opened{};
        bool keepsTail = true;  ///< a longer old data file is not truncated
        /// Where the pair is kept as it was before it is replaced. That it could not be is no
        /// failure of the save.
        const VersionStore* versions = nullptr;
    };

    ProjectCommit(const QString& hostProjectFile, const QString& hostDataFile, const Rules& rules);

    /// Appends to the new data file.
    void appendData(const QByteArray& bytes);

    /// Ends the data file with the tail of a longer old one, writes the project file and puts both
    /// in place. Returns how the new pair stands.
    PairState commit(const QByteArray& xml);

  private:
    struct Change {
        bool document = true;
        bool data = true;
    };

    void requireUnchanged() const;
    std::optional<KeptVersion> keepVersion(const Change& change) const;
    void putInPlace(const Change& change, const QByteArray& xml, const Fingerprint& document,
                    const Fingerprint& data);
    void copyOldTail();
    Change findChange(const Fingerprint& document, const Fingerprint& data) const;
    void putBothInPlace(const QByteArray& xml, const Fingerprint& document,
                        const Fingerprint& data);
    void putDocumentInPlace(const QByteArray& xml);

    QString project_;
    ReplacedFile data_;
    Fingerprinter dataSum_;
    PairState before_;
    Rules rules_;
};

}  // namespace nubivane
