// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/recovery_state.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int Form = 1;
constexpr qint64 MaxStateBytes = qint64{16} * 1024 * 1024;

QString fileIn(const QString& folder) {
    return folder + "/state"_L1;
}

[[noreturn]] void refuse(const QString& folder, const QString& reason) {
    throw Error(error_number::FileAccess, u"recovery"_s,
                u"A recovery copy cannot be read and is left as it is."_s,
                folder + u": "_s + reason);
}

[[noreturn]] void refuseDamaged(const QString& folder) {
    refuse(folder, u"it is damaged"_s);
}

// Numbers are texts: those of JSON have 53 bits.
QJsonArray asJson(const PairState& state) {
    QJsonArray numbers;
    for (const FileState& file : {state.project, state.data}) {
        numbers += QString::number(file.device);
        numbers += QString::number(file.inode);
        numbers += QString::number(file.size);
        numbers += QString::number(file.modified);
    }
    return numbers;
}

std::optional<PairState> pairStateFrom(const QJsonArray& numbers) {
    constexpr int PerFile = 4;
    if (numbers.size() != 2 * PerFile) {
        return std::nullopt;
    }
    const auto file = [&numbers](int first) {
        return FileState{
            numbers[first].toString().toULongLong(), numbers[first + 1].toString().toULongLong(),
            numbers[first + 2].toString().toLongLong(), numbers[first + 3].toString().toLongLong()};
    };
    return PairState{file(0), file(PerFile)};
}

void append(QJsonArray& array, const RecoveryPart& part) {
    array += part.name;
    array += part.size;
}

/// The part that stands at a place of an array and the one after it.
RecoveryPart partFrom(const QString& folder, const QJsonArray& array, int first) {
    const RecoveryPart part{array[first].toString(), array[first + 1].toInteger(-1)};
    if (!host_files::isPlainName(part.name) ||
        fileStateOf(folder + u'/' + part.name).size != part.size) {
        refuseDamaged(folder);
    }
    return part;
}

QJsonObject readHead(const QString& folder) {
    QFile file;
    QString reason;
    if (!openOrdinary(file, fileIn(folder), reason)) {
        refuse(folder, reason);
    }
    if (file.size() > MaxStateBytes) {
        refuse(folder, u"it is too large"_s);
    }
    const QJsonObject head = QJsonDocument::fromJson(file.read(MaxStateBytes)).object();
    if (head.isEmpty()) {
        refuseDamaged(folder);
    }
    if (head[u"form"_s].toInt() != Form) {
        refuse(folder, u"it is of a form that this program does not know"_s);
    }
    return head;
}

}  // namespace

void writeRecoveryState(const QString& folder, const RecoveryState& state) {
    QJsonArray map;
    append(map, state.map);
    QJsonArray frames;
    for (const RecoveryState::Frame& frame : state.frames) {
        QJsonArray parts;
        append(parts, frame.text);
        append(parts, frame.picture);
        frames += parts;
    }
    QJsonObject head{{u"form"_s, Form},
                     {u"project"_s, state.project},
                     {u"time"_s, state.time.toUTC().toString(Qt::ISODateWithMs)},
                     {u"mapName"_s, state.head.map},
                     {u"collections"_s, QJsonArray::fromStringList(state.head.collections)},
                     {u"map"_s, map},
                     {u"frames"_s, frames}};
    if (state.opened) {
        head[u"opened"_s] = asJson(*state.opened);
    }
    ReplacedFile file(fileIn(folder), Durability::Flushed, {.secret = true});
    file.append(QJsonDocument(head).toJson(QJsonDocument::Compact));
    file.commit();
}

RecoveryState readRecoveryState(const QString& folder) {
    const QJsonObject head = readHead(folder);
    // Member by member: g++ 12 destroys an inner aggregate twice where what follows it in one
    // initialiser throws, as a part that is missing does.
    RecoveryState state;
    state.project = head[u"project"_s].toString();
    state.opened = pairStateFrom(head[u"opened"_s].toArray());
    state.time = QDateTime::fromString(head[u"time"_s].toString(), Qt::ISODateWithMs);
    state.head.map = head[u"mapName"_s].toString();
    state.map = partFrom(folder, head[u"map"_s].toArray(), 0);
    for (const auto& name : head[u"collections"_s].toArray()) {
        state.head.collections += name.toString();
    }
    for (const auto& frame : head[u"frames"_s].toArray()) {
        const QJsonArray parts = frame.toArray();
        state.frames.push_back({partFrom(folder, parts, 0), partFrom(folder, parts, 2)});
    }
    if (!state.time.isValid() || state.frames.empty() || state.head.map.isEmpty()) {
        refuseDamaged(folder);
    }
    return state;
}

bool hasRecoveryState(const QString& folder) {
    return QFileInfo::exists(fileIn(folder));
}

FileState fileOfRecoveryState(const QString& folder) {
    return fileStateOf(fileIn(folder));
}

void removeRecoveryCopy(const QString& folder) {
    QFile::remove(fileIn(folder));
    if (!hasRecoveryState(folder)) {
        QDir(folder).removeRecursively();
    }
}

}  // namespace nubivane
