// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/status_line.h"

#include "windows/widgets/combo_ex.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QString percentText(int percent) {
    return StatusLine::tr("%1 %").arg(percent);
}

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent),
      lblStatus_(new QLabel(this)),
      cmdShowInFolder_(new QToolButton(this)),
      lblSelection_(new QLabel(this)),
      lblPosition_(new QLabel(this)),
      cboZoom_(new comboEx(this)) {
    setObjectName("statusLine");
    setSizeGripEnabled(false);
    lblStatus_->setObjectName("lblStatus");
    lblStatus_->setTextFormat(Qt::PlainText);
    lblStatus_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblStatus_->installEventFilter(this);
    cmdShowInFolder_->setObjectName("cmdShowInFolder");
    cmdShowInFolder_->setText(tr("Show in folder"));
    cmdShowInFolder_->setAutoRaise(true);
    cmdShowInFolder_->setFocusPolicy(Qt::TabFocus);
    cmdShowInFolder_->hide();
    addWidget(lblStatus_, 1);
    addPermanentWidget(cmdShowInFolder_);
    for (QLabel* label : {lblSelection_, lblPosition_}) {
        label->setTextFormat(Qt::PlainText);
        addPermanentWidget(label);
    }
    lblSelection_->setObjectName("lblSelection");
    lblPosition_->setObjectName("lblPosition");
    lblPosition_->setAccessibleDescription(tr("Position of the pointer on the map"));
    lblPosition_->setMinimumWidth(fontMetrics().horizontalAdvance(u"0000, 0000"_s));
    makeZoomField();
    connect(cmdShowInFolder_, &QToolButton::clicked, this, [this] { Q_EMIT folderAsked(folder_); });
}

void StatusLine::makeZoomField() {
    constexpr std::array Offered = {25, 50, 75, 100, 150, 200, 400, 800};
    cboZoom_->setObjectName("cboZoom");
    cboZoom_->setAccessibleName(tr("Size of the map on the screen"));
    cboZoom_->setToolTip(tr("Size of the map on the screen"));
    cboZoom_->setEditable(true);
    cboZoom_->lineEdit()->setAccessibleName(cboZoom_->accessibleName());
    cboZoom_->view()->setAccessibleName(cboZoom_->accessibleName());
    cboZoom_->setInsertPolicy(QComboBox::NoInsert);
    // The line stays as low as it is for text alone.
    cboZoom_->setFrame(false);
    // A ground of its own would end beside the arrow.
    QPalette flat = cboZoom_->lineEdit()->palette();
    flat.setColor(QPalette::Base, Qt::transparent);
    cboZoom_->lineEdit()->setPalette(flat);
    cboZoom_->setFixedHeight(fontMetrics().height() + 2);
    // Keys have commands of their own for it; on the way of the Tab key it would only be one more
    // stop.
    cboZoom_->setFocusPolicy(Qt::ClickFocus);
    for (const int percent : Offered) {
        cboZoom_->addItem(percentText(percent));
    }
    cboZoom_->addItem(tr("Whole map"));
    cboZoom_->setFixedWidth(
        fontMetrics().horizontalAdvance(cboZoom_->itemText(cboZoom_->count() - 1)) + 50);
    addPermanentWidget(cboZoom_);
    setZoom(percent_);
    connect(cboZoom_, &QComboBox::textActivated, this, &StatusLine::takeZoom);
    connect(cboZoom_->lineEdit(), &QLineEdit::editingFinished, this,
            [this] { takeZoom(cboZoom_->currentText()); });
}

/// A text that is no number leaves the map as it is.
void StatusLine::takeZoom(const QString& text) {
    if (text == tr("Whole map")) {
        Q_EMIT wholeMapAsked();
        return;
    }
    bool isNumber = false;
    const int percent = QString(text).remove(u'%').trimmed().toInt(&isNumber);
    if (isNumber && percent != percent_) {
        Q_EMIT zoomAsked(percent);
    }
    setZoom(percent_);
}

void StatusLine::setZoom(int percent) {
    percent_ = percent;
    cboZoom_->setEditText(percentText(percent));
}

void StatusLine::setPosition(std::optional<QPoint> position) {
    lblPosition_->setText(position ? tr("%1, %2").arg(position->x()).arg(position->y())
                                   : QString());
}

void StatusLine::setSelection(const QString& text) {
    lblSelection_->setText(text);
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

/// The room for the text also changes when its neighbours say more or less.
bool StatusLine::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lblStatus_ && event->type() == QEvent::Resize) {
        elide();
    }
    return QStatusBar::eventFilter(watched, event);
}

}  // namespace nubivane
