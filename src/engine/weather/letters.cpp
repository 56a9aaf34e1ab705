// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/letters.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <QTransform>

namespace nubivane::weather {

using namespace Qt::StringLiterals;

namespace {

/// Letters are made in this size, in which no grid of pixels shows, and then made smaller.
constexpr int LargeSize = 200;
constexpr qsizetype LongestText = 200;

QFont largeFont() {
    QFont font(u"Arial"_s);
    font.setPixelSize(LargeSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Turns the x axis into a direction and moves the origin to a point.
QTransform standing(const QPointF& at, const QPointF& direction) {
    return {direction.x(), direction.y(), -direction.y(), direction.x(), at.x(), at.y()};
}

}  // namespace

Letters::Letters(const QString& text, qreal size) {
    const QFont font = largeFont();
    const qreal scale = size / LargeSize;
    QTextLayout layout(text.left(LongestText).simplified(), font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid()) {
        return;
    }
    width_ = line.naturalTextWidth() * scale;
    capHeight_ = QFontMetricsF(font).capHeight() * scale;
    const QTransform smaller = QTransform::fromScale(scale, scale);
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        const QRawFont raw = run.rawFont();
        for (qsizetype i = 0; i < indexes.size(); ++i) {
            const QPainterPath path = raw.pathForGlyph(indexes[i]);
            if (!path.isEmpty()) {
                glyphs_.push_back({smaller.map(path), positions[i].x() * scale});
            }
        }
    }
}

QPainterPath Letters::around(const QPointF& middle, const QPointF& direction) const {
    QPainterPath text;
    text.setFillRule(Qt::WindingFill);
    for (const Glyph& glyph : glyphs_) {
        text.addPath(
            QTransform::fromTranslate(glyph.x - width_ / 2, capHeight_ / 2).map(glyph.path));
    }
    return standing(middle, direction).map(text);
}

QPainterPath Letters::along(const Curve& curve) const {
    const qreal start = (curve.length() - width_) / 2;
    QPainterPath text;
    text.setFillRule(Qt::WindingFill);
    for (const Glyph& glyph : glyphs_) {
        // A letter is turned as the curve goes below its middle.
        const qreal half = glyph.path.boundingRect().center().x();
        const Curve::Place place = curve.at(start + glyph.x + half);
        const QTransform turned =
            QTransform::fromTranslate(-half, 0) * standing(place.point, place.direction);
        text.addPath(turned.map(glyph.path));
    }
    return text;
}

}  // namespace nubivane::weather
