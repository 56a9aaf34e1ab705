// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/gif/gif_still.h"
#include "engine/project/data_file.h"
#include "fuzz_support.h"

#include <QTemporaryFile>

#include <limits>

using namespace nubivane;

namespace {

/// What is claimed about a data file.
struct Claim {
    qint32 claimed = 0;  ///< blocks behind the map's
    qint32 frames = 0;   ///< Frames of the document
    QHash<qint32, qint32> sizes;
};

/// Reads "claimed frames size0 size1 …", where "-" is a size that is not given and "*" the size of
/// all `bytes` that follow, so that a picture may change its length.
Claim parseClaim(const QByteArray& line, qsizetype bytes) {
    Claim claim;
    const QList<QByteArray> words = line.simplified().split(' ');
    claim.claimed = words.value(0).toInt();
    claim.frames = qBound(0, words.value(1).toInt(), int{std::numeric_limits<qint16>::max()});
    for (qsizetype i = 2; i < words.size(); ++i) {
        bool given = false;
        const qint32 size = words[i].toInt(&given);
        if (words[i] == "*") {
            claim.sizes.insert(static_cast<qint32>(i) - 2, static_cast<qint32>(bytes));
        } else if (given && size >= 0) {
            claim.sizes.insert(static_cast<qint32>(i) - 2, size);
        }
    }
    return claim;
}

void decode(const Picture& picture) {
    constexpr qint64 MaxEncodedPixels = 4096;  // choosing a palette is slow under the sanitizers
    QImage image;
    try {
        image = picture.image();
    } catch (const Error&) {
        return;
    }
    fuzz::require(!image.isNull(), "a decoded picture has pixels");
    fuzz::require(image.width() <= MaxPictureSide && image.height() <= MaxPictureSide &&
                      qint64{image.width()} * image.height() <= MaxPicturePixels,
                  "a decoded picture keeps the limits");
    if (qint64{image.width()} * image.height() <= MaxEncodedPixels) {
        fuzz::require(decodePicture(encodeGifStill(image)).size() == image.size(),
                      "a picture written as GIF can be read");
    }
}

}  // namespace

/// The input is a line that claims sizes (see `parseClaim`), and behind it the data file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray input = fuzz::inputBytes(data, size);
    const qsizetype end = input.indexOf('\n');
    if (end < 0) {
        return 0;
    }
    const Claim claim = parseClaim(input.left(end), input.size() - end - 1);

    static QTemporaryFile file;
    fuzz::require(file.isOpen() || file.open(), "the temporary folder can be written");
    file.resize(0);
    file.seek(0);
    file.write(input.mid(end + 1));
    file.flush();
    try {
        const DataBlocks blocks = readDataBlocks(file, claim.sizes, claim.claimed, claim.frames);
        fuzz::require(static_cast<qint32>(blocks.frames.size()) == claim.frames,
                      "each Frame has its picture");
        for (const Picture& picture : blocks.frames) {
            decode(picture);
        }
    } catch (const Error& error) {
        fuzz::require(error.number() == error_number::DamagedProject,
                      "a data file fails with the number of damage");
    }
    return 0;
}
