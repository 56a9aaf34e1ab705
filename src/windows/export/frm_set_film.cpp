// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_set_film.h"

#include "engine/core/number_text.h"
#include "engine/core/shell.h"
#include "engine/export/film_export.h"
#include "engine/model/workspace.h"
#include "windows/widgets/scrspn.h"
#include "windows/widgets/select_on_focus.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace nubivane {

using namespace Qt::StringLiterals;

frmSetFilm::frmSetFilm(Workspace& workspace, Shell& shell, QWidget* parent)
    : ExportTargetDialog({.name = "frmSetFilm",
                          .caption = tr("Export frames animation"),
                          .folder = workspace.folder.path(),
                          .fileName = u"Animation.gif"_s,
                          .extension = u".gif"_s,
                          .type = tr("Gif files (*.gif)"),
                          .helpTopic = u"exportAnimation.htm"_s},
                         workspace, shell, parent),
      txtInterval_(new QLineEdit),
      scrlInterval_(new ScrSpn(this)) {
    txtInterval_->setObjectName("txtInterval");
    txtInterval_->setFixedWidth(10 * fontMetrics().averageCharWidth());
    new SelectOnFocus(txtInterval_);
    scrlInterval_->setObjectName("scrlInterval");
    scrlInterval_->setRange(MinFrameInterval, MaxFrameInterval);
    scrlInterval_->attach(*txtInterval_);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(txtInterval_);
    row->addWidget(scrlInterval_);
    row->addSpacing(fontMetrics().averageCharWidth());
    row->addWidget(new QLabel(tr("(1/100 s)")));
    row->addStretch();
    addOption(tr("Frames &interval:"), txtInterval_, row);
}

qint16 frmSetFilm::FrameInterval() const {
    return static_cast<qint16>(scrlInterval_->value());
}

bool frmSetFilm::optionsAreValid() {
    const auto interval = integerPart(txtInterval_->text());
    if (!interval || *interval < scrlInterval_->min() || *interval > scrlInterval_->max()) {
        shell().messageBox({tr("Insert a valid frames interval"), Icon::Critical, Buttons::Ok, {}});
        txtInterval_->setFocus();
        return false;
    }
    scrlInterval_->setValue(*interval);
    return true;
}

}  // namespace nubivane
