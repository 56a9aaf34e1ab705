// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/selection.h"
#include "windows/canvas/sprite_mouse.h"
#include "windows/drawing/drawing_tool.h"

#include <functional>

namespace nubivane {

/// "cursor": leaves the map to the sprites. On the bare map a press ends the selection.
class CursorTool : public DrawingTool {
  public:
    /// `showMenu` opens the popup menu of the bare map.
    CursorTool(Selection& selection, const SpriteStack& sprites, const SpriteMouse& mouse,
               std::function<void()> showMenu)
        : selection_(selection), sprites_(sprites), mouse_(mouse), showMenu_(std::move(showMenu)) {}

    void press(QPoint position, Qt::MouseButton button) override;
    void move(QPoint) override {}
    void release(Qt::MouseButton) override {}
    const char* editName() const override { return ""; }
    QString nextStep() const override { return {}; }
    QCursor pointer() const override { return {Qt::ArrowCursor}; }
    QCursor pointerAt(QPoint position) const override;

  private:
    Selection& selection_;
    const SpriteStack& sprites_;
    const SpriteMouse& mouse_;
    std::function<void()> showMenu_;
};

}  // namespace nubivane
