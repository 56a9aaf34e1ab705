// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/whole_picture.h"

#include "engine/gif/gif_outline.h"
#include "engine/gif/gif_reader.h"
#include "engine/picture/image_codec.h"
#include "engine/picture/invalid_picture.h"
#include "engine/picture/jpeg_inspection.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

GifOutline outlineOf(const QByteArray& bytes) {
    const std::optional<GifOutline> outline = gifOutline(bytes);
    if (!outline || outline->images == 0) {
        refusePicture(u"the GIF picture is cut short"_s);
    }
    return *outline;
}

void requireWholeGif(const QByteArray& bytes) {
    const GifOutline outline = outlineOf(bytes);
    // Asked beforehand, so that an animation beyond the limit is not decoded up to it.
    const qint64 imageBytes = qint64{4} * outline.size.width() * outline.size.height();
    if (outline.images > 1 &&
        (outline.images > MaxGifImages || imageBytes * outline.images > MaxGifBytes)) {
        refusePicture(QStringLiteral("%1 images are too many").arg(outline.images));
    }
    const auto decoded = static_cast<qsizetype>(readGif(bytes).size());
    if (decoded < outline.images) {
        refusePicture(QStringLiteral("image %1 of the GIF picture is damaged").arg(decoded + 1));
    }
}

}  // namespace

QSize shownSize(const QByteArray& bytes) {
    const PictureInfo info = probePicture(bytes);
    switch (info.format) {
        case PictureFormat::Gif:
            return outlineOf(bytes).size;
        case PictureFormat::Jpeg:
        case PictureFormat::Png:
            return info.size;
        default:
            refusePicture(u"the bytes are no gif, jpg or png picture"_s);
    }
}

void requireWholePicture(const QByteArray& bytes) {
    switch (probePicture(bytes).format) {
        case PictureFormat::Gif:
            requireWholeGif(bytes);
            break;
        case PictureFormat::Jpeg:
            if (!isWholeJpeg(bytes)) {
                refusePicture(u"the JPEG picture has fewer pixels than it claims"_s);
            }
            break;
        case PictureFormat::Png:
            decodePicture(bytes);
            break;
        default:
            refusePicture(u"the bytes are no gif, jpg or png picture"_s);
    }
}

}  // namespace nubivane
