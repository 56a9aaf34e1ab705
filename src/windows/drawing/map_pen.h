// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/forecast.h"
#include "engine/model/map_surface.h"
#include "engine/weather/drawing.h"

#include <QColor>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>
#include <optional>

class QPainter;
class QPen;

namespace nubivane {

/// What the tools draw with, on the scratch layer of the map: colour, width, position. Positions
/// are pixels of the map.
///
/// Lines of one pixel are crisp: every pixel has the drawing colour or none of it. Wider ones have
/// smooth edges around a core of that colour. So a drawn colour can always be picked up again
/// exactly as it was. Each operation has only its own rectangle painted again.
class MapPen : public QObject {
    Q_OBJECT

  public:
    explicit MapPen(MapSurface& surface) : surface_(surface) {}

    qint32 DrawColor = White;  ///< red in the low byte

    QColor color() const;
    int DrawWidth() const { return drawWidth_; }
    /// The width that a text stands for, or nothing.
    static std::optional<int> widthOf(const QString& text);
    /// The text that stands in the field for the pen's width.
    void setWidthText(const QString& text) { widthText_ = text; }
    /// Takes the width from that text. Raises `Error` (TypeMismatch) when there stands no number of
    /// at least 1.
    void takeWidth();
    /// The same, but a text that is no number leaves the width as it is.
    void followWidth();

    void wipe();

    void moveTo(QPoint position) { position_ = position; }
    QPoint position() const { return position_; }
    void dot();
    void lineTo(QPoint position);
    void line(QPoint from, QPoint to);
    /// One pixel wide and black.
    void dottedLine(QPoint from, QPoint to);
    void circle(QPoint centre, double radius);
    /// The square by which a control point is seen and caught. Takes the width from its field
    /// afterwards, as `followWidth`.
    void handle(QPoint centre);
    /// A weather figure: in its own colours and always smooth.
    void draw(const weather::Drawing& drawing);
    /// Lays a picture with its upper left corner on a pixel.
    void lay(const QImage& picture, QPoint corner);
    /// Copies a part of a picture to the same place on the map.
    void copyBlock(const QImage& source, const QRect& block);

  Q_SIGNALS:
    void changed(const QRect& area);  ///< of the map, to be painted again

  private:
    void paint(const QRect& area, const std::function<void(QPainter&)>& draw);
    QPen pen() const;
    void aim(QPainter& painter) const;
    int reach() const { return drawWidth_ / 2 + 2; }

    MapSurface& surface_;
    QPoint position_;
    QString widthText_;
    int drawWidth_ = 1;
};

}  // namespace nubivane
