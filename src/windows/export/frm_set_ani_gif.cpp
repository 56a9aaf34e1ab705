// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_set_ani_gif.h"

#include "engine/model/workspace.h"

#include <QComboBox>

namespace nubivane {

using namespace Qt::StringLiterals;

frmSetAniGif::frmSetAniGif(Workspace& workspace, Shell& shell, QWidget* parent)
    : ExportTargetDialog({.name = "frmSetAniGif",
                          .caption = tr("Export gif animated "),
                          .folder = workspace.folder.path(),
                          .fileName = u"FileGif.gif"_s,
                          .extension = u".gif"_s,
                          .type = tr("Gif animated (*.gif)"),
                          .helpTopic = u"exportAniGif.htm"_s},
                         workspace, shell, parent),
      cboCompression_(makeCompression()) {
    addOption(tr("&Compression:"), cboCompression_);
}

qint16 frmSetAniGif::GifCompression() const {
    return static_cast<qint16>(cboCompression_->currentIndex() + 1);
}

}  // namespace nubivane
