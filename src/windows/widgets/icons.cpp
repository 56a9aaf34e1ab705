// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>

/// The icons lie in a library, whose resources the linker would leave out by itself.
static void loadIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int SmallSize = 20;  // up to here the small drawing serves, logical pixels

class SvgIcon : public QIconEngine {
  public:
    explicit SvgIcon(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const qreal scale = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }

    /// `size` is in pixels of the device.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override {
        const QString key = QStringLiteral("nubivane/%1/%2x%3@%4/%5")
                                .arg(name_)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(scale)
                                .arg(mode);
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = draw(size, mode, scale);
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

    QIconEngine* clone() const override { return new SvgIcon(name_); }

  private:
    QPixmap draw(const QSize& size, QIcon::Mode mode, qreal scale) const {
        const bool isSmall = std::max(size.width(), size.height()) <= SmallSize * scale;
        const QString small = u":/icons/"_s + name_ + u"-16.svg"_s;
        QImageReader reader(isSmall && QFile::exists(small) ? small
                                                            : u":/icons/"_s + name_ + u".svg"_s);
        reader.setScaledSize(reader.size().scaled(size, Qt::KeepAspectRatio));
        QPixmap pixmap = QPixmap::fromImage(reader.read());
        if (mode == QIcon::Disabled) {
            pixmap = faded(pixmap.toImage());
        }
        pixmap.setDevicePixelRatio(scale);
        return pixmap;
    }

    /// Grey and half away: on a dark ground as on a light one it recedes.
    static QPixmap faded(const QImage& image) {
        QImage grey = image.convertToFormat(QImage::Format_Grayscale8)
                          .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&grey);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.drawImage(0, 0, image);
        painter.fillRect(grey.rect(), QColor(0, 0, 0, 95));
        painter.end();
        return QPixmap::fromImage(grey);
    }

    QString name_;
};

}  // namespace

QIcon programIcon(const QString& name) {
    loadIcons();
    return QIcon(new SvgIcon(name));
}

}  // namespace nubivane
