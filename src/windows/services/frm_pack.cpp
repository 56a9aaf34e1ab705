// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/services/frm_pack.h"

#include "windows/widgets/icons.h"
#include "windows/widgets/path_label.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int ImageSize = 48;
constexpr int InfoCharacters = 64;
constexpr int ListLines = 9;
constexpr int ProgressLines = 2;

/// Keeps the room of a part while it is hidden, so that nothing jumps.
void keepRoom(QWidget& part) {
    QSizePolicy policy = part.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    part.setSizePolicy(policy);
}

}  // namespace

frmPack::frmPack(const ProgramFolder& folder, const FtpServer& server, Shell& shell,
                 QWidget* parent, FtpOptions options)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      lblInfo_(new QLabel),
      txtInfo_(new QPlainTextEdit),
      lblProgress_(new PathLabel(ProgressLines, this)),
      ProgressBar_(new QProgressBar),
      cmdStart_(new QPushButton(tr("&Start"))),
      cmdCancelClose_(new QPushButton(tr("Close"))),
      packs_(folder, server, shell, *this, std::move(options)) {
    setObjectName("frmPack");
    setWindowTitle(tr("Weather symbols extended pack"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(makePack(), 1);
    column->addLayout(makeButtons());
    lblProgress_->hide();
    ProgressBar_->hide();
    cmdStart_->setEnabled(false);
}

QWidget* frmPack::makePack() {
    auto* fraPack = new QFrame;
    fraPack->setObjectName("fraPack");
    fraPack->setFrameShape(QFrame::StyledPanel);
    auto* Image1 = new QLabel;
    Image1->setObjectName("Image1");
    Image1->setPixmap(
        programIcon(u"pack"_s).pixmap(QSize(ImageSize, ImageSize), devicePixelRatioF()));
    lblInfo_->setObjectName("lblInfo");
    lblInfo_->setTextFormat(Qt::PlainText);
    lblInfo_->setWordWrap(true);
    lblInfo_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    txtInfo_->setObjectName("txtInfo");
    txtInfo_->setAccessibleName(tr("Packs"));
    txtInfo_->setReadOnly(true);
    txtInfo_->setTabChangesFocus(true);
    txtInfo_->setMinimumSize(InfoCharacters * fontMetrics().averageCharWidth(),
                             ListLines * fontMetrics().lineSpacing());
    lblProgress_->setObjectName("lblProgress");
    ProgressBar_->setObjectName("ProgressBar");
    ProgressBar_->setAccessibleName(tr("Progress of the file"));
    ProgressBar_->setTextVisible(false);
    keepRoom(*lblProgress_);
    keepRoom(*ProgressBar_);
    auto* grid = new QGridLayout(fraPack);
    grid->addWidget(Image1, 0, 0, Qt::AlignTop);
    grid->addWidget(lblInfo_, 0, 1);
    grid->addWidget(txtInfo_, 1, 0, 1, 2);
    grid->addWidget(lblProgress_, 2, 0, 1, 2);
    grid->addWidget(ProgressBar_, 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    return fraPack;
}

QLayout* frmPack::makeButtons() {
    cmdStart_->setObjectName("cmdStart");
    cmdStart_->setDefault(true);
    connect(cmdStart_, &QPushButton::clicked, this, [this] { packs_.start(); });
    cmdCancelClose_->setObjectName("cmdCancelClose");
    cmdCancelClose_->setAutoDefault(false);
    connect(cmdCancelClose_, &QPushButton::clicked, this, &frmPack::cmdCancelClose_Click);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdStart_);
    row->addWidget(cmdCancelClose_);
    return row;
}

void frmPack::Init() {
    // Once the window stands: the server may let it wait.
    QTimer::singleShot(0, this, [this] {
        setCursor(Qt::BusyCursor);
        packs_.open();
        unsetCursor();
    });
    exec();
}

void frmPack::cmdCancelClose_Click() {
    if (packs_.cancelClose()) {
        QDialog::reject();
    }
}

void frmPack::closeEvent(QCloseEvent* event) {
    event->ignore();
}

void frmPack::setLblInfo(const QString& text) {
    lblInfo_->setText(text);
}

void frmPack::setTxtInfo(const QString& text) {
    txtInfo_->setPlainText(text);
}

void frmPack::setLblProgress(const QString& text) {
    lblProgress_->setText(text);
}

void frmPack::setProgress(int percent) {
    ProgressBar_->setValue(percent);
}

void frmPack::showProgress(bool shown) {
    lblProgress_->setVisible(shown);
    ProgressBar_->setVisible(shown);
}

/// A disabled button would hand the keyboard on to the text.
void frmPack::enableStart(bool enabled) {
    if (!enabled && cmdStart_->hasFocus()) {
        cmdCancelClose_->setFocus();
    }
    cmdStart_->setEnabled(enabled);
}

void frmPack::setCancelCloseCaption(const QString& caption) {
    cmdCancelClose_->setText(caption);
}

}  // namespace nubivane
