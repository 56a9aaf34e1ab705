// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/tool_pointers.h"

#include "windows/widgets/icons.h"

#include <QGuiApplication>
#include <QPixmap>

#include <array>
#include <string_view>

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

}  // namespace nubivane
