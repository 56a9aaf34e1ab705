// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/map_pictures.h"

#include "engine/picture/jpeg_inspection.h"

#include <QHash>

namespace nubivane {

std::vector<SharedPicture> groupByPicture(const FramePanels& panels) {
    std::vector<SharedPicture> groups;
    QHash<const void*, std::size_t> known;
    for (qint32 i = 1; i <= panels.Count(); ++i) {
        const Picture picture = panels.picture(i);
        const auto found = known.constFind(picture.identity());
        if (found == known.cend()) {
            known.insert(picture.identity(), groups.size());
            groups.push_back({picture, {i}});
        } else {
            groups[*found].frames.push_back(i);
        }
    }
    return groups;
}

QByteArray pageJpeg(const Picture& picture, const QImage& pixels) {
    if (picture.wasReadAs(PictureFormat::Jpeg) &&
        hasJpegQuality(picture.originalBytes(), JpegQuality)) {
        return picture.originalBytes();
    }
    return encodePicture(pixels.isNull() ? picture.image() : pixels, PictureFormat::Jpeg);
}

}  // namespace nubivane
