// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/animation.h"

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QListView>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

namespace nubivane {

class AnimationCache;

/// The picture files of a folder with their animations, which are decoded on other threads and come
/// in one by one. Once they take `MaxListBytes` together, those that follow stand still, so that a
/// folder of thousands costs no more than that and a small picture each.
class SymbolListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    static constexpr qint64 MaxListBytes = qint64{128} * 1024 * 1024;

    SymbolListModel(AnimationCache& animations, QObject* parent);
    ~SymbolListModel() override;

    /// Lists a folder anew (path with backslashes), in name order.
    void load(const QString& folder);
    /// Lists files anew, in the order given.
    void loadFiles(const QStringList& paths);
    void clear() { loadFiles({}); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    QString path(int row) const { return rows_.at(static_cast<std::size_t>(row)).path; }
    /// The animation of a row; nothing while it is being decoded and for a file that is broken.
    std::shared_ptr<const Animation> animation(int row) const {
        return rows_.at(static_cast<std::size_t>(row)).animation;
    }
    /// Waits until all rows have come in. For tests and measurements.
    void waitUntilLoaded();

  Q_SIGNALS:
    void animationsArrived();

  private:
    struct Row {
        QString path;
        std::shared_ptr<const Animation> animation;
    };
    struct Loader;

    void arrived(int generation, int row, std::shared_ptr<const Animation> animation);

    AnimationCache& animations_;
    std::vector<Row> rows_;
    std::shared_ptr<Loader> loader_;
    int generation_ = 0;
    qint64 bytes_ = 0;  ///< taken by the animations that are here
};

/// A list of moving thumbnails, `listImageSymbols(i)`.
class ListImage : public QListView {
    Q_OBJECT

  public:
    static constexpr int UsualThumbnail = 64;

    ListImage(AnimationCache& animations, QWidget* parent);

    void load(const QString& folder);
    /// Lists files of any folders, in the order given.
    void loadFiles(const QStringList& paths) { model_->loadFiles(paths); }
    void clear() { model_->clear(); }
    /// How large a thumbnail may be on each side, pixels.
    void setThumbnailSize(int size);
    int thumbnailSize() const { return thumbnailSize_; }
    SymbolListModel& symbols() const { return *model_; }
    /// 0 when nothing is selected, otherwise counted from 1.
    int selectedIndex() const { return currentIndex().isValid() ? currentIndex().row() + 1 : 0; }
    QString selectedFile() const;
    /// All that are selected, the current one first.
    QStringList selectedFiles() const;
    /// Selects the thumbnail of a file if it is there.
    void selectFile(const QString& file);

  Q_SIGNALS:
    void fileSelected();  ///< not told when a folder is listed anew
    void dragStarting(const QString& file);
    void fileActivated(const QString& file);  ///< Enter or a double click
    void menuAsked(const QString& file, QPoint globalPosition);
    /// Ctrl and the wheel: larger ones for a positive number.
    void sizeTurned(int steps);

  protected:
    void startDrag(Qt::DropActions actions) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    class Painter;
    void play();

    SymbolListModel* model_;
    QTimer timer_;
    QElapsedTimer time_;
    int thumbnailSize_ = UsualThumbnail;
};

}  // namespace nubivane
