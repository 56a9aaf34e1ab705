// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fixtures.h"
#include "windows/main/frm_map.h"

#include <QTest>

#include <memory>

namespace nubivane::testing {

/// A main window on a program folder of its own with the map europe.jpg (500 x 400), the collection
/// set-1 checked, and a scripted shell. `start` builds and shows it.
class EditorFixture : public WorkspaceFixture {
  protected:
    EditorFixture();
    ~EditorFixture() override;

    /// Builds the editor as the program does, opening a project (model path) if one is given.
    frmMap& start(const QString& projectFile = {});
    frmMap& window() { return *window_; }
    MapCanvas& canvas() { return window_->canvas().widget(); }
    cFrame& frame(qint32 number = 1) { return workspace.Frames().Item(number); }

    /// Real events on the canvas at a position in pixels of the map.
    void press(QPoint mapPosition, Qt::MouseButton button = Qt::LeftButton);
    void move(QPoint mapPosition);
    void release(QPoint mapPosition, Qt::MouseButton button = Qt::LeftButton);
    void click(QPoint mapPosition, Qt::MouseButton button = Qt::LeftButton);
    void drag(QPoint from, QPoint to);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// A palette drag of a payload dropped on the map, as events.
    void drop(const QString& payload, QPoint mapPosition);
    /// Places a symbol of set-1 or a label and returns its key.
    QString placeSymbol(QPoint centre, const QString& file = "sun.gif");
    QString placeLabel(QPoint centre);

    /// The command of a name, triggered as a click on its menu entry does.
    void trigger(const char* command) { window_->commands().action(command)->trigger(); }

  private:
    std::unique_ptr<frmMap> window_;
};

}  // namespace nubivane::testing
