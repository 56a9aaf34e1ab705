// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/copy_special.h"

#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "engine/model/edits/project_edits.h"
#include "windows/commands/commands.h"
#include "windows/commands/frm_utility.h"
#include "windows/panes/frame_canvas.h"

#include <QCoreApplication>

#include <utility>

namespace nubivane {

CopySpecial::CopySpecial(const CanvasContext& context)
    : QObject(&context.window),
      workspace_(context.workspace),
      shell_(context.shell),
      canvas_(context.canvas),
      window_(context.window) {
    context.commands.handle(Command::mnuCopySymbols, [this] { mnuCopySymbols(); });
}

void CopySpecial::mnuCopySymbols() {
    {
        frmUtility window(workspace_, shell_, CopyInfo, &window_);
        window.exec();
    }
    if (!trimBlanks(CopyInfo).isEmpty()) {
        copyBetweenFrames(CopyInfo);
    }
}

void CopySpecial::copyBetweenFrames(const QString& request) {
    const qint32 source = getField(request, 1).toInt();
    const qint32 destination = getField(request, 2).toInt();
    const bool cut = getField(request, 3) == u"1";
    const cFrames& frames = workspace_.Frames();
    if (source < 1 || source > frames.Count() || destination < 1 || destination > frames.Count() ||
        source == destination) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    const qint32 current = workspace_.Status.CurrentFrame;
    const bool isShown = current == source || current == destination;
    if (isShown) {
        canvas_.resetDrawing();
    }
    std::vector<ReplaceSprites::Row> rows{{destination, copies(source, destination, isShown)}};
    if (cut) {
        rows.push_back({source, {}});
    }
    workspace_.edits().push(std::make_unique<ReplaceSprites>(
        QT_TRANSLATE_NOOP("Edits", "Copy special"), Marks::Project, std::move(rows)));
}

/// Copies get numbers behind those of the controls that will be there.
ReplaceSprites::Sprites CopySpecial::copies(qint32 from, qint32 to, bool isShown) {
    const cSprites& source = workspace_.Frames().Item(from).Sprites();
    const cSprites& destination = workspace_.Frames().Item(to).Sprites();
    const auto copy = [&](const auto& item, auto& list, qint32& index) {
        auto record = item;
        record.Key_ = list.issueKey();
        record.Frame = static_cast<qint16>(to);
        record.Index = ++index;
        return record;
    };
    ReplaceSprites::Sprites sprites;
    qint32 index = isShown ? 0 : canvas_.sprites().gifSymbol().upperBound();
    for (const cSymbol& symbol : source.Symbols()) {
        sprites.symbols.push_back(copy(symbol, destination.Symbols(), index));
    }
    index = isShown ? 0 : canvas_.sprites().lblTesto().upperBound();
    for (const cLabel& label : source.Labels()) {
        sprites.labels.push_back(copy(label, destination.Labels(), index));
    }
    return sprites;
}

}  // namespace nubivane
