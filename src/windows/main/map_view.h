// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/commands/canvas_context.h"

#include <QObject>

namespace nubivane {

class EditorPane;
class MapZoom;
class StatusLine;

/// How the map is looked at: its size and place on the screen, what the status line tells of it,
/// and the commands that leave the window or the screen to it.
class MapView : public QObject {
    Q_OBJECT

  public:
    MapView(const CanvasContext& context, EditorPane& pane, StatusLine& line);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void handleZoom();
    void handleRoom();

    Commands& commands_;
    QWidget& window_;
    FrameCanvas& canvas_;
    EditorPane& pane_;
    MapZoom& zoom_;
};

}  // namespace nubivane
