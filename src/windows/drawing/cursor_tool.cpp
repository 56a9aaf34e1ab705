// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/cursor_tool.h"

namespace nubivane {

void CursorTool::press(QPoint, Qt::MouseButton button) {
    selection_.clearSelection();
    if (button == Qt::RightButton) {
        showMenu_();
    }
}

QCursor CursorTool::pointerAt(QPoint position) const {
    if (const auto shape = mouse_.cursorAt(position)) {
        return {*shape};
    }
    return sprites_.at(position) ? QCursor(Qt::SizeAllCursor) : pointer();
}

}  // namespace nubivane
