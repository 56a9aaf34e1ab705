// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/label_painter.h"

#include "engine/gif/color_value.h"
#include "engine/model/forecast.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace nubivane {

namespace {

constexpr int PixelsPerInch = 96;
constexpr int PointsPerInch = 72;
constexpr int MaxPoints = 1000;  // a hostile project may ask for any size

/// Text lines end as their writer wished.
QString withPlainLineEnds(QString text) {
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

QFont fontOf(const cLabel& label) {
    return mapFont(label.FontName, label.FontSize, label.FontBold, label.FontItalic,
                   label.FontUnderline);
}

}  // namespace

QFont mapFont(const QString& family, int points, bool bold, bool italic, bool underline) {
    QFont font(family);
    const int size = std::clamp(points, 1, MaxPoints);
    font.setPixelSize(std::max(1, (size * PixelsPerInch + PointsPerInch / 2) / PointsPerInch));
    font.setBold(bold);
    font.setItalic(italic);
    font.setUnderline(underline);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(
        QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

QSize labelSize(const cLabel& label) {
    const QFontMetrics metrics(fontOf(label));
    const QSize text =
        metrics.size(Qt::TextExpandTabs, withPlainLineEnds(label.Text)).expandedTo({1, 1});
    const int frame = label.Border != 0 ? 2 : 0;
    return text + QSize(frame, frame);
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
    QFont font = fontOf(label);
    font.setStrikeOut(strikeOut);
    painter.setFont(font);
    painter.setPen(colorOf(label.Forecolor));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignTop | Qt::TextExpandTabs | Qt::TextDontClip,
                     withPlainLineEnds(label.Text));
    painter.restore();
}

}  // namespace nubivane
