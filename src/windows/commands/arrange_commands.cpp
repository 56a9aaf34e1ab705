// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/arrange_commands.h"

#include "engine/core/settings_store.h"
#include "engine/model/edits/sprite_changes.h"
#include "windows/commands/commands.h"
#include "windows/panes/frame_canvas.h"

#include <QInputDialog>

#include <array>
#include <utility>

namespace nubivane {

namespace {

constexpr int WidestGrid = 500;  // pixels

constexpr std::array<std::pair<Command, Stacking>, 4> stackings = {{
    {Command::mnuToFront, Stacking::ToFront},
    {Command::mnuRaise, Stacking::Raise},
    {Command::mnuLower, Stacking::Lower},
    {Command::mnuToBack, Stacking::ToBack},
}};

constexpr std::array<std::pair<Command, Alignment>, 6> alignments = {{
    {Command::mnuAlignLeft, Alignment::Left},
    {Command::mnuAlignCentre, Alignment::Centre},
    {Command::mnuAlignRight, Alignment::Right},
    {Command::mnuAlignTop, Alignment::Top},
    {Command::mnuAlignMiddle, Alignment::Middle},
    {Command::mnuAlignBottom, Alignment::Bottom},
}};

const char* nameOf(Stacking stacking) {
    switch (stacking) {
        case Stacking::ToFront:
            return QT_TRANSLATE_NOOP("Edits", "Bring to front");
        case Stacking::Raise:
            return QT_TRANSLATE_NOOP("Edits", "Raise");
        case Stacking::Lower:
            return QT_TRANSLATE_NOOP("Edits", "Lower");
        default:
            return QT_TRANSLATE_NOOP("Edits", "Send to back");
    }
}

std::vector<QRect> rectsOf(const std::vector<SpriteControl*>& controls) {
    std::vector<QRect> rects;
    for (const SpriteControl* control : controls) {
        rects.push_back(control->rect);
    }
    return rects;
}

}  // namespace

ArrangeCommands::ArrangeCommands(const CanvasContext& context)
    : QObject(&context.window),
      workspace_(context.workspace),
      canvas_(context.canvas),
      commands_(context.commands),
      window_(context.window) {
    for (const auto& [command, stacking] : stackings) {
        commands_.handle(command, [this, stacking = stacking] { stack(stacking); });
    }
    for (const auto& [command, alignment] : alignments) {
        commands_.handle(command, [this, alignment = alignment] { align(alignment); });
    }
    commands_.handle(Command::mnuDistributeAcross, [this] { distribute(Qt::Horizontal); });
    commands_.handle(Command::mnuDistributeDown, [this] { distribute(Qt::Vertical); });
    handleSnapping();
    connect(&canvas_.selection(), &Selection::commandsChanged, this, &ArrangeCommands::refresh);
    refresh();
}

void ArrangeCommands::handleSnapping() {
    commands_.makeCheckable({Command::mnuGuides});
    commands_[Command::mnuGuides]->setChecked(
        workspace_.settings.number(Setting::Guides).value_or(0) != 0);
    commands_.handle(Command::mnuGuides, [this] {
        workspace_.settings.set(Setting::Guides, commands_[Command::mnuGuides]->isChecked()
                                                     ? QStringLiteral("1")
                                                     : QStringLiteral("0"));
        takeSnapping();
    });
    commands_.handle(Command::mnuGrid, [this] { askGrid(); });
    takeSnapping();
}

void ArrangeCommands::takeSnapping() {
    const int wanted = workspace_.settings.number(Setting::Grid).value_or(0);
    const int grid = wanted > 0 && wanted <= WidestGrid ? wanted : 0;
    canvas_.mouse().setSnapping({commands_[Command::mnuGuides]->isChecked(), grid});
    canvas_.widget().setGrid(grid);
}

void ArrangeCommands::askGrid() {
    bool isTaken = false;
    const int grid = QInputDialog::getInt(
        &window_, tr("Grid"),
        tr("Distance of the grid's lines in pixels of the map; 0 for no grid:"),
        workspace_.settings.number(Setting::Grid).value_or(0), 0, WidestGrid, 1, &isTaken);
    if (isTaken) {
        workspace_.settings.set(Setting::Grid, QString::number(grid));
        takeSnapping();
    }
}

void ArrangeCommands::stack(Stacking stacking) {
    const std::vector<SpriteId> selected = canvas_.selection().ids();
    const qint32 frame = workspace_.Status.CurrentFrame;
    if (!selected.empty()) {
        workspace_.edits().push(std::make_unique<OrderSprites>(nameOf(stacking), Marks::Project,
                                                               workspace_.Frames().Item(frame),
                                                               frame, selected, stacking));
    }
}

void ArrangeCommands::align(Alignment alignment) {
    moveTo(QT_TRANSLATE_NOOP("Edits", "Align"),
           aligned(rectsOf(canvas_.selection().controls()), alignment));
}

void ArrangeCommands::distribute(Qt::Orientation direction) {
    moveTo(QT_TRANSLATE_NOOP("Edits", "Distribute"),
           distributed(rectsOf(canvas_.selection().controls()), direction));
}

void ArrangeCommands::moveTo(const char* name, const std::vector<QRect>& places) {
    std::vector<SpriteMove> moves;
    const std::vector<SpriteControl*> controls = canvas_.selection().controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        moves.push_back({controls[i]->id, places[i].topLeft()});
    }
    moveSprites(workspace_, moves, Marks::Project, {}, name);
}

void ArrangeCommands::refresh() {
    const std::size_t selected = canvas_.selection().ids().size();
    for (const auto& [command, stacking] : stackings) {
        commands_.setEnabled({command}, selected > 0);
    }
    for (const auto& [command, alignment] : alignments) {
        commands_.setEnabled({command}, selected > 1);
    }
    commands_.setEnabled({Command::mnuDistributeAcross, Command::mnuDistributeDown}, selected > 2);
}

}  // namespace nubivane
