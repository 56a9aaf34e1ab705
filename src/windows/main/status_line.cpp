// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/status_line.h"

#include <QFileInfo>
#include <QLabel>
#include <QToolButton>

namespace nubivane {

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent), lblStatus_(new QLabel(this)), cmdShowInFolder_(new QToolButton(this)) {
    setObjectName("statusLine");
    setSizeGripEnabled(false);
    lblStatus_->setObjectName("lblStatus");
    lblStatus_->setTextFormat(Qt::PlainText);
    lblStatus_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    cmdShowInFolder_->setObjectName("cmdShowInFolder");
    cmdShowInFolder_->setText(tr("Show in folder"));
    cmdShowInFolder_->setAutoRaise(true);
    cmdShowInFolder_->setFocusPolicy(Qt::TabFocus);
    cmdShowInFolder_->hide();
    addWidget(lblStatus_, 1);
    addPermanentWidget(cmdShowInFolder_);
    connect(cmdShowInFolder_, &QToolButton::clicked, this, [this] { Q_EMIT folderAsked(folder_); });
}

void StatusLine::tell(const QString& text) {
    cmdShowInFolder_->hide();
    show(text);
}

void StatusLine::tellFile(const QString& text, const QString& hostFile) {
    folder_ = QFileInfo(hostFile).absolutePath();
    cmdShowInFolder_->show();
    show(text);
}

void StatusLine::setTool(const QString& text) {
    tell(text);
}

QString StatusLine::text() const {
    return text_;
}

void StatusLine::show(const QString& text) {
    text_ = text;
    lblStatus_->setToolTip(text.toHtmlEscaped());
    lblStatus_->setAccessibleName(text);
    elide();
}

void StatusLine::elide() {
    lblStatus_->setText(fontMetrics().elidedText(text_, Qt::ElideMiddle, lblStatus_->width()));
}

void StatusLine::resizeEvent(QResizeEvent* event) {
    QStatusBar::resizeEvent(event);
    elide();
}

}  // namespace nubivane
