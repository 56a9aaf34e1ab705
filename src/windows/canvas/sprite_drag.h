// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/selection.h"
#include "windows/canvas/snap_guides.h"

#include <QPoint>

#include <optional>
#include <vector>

namespace nubivane {

class DragMarks;

/// Drags several sprites at once, or copies of one or several. All stay inside the map. From press
/// to release nothing of the project is changed; the release is one edit. Pixels of the map.
class SpriteDrag {
  public:
    enum class Kind { Move, Copy };

    SpriteDrag(Workspace& workspace, SpriteStack& sprites, Selection& selection, DragMarks& marks);

    void begin(Kind kind, const std::vector<SpriteId>& ids, QPoint position);
    /// Draws what is dragged to `guides`; without any it follows the pointer.
    void moveTo(QPoint position, const SnapGuides* guides);
    /// Returns false where the pointer never moved.
    bool end();
    void cancel();

    bool isUnderWay() const { return !dragged_.empty(); }
    /// Where the others stand that do not move.
    std::vector<QRect> others() const;

  private:
    struct Dragged {
        SpriteId id;
        QRect from;
    };
    QPoint within(QPoint offset) const;
    void show(QPoint offset);
    void setPlaying(bool playing);
    void finishMove();
    void finishCopy();

    Workspace& workspace_;
    SpriteStack& sprites_;
    Selection& selection_;
    DragMarks& marks_;
    Kind kind_ = Kind::Move;
    std::vector<Dragged> dragged_;    ///< from bottom to top
    std::vector<SpriteId> selected_;  ///< the same, the one selected last last
    QRect whole_;                     ///< of all, before they moved
    QPoint press_;
    QPoint offset_;
    bool moved_ = false;
};

}  // namespace nubivane
