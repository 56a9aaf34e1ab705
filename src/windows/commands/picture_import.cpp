// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/picture_import.h"

#include "engine/collections/entry_names.h"
#include "engine/collections/picture_check.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "windows/canvas/sprite_payload.h"
#include "windows/collections/frm_copy.h"
#include "windows/panes/frame_canvas.h"
#include "windows/panes/palette.h"

namespace nubivane {

PictureImport::PictureImport(const CanvasContext& context, Palette& palette)
    : QObject(&context.window),
      workspace_(context.workspace),
      shell_(context.shell),
      canvas_(context.canvas),
      window_(context.window),
      palette_(palette) {
    connect(&palette_, &Palette::picturesDropped, this,
            [this](const QStringList& files) { import(files); });
    connect(&canvas_.widget(), &MapCanvas::picturesDropped, this,
            [this](const QStringList& files, QPoint position) {
                const QStringList symbols = import(files);
                if (!symbols.isEmpty()) {
                    canvas_.placement().drop(
                        SpritePayload{sprite_type::Symbol, symbols.front(), symbols.mid(1)}.text(),
                        position);
                }
            });
}

QStringList PictureImport::import(const QStringList& files) {
    const QString folder = palette_.currentFolder();
    if (folder.isEmpty()) {
        shell_.messageBox({tr("Choose a collection that the palette shows; the pictures go there."),
                           Icon::Exclamation,
                           Buttons::Ok,
                           {}});
        return {};
    }
    QStringList symbols;
    for (const QString& source : files) {
        const QString refusal = checkSymbolFile(source);
        if (!refusal.isEmpty()) {
            shell_.messageBox(
                {getFileName(source) + u'\n' + refusal, Icon::Critical, Buttons::Ok, {}});
            continue;
        }
        const QString target =
            folder + u'\\' + freeFileName(folder, validFileName(getFileName(source)));
        frmCopy(workspace_, shell_, &window_).Init(source, target);
        if (host_files::fileExists(target)) {
            symbols << target;
        }
    }
    if (!symbols.isEmpty()) {
        palette_.refreshCurrentList();
        palette_.currentList()->selectFile(symbols.front());
    }
    return symbols;
}

}  // namespace nubivane
