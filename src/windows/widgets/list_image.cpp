// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/list_image.h"

#include "engine/collections/picture_check.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/picture/animation_cache.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QThreadPool>
#include <QWheelEvent>

#include <algorithm>
#include <atomic>

namespace nubivane {

namespace {

constexpr int LargestThumbnail = 128;
constexpr int CellMargin = 14;  // of a cell beside its thumbnail, at least
constexpr int Spacing = 2;
constexpr int CaptionLines = 2;
constexpr int CellPadding = 4;

/// "partly-cloudy.gif" reads "partly cloudy".
QString captionOf(const QString& path) {
    return stripExtension(getFileName(path)).replace(u'-', u' ').replace(u'_', u' ');
}

}  // namespace

/// Decodes files on a pool of its own, so that giving up a list only waits for the file in hand.
struct SymbolListModel::Loader {
    QThreadPool pool;
    std::atomic<bool> cancelled = false;

    ~Loader() {
        cancelled = true;
        pool.clear();
        pool.waitForDone();
    }
};

SymbolListModel::SymbolListModel(AnimationCache& animations, QObject* parent)
    : QAbstractListModel(parent), animations_(animations) {}

SymbolListModel::~SymbolListModel() = default;

void SymbolListModel::load(const QString& folder) {
    QStringList paths;
    if (!folder.isEmpty()) {
        for (const QString& name : host_files::fileNames(folder)) {
            if (hasPictureExtension(name)) {
                paths << folder + u'\\' + name;
            }
        }
    }
    loadFiles(paths);
}

void SymbolListModel::loadFiles(const QStringList& paths) {
    beginResetModel();
    ++generation_;
    loader_.reset();
    rows_.clear();
    bytes_ = 0;
    for (const QString& path : paths) {
        rows_.push_back({path, nullptr});
    }
    endResetModel();
    if (rows_.empty()) {
        return;
    }
    loader_ = std::make_shared<Loader>();
    const QPointer<SymbolListModel> self(this);
    for (int row = 0; row < rowCount(); ++row) {
        loader_->pool.start(
            [this, self, row, generation = generation_, path = path(row), loader = loader_.get()] {
                if (loader->cancelled) {
                    return;
                }
                auto animation = animations_.get(path);
                QMetaObject::invokeMethod(
                    this,
                    [self, generation, row, animation] {
                        if (self) {
                            self->arrived(generation, row, animation);
                        }
                    },
                    Qt::QueuedConnection);
            });
    }
}

void SymbolListModel::arrived(int generation, int row, std::shared_ptr<const Animation> animation) {
    if (generation != generation_) {
        return;
    }
    if (animation && bytes_ + animation->bytes() > MaxListBytes) {
        constexpr int Side = LargestThumbnail;  // sharp on a dense screen too
        animation = std::make_shared<const Animation>(animation->still({Side, Side}));
    }
    bytes_ += animation ? animation->bytes() : 0;
    rows_[static_cast<std::size_t>(row)].animation = std::move(animation);
    Q_EMIT dataChanged(index(row), index(row));
    Q_EMIT animationsArrived();
}

void SymbolListModel::waitUntilLoaded() {
    if (loader_) {
        loader_->pool.waitForDone();
    }
}

int SymbolListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant SymbolListModel::data(const QModelIndex& index, int role) const {
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return captionOf(path(index.row()));
        default:
            return {};
    }
}

Qt::ItemFlags SymbolListModel::flags(const QModelIndex&) const {
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
}

/// Paints a cell: the thumbnail's image of the moment over its caption.
class ListImage::Painter : public QStyledItemDelegate {
  public:
    Painter(const ListImage& list, QObject* parent) : QStyledItemDelegate(parent), list_(list) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        // The columns share the whole width; a caption of a long word in a large font still fits.
        const int least = std::max(list_.thumbnailSize_ + CellMargin,
                                   9 * option.fontMetrics.averageCharWidth() + 8);
        const int room = list_.viewport()->width() - 3 * Spacing;  // views keep some for a bar
        const int columns = std::max(1, room / (least + Spacing));
        return {
            std::max(least, room / columns - Spacing),
            list_.thumbnailSize_ + 3 * CellPadding + CaptionLines * option.fontMetrics.height()};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool selected = option.state & QStyle::State_Selected;
        const QPalette& colors = option.palette;
        const QRect cell = option.rect.adjusted(1, 1, -1, -1);
        painter->save();
        if (selected || option.state & QStyle::State_MouseOver) {
            QColor ground = colors.color(QPalette::Highlight);
            ground.setAlpha(selected ? 70 : 30);
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setBrush(ground);
            painter->setPen(option.state & QStyle::State_HasFocus
                                ? QPen(colors.color(QPalette::Highlight), 1)
                                : QPen(Qt::NoPen));
            painter->drawRoundedRect(QRectF(cell).adjusted(.5, .5, -.5, -.5), 4, 4);
        }
        const int side = list_.thumbnailSize_;
        const QRect picture(cell.center().x() - side / 2, cell.top() + CellPadding, side, side);
        if (const auto animation = list_.model_->animation(index.row())) {
            paintThumbnail(*painter, picture, *animation);
        }
        painter->setPen(colors.color(QPalette::Text));
        const QRect text(option.rect.left(), picture.bottom() + CellPadding, option.rect.width(),
                         cell.bottom() - picture.bottom() - CellPadding);
        paintCaption(*painter, text, index.data().toString());
        painter->restore();
    }

  private:
    /// In at most two lines, broken between words; what is still too long ends with an ellipsis.
    static void paintCaption(QPainter& painter, const QRect& area, const QString& caption) {
        QTextLayout layout(caption, painter.font());
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(area.width());
        const int broken = line.isValid() ? line.textLength() : 0;
        layout.endLayout();
        const QFontMetrics metrics = painter.fontMetrics();
        const auto paintLine = [&](int number, const QString& text) {
            const bool fits = metrics.horizontalAdvance(text) <= area.width();
            painter.drawText(area.translated(0, number * metrics.height()),
                             Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
                             fits ? text : metrics.elidedText(text, Qt::ElideRight, area.width()));
        };
        paintLine(0, caption.left(broken).trimmed());
        paintLine(1, caption.mid(broken).trimmed());
    }

    void paintThumbnail(QPainter& painter, const QRect& area, const Animation& animation) const {
        const QSize size =
            animation.size().width() > area.width() || animation.size().height() > area.height()
                ? animation.size().scaled(area.size(), Qt::KeepAspectRatio)
                : animation.size();
        QRect target(QPoint(), size);
        target.moveCenter(area.center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(target, animation.pictureAt(list_.time_.elapsed()));
    }

    const ListImage& list_;
};

