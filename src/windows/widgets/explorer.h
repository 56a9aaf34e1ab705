// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileIconProvider>
#include <QTreeView>

class QFileSystemModel;

namespace nubivane {

/// The tree of the host's folders, in which one is always selected.
class Explorer : public QTreeView {
    Q_OBJECT

  public:
    /// Starts at the root of the file system.
    explicit Explorer(QWidget* parent);

    /// The selected folder as a path text. Only that of a root ends in a backslash.
    QString folder() const;
    /// Selects a folder (path text) and brings it into view. One that does not exist changes
    /// nothing.
    void setFolder(const QString& path);

  Q_SIGNALS:
    void folderChanged(const QString& path);

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    int sizeHintForColumn(int column) const override;

  private:
    void bringIntoView();

    QFileIconProvider icons_;
    QFileSystemModel* folders_;
    bool touched_ = false;  ///< the person has taken over: nothing scrolls by itself any more
};

}  // namespace nubivane
