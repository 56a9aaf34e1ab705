// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_commit.h"

#include "engine/core/durable_file.h"
#include "engine/core/error.h"
#include "engine/core/folder_lock.h"
#include "engine/project/project_document.h"

#include <QFileInfo>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuseToSave(const QString& path, const QString& reason) {
    failToWrite(u"saveProject"_s, path, reason);
}

/// Found out before anything is written: after the first rename there is no way back.
const QString& replaceable(const QString& path) {
    requireReplaceable(path);
    return path;
}

QString folderOf(const QString& path) {
    return QFileInfo(path).path();
}

}  // namespace

ProjectCommit::ProjectCommit(const QString& hostProjectFile, const QString& hostDataFile,
                             const Rules& rules)
    : project_(behindLinks(replaceable(hostProjectFile))),
      data_(hostDataFile, Durability::Flushed),
      rules_(rules) {
    const PairState found = pairStateOf(project_, data_.target());
    if (completeInterruptedSave(project_, data_.target()) != project_) {
        refuseToSave(project_, u"an interrupted save cannot be completed"_s);
    }
    before_ = pairStateOf(project_, data_.target());
    // Completing a save is no change by somebody else.
    if (rules.opened && !(*rules.opened == found)) {
        before_ = *rules.opened;
    }
}

void ProjectCommit::appendData(const QByteArray& bytes) {
    data_.append(bytes);
    dataSum_.add(bytes);
}

PairState ProjectCommit::commit(const QByteArray& xml) {
    // While nobody waits: what is left to be flushed under the lock is little then.
    if (!durable_file::flush(data_.device())) {
        refuseToSave(data_.target(), durable_file::reasonOf(data_.device()));
    }
    const FolderLock lock(folderOf(project_));
    if (lock.state() == FolderLock::State::Busy) {
        refuseToSave(project_, u"another program has been writing in its folder for 30 seconds"_s);
    }
    if (rules_.keepsTail) {
        copyOldTail();
    }
    const Fingerprint document = fingerprintOf(xml);
    const Fingerprint data = dataSum_.result();
    const Change change = findChange(document, data);
    if (change.document || change.data) {
        requireUnchanged();
        const std::optional<KeptVersion> kept = keepVersion(change);
        try {
            putInPlace(change, xml, document, data);
        } catch (const Error&) {
            if (kept && pairStateOf(project_, data_.target()) == before_) {
                VersionStore::forget(*kept);
            }
            throw;
        }
    }
    durable_file::flushFolder(folderOf(project_));
    removeLeftoversOf(data_.target());
    removeLeftoversOf(project_);
    return pairStateOf(project_, data_.target());
}

/// A save onto what another program has written meanwhile would be the end of that without a word.
void ProjectCommit::requireUnchanged() const {
    // Where nothing lies any more there is nothing to lose.
    if (QFile::exists(project_) && !(pairStateOf(project_, data_.target()) == before_)) {
        refuseToSave(project_,
                     u"another program has saved it meanwhile, and what it saved stays"_s);
    }
}

/// What is new in the pair. A data file that is to make the new document obsolete is never kept.
ProjectCommit::Change ProjectCommit::findChange(const Fingerprint& document,
                                                const Fingerprint& data) const {
    Change change;
    const FileState oldData = fileStateOf(data_.target());
    if (oldData.size == data.size && !isObsolete(document, oldData)) {
        change.data = fingerprintOf(data_.target(), MaxDataBytes) != data;
    }
    if (fileStateOf(project_).size == document.size) {
        change.document = fingerprintOf(project_, MaxDocumentBytes) != document;
    }
    return change;
}

std::optional<KeptVersion> ProjectCommit::keepVersion(const Change& change) const {
    if (!rules_.versions) {
        return std::nullopt;
    }
    try {
        return rules_.versions->keep(project_, data_.target(), VersionCause::Saved,
                                     {.document = change.document, .data = change.data});
    } catch (const Error&) {
        return std::nullopt;
    }
}

void ProjectCommit::putInPlace(const Change& change, const QByteArray& xml,
                               const Fingerprint& document, const Fingerprint& data) {
    if (change.document && change.data) {
        putBothInPlace(xml, document, data);
    } else if (change.data) {
        data_.putInPlace();
    } else {
        putDocumentInPlace(xml);
    }
}

void ProjectCommit::putBothInPlace(const QByteArray& xml, const Fingerprint& document,
                                   const Fingerprint& data) {
    const std::optional<Fingerprint> old = fingerprintOf(project_, MaxDocumentBytes);
    // Written whole first, since writing moves the time stamp.
    if (old && data_.device().flush()) {
        markObsolete(data_.device(), *old);
    }
    data_.finish();
    ReplacedFile project(project_, Durability::Flushed, {.note = waitingNote(document, data, old)});
    project.append(xml);
    project.finish();

    data_.putInPlace();
    project.leave();  // from here on the new project counts
    durable_file::flushFolder(folderOf(data_.target()));
    project.putInPlace();
}

void ProjectCommit::putDocumentInPlace(const QByteArray& xml) {
    ReplacedFile project(project_, Durability::Flushed);
    project.append(xml);
    project.putInPlace();
}

/// A save does not truncate the data file: what an older, longer one holds behind the new end
/// stays. One that is longer than any project is not ours to copy.
void ProjectCommit::copyOldTail() {
    constexpr qint64 Piece = 1 << 20;
    const qint64 newSize = dataSum_.result().size;
    QFile old;
    QString reason;
    if (!openOrdinary(old, data_.target(), reason) || old.size() <= newSize ||
        old.size() > MaxDataBytes) {
        return;
    }
    old.seek(newSize);
    while (!old.atEnd()) {
        const QByteArray part = old.read(Piece);
        if (part.isEmpty()) {
            refuseToSave(data_.target(), old.errorString());
        }
        appendData(part);
    }
}

}  // namespace nubivane
