// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/recovery_bar.h"

#include "engine/core/path_text.h"

#include <QLocale>

namespace nubivane {

using namespace Qt::StringLiterals;

RecoveryBar::RecoveryBar(const QString& recoveryFolder, QWidget* parent)
    : QToolBar(parent), folder_(recoveryFolder), text_(new QLabel(this)) {
    setObjectName(u"recoveryBar"_s);
    setWindowTitle(tr("Recovered work"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    text_->setObjectName(u"recoveryText"_s);
    text_->setTextFormat(Qt::PlainText);
    text_->setMargin(4);
    addWidget(text_);
    restore_ = addAction(tr("Restore"));
    discard_ = addAction(tr("Discard"));
    show_ = addAction(tr("Show"));
    close_ = addAction(tr("Close"));
    restore_->setToolTip(tr("Open this work as it was, unsaved"));
    discard_->setToolTip(tr("Take this copy away for good"));
    show_->setToolTip(tr("Open a copy of it as a new project, and keep the entry"));
    connect(restore_, &QAction::triggered, this,
            [this] { Q_EMIT restoreWanted(entries_.first()); });
    connect(show_, &QAction::triggered, this, [this] { Q_EMIT showWanted(entries_.first()); });
    connect(discard_, &QAction::triggered, this, &RecoveryBar::discard);
    connect(close_, &QAction::triggered, this, &QWidget::hide);
    hide();
}

void RecoveryBar::refresh() {
    QStringList faults;
    entries_ = recoveryEntries(folder_, faults);
    entries_.removeIf([](const RecoveryEntry& entry) { return entry.isOpen; });
    setVisible(!entries_.isEmpty());
    for (QAction* action : {restore_, discard_, show_}) {
        action->setVisible(!entries_.isEmpty());
    }
    close_->setVisible(false);
    if (entries_.isEmpty()) {
        return;
    }
    const RecoveryEntry& entry = entries_.first();
    const QString name =
        entry.project.isEmpty() ? tr("a project without a name") : getFileName(entry.project);
    const QString time = QLocale().toString(entry.time.toLocalTime(), QLocale::ShortFormat);
    const qsizetype more = entries_.size() - 1;
    text_->setText(tr("Unsaved work on %1 from %2").arg(name, time) +
                   (more > 0 ? tr(", and %1 more").arg(more) : QString()));
}

void RecoveryBar::tell(const QString& sentence) {
    for (QAction* action : {restore_, discard_, show_}) {
        action->setVisible(false);
    }
    close_->setVisible(true);
    text_->setText(sentence);
    show();
}

void RecoveryBar::discard() {
    discardRecovered(entries_.first());
    refresh();
}

}  // namespace nubivane
