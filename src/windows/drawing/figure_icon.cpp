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
/// An area is drawn larger than it will be seen, so that its signs find room.
constexpr qreal AreaScale = 1.5;
/// In place of inks that would not be seen on a dark ground; that of the other icons' strokes.
const QColor Stroke(0x3f, 0x86, 0xcc);
constexpr int Darkest = 70;      // value of a colour, of 255
constexpr qreal Rim = 2.4;       // of white, which parts dark inks from a dark ground
constexpr qreal SmallSize = 20;  // up to here lines are heavier, or they would not be seen
constexpr qreal Heavier = 1.5;

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

/// The pen's width in parts of the square.
qreal widthOf(FigureKind kind) {
    switch (weather::rowOf(kind).family) {
        case FigureFamily::Text:
            return 4;
        case FigureFamily::Isoline:
            return 2;
        case FigureFamily::WindBarb:
            return 1.7;
        case FigureFamily::Area:
            return 2;
        case FigureFamily::Arrow:
            return kind == FigureKind::Jet ? 1.4 : 2;
        case FigureFamily::Front:
            break;
    }
    return 1.4;
}

weather::WeatherFigure smallOne(FigureKind kind) {
    const weather::KindRow& row = weather::rowOf(kind);
    weather::WeatherFigure figure{
        kind, pointsOf(kind), {.opacity = 0.7, .knots = weather::UsualKnots}};
    figure.style.width = widthOf(kind);
    if (row.family == FigureFamily::Text) {
        figure.style.text = u"abc"_s;
    }
    if (row.family == FigureFamily::Area) {
        for (QPointF& point : figure.points) {
            point *= AreaScale;
        }
    }
    const QColor own = QColor::fromRgb(row.color);
    figure.style.color = own.value() < Darkest ? Stroke : own;
    return figure;
}

/// All of a drawing in white and with a rim.
weather::Drawing rimOf(const weather::Drawing& drawing) {
    weather::Drawing rim;
    for (const weather::Ink& ink : drawing) {
        rim.push_back(weather::lineOf(ink.path, Qt::white, ink.width + Rim, Qt::RoundCap));
    }
    return rim;
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

void paintFigureIcon(QPainter& painter, weather::FigureKind kind, const QRectF& square) {
    const bool area = weather::rowOf(kind).family == FigureFamily::Area;
    const qreal side = area ? AreaScale * Side : Side;
    weather::WeatherFigure figure = smallOne(kind);
    if (square.width() <= SmallSize && !area) {
        figure.style.width *= Heavier;
    }
    const weather::Drawing drawing = figure.drawing();
    painter.save();
    painter.translate(square.topLeft());
    painter.scale(square.width() / side, square.height() / side);
    weather::paint(painter, rimOf(drawing));
    weather::paint(painter, drawing);
    painter.restore();
}

}  // namespace nubivane
