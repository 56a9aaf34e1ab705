// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/palette.h"

#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "engine/export/label_painter.h"
#include "engine/model/forecast.h"
#include "engine/picture/animation_cache.h"
#include "windows/canvas/sprite_payload.h"
#include "windows/widgets/dropped_pictures.h"
#include "windows/widgets/icons.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int Gap = 6;
constexpr int NarrowestSearch = 40;  // pixels

struct ThumbnailSize {
    int pixels;
    const char* caption;
};
constexpr std::array thumbnailSizes = {
    ThumbnailSize{48, QT_TRANSLATE_NOOP("nubivane::Palette", "Small thumbnails")},
    ThumbnailSize{64, QT_TRANSLATE_NOOP("nubivane::Palette", "Usual thumbnails")},
    ThumbnailSize{96, QT_TRANSLATE_NOOP("nubivane::Palette", "Large thumbnails")},
    ThumbnailSize{128, QT_TRANSLATE_NOOP("nubivane::Palette", "Very large thumbnails")}};

auto findSize(int pixels) {
    return std::find_if(thumbnailSizes.begin(), thumbnailSizes.end(),
                        [pixels](const ThumbnailSize& size) { return size.pixels == pixels; });
}

int thumbnailSizeIn(const SettingsStore& settings) {
    const int wanted = settings.number(Setting::ThumbnailSize).value_or(0);
    return findSize(wanted) != thumbnailSizes.end() ? wanted : ListImage::UsualThumbnail;
}

/// Behind the tabs of the collections; on a dark desktop a dark blue of the same hue.
QColor stripColor(const QPalette& palette) {
    const QColor blue(0xA6, 0xC4, 0xED);
    return palette.color(QPalette::Window).lightness() < 128 ? blue.darker(250) : blue;
}

/// A new label as it will look, for under the pointer.
QPixmap newLabelPicture() {
    cLabel label;
    label.Text = u"Label"_s;
    label.Font.Name = u"Arial"_s;
    label.Font.Size = 12;
    label.BackColor = NoColor;
    QPixmap pixmap(labelSize(label));
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintLabel(painter, label, pixmap.rect());
    return pixmap;
}

}  // namespace

Palette::Palette(Workspace& workspace, AnimationCache& animations, Shell& shell, QWidget* parent)
    : QWidget(parent),
      workspace_(workspace),
      animations_(animations),
      shell_(shell),
      tabSymbols_(new QTabBar(this)),
      imgText_(new QToolButton(this)),
      listImageFound_(new ListImage(animations, this)),
      memory_(workspace.settings),
      search_(new PaletteSearch(workspace, memory_, *listImageFound_, this)),
      lblSymbolsMessage_(new QLabel(tr("Loading symbols collections. Wait..."), this)),
      emptyHint_(
          new QLabel(tr("No collection is shown. Choose one under Symbols, Collections."), this)),
      thumbnailSize_(thumbnailSizeIn(workspace.settings)) {
    tabSymbols_->setObjectName("tabSymbols");
    tabSymbols_->setAccessibleName(tr("Symbol collections"));
    tabSymbols_->setExpanding(false);
    tabSymbols_->setUsesScrollButtons(true);
    tabSymbols_->setDrawBase(false);
    lblSymbolsMessage_->setObjectName("lblSymbolsMessage");
    lblSymbolsMessage_->setAlignment(Qt::AlignCenter);
    lblSymbolsMessage_->setWordWrap(true);
    lblSymbolsMessage_->hide();
    emptyHint_->setAlignment(Qt::AlignCenter);
    emptyHint_->setWordWrap(true);
    connect(tabSymbols_, &QTabBar::currentChanged, this, &Palette::showCollectionTab);
    listImageFound_->setObjectName("listImageFound");
    listImageFound_->hide();
    prepareList(*listImageFound_);
    connect(search_, &PaletteSearch::changed, this, &Palette::showLists);
    connect(search_, &PaletteSearch::listAsked, this, &Palette::enterList);
    connect(tabSymbols_, &QTabBar::tabBarClicked, search_, &PaletteSearch::end);
    setAcceptDrops(true);
    makeText();
}

void Palette::makeText() {
    imgText_->setObjectName("imgText");
    imgText_->setAccessibleName(tr("New label"));
    imgText_->setText(tr("Label"));
    imgText_->setToolTip(tr("Drag onto the map to place a label"));
    imgText_->setIcon(programIcon(u"text-tool"_s));
    imgText_->setIconSize({24, 24});
    imgText_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    imgText_->setAutoRaise(true);
    imgText_->setFocusPolicy(Qt::StrongFocus);
    imgText_->installEventFilter(this);
}

