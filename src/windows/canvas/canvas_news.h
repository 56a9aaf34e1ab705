// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QObject>

#include <optional>

namespace nubivane {

class CanvasAccess;
class MapCanvas;
class SpriteControl;

/// Tells assistive technology, where there is any, what changes on the map: sprites and figures
/// that come and go, and which of them has been selected or taken in hand.
class CanvasNews : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the canvas.
    explicit CanvasNews(MapCanvas& canvas);

  private:
    void tellArrival(const SpriteControl& control);
    void tellLeaving(const SpriteControl& control);
    void tellSelection();
    void tellFigure();
    void tellPoints(int count);
    static void tell(QAccessible::Event what, QAccessibleInterface* about);
    CanvasAccess& access() const;

    MapCanvas& canvas_;
    int points_ = 0;             ///< of the figure, as it was told last
    std::optional<int> inHand_;  ///< the same of the point in hand
};

}  // namespace nubivane
