// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/figure_icon.h"

#include "engine/weather/figure_kinds.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using weather::FigureFamily;
using weather::FigureKind;

/// The points of the icons lie on a square of this side.
constexpr qreal Side = 32;
/// In place of inks that would not be seen on a dark ground; that of the other icons' strokes.
const QColor Stroke(0x3f, 0x86, 0xcc);
constexpr int Darkest = 70;  // value of a colour, of 255

std::vector<QPointF> pointsOf(FigureKind kind) {
    const weather::KindRow& row = weather::rowOf(kind);
    switch (row.family) {
        case FigureFamily::WindBarb:
            return {{7, 26}, {24, 9}};
        case FigureFamily::Isoline:
        case FigureFamily::Area:
            if (row.closed) {
                return {{4, 18}, {9, 7}, {20, 5}, {28, 13}, {25, 25}, {12, 27}};
            }
            return {{2, 22}, {10, 10}, {22, 20}, {30, 8}};
        case FigureFamily::Arrow:
            if (kind == FigureKind::Arrow) {
                return {{4, 27}, {28, 5}};
            }
            return {{3, 24}, {14, 23}, {22, 14}, {29, 6}};
        case FigureFamily::Text:
            return {{3, 24}, {16, 19}, {29, 24}};
        case FigureFamily::Front:
            break;
    }
    return {{2, 27}, {11, 18}, {21, 15}, {30, 17}};
}

weather::WeatherFigure smallOne(FigureKind kind) {
    constexpr int UsualKnots = 25;
    weather::WeatherFigure figure{kind, pointsOf(kind), {.width = 1.3, .opacity = 0.6}};
    figure.style.knots = UsualKnots;
    switch (weather::rowOf(kind).family) {
        case FigureFamily::Text:
            figure.style.text = u"abc"_s;
            figure.style.width = 2;
            break;
        case FigureFamily::Isoline:
        case FigureFamily::WindBarb:
            figure.style.width = 1.7;
            break;
        case FigureFamily::Arrow:
            figure.style.width = kind == FigureKind::Jet ? 1.3 : 2;
            break;
        default:
            break;
    }
    const QColor own = QColor::fromRgb(weather::rowOf(kind).color);
    figure.style.color = own.value() < Darkest ? Stroke : own;
    return figure;
}

class FigureIcon : public QIconEngine {
  public:
    explicit FigureIcon(FigureKind kind) : kind_(kind) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        constexpr qreal Faded = 0.4;
        painter->setOpacity(mode == QIcon::Disabled ? Faded : 1);
        paintFigureIcon(*painter, kind_, rect);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    /// `size` is in pixels of the device.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, {QPoint(), size}, mode, state);
        painter.end();
        pixmap.setDevicePixelRatio(scale);
        return pixmap;
    }

    QIconEngine* clone() const override { return new FigureIcon(kind_); }

  private:
    FigureKind kind_;
};

}  // namespace

QIcon figureIcon(FigureKind kind) {
    return QIcon(new FigureIcon(kind));
}

void paintFigureIcon(QPainter& painter, FigureKind kind, const QRectF& square) {
    painter.save();
    painter.translate(square.topLeft());
    painter.scale(square.width() / Side, square.height() / Side);
    smallOne(kind).paint(painter);
    painter.restore();
}

}  // namespace nubivane
