// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/map_surface.h"
#include "windows/drawing/pen_tool.h"

#include <optional>

namespace nubivane {

/// "erase": brings the map back, block by block.
class EraseTool : public PenTool {
  public:
    /// Width and height of a block, pixels. The pointer is its upper left corner.
    static constexpr int BlockSize = 12;

    explicit EraseTool(MapDrawing& drawing);

    void chosen() override;
    void cancel() override;

  protected:
    void begin(QPoint position) override;
    void go(QPoint position) override;
    void goOut(QPoint position) override;
    void end() override;

  private:
    void load();
    void sweep(QPoint to);

    MapSurface pctEraser_;           ///< the current map as its file has it
    QImage pixels_;                  ///< null until something is erased
    QPoint last_;                    ///< where the last block was brought back
    std::optional<QPoint> outside_;  ///< where the pointer is beside the map
};

}  // namespace nubivane
