// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/chm_file.h"

#include "engine/help/byte_reader.h"

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

constexpr char ControlData[] = "::dataspace/storage/mscompressed/controldata";
constexpr char Content[] = "::dataspace/storage/mscompressed/content";
constexpr char ResetTable[] =
    "::dataspace/storage/mscompressed/transform/{7fc28940-9d31-11d0-9b27-00a0c91e9c7c}"
    "/instancedata/resettable";

constexpr int CachedBytes = 4 << 20;
constexpr qint64 MaxRunBytes = 8 << 20;

/// A part of some bytes, as far as it lies inside them.
QByteArrayView part(QByteArrayView bytes, qint64 offset, qint64 length) {
    ByteReader reader(bytes);
    reader.skip(offset);
    return reader.take(length);
}

}  // namespace

ChmFile::ChmFile(QByteArray bytes) : bytes_(std::move(bytes)), runs_(CachedBytes) {
    if (bytes_.size() > MaxBytes) {
        throw damagedHelp("it is larger than any help");
    }
    readDirectory();
    if (entries_.contains(QLatin1String(Content))) {
        preparePacked();
    }
}

void ChmFile::readDirectory() {
    ByteReader header(bytes_);
    header.expect("ITSF");
    const quint32 version = header.number32();
    header.skip(0x48 - 8);
    const qint64 directoryOffset = header.number64();
    const qint64 directoryLength = header.number64();
    contentOffset_ = version >= 3 ? header.number64() : directoryOffset + directoryLength;

    const QByteArrayView directory = part(bytes_, directoryOffset, directoryLength);
    ByteReader reader(directory);
    reader.expect("ITSP");
    reader.skip(4);
    const qint64 headerLength = reader.number32();
    reader.skip(4);
    const qint64 chunkLength = reader.number32();
    constexpr qint64 SmallestChunk = 32;
    if (chunkLength < SmallestChunk) {
        throw damagedHelp("a directory of too small parts");
    }
    ByteReader chunks(part(directory, headerLength, directory.size() - headerLength));
    while (!chunks.atEnd()) {
        readChunk(chunks.take(chunkLength));
    }
}

/// The chunks that list files follow each other in the file as they do in the list; those of the
/// tree above them are not needed, since all of it is read.
void ChmFile::readChunk(QByteArrayView chunk) {
    if (!chunk.startsWith("PMGL")) {
        return;
    }
    constexpr qint64 ChunkHeader = 20;
    ByteReader header(chunk);
    header.expect("PMGL");
    const qint64 unused = header.number32();
    ByteReader list(part(chunk, ChunkHeader, chunk.size() - ChunkHeader - unused));
    while (!list.atEnd()) {
        const QString name = QString::fromUtf8(list.take(list.numberPacked()));
        Entry entry;
        const qint64 section = list.numberPacked();
        entry.packed = section == 1;
        entry.offset = list.numberPacked();
        entry.length = list.numberPacked();
        if (section <= 1) {
            addEntry(name, entry);
        }
    }
}

void ChmFile::addEntry(const QString& name, const Entry& entry) {
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

void ChmFile::preparePacked() {
    packed_.bytes = plainEntry(Content);
    readControlData(plainEntry(ControlData));
    readResetTable(plainEntry(ResetTable));
}

void ChmFile::readControlData(QByteArrayView control) {
    ByteReader reader(control);
    reader.skip(4);
    reader.expect("LZXC");
    const qint64 unit = reader.number32() >= 2 ? LzxDecoder::FrameSize : 1;
    const qint64 resetInterval = reader.number32() * unit;
    packed_.windowSize = reader.number32() * unit;
    const qint64 windowsPerReset = reader.number32();
    if (!LzxDecoder::isWindowSize(packed_.windowSize)) {
        throw damagedHelp("a window size that there is not");
    }
    packed_.framesPerRun = resetInterval / (packed_.windowSize / 2) * windowsPerReset;
    if (packed_.framesPerRun < 1 || packed_.framesPerRun > MaxRunBytes / LzxDecoder::FrameSize) {
        throw damagedHelp("runs of no sensible length");
    }
}

void ChmFile::readResetTable(QByteArrayView table) {
    ByteReader reader(table);
    reader.skip(4);
    const qint64 count = reader.number32();
    reader.skip(4);
    const qint64 offsetsAt = reader.number32();
    packed_.length = reader.number64();
    reader.skip(8);
    if (reader.number64() != LzxDecoder::FrameSize) {
        throw damagedHelp("frames of another size");
    }
    if (packed_.length > count * LzxDecoder::FrameSize) {
        throw damagedHelp("more content than frames");
    }
    ByteReader offsets(part(table, offsetsAt, count * 8));
    packed_.frameOffsets.reserve(count);
    for (qint64 i = 0; i < count; ++i) {
        packed_.frameOffsets += offsets.number64();
    }
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
    if (found->packed) {
        return unpack(found->offset, found->length);
    }
    return part(bytes_, contentOffset_ + found->offset, found->length).toByteArray();
}

QByteArrayView ChmFile::plainEntry(const char* name) const {
    const auto found = entries_.constFind(QLatin1String(name));
    if (found == entries_.cend() || found->packed) {
        throw damagedHelp("nothing tells how it is packed");
    }
    return part(bytes_, contentOffset_ + found->offset, found->length);
}

QByteArray ChmFile::unpack(qint64 offset, qint64 length) const {
    if (offset > packed_.length || length > packed_.length - offset) {
        throw damagedHelp("a file outside the content");
    }
    const qint64 runBytes = packed_.framesPerRun * LzxDecoder::FrameSize;
    QByteArray unpacked;
    while (unpacked.size() < length) {
        const qint64 at = offset + unpacked.size();
        const QByteArray run = runAt(at / runBytes);
        const QByteArray taken = run.mid(at % runBytes, length - unpacked.size());
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
    LzxDecoder decoder(packed_.windowSize);
    const qint64 first = run * packed_.framesPerRun;
    const qint64 last = std::min<qint64>(first + packed_.framesPerRun, packed_.frameOffsets.size());
    for (qint64 frame = first; frame < last; ++frame) {
        const qint64 left = packed_.length - frame * LzxDecoder::FrameSize;
        if (left <= 0) {
            break;
        }
        const qint64 from = packed_.frameOffsets[frame];
        const qint64 to = frame + 1 < packed_.frameOffsets.size() ? packed_.frameOffsets[frame + 1]
                                                                  : packed_.bytes.size();
        decoder.unpackFrame(part(packed_.bytes, from, to - from), left);
    }
    runs_.insert(run, new QByteArray(decoder.unpacked()), decoder.unpacked().size());
    return decoder.unpacked();
}

}  // namespace nubivane