/// What the palette's lists have in common: one or several symbols are dragged out of them, Enter
/// places one, and their menu knows favorites and sizes.
void Palette::prepareList(ListImage& list) {
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list.setThumbnailSize(thumbnailSize_);
    connect(&list, &ListImage::dragStarting, this, [this, &list](const QString& file) {
        QStringList files = list.selectedFiles();
        files.removeAll(file);
        if (startDrag(SpritePayload{sprite_type::Symbol, file, files}.text(), pictureOf(file))) {
            memory_.placed(QStringList(file) + files);
        }
    });
    connect(&list, &ListImage::fileActivated, this, &Palette::place);
    connect(&list, &ListImage::menuAsked, this, &Palette::showMenu);
    connect(&list, &ListImage::sizeTurned, this, &Palette::turnThumbnailSize);
}

void Palette::showLists() {
    const bool found = search_->isActive();
    ListImage* const shown = found ? listImageFound_ : currentList();
    listImageFound_->setVisible(found);
    for (const Tab& tab : listImageSymbols_) {
        tab.list->setVisible(tab.list == shown);
    }
    emptyHint_->setVisible(!shown);
}

void Palette::place(const QString& file) {
    if (mayPlace()) {
        Q_EMIT placeAsked(SpritePayload{sprite_type::Symbol, file}.text());
        memory_.placed({file});
    }
}

void Palette::toggleFavourite(const QString& file) {
    memory_.toggleFavourite(file);
    search_->refreshFavourites();
}

void Palette::showMenu(const QString& file, QPoint globalPosition) {
    auto* menu = new QMenu(this);
    menu->setObjectName("menuSymbol");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!file.isEmpty()) {
        const bool isFavourite = memory_.isFavourite(file);
        connect(menu->addAction(tr("Place on the map")), &QAction::triggered, this,
                [this, file] { place(file); });
        connect(menu->addAction(isFavourite ? tr("Remove from favorites") : tr("Add to favorites")),
                &QAction::triggered, this, [this, file] { toggleFavourite(file); });
        menu->addSeparator();
    }
    for (const auto& [size, caption] : thumbnailSizes) {
        QAction* const action = menu->addAction(tr(caption));
        action->setCheckable(true);
        action->setChecked(size == thumbnailSize_);
        connect(action, &QAction::triggered, this, [this, size = size] { setThumbnailSize(size); });
    }
    menu->popup(globalPosition);
}

void Palette::setThumbnailSize(int size) {
    thumbnailSize_ = size;
    workspace_.settings.set(Setting::ThumbnailSize, QString::number(size));
    listImageFound_->setThumbnailSize(size);
    for (const Tab& tab : listImageSymbols_) {
        tab.list->setThumbnailSize(size);
    }
}

void Palette::turnThumbnailSize(int steps) {
    const auto at = static_cast<int>(findSize(thumbnailSize_) - thumbnailSizes.begin()) + steps;
    const int last = static_cast<int>(thumbnailSizes.size()) - 1;
    setThumbnailSize(thumbnailSizes[static_cast<std::size_t>(std::clamp(at, 0, last))].pixels);
}

ListImage* Palette::shownList() const {
    return listImageFound_->isHidden() ? currentList() : listImageFound_;
}

void Palette::loadSymbolsCollections() {
    QStringList paths;
    for (const cSymbolsCollection& collection : workspace_.Status.SymbolsCollection()) {
        if (collection.Checked) {
            paths << collection.Path;
        }
    }
    loadTabs(paths);
}

void Palette::loadTabs(const QStringList& paths) {
    const HourglassGuard hourglass(shell_);
    forgetNames();
    {
        const QSignalBlocker quiet(tabSymbols_);
        while (tabSymbols_->count() > 0) {
            tabSymbols_->removeTab(tabSymbols_->count() - 1);
        }
        for (const Tab& tab : listImageSymbols_) {
            tab.list->deleteLater();
        }
        listImageSymbols_.clear();
        for (const QString& path : paths) {
            addCollectionTab(path);
        }
        tabSymbols_->setCurrentIndex(0);
    }
    showCollectionTab();
    Q_EMIT listsChanged();
}

void Palette::addCollectionTab(const QString& path) {
    auto* list = new ListImage(animations_, this);
    list->setObjectName(u"listImageSymbols"_s + QString::number(listImageSymbols_.size() + 1));
    list->hide();
    prepareList(*list);
    listImageSymbols_.push_back({path, list});
    tabSymbols_->addTab(getFileName(path).replace(u'&', QLatin1String("&&")));
    tabSymbols_->setCurrentIndex(tabSymbols_->count() - 1);
}

void Palette::showCollectionTab() {
    const int selected = tabSymbols_->currentIndex();
    for (std::size_t i = 0; i < listImageSymbols_.size(); ++i) {
        Tab& tab = listImageSymbols_[i];
        const bool shown = static_cast<int>(i) == selected;
        if (shown && tab.list->symbols().rowCount() == 0) {
            lblSymbolsMessage_->show();
            tab.list->load(tab.folder);
            lblSymbolsMessage_->hide();
        }
    }
    showLists();
    resizeEvent(nullptr);
}

void Palette::refreshCurrentList() {
    const HourglassGuard hourglass(shell_);
    forgetNames();
    if (ListImage* list = currentList()) {
        list->clear();
        list->load(listImageSymbols_[static_cast<std::size_t>(tabSymbols_->currentIndex())].folder);
    }
}