ListImage::ListImage(AnimationCache& animations, QWidget* parent)
    : QListView(parent), model_(new SymbolListModel(animations, this)) {
    setModel(model_);
    setItemDelegate(new Painter(*this, this));
    setViewMode(QListView::IconMode);
    setResizeMode(QListView::Adjust);
    setMovement(QListView::Static);
    setUniformItemSizes(true);
    setSpacing(Spacing);
    setDragEnabled(true);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setMouseTracking(true);
    setAccessibleName(tr("Symbols"));
    time_.start();
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] {
        viewport()->update();
        play();
    });
    connect(model_, &SymbolListModel::animationsArrived, this, [this] {
        // A thousand come in one after the other; what is in sight is looked at now and then.
        constexpr int Pause = 20;
        if (isVisible() && !timer_.isActive()) {
            timer_.start(Pause);
        }
    });
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &ListImage::fileSelected);
    connect(this, &QListView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT fileActivated(model_->path(index.row())); });
}

void ListImage::load(const QString& folder) {
    model_->load(folder);
}

QString ListImage::selectedFile() const {
    return currentIndex().isValid() ? model_->path(currentIndex().row()) : QString();
}

QStringList ListImage::selectedFiles() const {
    QStringList files;
    for (const QModelIndex& index : selectionModel()->selectedIndexes()) {
        if (index == currentIndex()) {
            files.prepend(model_->path(index.row()));
        } else {
            files << model_->path(index.row());
        }
    }
    return files;
}

void ListImage::setThumbnailSize(int size) {
    thumbnailSize_ = std::min(size, LargestThumbnail);
    scheduleDelayedItemsLayout();
    viewport()->update();
}

void ListImage::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
    Q_EMIT menuAsked(index.isValid() ? model_->path(index.row()) : QString(),
                     byKey && index.isValid() ? viewport()->mapToGlobal(visualRect(index).center())
                                              : event->globalPos());
}

void ListImage::wheelEvent(QWheelEvent* event) {
    constexpr int Notch = 120;  // eighths of a degree
    if (event->modifiers() & Qt::ControlModifier) {
        Q_EMIT sizeTurned(event->angleDelta().y() / Notch);
        event->accept();
    } else {
        QListView::wheelEvent(event);
    }
}

void ListImage::selectFile(const QString& file) {
    for (int row = 0; row < model_->rowCount(); ++row) {
        if (model_->path(row) == file) {
            setCurrentIndex(model_->index(row));
            return;
        }
    }
}

/// Sets the timer to the next image that is due among the thumbnails in sight.
void ListImage::play() {
    timer_.stop();
    if (!isVisible()) {
        return;
    }
    constexpr qint64 Shortest = 40;  // a list need not play faster than 25 images a second
    qint64 next = -1;
    for (int row = 0; row < model_->rowCount(); ++row) {
        const auto animation = model_->animation(row);
        if (animation && animation->moves() &&
            visualRect(model_->index(row)).intersects(viewport()->rect())) {
            const qint64 due = animation->nextChange(time_.elapsed()).value_or(Shortest);
            next = next < 0 ? due : std::min(next, due);
        }
    }
    if (next >= 0) {
        timer_.start(static_cast<int>(std::max(Shortest, next)));
    }
}

void ListImage::startDrag(Qt::DropActions) {
    if (currentIndex().isValid()) {
        Q_EMIT dragStarting(model_->path(currentIndex().row()));
    }
}

void ListImage::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
        currentIndex().isValid()) {
        Q_EMIT fileActivated(selectedFile());
        return;
    }
    QListView::keyPressEvent(event);
}

void ListImage::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    play();
}

void ListImage::hideEvent(QHideEvent* event) {
    timer_.stop();
    QListView::hideEvent(event);
}

void ListImage::scrollContentsBy(int dx, int dy) {
    QListView::scrollContentsBy(dx, dy);
    play();
}

}  // namespace nubivane
