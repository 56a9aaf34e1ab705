// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/file_list.h"

#include "engine/core/host_files.h"

#include <QDir>
#include <QKeyEvent>

namespace nubivane {

FileList::FileList(const QString& pattern, QWidget* parent)
    : QListWidget(parent), pattern_(pattern) {
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* row) { Q_EMIT fileChosen(row->text()); });
}

void FileList::showFolder(const QString& path) {
    clear();
    addItems(QDir(host_files::toHost(path))
                 .entryList({pattern_}, QDir::Files, QDir::Name | QDir::IgnoreCase));
    setCurrentRow(0);
}

void FileList::keyPressEvent(QKeyEvent* event) {
    const QListWidgetItem* before = currentItem();
    QListWidget::keyPressEvent(event);
    const QListWidgetItem* row = currentItem();
    if (row && (row != before || event->key() == Qt::Key_Space)) {
        Q_EMIT fileChosen(row->text());
    }
}

}  // namespace nubivane