ListImage* Palette::currentList() const {
    const auto index = static_cast<std::size_t>(tabSymbols_->currentIndex());
    return index < listImageSymbols_.size() ? listImageSymbols_[index].list : nullptr;
}

QString Palette::currentFolder() const {
    const auto index = static_cast<std::size_t>(tabSymbols_->currentIndex());
    return index < listImageSymbols_.size() ? listImageSymbols_[index].folder : QString();
}

void Palette::dragEnterEvent(QDragEnterEvent* event) {
    if (!droppedPictures(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void Palette::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT picturesDropped(droppedPictures(*event->mimeData()));
}

QList<QWidget*> Palette::focusOrder() const {
    QList<QWidget*> order = {imgText_, tabSymbols_};
    for (const Tab& tab : listImageSymbols_) {
        order << tab.list;
    }
    return order << listImageFound_;
}

bool Palette::mayPlace() {
    if (workspace_.Status.CurrentTool == Tool::cursor) {
        return true;
    }
    shell_.messageBox(
        {tr("This operation is not allowed in draw mode. Select cursor from toolbar and "
            "try again."),
         Icon::Exclamation,
         Buttons::Ok,
         {}});
    return false;
}

bool Palette::startDrag(const QString& payload, const QPixmap& picture) {
    if (!mayPlace()) {
        return false;
    }
    allowDrop(true);
    auto* payloadData = new QMimeData;
    payloadData->setText(payload);
    auto* drag = new QDrag(this);
    drag->setMimeData(payloadData);
    drag->setPixmap(picture);
    drag->setHotSpot(QPoint(picture.width() / 2, picture.height() / 2));
    // A screen without compositing shows transparent pixels as a solid box.
    QTimer::singleShot(0, drag, [mask = QRegion(picture.mask())] {
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            if (window->inherits("QShapedPixmapWindow")) {
                window->setMask(mask);
            }
        }
    });
    const bool dropped = drag->exec(Qt::CopyAction) == Qt::CopyAction;
    allowDrop(false);
    return dropped;
}

QPixmap Palette::pictureOf(const QString& file) const {
    const auto animation = animations_.get(file);
    return animation ? QPixmap::fromImage(animation->pictureAt(0)) : QPixmap();
}

void Palette::enterList() {
    if (ListImage* list = shownList()) {
        list->setFocus();
        if (!list->currentIndex().isValid()) {
            list->setCurrentIndex(list->model()->index(0, 0));
        }
    }
}

bool Palette::eventFilter(QObject* watched, QEvent* event) {
    if (watched != imgText_) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::MouseButtonPress) {
        textPress_ = static_cast<QMouseEvent*>(event)->position().toPoint();
    } else if (event->type() == QEvent::MouseMove) {
        const auto* move = static_cast<QMouseEvent*>(event);
        if (move->buttons() & Qt::LeftButton &&
            (move->position().toPoint() - textPress_).manhattanLength() >=
                QApplication::startDragDistance()) {
            imgText_->setDown(false);
            startDrag(SpritePayload{sprite_type::Label, {}}.text(), newLabelPicture());
            return true;
        }
    } else if (event->type() == QEvent::MouseButtonDblClick ||
               (event->type() == QEvent::KeyPress &&
                (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return ||
                 static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter ||
                 static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space))) {
        if (mayPlace()) {
            Q_EMIT placeAsked(SpritePayload{sprite_type::Label, {}}.text());
        }
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void Palette::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(tabSymbols_->geometry(), stripColor(palette()));
}

void Palette::resizeEvent(QResizeEvent*) {
    const int textHeight = imgText_->sizeHint().height();
    QLineEdit& field = search_->field();
    const int star = search_->favourites().sizeHint().width();
    const int label = std::min(imgText_->sizeHint().width(), std::max(0, width() - 2 * Gap));
    const int search = width() - label - star - 4 * Gap;
    imgText_->setGeometry(Gap, 0, label, textHeight);
    field.setVisible(search >= NarrowestSearch);
    const int fieldHeight = std::min(textHeight, field.sizeHint().height());
    const int fieldTop = (textHeight - fieldHeight) / 2;
    field.setGeometry(label + 2 * Gap, fieldTop, std::max(0, search), fieldHeight);
    search_->favourites().setGeometry(width() - star - Gap, fieldTop, star, fieldHeight);
    const int tabTop = textHeight + Gap;
    const int tabHeight = tabSymbols_->count() > 0 ? tabSymbols_->sizeHint().height() : 0;
    tabSymbols_->setGeometry(Gap, tabTop, std::max(0, width() - Gap), tabHeight);
    const QRect area(Gap, tabTop + tabHeight, std::max(0, width() - Gap),
                     std::max(0, height() - tabTop - tabHeight));
    lblSymbolsMessage_->setGeometry(area);
    emptyHint_->setGeometry(area);
    listImageFound_->setGeometry(area);
    for (const Tab& tab : listImageSymbols_) {
        tab.list->setGeometry(area);
    }
}

}  // namespace nubivane
