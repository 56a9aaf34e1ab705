// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/file_state.h"

#include <QByteArray>
#include <QFile>
#include <QString>

namespace nubivane {

/// Whether a file must have reached the disk before it counts.
enum class Durability {
    Flushed,  ///< what is lost cannot be made again
    Quick     ///< one of many that can; the system brings it onto the disk in its own time
};

/// What is special about a file that is replaced.
struct Replacing {
    LinkUse links = LinkUse::Followed;  ///< followed, a link stays and its target is replaced
    bool secret = false;                ///< nobody but its owner may read it, whoever could before
    QByteArray note{};                  ///< added to the temporary's name: letters, digits, "-"
};

/// The only way in which the program writes a file: piece by piece in a neighbour of its target,
/// which takes the target's place when it is whole. Until then the target stays as it was, and
/// without a commit nothing is left. Permissions of an old file are kept, and its owner where that
/// is allowed.
///
/// Everything raises `Error` (FileAccess) with the system's reason; so does a target that is no
/// ordinary file, or is one protected from writing.
class [[nodiscard]] ReplacedFile {
  public:
    ReplacedFile(const QString& hostPath, Durability durability, const Replacing& how = {});
    ~ReplacedFile();
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

    void append(const QByteArray& bytes);
    /// For encoders that write by themselves, anywhere in the file. Whether they could shows when
    /// it is put in place.
    QFileDevice& device() { return file_; }
    /// Host path of the neighbour, for libraries that want to open it themselves.
    QString temporaryPath() const { return folder_ + u'/' + temporary_; }
    /// What is replaced: the path that was given, or what its link leads to.
    const QString& target() const { return target_; }

    /// Brings what was written into the file, and onto the disk where that is asked for.
    void finish();
    /// Finishes, and renames the neighbour over its target.
    void putInPlace();
    /// The same, and takes away what runs that died have left of this target.
    void commit();
    /// The neighbour stays where it is, for whoever comes later.
    void leave() { kept_ = true; }

  private:
    [[noreturn]] void fail(const QString& reason) const;
    void inherit();

    Durability durability_;
    Replacing how_;
    QString target_;
    QString folder_;
    QString temporary_;
    QFile file_;
    bool finished_ = false;
    bool kept_ = false;  ///< renamed, or left on purpose
};

/// What a path leads to when its last part is a link, that of a link to nothing included; else the
/// path itself. Raises `Error` (FileAccess) for links that lead in a circle.
QString behindLinks(const QString& hostPath);

/// Takes away what runs that died have left of a target (links followed), and nothing else.
void removeLeftoversOf(const QString& target);

/// Raises what a `ReplacedFile` would, for those who find it out before long work.
void requireReplaceable(const QString& hostPath, LinkUse links = LinkUse::Followed);

}  // namespace nubivane
