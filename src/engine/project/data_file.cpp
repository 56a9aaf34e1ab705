// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/data_file.h"

#include "engine/project/project_error.h"

#include <QFile>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

struct Block {
    qint64 offset = 0;
    qint64 size = 0;
};

/// Where the blocks lie. Works from the sizes that are given, not from the number that is claimed,
/// which may be anything.
QHash<qint32, Block> locate(const QHash<qint32, qint32>& sizes, qint64 fileSize) {
    QList<qint32> numbers = sizes.keys();
    std::sort(numbers.begin(), numbers.end());
    QHash<qint32, Block> blocks;
    qint64 offset = 0;
    for (const qint32 number : numbers) {
        const qint64 size = sizes.value(number);
        blocks.insert(number, {offset, size});
        offset += size;
    }
    if (offset > fileSize) {
        throw damagedProject(QStringLiteral("the pictures should have %1 bytes, the file has %2")
                                 .arg(offset)
                                 .arg(fileSize));
    }
    return blocks;
}

QByteArray read(QFile& file, const Block& block) {
    if (block.size > MaxPictureBytes) {
        throw damagedProject(u"a picture has too many bytes"_s);
    }
    QByteArray bytes = file.seek(block.offset) ? file.read(block.size) : QByteArray();
    if (bytes.size() != block.size) {
        throw damagedProject(u"the pictures cannot be read: "_s + file.errorString());
    }
    return bytes;
}

}  // namespace

DataBlocks readDataBlocks(QFile& file, const QHash<qint32, qint32>& sizes, qint32 claimed,
                          qint32 frameCount) {
    const QHash<qint32, Block> blocks = locate(sizes, file.size());
    if (frameCount > claimed) {
        throw damagedProject(u"there are more Frames than pictures"_s);
    }
    DataBlocks result;
    result.map = read(file, blocks.value(0));
    result.frames.reserve(static_cast<std::size_t>(frameCount));
    for (qint32 i = 1; i <= frameCount; ++i) {
        try {
            result.frames.push_back(Picture::fromEncoded(read(file, blocks.value(i))));
        } catch (const Error& error) {
            throw damagedProject(
                QStringLiteral("picture of Frame %1: %2").arg(i).arg(error.cause()));
        }
    }
    return result;
}

}  // namespace nubivane
