// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/map_surface.h"

#include "engine/core/error.h"

#include <QPainter>

#include <utility>

namespace nubivane {

namespace {

constexpr QImage::Format LayerFormat = QImage::Format_ARGB32_Premultiplied;

/// The picture's pixels; null when they are damaged.
QImage decoded(const Picture& picture) {
    try {
        return picture.image();
    } catch (const Error&) {
        return {};
    }
}

}  // namespace

void MapSurface::setPicture(const Picture& picture) {
    picture_ = picture;
    drawn_ = QImage();
    scratch_ = QImage();
    scratchArea_ = QRect();
}

QImage MapSurface::pixels() const {
    if (!drawn_.isNull() || picture_.isEmpty()) {
        return drawn_;
    }
    QImage image = decoded(picture_);
    if (!image.isNull() && !image.hasAlphaChannel()) {
        return image;
    }
    QImage sheet(picture_.size(), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter(&sheet).drawImage(0, 0, image);
    return sheet;
}

QImage& MapSurface::persistentLayer() {
    if (drawn_.isNull()) {
        drawn_ = pixels().convertToFormat(LayerFormat);
    }
    return drawn_;
}

QImage& MapSurface::scratchLayer(const QRect& area) {
    if (scratch_.isNull()) {
        scratch_ = QImage(picture_.size(), LayerFormat);
        scratch_.fill(Qt::transparent);
    }
    scratchArea_ |= area & scratch_.rect();
    return scratch_;
}

QRect MapSurface::wipeScratchLayer() {
    if (!scratchArea_.isEmpty()) {
        QPainter painter(&scratch_);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillRect(scratchArea_, Qt::transparent);
    }
    return std::exchange(scratchArea_, QRect());
}

QRect MapSurface::commitScratchLayer() {
    if (!scratchArea_.isEmpty()) {
        QPainter(&persistentLayer()).drawImage(scratchArea_.topLeft(), scratch_, scratchArea_);
    }
    return wipeScratchLayer();
}

QImage MapSurface::composite() const {
    QImage image = pixels();
    if (!scratchArea_.isEmpty()) {
        image = image.convertToFormat(LayerFormat);
        QPainter(&image).drawImage(scratchArea_.topLeft(), scratch_, scratchArea_);
    }
    return image;
}

Picture MapSurface::image() const {
    if (drawn_.isNull() && scratchArea_.isEmpty()) {
        return picture_;
    }
    return Picture(composite());
}

}  // namespace nubivane
