// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_set_ani_gif.h"

#include "engine/model/workspace.h"

#include <QComboBox>

namespace nubivane {

frmSetAniGif::frmSetAniGif(Workspace& workspace, Shell& shell, QWidget* parent)
    : ExportTargetDialog({.name = "frmSetAniGif",
                          .caption = "Export gif animated ",
                          .folder = workspace.folder.path(),
                          .fileName = "FileGif.gif",
                          .extension = ".gif",
                          .type = "Gif animated (*.gif)",
                          .helpTopic = "exportAniGif.htm"},
                         workspace, shell, parent),
      cboCompression_(makeCompression()) {
    addOption(tr("&Compression:"), cboCompression_);
}

qint16 frmSetAniGif::GifCompression() const {
    return static_cast<qint16>(cboCompression_->currentIndex() + 1);
}

}  // namespace nubivane
