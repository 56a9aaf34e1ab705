// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/recovery_copy.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/replaced_file.h"
#include "engine/core/user_folders.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <sys/stat.h>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QByteArray checksumOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256);
}

/// What an editor left that was killed before its first state stood, or while it took a copy away.
/// One that is just beginning has its time.
void removeUnfinished(const QString& recoveryFolder) {
    constexpr qint64 BeginningSeconds = 60;
    const QDir root(recoveryFolder);
    for (const QFileInfo& each : root.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString folder = each.filePath();
        if (hasRecoveryState(folder) ||
            each.lastModified().secsTo(QDateTime::currentDateTime()) < BeginningSeconds) {
            continue;
        }
        const FolderLock lock(folder, std::chrono::milliseconds(0));
        if (lock.held() && !hasRecoveryState(folder)) {
            removeRecoveryCopy(folder);
        }
    }
}

}  // namespace

RecoveryCopy::RecoveryCopy(QString recoveryFolder) : folder_(std::move(recoveryFolder)) {
    folder_ += u"/%1-%2"_s.arg(QDateTime::currentMSecsSinceEpoch())
                   .arg(qulonglong{QRandomGenerator::global()->generate()}, 8, 16, QChar(u'0'));
}

RecoveryCopy::~RecoveryCopy() = default;

QString RecoveryCopy::folderOfUser() {
    return user_folders::state() + "/Nubivane/recovery"_L1;
}

void RecoveryCopy::makeFolder() {
    if (lock_ && QDir(folder_).exists()) {
        return;
    }
    forgetAll();
    if (!QDir().mkpath(folder_)) {
        throw Error(error_number::FileAccess, u"recovery"_s, u"Cannot create the folder."_s,
                    folder_);
    }
    ::chmod(QFile::encodeName(folder_).constData(), S_IRWXU);
    lock_ = std::make_unique<FolderLock>(folder_);
    removeUnfinished(QFileInfo(folder_).path());
}

void RecoveryCopy::forgetAll() {
    pictures_.clear();
    texts_.clear();
    textsByContent_.clear();
    map_ = {};
}

void RecoveryCopy::write(const WorkSnapshot& snapshot) {
    makeFolder();
    RecoveryState state{.project = snapshot.project,
                        .opened = snapshot.opened,
                        .time = snapshot.time,
                        .head = snapshot.head,
                        .map = mapPart(snapshot.mapFile),
                        .frames = {}};
    for (const WorkSnapshot::Frame& frame : snapshot.frames) {
        state.frames.push_back(
            {textPart(frame.records),
             frame.picture.isEmpty() ? state.map : picturePart(frame.picture, snapshot.mapFile)});
    }
    writeRecoveryState(folder_, state);
    keepOnly(state);
}

void RecoveryCopy::clear() {
    if (lock_) {
        removeRecoveryCopy(folder_);
        lock_.reset();
        forgetAll();
    }
}

RecoveryPart RecoveryCopy::writePart(const char* kind, const QByteArray& bytes) {
    const QString name = u"%1-%2"_s.arg(QLatin1String(kind)).arg(next_++);
    ReplacedFile file(folder_ + u'/' + name, Durability::Flushed, {.secret = true});
    file.append(bytes);
    file.putInPlace();
    return {name, bytes.size()};
}

RecoveryPart RecoveryCopy::mapPart(const QString& mapFile) {
    const QByteArray bytes = host_files::read(mapFile, MaxPictureBytes);
    const QByteArray checksum = checksumOf(bytes);
    if (map_.name.isEmpty() || checksum != mapChecksum_) {
        map_ = writePart("picture", bytes);
        mapChecksum_ = checksum;
    }
    return map_;
}

/// Equal for pictures of which nothing has changed between two looks.
RecoveryCopy::PictureKey RecoveryCopy::keyOf(const Picture& picture) {
    // One that was drawn on is a new object at each look, but of the very same pixels.
    return picture.originalBytes().isEmpty() ? PictureKey{nullptr, picture.image().cacheKey()}
                                             : PictureKey{picture.identity(), 0};
}

RecoveryPart RecoveryCopy::picturePart(const Picture& picture, const QString& mapFile) {
    const PictureKey key = keyOf(picture);
    const auto known = pictures_.constFind(key);
    if (known != pictures_.cend()) {
        return known->part;
    }
    // Pixels are known by a number that is never given again. To hold them would have the next
    // stroke copy the whole picture.
    const PictureFile file{
        picture.originalBytes().isEmpty() ? Picture() : picture,
        writePart("picture", picture.encoded(formatOfExtension(getExtension(mapFile))))};
    pictures_.insert(key, file);
    return file.part;
}

RecoveryPart RecoveryCopy::textPart(const std::shared_ptr<const FrameRecords>& records) {
    const auto known = texts_.constFind(records.get());
    if (known != texts_.cend()) {
        return known->part;
    }
    const QByteArray text = frameText(*records);
    const QByteArray checksum = checksumOf(text);
    auto same = textsByContent_.constFind(checksum);
    if (same == textsByContent_.cend()) {
        same = textsByContent_.insert(checksum, writePart("text", text));
    }
    texts_.insert(records.get(), {records, *same});
    return *same;
}

/// Takes away the files that the state does not name, and what is known of them.
void RecoveryCopy::keepOnly(const RecoveryState& state) {
    QSet<QString> used{state.map.name};
    for (const RecoveryState::Frame& frame : state.frames) {
        used << frame.text.name << frame.picture.name;
    }
    const auto isUnused = [&used](const auto& one) { return !used.contains(one->part.name); };
    pictures_.removeIf(
        [&](const QHash<PictureKey, PictureFile>::iterator& one) { return isUnused(one); });
    texts_.removeIf(
        [&](const QHash<const void*, TextFile>::iterator& one) { return isUnused(one); });
    textsByContent_.removeIf([&](const QHash<QByteArray, RecoveryPart>::iterator& one) {
        return !used.contains(one->name);
    });
    QDir folder(folder_);
    for (const QString& name : folder.entryList({u"text-*"_s, u"picture-*"_s}, QDir::Files)) {
        if (!used.contains(name)) {
            folder.remove(name);
        }
    }
}

}  // namespace nubivane
