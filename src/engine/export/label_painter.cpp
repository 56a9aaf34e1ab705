// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/label_painter.h"

#include "engine/core/resolution.h"
#include "engine/export/label_text.h"
#include "engine/gif/color_value.h"
#include "engine/model/forecast.h"

#include <QPainter>

#include <algorithm>

namespace nubivane {

namespace {

constexpr int MaxPoints = 1000;  // a hostile project may ask for any size

LabelText textOf(const cLabel& label) {
    return {label.Text, mapFont(label.Font)};
}

}  // namespace

QFont mapFont(const FontStyle& style) {
    QFont font(style.Name);
    const int size = std::clamp(style.Size, 1, MaxPoints);
    font.setPixelSize(std::max(1, (size * PixelsPerInch + PointsPerInch / 2) / PointsPerInch));
    font.setBold(style.Bold);
    font.setItalic(style.Italic);
    font.setUnderline(style.Underline);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(
        QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

QSize labelSize(const cLabel& label) {
    const int frame = label.Border != 0 ? 2 : 0;
    return textOf(label).size() + QSize(frame, frame);
}

void paintLabel(QPainter& painter, const cLabel& label, const QRect& rect, bool strikeOut) {
    painter.save();
    if (label.BackColor != NoColor) {
        painter.fillRect(rect, colorOf(label.BackColor));
    }
    QRect text = rect;
    if (label.Border != 0) {
        painter.setPen(colorOf(label.BorderColor));
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
        text.adjust(1, 1, -1, -1);
    }
    textOf(label).draw(painter, text, colorOf(label.Font.Color), strikeOut);
    painter.restore();
}

QString lettersWithoutFont(const cLabel& label) {
    return textOf(label).withoutFont();
}

}  // namespace nubivane
