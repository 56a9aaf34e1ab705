// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/explorer.h"

#include "engine/core/host_files.h"

#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace nubivane {

Explorer::Explorer(QWidget* parent) : QTreeView(parent), folders_(new QFileSystemModel(this)) {
    icons_.setOptions(QFileIconProvider::DontUseCustomDirectoryIcons);
    folders_->setIconProvider(&icons_);
    folders_->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    folders_->setRootPath(QDir::rootPath());
    setModel(folders_);
    setHeaderHidden(true);
    for (int column = 1; column < folders_->columnCount(); ++column) {
        hideColumn(column);
    }
    // A long name widens the column, so that it can be scrolled to.
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    setUniformRowHeights(true);
    setCurrentIndex(folders_->index(QDir::rootPath()));
    expand(currentIndex());
    // Neighbours come in one after the other, get sorted, and push the selected one away.
    connect(folders_, &QFileSystemModel::directoryLoaded, this, &Explorer::bringIntoView,
            Qt::QueuedConnection);
    connect(folders_, &QFileSystemModel::layoutChanged, this, &Explorer::bringIntoView,
            Qt::QueuedConnection);
    connect(this, &QTreeView::expanded, this, [this] { touched_ = touched_ || hasFocus(); });
    connect(this, &QTreeView::collapsed, this, [this] { touched_ = true; });
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] { touched_ = true; });
}

QString Explorer::folder() const {
    return host_files::toModel(QDir::toNativeSeparators(folders_->filePath(currentIndex())));
}

void Explorer::setFolder(const QString& path) {
    if (!host_files::folderExists(path)) {
        return;
    }
    const QModelIndex index =
        folders_->index(QDir::cleanPath(QDir(host_files::toHost(path)).absolutePath()));
    if (index.isValid()) {
        setCurrentIndex(index);
        expand(index.parent());
        touched_ = false;
        bringIntoView();
    }
}

void Explorer::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    touched_ = true;
    if (current.isValid()) {
        Q_EMIT folderChanged(folder());
    }
}

void Explorer::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    bringIntoView();
}

void Explorer::wheelEvent(QWheelEvent* event) {
    touched_ = true;
    QTreeView::wheelEvent(event);
}

/// The selection is as wide as the tree.
int Explorer::sizeHintForColumn(int column) const {
    return std::max(QTreeView::sizeHintForColumn(column), viewport()->width());
}

void Explorer::bringIntoView() {
    if (!touched_) {
        scrollTo(currentIndex(), QAbstractItemView::PositionAtCenter);
        horizontalScrollBar()->setValue(0);
    }
}

}  // namespace nubivane
