// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/publish/frm_wait.h"

#include "engine/model/workspace.h"
#include "windows/widgets/gif_animator.h"
#include "windows/widgets/path_label.h"

#include <QCloseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace nubivane {

namespace {

constexpr int InfoLines = 3;

}  // namespace

frmWait::frmWait(const Workspace& workspace, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      workspace_(workspace),
      pctUpload_(new GifAnimator(this)),
      lblInfo_(new PathLabel(InfoLines, this)),
      ProgressBar_(new QProgressBar(this)),
      cmdCancel_(new QPushButton(tr("&Cancel"), this)) {
    setObjectName("frmWait");
    pctUpload_->setObjectName("pctUpload");
    pctUpload_->setFramed(false);
    lblInfo_->setObjectName("lblInfo");
    ProgressBar_->setObjectName("ProgressBar");
    ProgressBar_->setAccessibleName(tr("Progress of the upload"));
    ProgressBar_->setTextVisible(false);
    cmdCancel_->setObjectName("cmdCancel");
    cmdCancel_->setAutoDefault(false);  // a Return too many must not stop the upload
    connect(cmdCancel_, &QPushButton::clicked, this, [this] { cancelled(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(pctUpload_, 0, Qt::AlignHCenter);
    column->addWidget(lblInfo_);
    column->addWidget(ProgressBar_);
    column->addWidget(cmdCancel_, 0, Qt::AlignRight);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void frmWait::Init(const QString& caption) {
    setWindowTitle(caption);
    pctUpload_->playFile(workspace_.folder.entry("Media\\fileUpload.gif"));
    ProgressBar_->setValue(0);
    show();
}

void frmWait::setInfo(const QString& text) {
    lblInfo_->setText(text);
}

void frmWait::setProgress(int percent) {
    ProgressBar_->setValue(percent);
}

void frmWait::disableCancel() {
    cmdCancel_->setEnabled(false);
}

void frmWait::closeEvent(QCloseEvent* event) {
    event->ignore();
}

}  // namespace nubivane
