// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/palette_search.h"

#include "engine/core/host_files.h"
#include "engine/model/workspace.h"
#include "windows/panes/symbol_memory.h"
#include "windows/widgets/list_image.h"

#include <QKeyEvent>

#include <utility>

namespace nubivane {

/// A key of its own leads to the field; on the way of the Tab key it would be one more stop.
PaletteSearch::PaletteSearch(Workspace& workspace, const SymbolMemory& memory, ListImage& found,
                             QWidget* palette)
    : QObject(palette),
      workspace_(workspace),
      memory_(memory),
      found_(found),
      txtSearch_(new QLineEdit(palette)),
      cmdFavourites_(new QToolButton(palette)) {
    txtSearch_->setObjectName("txtSearch");
    txtSearch_->setAccessibleName(tr("Search in all symbols"));
    txtSearch_->setPlaceholderText(tr("Search"));
    txtSearch_->setToolTip(tr("Search in all symbols"));
    txtSearch_->setClearButtonEnabled(true);
    txtSearch_->setFocusPolicy(Qt::ClickFocus);
    txtSearch_->installEventFilter(this);
    cmdFavourites_->setObjectName("cmdFavourites");
    cmdFavourites_->setText(QChar(0x2605));
    cmdFavourites_->setAccessibleName(tr("Favorites, and symbols used last"));
    cmdFavourites_->setToolTip(tr("Favorites, and symbols used last"));
    cmdFavourites_->setCheckable(true);
    cmdFavourites_->setAutoRaise(true);
    cmdFavourites_->setFocusPolicy(Qt::NoFocus);
    connect(txtSearch_, &QLineEdit::textChanged, this, &PaletteSearch::search);
    connect(cmdFavourites_, &QToolButton::clicked, this, &PaletteSearch::showFavourites);
}

void PaletteSearch::start() {
    txtSearch_->setFocus(Qt::ShortcutFocusReason);
    txtSearch_->selectAll();
}

void PaletteSearch::end() {
    cmdFavourites_->setChecked(false);
    txtSearch_->clear();
    Q_EMIT changed();
}

bool PaletteSearch::isActive() const {
    return !txtSearch_->text().isEmpty() || cmdFavourites_->isChecked();
}

void PaletteSearch::search() {
    const QString words = txtSearch_->text();
    if (!words.isEmpty()) {
        if (!std::exchange(namesRead_, true)) {
            QStringList folders;
            for (const cSymbolsCollection& collection : workspace_.Status.SymbolsCollection()) {
                folders << collection.Path;
            }
            index_.read(folders);
        }
        cmdFavourites_->setChecked(false);
        found_.loadFiles(index_.find(words));
    }
    Q_EMIT changed();
}

void PaletteSearch::showFavourites() {
    if (cmdFavourites_->isChecked()) {
        const QSignalBlocker quiet(txtSearch_);
        txtSearch_->clear();
        QStringList files = memory_.favourites() + memory_.recent();
        files.removeDuplicates();
        files.removeIf([](const QString& file) { return !host_files::fileExists(file); });
        found_.loadFiles(files);
    }
    Q_EMIT changed();
}

void PaletteSearch::refreshFavourites() {
    if (cmdFavourites_->isChecked()) {
        showFavourites();
    }
}

bool PaletteSearch::eventFilter(QObject* watched, QEvent* event) {
    if (watched != txtSearch_ || event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            txtSearch_->clear();
            break;
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            break;
        default:
            return false;
    }
    Q_EMIT listAsked();
    return true;
}

}  // namespace nubivane
