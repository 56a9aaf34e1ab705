#include "model/map_surface.h"

#include <QPainter>

namespace nubivane {

void MapSurface::setPicture(const Picture& picture) {
    picture_ = picture;
    drawn_ = QImage();
    scratch_ = QImage();
}

QImage& MapSurface::persistentLayer() {
    if (drawn_.isNull()) {
        drawn_ = picture_.image().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return drawn_;
}

QImage& MapSurface::scratchLayer() {
    if (scratch_.isNull()) {
        scratch_ = QImage(picture_.size(), QImage::Format_ARGB32_Premultiplied);
        scratch_.fill(Qt::transparent);
    }
    return scratch_;
}

Picture MapSurface::image() const {
    if (drawn_.isNull() && scratch_.isNull()) {
        return picture_;
    }
    QImage composite = drawn_.isNull()
                           ? picture_.image().convertToFormat(QImage::Format_ARGB32_Premultiplied)
                           : drawn_;
    if (!scratch_.isNull()) {
        QPainter(&composite).drawImage(0, 0, scratch_);
    }
    return Picture(composite);
}

}  // namespace nubivane
