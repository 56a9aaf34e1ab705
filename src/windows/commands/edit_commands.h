// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit_watcher.h"
#include "windows/commands/canvas_context.h"
#include "windows/commands/edit_pictures.h"
#include "windows/commands/frm_history.h"

#include <QObject>
#include <QPointer>

namespace nubivane {

/// Undo, redo and the window that lists the edits.
///
/// While a stroke is being drawn or a sprite is being dragged, undo takes that back and nothing
/// else; of a figure that is being edited it takes back the last point.
class EditCommands : public QObject, private EditWatcher {
    Q_OBJECT

  public:
    explicit EditCommands(const CanvasContext& context);
    ~EditCommands() override;

    void undo();
    void redo();
    /// The list of edits, where it is open.
    frmHistory* history() const { return history_; }
    /// The list is shut with the main window.
    void setEnabled(bool enabled);

  private:
    void showHistory();
    void goTo(int index);
    bool isUnfinished() const;
    bool takeBackUnfinished();
    void refresh();

    // EditWatcher.
    void historyChanged() override;
    void reveal(const EditPlace& place) override;

    Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    MapViewport& viewport_;
    Commands& commands_;
    QWidget& window_;
    EditPictures pictures_;
    QPointer<frmHistory> history_;
};

}  // namespace nubivane
