// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/zoom.h"

#include <QLine>
#include <QObject>
#include <QRect>

#include <optional>
#include <vector>

class QPainter;

namespace nubivane {

class SpriteControl;

/// What is shown over the map while the mouse drags and gone when it lets go: the rubber band, the
/// lines to which sprites have been drawn, the copies that will be made. Pixels of the map.
class DragMarks : public QObject {
    Q_OBJECT

  public:
    /// A sprite as it will look elsewhere.
    struct Ghost {
        const SpriteControl* control;
        QPoint offset;
    };

    void setBand(const std::optional<QRect>& band);
    void setLines(const std::vector<QLine>& lines);
    void setGhosts(const std::vector<Ghost>& ghosts);
    void clear();

    const std::optional<QRect>& band() const { return band_; }
    const std::vector<QLine>& lines() const { return lines_; }
    const std::vector<Ghost>& ghosts() const { return ghosts_; }
    bool isEmpty() const { return !band_ && lines_.empty() && ghosts_.empty(); }

    /// The painter's pixels are those of the map.
    void paintGhosts(QPainter& painter) const;
    /// The painter's pixels are those of the screen: lines stay one pixel wide.
    void paintLines(QPainter& painter, Zoom zoom) const;

  Q_SIGNALS:
    void changed(const QRect& area);  ///< of the map, to be painted again

  private:
    void tellBand();
    void tellLines();
    void tellGhosts();

    std::optional<QRect> band_;
    std::vector<QLine> lines_;
    std::vector<Ghost> ghosts_;
};

}  // namespace nubivane
