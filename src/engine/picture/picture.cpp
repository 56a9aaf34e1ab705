// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/picture.h"

#include <utility>

namespace nubivane {

Picture::Picture(QImage image) {
    if (!image.isNull()) {
        const QSize size = image.size();
        content_ = std::make_shared<Content>(Content{size, std::move(image), {}, {}});
    }
}

Picture Picture::fromEncoded(QByteArray bytes) {
    const PictureInfo info = probePicture(bytes);
    Picture picture;
    picture.content_ =
        std::make_shared<Content>(Content{info.size, {}, std::move(bytes), info.format});
    return picture;
}

QImage Picture::image() const {
    if (!content_ || !content_->pixels.isNull()) {
        return content_ ? content_->pixels : QImage();
    }
    return decodePicture(content_->bytes);
}

bool Picture::wasReadAs(PictureFormat format) const {
    return content_ && !content_->bytes.isEmpty() && content_->format == format;
}

QByteArray Picture::encoded(PictureFormat format) const {
    return wasReadAs(format) ? content_->bytes : encodePicture(image(), format);
}

}  // namespace nubivane
