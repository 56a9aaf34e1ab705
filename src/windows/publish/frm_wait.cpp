// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/publish/frm_wait.h"

#include "engine/model/workspace.h"
#include "windows/widgets/gif_animator.h"
#include "windows/widgets/path_label.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int InfoLines = 3;

}  // namespace

frmWait::frmWait(const Workspace& workspace, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      workspace_(workspace),
      pctUpload_(new GifAnimator(this)),
      lblInfo_(new PathLabel(InfoLines, this)),
      ProgressBar_(new QProgressBar(this)),
      lblAmount_(new QLabel(this)),
      lblInClear_(new QLabel(tr("the password travels in clear"), this)),
      cmdCancel_(new QPushButton(tr("&Cancel"), this)) {
    setObjectName("frmWait");
    pctUpload_->setObjectName("pctUpload");
    pctUpload_->setFramed(false);
    lblInfo_->setObjectName("lblInfo");
    ProgressBar_->setObjectName("ProgressBar");
    ProgressBar_->setAccessibleName(tr("Progress of the upload"));
    ProgressBar_->setTextVisible(false);
    lblAmount_->setObjectName("lblAmount");
    lblInClear_->setObjectName("lblInClear");
    lblInClear_->hide();
    cmdCancel_->setObjectName("cmdCancel");
    cmdCancel_->setAutoDefault(false);  // a Return too many must not stop the upload
    connect(cmdCancel_, &QPushButton::clicked, this, &frmWait::cancelled);
    auto* column = new QVBoxLayout(this);
    column->addWidget(pctUpload_, 0, Qt::AlignHCenter);
    column->addWidget(lblInfo_);
    column->addWidget(ProgressBar_);
    column->addWidget(lblAmount_);
    column->addWidget(lblInClear_);
    column->addWidget(cmdCancel_, 0, Qt::AlignRight);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void frmWait::Init(const QString& caption) {
    setWindowTitle(caption);
    pctUpload_->playFile(workspace_.folder.entry(u"Media\\fileUpload.gif"_s));
    ProgressBar_->setValue(0);
    clock_.start();
    show();
}

void frmWait::setInfo(const QString& text) {
    lblInfo_->setText(text);
}

void frmWait::setProgress(int percent) {
    ProgressBar_->setValue(percent);
}

void frmWait::setAmount(qint64 sent, qint64 total) {
    if (total == 0 || sent == 0) {
        return;
    }
    const QLocale locale;
    const double seconds = std::max(static_cast<double>(clock_.elapsed()) / 1000.0, 0.1);
    const double speed = static_cast<double>(sent) / seconds;
    const auto left =
        static_cast<int>(static_cast<double>(std::max<qint64>(total - sent, 0)) / speed);
    lblAmount_->setText(tr("%1 of %2, %3/s, %4 s left")
                            .arg(locale.formattedDataSize(sent), locale.formattedDataSize(total),
                                 locale.formattedDataSize(static_cast<qint64>(speed)))
                            .arg(left));
}

void frmWait::showOpenLock() {
    lblInClear_->show();
}

void frmWait::disableCancel() {
    cmdCancel_->setEnabled(false);
}

void frmWait::closeEvent(QCloseEvent* event) {
    event->ignore();
}

}  // namespace nubivane
