// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/picture.h"

#include <vector>

namespace nubivane {

/// `pctPanel`: one picture for each Frame, reached by the Frame's number from 1. An empty picture
/// means that the Frame still shows the bare map.
class FramePanels {
  public:
    qint32 Count() const { return static_cast<qint32>(panels_.size()); }
    bool contains(qint32 frame) const { return frame >= 1 && frame <= Count(); }

    /// The picture of a Frame; empty for a number without a panel.
    Picture picture(qint32 frame) const;
    /// Sets the picture of a Frame; a number without a panel is passed over.
    void setPicture(qint32 frame, const Picture& picture);

    /// Adds empty panels or takes the last away until there are `count`.
    void resize(qint32 count) { panels_.resize(static_cast<std::size_t>(count)); }
    /// Makes `count` panels, all empty.
    void reset(qint32 count);
    /// Adds an empty panel behind the last.
    void append() { panels_.emplace_back(); }
    /// Puts a panel at a number; the later ones move up.
    void insert(qint32 frame, const Picture& picture);
    /// Removes a panel; the later ones close up. A number without a panel is passed over.
    void remove(qint32 frame);

  private:
    std::vector<Picture> panels_;
};

}  // namespace nubivane
