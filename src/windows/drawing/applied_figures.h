// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/figure_choice.h"

#include <QImage>
#include <QPoint>

#include <deque>
#include <optional>
#include <vector>

namespace nubivane {

class ProjectEdits;
class Workspace;

/// A weather figure that has become part of a picture, as it was when it could still be edited.
struct AppliedFigure {
    weather::FigureKind kind;
    FigureLook look;
    int width;  ///< of the pen
    std::vector<QPoint> points;
};

/// A figure taken up again: what it was, and what lies below it.
struct FigureTakenUp {
    AppliedFigure figure;
    quint64 state;  ///< the state of the project that its edit made
    qint32 frame;
    QImage below;  ///< the picture without the figure, where that makes a difference
    QPoint corner;
};

/// Remembers the figures that were applied as long as they can be undone, so that the last one can
/// be edited again. A picture has no figures, so each is known by the edit that drew it.
class AppliedFigures {
  public:
    /// The last edit drew a figure; in the place of the one that was taken up, if there was one.
    void keep(const ProjectEdits& edits, AppliedFigure figure, std::optional<quint64> instead);

    /// True when there is a figure to take up.
    bool canTakeUp(const ProjectEdits& edits) const;
    /// The figure that was applied last among the edits that are done. Nothing where Frames or map
    /// have changed since, or nothing of it is to be seen any more. It is shown, if another Frame
    /// is.
    std::optional<FigureTakenUp> takeUp(Workspace& workspace) const;

  private:
    struct Kept {
        quint64 state;
        AppliedFigure figure;
        std::optional<quint64> instead;
    };
    /// More than anybody goes back by "Edit again".
    static constexpr std::size_t Most = 200;

    const Kept* find(quint64 state) const;
    const Kept* last(const ProjectEdits& edits) const;

    std::deque<Kept> kept_;
};

}  // namespace nubivane
