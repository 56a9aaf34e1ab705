// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/recovery_copy.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/replaced_file.h"
#include "engine/core/user_folders.h"
#include "engine/model/workspace.h"
#include "engine/project/project_writer.h"
#include "engine/project/recovery_state.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <sys/stat.h>

#include <numeric>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// A length that no picture has, and that no text of a person has either.
qint64 lengthNobodyHas() {
    constexpr qint64 Large = qint64{1} << 60;
    return Large + static_cast<qint64>(QRandomGenerator::global()->generate64() >> 8);
}

/// The document with the blocks' lengths in their places.
QByteArray withLengths(const RecoverySnapshot& snapshot, const std::vector<qint64>& lengths) {
    QByteArray document = snapshot.document;
    qsizetype from = 0;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        const QByteArray placeholder =
            "Size=\"" + QByteArray::number(snapshot.firstLength + static_cast<qint64>(i)) + '"';
        const qsizetype at = document.indexOf(placeholder, from);
        const QByteArray length = "Size=\"" + QByteArray::number(lengths[i]) + '"';
        document.replace(at, placeholder.size(), length);
        from = at + length.size();
    }
    return document;
}

/// The canvas without a figure that is still being drawn, which a save would wipe as well.
Picture persistentPicture(const MapSurface& surface) {
    return surface.scratchArea().isEmpty() ? surface.image() : Picture(surface.pixels());
}

/// Equal for pictures of which nothing has changed between two looks.
PictureKey keyOf(const Picture& picture) {
    // One that was drawn on is a new object at each look, but of the very same pixels.
    return picture.originalBytes().isEmpty() && !picture.isEmpty()
               ? PictureKey{nullptr, picture.image().cacheKey()}
               : PictureKey{picture.identity(), 0};
}

}  // namespace

RecoverySnapshot takeSnapshot(const Workspace& workspace) {
    RecoverySnapshot snapshot;
    snapshot.project = workspace.Status.CurrentProject;
    snapshot.mapFile = workspace.Status.CurrentMap;
    snapshot.time = QDateTime::currentDateTime();
    snapshot.firstLength = lengthNobodyHas();
    const qint32 frames = workspace.Frames().Count();
    std::vector<qint64> lengths(static_cast<std::size_t>(frames) + 1);
    std::iota(lengths.begin(), lengths.end(), snapshot.firstLength);
    ProjectWriter writer(workspace, lengths);
    for (qint32 i = 1; i <= frames; ++i) {
        writer.writeFrame(i);
        const bool onCanvas = i == workspace.Status.CurrentFrame;
        const Picture canvas = onCanvas ? persistentPicture(workspace.pctMap) : Picture();
        const bool hasPanel = i <= workspace.pctPanel.Count();
        snapshot.pictures.push_back(!canvas.isEmpty() ? canvas
                                    : hasPanel        ? workspace.pctPanel.picture(i)
                                                      : Picture());
    }
    snapshot.document = writer.finish();
    return snapshot;
}

bool sameWork(const RecoverySnapshot& one, const RecoverySnapshot& other) {
    if (one.project != other.project || one.mapFile != other.mapFile ||
        one.pictures.size() != other.pictures.size()) {
        return false;
    }
    for (std::size_t i = 0; i < one.pictures.size(); ++i) {
        if (keyOf(one.pictures[i]) != keyOf(other.pictures[i])) {
            return false;
        }
    }
    const std::vector<qint64> none(one.pictures.size() + 1, 0);
    return withLengths(one, none) == withLengths(other, none);
}

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
    if (!QDir().mkpath(folder_)) {
        throw Error(error_number::FileAccess, u"recovery"_s, u"Cannot create the folder."_s,
                    folder_);
    }
    ::chmod(QFile::encodeName(folder_).constData(), S_IRWXU);
    lock_ = std::make_unique<FolderLock>(folder_);
    blocks_.clear();
    mapBlock_ = {};
}

void RecoveryCopy::write(const RecoverySnapshot& snapshot) {
    makeFolder();
    const QByteArray map = host_files::read(snapshot.mapFile, MaxPictureBytes);
    if (mapBlock_.name.isEmpty() || map != map_) {
        mapBlock_ = writeBlock(map);
        map_ = map;
    }
    QStringList names{mapBlock_.name};
    std::vector<qint64> lengths{mapBlock_.size};
    for (const Picture& picture : snapshot.pictures) {
        const Block block = picture.isEmpty() ? mapBlock_ : blockOf(picture, snapshot.mapFile);
        names += block.name;
        lengths.push_back(block.size);
    }
    writeRecoveryState(folder_,
                       {snapshot.project, snapshot.time, names, withLengths(snapshot, lengths)});
    removeBlocksBut(names);
}

void RecoveryCopy::clear() {
    if (lock_) {
        QDir(folder_).removeRecursively();
        lock_.reset();
    }
}

RecoveryCopy::Block RecoveryCopy::writeBlock(const QByteArray& bytes) {
    const QString name = u"block-%1"_s.arg(next_++);
    ReplacedFile file(folder_ + u'/' + name, Durability::Flushed, {.secret = true});
    file.append(bytes);
    file.putInPlace();
    return {{}, name, bytes.size()};
}

RecoveryCopy::Block RecoveryCopy::blockOf(const Picture& picture, const QString& mapFile) {
    const auto known = blocks_.constFind(keyOf(picture));
    if (known != blocks_.cend()) {
        return *known;
    }
    Block block = writeBlock(picture.encoded(formatOfExtension(getExtension(mapFile))));
    block.picture = picture;
    blocks_.insert(keyOf(picture), block);
    return block;
}

void RecoveryCopy::removeBlocksBut(const QStringList& names) {
    blocks_.removeIf([&names](const QHash<PictureKey, Block>::iterator& one) {
        return !names.contains(one->name);
    });
    QDir folder(folder_);
    for (const QString& name : folder.entryList({u"block-*"_s}, QDir::Files)) {
        if (!names.contains(name)) {
            folder.remove(name);
        }
    }
}

}  // namespace nubivane
