// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/publish/frm_wait.h"

#include "engine/model/workspace.h"
#include "windows/widgets/gif_animator.h"
#include "windows/widgets/icons.h"
#include "windows/widgets/path_label.h"

#include <QCloseEvent>
#include <QFontDatabase>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int InfoLines = 3;
constexpr int DetailLines = 12;
constexpr int MostLines = 2000;

}  // namespace

frmWait::frmWait(const Workspace& workspace, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      workspace_(workspace),
      pctUpload_(new GifAnimator(this)),
      lblInfo_(new PathLabel(InfoLines, this)),
      ProgressBar_(new QProgressBar(this)),
      lblAmount_(new QLabel(this)),
      lblChosen_(new QLabel(this)),
      lblInClear_(new QLabel(tr("the password travels in clear"), this)),
      txtConversation_(new QPlainTextEdit(this)),
      cmdDetails_(new QPushButton(tr("&Details"), this)),
      cmdCancel_(new QPushButton(tr("&Cancel"), this)) {
    setObjectName("frmWait");
    pctUpload_->setObjectName("pctUpload");
    pctUpload_->setBordered(false);
    lblInfo_->setObjectName("lblInfo");
    ProgressBar_->setObjectName("ProgressBar");
    ProgressBar_->setAccessibleName(tr("Progress of the upload"));
    ProgressBar_->setTextVisible(false);
    lblAmount_->setObjectName("lblAmount");
    lblInClear_->setObjectName("lblInClear");
    lblInClear_->hide();
    lblChosen_->setObjectName("lblChosen");
    makeDetails();
    cmdCancel_->setObjectName("cmdCancel");
    cmdCancel_->setAutoDefault(false);  // a Return too many must not stop the upload
    cmdCancel_->setFocus();
    connect(cmdCancel_, &QPushButton::clicked, this, &frmWait::cancelled);
    auto* column = new QVBoxLayout(this);
    column->addWidget(pctUpload_, 0, Qt::AlignHCenter);
    column->addWidget(lblInfo_);
    column->addWidget(ProgressBar_);
    column->addWidget(lblChosen_);
    column->addWidget(lblAmount_);
    column->addLayout(makeWarning());
    column->addWidget(txtConversation_);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdDetails_);
    buttons->addStretch();
    buttons->addWidget(cmdCancel_);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

QBoxLayout* frmWait::makeWarning() {
    imgLock_ = new QLabel(this);
    imgLock_->setObjectName("imgLock");
    imgLock_->setPixmap(programIcon(u"unlock"_s).pixmap(SmallIcon));
    imgLock_->hide();
    auto* row = new QHBoxLayout;
    row->addWidget(imgLock_);
    row->addWidget(lblInClear_, 1);
    return row;
}

/// What passes between us and the server, for whoever wants to know.
void frmWait::makeDetails() {
    txtConversation_->setObjectName("txtConversation");
    txtConversation_->setAccessibleName(tr("Conversation with the server"));
    txtConversation_->setReadOnly(true);
    txtConversation_->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtConversation_->setMaximumBlockCount(MostLines);
    txtConversation_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtConversation_->setFixedHeight(fontMetrics().height() * DetailLines);
    txtConversation_->hide();
    cmdDetails_->setObjectName("cmdDetails");
    cmdDetails_->setCheckable(true);
    cmdDetails_->setAutoDefault(false);
    connect(cmdDetails_, &QPushButton::toggled, txtConversation_, &QWidget::setVisible);
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

void frmWait::setChosen(qsizetype files, qsizetype all, qint64 bytes) {
    lblChosen_->setText(tr("%1 of %2 files to send, %3")
                            .arg(files)
                            .arg(all)
                            .arg(QLocale().formattedDataSize(bytes)));
}

void frmWait::addLine(const QString& line) {
    txtConversation_->appendPlainText(line);
}

QString frmWait::conversation() const {
    return txtConversation_->toPlainText();
}

void frmWait::showOpenLock() {
    imgLock_->show();
    lblInClear_->show();
}

void frmWait::disableCancel() {
    cmdCancel_->setEnabled(false);
}

void frmWait::closeEvent(QCloseEvent* event) {
    event->ignore();
}

}  // namespace nubivane
