// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_set_avi.h"

#include "windows/widgets/combo_ex.h"

#include <QComboBox>

#include <initializer_list>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QComboBox* makeSizes(const char* name, std::initializer_list<int> sizes, int selected) {
    auto* box = new comboEx;
    box->setObjectName(name);
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    for (const int size : sizes) {
        box->addItem(QString::number(size), size);
    }
    box->setCurrentIndex(box->findData(selected));
    return box;
}

}  // namespace

frmSetAvi::frmSetAvi(Workspace& workspace, Shell& shell, QWidget* parent)
    : ExportTargetDialog({.name = "frmSetAvi",
                          .caption = tr("Export avi"),
                          .folder = u"c:\\dell"_s,
                          .fileName = u"FileAvi.avi"_s,
                          .extension = u".avi"_s,
                          .type = tr("Avi files (*.avi)"),
                          .helpTopic = u"exportAvi.htm"_s},
                         workspace, shell, parent),
      cboAviWidth_(makeSizes(
          "cboAviWidth",
          {160, 176, 180, 192, 240, 320, 352, 360, 384, 400, 480, 640, 704, 720, 768}, 320)),
      cboAviHeight_(makeSizes("cboAviHeight", {120, 144, 180, 240, 288, 300, 360, 480, 576}, 288)),
      cboCompression_(makeCompression()) {
    addOption(tr("&Width:"), cboAviWidth_);
    addOption(tr("H&eight:"), cboAviHeight_);
    addOption(tr("&Compression:"), cboCompression_);
}

QSize frmSetAvi::aviSize() const {
    return {cboAviWidth_->currentData().toInt(), cboAviHeight_->currentData().toInt()};
}

qint16 frmSetAvi::AviCompression() const {
    return static_cast<qint16>(cboCompression_->currentIndex() + 1);
}

}  // namespace nubivane
