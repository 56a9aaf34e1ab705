// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/tool_pointers.h"

#include "windows/drawing/figure_icon.h"
#include "windows/widgets/icons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>

#include <array>
#include <string_view>
#include <utility>

namespace nubivane {

namespace {

constexpr int Size = 32;  // pixels

struct PointerRow {
    std::string_view key;
    QPoint hotSpot;
};

constexpr std::array<PointerRow, 3> pointers = {{
    {"drawcur", {3, 28}},
    {"erasecur", {3, 3}},
    {"color", {4, 28}},
}};

}  // namespace

QCursor toolPointer(const char* key) {
    for (const PointerRow& row : pointers) {
        if (row.key == key) {
            const QPixmap picture =
                programIcon(QLatin1String(key)).pixmap({Size, Size}, qApp->devicePixelRatio());
            return QCursor(picture, row.hotSpot.x(), row.hotSpot.y());
        }
    }
    return {};
}

QCursor figurePointer(weather::FigureKind kind) {
    constexpr int Middle = 9;   // of the cross
    constexpr int Arm = 9;      // its length to each side
    constexpr int Corner = 12;  // of the figure
    const qreal scale = qApp->devicePixelRatio();
    QPixmap picture(QSize(Size, Size) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    // A white rim keeps the cross in sight on any ground.
    for (const auto& [color, width] : {std::pair(Qt::white, 3), std::pair(Qt::black, 1)}) {
        painter.fillRect(QRectF(Middle - Arm, Middle - width / 2, 2 * Arm + 1, width), color);
        painter.fillRect(QRectF(Middle - width / 2, Middle - Arm, width, 2 * Arm + 1), color);
    }
    paintFigureIcon(painter, kind, QRectF(Corner, Corner, Size - Corner, Size - Corner));
    painter.end();
    return QCursor(picture, Middle, Middle);
}

}  // namespace nubivane
