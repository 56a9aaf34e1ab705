// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/rubber_band.h"

#include "windows/canvas/drag_marks.h"
#include "windows/canvas/selection.h"

#include <QSet>

#include <algorithm>
#include <cstdlib>

namespace nubivane {

void RubberBand::begin(QPoint position, bool adds) {
    from_ = position;
    before_ = adds ? selection_.ids() : std::vector<SpriteId>();
}

void RubberBand::moveTo(QPoint position) {
    const QPoint corner(std::min(from_->x(), position.x()), std::min(from_->y(), position.y()));
    const QRect band(corner, QSize(std::abs(position.x() - from_->x()) + 1,
                                   std::abs(position.y() - from_->y()) + 1));
    marks_.setBand(band);
    std::vector<SpriteId> wanted = before_;
    const QSet<SpriteId> known(before_.begin(), before_.end());
    for (const SpriteControl* control : sprites_.controls()) {
        if (control->visible && band.intersects(control->rect) && !known.contains(control->id)) {
            wanted.push_back(control->id);
        }
    }
    selection_.selectAll(wanted);
}

void RubberBand::end() {
    from_.reset();
    marks_.setBand({});
}

void RubberBand::cancel() {
    if (from_) {
        end();
        selection_.selectAll(before_);
    }
}

}  // namespace nubivane
