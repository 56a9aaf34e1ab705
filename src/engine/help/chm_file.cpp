// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/chm_file.h"

#include "engine/help/byte_reader.h"

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

constexpr char Content[] = "::dataspace/storage/mscompressed/content";
constexpr char ControlData[] = "::dataspace/storage/mscompressed/controldata";
constexpr char ResetTable[] =
    "::dataspace/storage/mscompressed/transform/{7fc28940-9d31-11d0-9b27-00a0c91e9c7c}"
    "/instancedata/resettable";

constexpr int CachedBytes = 4 << 20;
constexpr qint64 MaxRunBytes = 8 << 20;
constexpr qint64 FrameBytes = 32768;
constexpr qint64 SmallestWindow = 1 << 15;
constexpr qint64 LargestWindow = 1 << 21;

bool isWindowSize(qint64 size) {
    return size >= SmallestWindow && size <= LargestWindow && (size & (size - 1)) == 0;
}

}  // namespace

ChmFile::ChmFile(QByteArray bytes) : runs_(CachedBytes) {
    if (bytes.size() > MaxBytes) {
        throw damagedHelp("it is larger than any help");
    }
    archive_ = std::make_unique<ChmArchive>(
        std::move(bytes),
        [this](const QString& name, const ChmArchive::Entry& entry) { addEntry(name, entry); });
    if (entries_.contains(QLatin1String(Content))) {
        readControlData(plainEntry(ControlData));
        readResetTable(plainEntry(ResetTable));
    }
}

void ChmFile::addEntry(const QString& name, const ChmArchive::Entry& entry) {
    if (entries_.size() >= MaxEntries) {
        throw damagedHelp("more files than any help has");
    }
    if (name.endsWith(u'/')) {
        return;  // a folder
    }
    const QString key = name.toLower();
    if (name.startsWith(u'/') && !entries_.contains(key) && !name.startsWith(QLatin1String("/#")) &&
        !name.startsWith(QLatin1String("/$"))) {
        names_ += name.mid(1);
    }
    entries_.insert(key, entry);
}

QByteArray ChmFile::plainEntry(const char* name) const {
    const auto found = entries_.constFind(QLatin1String(name));
    if (found == entries_.cend() || found->packed || found->length > MaxEntryBytes) {
        throw damagedHelp("nothing tells how it is packed");
    }
    return archive_->extract(*found);
}

/// How long the runs are. The library believes it; here it must be a length that makes sense.
void ChmFile::readControlData(const QByteArray& control) {
    ByteReader reader(control);
    reader.skip(4);
    reader.expect("LZXC");
    const qint64 unit = reader.number32() >= 2 ? FrameBytes : 1;
    const qint64 resetInterval = reader.number32() * unit;
    const qint64 windowSize = reader.number32() * unit;
    const qint64 windowsPerReset = reader.number32();
    if (!isWindowSize(windowSize)) {
        throw damagedHelp("a window size that there is not");
    }
    const qint64 framesPerRun = resetInterval / (windowSize / 2) * windowsPerReset;
    if (resetInterval > MaxRunBytes || framesPerRun < 1 ||
        framesPerRun > MaxRunBytes / FrameBytes) {
        throw damagedHelp("runs of no sensible length");
    }
    runBytes_ = resetInterval;
}

/// How long the content is.
void ChmFile::readResetTable(const QByteArray& table) {
    ByteReader reader(table);
    reader.skip(16);
    packedLength_ = reader.number64();
}

bool ChmFile::contains(const QString& name) const {
    return entries_.contains(u'/' + name.toLower());
}

QByteArray ChmFile::read(const QString& name) const {
    const auto found = entries_.constFind(u'/' + name.toLower());
    if (found == entries_.cend()) {
        throw damagedHelp("a file is not there");
    }
    if (found->length > MaxEntryBytes) {
        throw damagedHelp("a file larger than any page or picture");
    }
    return found->packed ? unpack(found->offset, found->length) : archive_->extract(*found);
}

QByteArray ChmFile::unpack(qint64 offset, qint64 length) const {
    if (offset < 0 || offset > packedLength_ || length > packedLength_ - offset) {
        throw damagedHelp("a file outside the content");
    }
    QByteArray unpacked;
    while (unpacked.size() < length) {
        const qint64 at = offset + unpacked.size();
        const QByteArray taken =
            runAt(at / runBytes_).mid(at % runBytes_, length - unpacked.size());
        if (taken.isEmpty()) {
            throw damagedHelp("a run is too short");
        }
        unpacked += taken;
    }
    return unpacked;
}

QByteArray ChmFile::runAt(qint64 run) const {
    if (const QByteArray* known = runs_.object(run)) {
        return *known;
    }
    const qint64 offset = run * runBytes_;
    const QByteArray bytes = archive_->extract(
        {.packed = true, .offset = offset, .length = std::min(runBytes_, packedLength_ - offset)});
    runs_.insert(run, new QByteArray(bytes), bytes.size());
    return bytes;
}

}  // namespace nubivane
