// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/frm_history.h"

#include "engine/model/edits/project_edits.h"
#include "windows/commands/edit_pictures.h"
#include "windows/widgets/screen_room.h"

#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace nubivane {

namespace {

constexpr int Margin = 6;
constexpr int StateRole = Qt::UserRole;

}  // namespace

frmHistory::frmHistory(const ProjectEdits& edits, EditPictures& pictures, QWidget* parent)
    : QDialog(parent, Qt::Tool),
      edits_(edits),
      pictures_(pictures),
      list_(new QListWidget(this)),
      forgotten_(new QLabel(this)) {
    setObjectName("frmHistory");
    setWindowTitle(tr("History"));
    list_->setObjectName("lstEdits");
    list_->setAccessibleName(tr("Edits"));
    list_->setIconSize(EditPictures::Bounds);
    list_->setUniformItemSizes(true);
    list_->setSpacing(1);
    forgotten_->setObjectName("lblForgotten");
    forgotten_->setText(tr("Older edits are no longer kept."));
    forgotten_->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->addWidget(forgotten_);
    column->addWidget(list_);
    connect(list_, &QListWidget::itemClicked, this, &frmHistory::choose);
    connect(list_, &QListWidget::itemActivated, this, &frmHistory::choose);
    connect(&pictures, &EditPictures::taken, this, &frmHistory::showPicture);
    resize(withinScreen(*this, {300, 420}));
    refresh();
}

/// Only rows that show another state than before are written anew: the list may be long, and it is
/// brought up to date at every edit.
void frmHistory::refresh() {
    forgotten_->setVisible(edits_.hasForgotten());
    const int rows = edits_.count() + 1;
    while (list_->count() > rows) {
        delete list_->takeItem(list_->count() - 1);
    }
    while (list_->count() < rows) {
        list_->addItem(new QListWidgetItem);
    }
    const int saved = edits_.savedIndex().value_or(-1);
    // From the end, where what is new stands; older rows change only when the oldest edits go.
    for (int i = rows - 1; i >= 0 && list_->item(i)->data(StateRole) != edits_.stateAfter(i); --i) {
        list_->item(i)->setData(StateRole, edits_.stateAfter(i));
        setTexts(i, saved);
        showPicture(i);
    }
    for (const int row : {saved_, saved}) {
        setTexts(row, saved);
    }
    const int index = edits_.index();
    for (int i = std::min(index, shownIndex_); i <= std::max({index, shownIndex_, rows - 1}); ++i) {
        setLook(i);
    }
    saved_ = saved;
    shownIndex_ = index;
    list_->setCurrentRow(index);
}

void frmHistory::setTexts(int index, int saved) {
    QListWidgetItem* row = list_->item(index);
    if (!row) {
        return;
    }
    const QString text = index > 0               ? edits_.at(index - 1).text()
                         : edits_.hasForgotten() ? tr("Oldest state kept")
                                                 : tr("As opened");
    row->setText(index == saved ? tr("%1 (saved)").arg(text) : text);
}

void frmHistory::setLook(int index) {
    if (QListWidgetItem* row = list_->item(index)) {
        const bool undone = index > edits_.index();
        row->setForeground(
            palette().brush(undone ? QPalette::Disabled : QPalette::Active, QPalette::Text));
        QFont font = list_->font();
        font.setBold(index == edits_.index());
        row->setFont(font);
    }
}

void frmHistory::showPicture(int index) {
    if (QListWidgetItem* row = list_->item(index)) {
        QPixmap picture = pictures_.picture(index);
        if (picture.isNull()) {
            picture = QPixmap(EditPictures::Bounds);
            picture.fill(Qt::transparent);
        }
        row->setIcon(QIcon(picture));
    }
}

void frmHistory::choose(const QListWidgetItem* row) {
    if (row) {
        Q_EMIT chosen(list_->row(row));
    }
}

}  // namespace nubivane
