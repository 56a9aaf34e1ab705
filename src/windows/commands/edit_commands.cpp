// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/edit_commands.h"

#include "engine/core/shell.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/workspace.h"
#include "windows/canvas/map_viewport.h"
#include "windows/commands/commands.h"
#include "windows/panes/frame_canvas.h"

namespace nubivane {

EditCommands::EditCommands(const CanvasContext& context)
    : QObject(&context.window),
      workspace_(context.workspace),
      shell_(context.shell),
      canvas_(context.canvas),
      viewport_(context.viewport),
      commands_(context.commands),
      window_(context.window),
      pictures_(context.workspace.edits(),
                [this](QSize bounds) { return canvas_.widget().thumbnail(bounds); }) {
    commands_.handle(Command::mnuUndo, [this] { undo(); });
    commands_.handle(Command::mnuRedo, [this] { redo(); });
    commands_.handle(Command::mnuHistory, [this] { showHistory(); });
    QObject::connect(&canvas_.widget(), &MapCanvas::gestureChanged, commands_[Command::mnuUndo],
                     [this] { refresh(); });
    workspace_.edits().watch(*this);
    refresh();
}

EditCommands::~EditCommands() {
    delete history_;  // it works with the pictures of this
    workspace_.edits().unwatch(*this);
}

void EditCommands::undo() {
    if (!takeBackUnfinished()) {
        const HourglassGuard hourglass(shell_);
        workspace_.edits().undo();
    }
}

void EditCommands::redo() {
    if (!takeBackUnfinished()) {
        const HourglassGuard hourglass(shell_);
        workspace_.edits().redo();
    }
}

void EditCommands::goTo(int index) {
    const HourglassGuard hourglass(shell_);
    workspace_.edits().goTo(index);
}

bool EditCommands::isUnfinished() const {
    return canvas_.mouse().isUnderWay() || canvas_.drawing().isUnfinished();
}

bool EditCommands::takeBackUnfinished() {
    if (!isUnfinished()) {
        return false;
    }
    if (canvas_.drawing().isUnfinished()) {
        canvas_.drawing().takeBack();
    }
    canvas_.mouse().cancel();
    refresh();
    return true;
}

void EditCommands::showHistory() {
    if (!history_) {
        history_ = new frmHistory(workspace_.edits(), pictures_, &window_);
        history_->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(history_, &frmHistory::chosen, history_,
                         [this](int index) { goTo(index); });
    }
    history_->show();
    history_->raise();
    history_->activateWindow();
}

void EditCommands::setEnabled(bool enabled) {
    if (history_) {
        history_->setEnabled(enabled);
    }
}

void EditCommands::historyChanged() {
    refresh();
    pictures_.takeSoon();
    if (history_) {
        history_->refresh();
    }
}

/// The commands say what they would do.
void EditCommands::refresh() {
    const ProjectEdits& edits = workspace_.edits();
    const auto name = [](QAction* action, const QString& plain, const QString& edit) {
        action->setText(edit.isEmpty() ? plain : QStringLiteral("%1 \"%2\"").arg(plain, edit));
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(QStringLiteral("%1 (%2)").arg(action->text(), key));
    };
    name(commands_[Command::mnuUndo], tr("Undo"), isUnfinished() ? QString() : edits.undoText());
    name(commands_[Command::mnuRedo], tr("Redo"), edits.redoText());
    commands_.setEnabled({Command::mnuUndo}, edits.canUndo() || isUnfinished());
    commands_.setEnabled({Command::mnuRedo}, edits.canRedo());
}

void EditCommands::reveal(const EditPlace& place) {
    if (place.frame > 0 && place.frame <= workspace_.Frames().Count() &&
        place.frame != workspace_.Status.CurrentFrame) {
        workspace_.edits().showFrame(place.frame);
    }
    canvas_.selection().clearSelection();
    const SpriteControl* control = place.sprite ? canvas_.sprites().find(*place.sprite) : nullptr;
    if (control) {
        std::vector<SpriteId> all = place.others;
        all.push_back(*place.sprite);
        canvas_.selection().selectAll(all);
        viewport_.ensureVisible(canvas_.widget().toWidget(control->rect));
    } else if (!place.area.isEmpty()) {
        viewport_.ensureVisible(canvas_.widget().toWidget(place.area));
    }
}

}  // namespace nubivane
