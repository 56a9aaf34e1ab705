// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QObject>
#include <QPoint>

#include <optional>

class QKeyEvent;
class QMouseEvent;

namespace nubivane {

class MapCanvas;
class MapViewport;

/// Takes hold of the map and moves it under the window: by the middle button, or by the left one
/// while Space is held down and the map has the keyboard. Nobody else sees such a press.
class MapPan : public QObject {
    Q_OBJECT

  public:
    MapPan(MapViewport& viewport, MapCanvas& canvas);

    bool isUnderWay() const { return held_.has_value(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    bool key(const QKeyEvent& event, bool down);
    void showHand();

    MapViewport& viewport_;
    MapCanvas& canvas_;
    bool ready_ = false;              ///< Space is down
    Qt::MouseButton button_{};        ///< by which the map is held
    std::optional<QPoint> held_;      ///< where, on the screen
    std::optional<QCursor> pointer_;  ///< of the canvas while a hand stands in its place
};

}  // namespace nubivane
