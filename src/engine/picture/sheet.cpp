// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/sheet.h"

#include <QPainter>

namespace nubivane {

namespace {

QImage laidOnSheet(const QImage& picture, QSize size) {
    QImage sheet(size, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter(&sheet).drawImage(0, 0, picture);
    return sheet;
}

}  // namespace

QImage onSheet(const QImage& picture, QSize size) {
    return picture.size() == size ? picture : laidOnSheet(picture, size);
}

QImage onWhite(const QImage& picture) {
    return picture.hasAlphaChannel() ? laidOnSheet(picture, picture.size())
                                     : picture.convertToFormat(QImage::Format_RGB32);
}

}  // namespace nubivane
