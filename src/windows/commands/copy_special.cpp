// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/copy_special.h"

#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "windows/commands/commands.h"
#include "windows/commands/frm_utility.h"
#include "windows/panes/frame_canvas.h"

namespace nubivane {

CopySpecial::CopySpecial(Workspace& workspace, Shell& shell, FrameCanvas& canvas,
                         Commands& commands, QWidget* window)
    : workspace_(workspace), shell_(shell), canvas_(canvas), window_(window) {
    commands.handle("mnuCopySymbols", [this] { mnuCopySymbols(); });
}

void CopySpecial::mnuCopySymbols() {
    {
        frmUtility window(workspace_, shell_, CopyInfo, window_);
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
    cFrames& frames = workspace_.Frames();
    if (source < 1 || source > frames.Count() || destination < 1 || destination > frames.Count() ||
        source == destination) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    // Only the current Frame has controls. It is shown anew without being left: leaving it would
    // put the canvas into a panel.
    const qint32 current = workspace_.Status.CurrentFrame;
    const bool isShown = current == source || current == destination;
    if (isShown) {
        canvas_.resetDrawing();
        canvas_.selection().clearSelection();
        canvas_.sprites().unloadFrameSprites(current);
    }
    cSprites& from = frames.Item(source).Sprites();
    cSprites& to = frames.Item(destination).Sprites();
    to.RemovaAll();
    copySprites(from, to, static_cast<qint16>(destination));
    if (cut) {
        from.RemovaAll();
    }
    if (isShown) {
        canvas_.sprites().loadFrameSprites(current);
    }
    projectChanged();
}

/// Copies get numbers behind those of the controls that are there.
void CopySpecial::copySprites(cSprites& source, cSprites& destination, qint16 frame) {
    qint32 index = canvas_.sprites().gifSymbol().upperBound();
    for (const cSymbol& symbol : source.Symbols()) {
        destination.Symbols().Add(frame, symbol.Name, ++index, symbol.Height, symbol.Width,
                                  symbol.PosX, symbol.PosY, symbol.FileGif, symbol.PathFileGif,
                                  symbol.Link, symbol.Tooltip, symbol.Note);
    }
    index = canvas_.sprites().lblTesto().upperBound();
    for (const cLabel& label : source.Labels()) {
        destination.Labels().Add(frame, label.Name, ++index, label.Height, label.Width, label.PosX,
                                 label.PosY, label.Text, label.FontName,
                                 QString::number(label.FontSize), label.FontBold, label.FontItalic,
                                 label.FontUnderline, label.FontOverline, label.FontStrikethourht,
                                 label.BackColor, label.Forecolor, QString::number(label.Border),
                                 label.BorderColor, label.Note);
    }
}

}  // namespace nubivane
