// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/notice_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 4;

}  // namespace

Notice::Notice(const QString& sentence, QWidget* parent)
    : QWidget(parent), sentence_(new QLabel(this)), row_(new QHBoxLayout(this)) {
    setObjectName(u"notice"_s);
    sentence_->setObjectName(u"noticeText"_s);
    sentence_->setTextFormat(Qt::PlainText);
    sentence_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // A long sentence must not push the buttons out of the window; the tool tip has all of it.
    sentence_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row_->setContentsMargins(Margin, 0, Margin, 0);
    row_->addWidget(sentence_, 1);
    setText(sentence);
}

QString Notice::text() const {
    return sentence_->text();
}

void Notice::setText(const QString& sentence) {
    sentence_->setText(sentence);
    sentence_->setToolTip(sentence);
}

QPushButton* Notice::addButton(const QString& name, const QString& caption, const QString& hint) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setToolTip(hint);
    button->setAutoDefault(false);
    row_->addWidget(button);
    return button;
}

NoticeBar::NoticeBar(QWidget* parent)
    : QToolBar(parent), lines_(new QWidget(this)), column_(new QVBoxLayout(lines_)) {
    setObjectName(u"noticeBar"_s);
    setWindowTitle(tr("Notices"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(2);
    lines_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    addWidget(lines_);
    hide();
}

Notice* NoticeBar::tell(const QString& sentence) {
    auto* notice = new Notice(sentence, lines_);
    column_->addWidget(notice);
    notice->show();
    fit();
    return notice;
}

Notice* NoticeBar::tellClosable(const QString& sentence) {
    Notice* notice = tell(sentence);
    connect(notice->addButton(u"noticeClose"_s, tr("Close"), tr("Take this sentence away")),
            &QPushButton::clicked, this, [this, notice] { remove(notice); });
    fit();
    return notice;
}

void NoticeBar::remove(Notice* notice) {
    if (notice) {
        column_->removeWidget(notice);
        notice->hide();
        notice->deleteLater();  // it may be its own button that asks
        fit();
    }
}

void NoticeBar::fit() {
    lines_->setMinimumHeight(column_->sizeHint().height());
    setVisible(column_->count() > 0);
}

}  // namespace nubivane
