// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/palette.h"

#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "engine/export/label_painter.h"
#include "engine/model/forecast.h"
#include "engine/picture/animation_cache.h"
#include "windows/canvas/sprite_payload.h"
#include "windows/widgets/icons.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int Gap = 6;

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
      lblSymbolsMessage_(new QLabel(tr("Loading symbols collections. Wait..."), this)),
      emptyHint_(
          new QLabel(tr("No collection is shown. Choose one under Symbols, Collections."), this)) {
    tabSymbols_->setObjectName("tabSymbols");
    tabSymbols_->setAccessibleName(tr("Symbol collections"));
    tabSymbols_->setExpanding(false);
    tabSymbols_->setUsesScrollButtons(true);
    tabSymbols_->setDrawBase(false);
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
    lblSymbolsMessage_->setObjectName("lblSymbolsMessage");
    lblSymbolsMessage_->setAlignment(Qt::AlignCenter);
    lblSymbolsMessage_->setWordWrap(true);
    lblSymbolsMessage_->hide();
    emptyHint_->setAlignment(Qt::AlignCenter);
    emptyHint_->setWordWrap(true);
    connect(tabSymbols_, &QTabBar::currentChanged, this, &Palette::showCollectionTab);
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
    connect(list, &ListImage::dragStarting, this, [this](const QString& file) {
        startDrag(SpritePayload{sprite_type::Symbol, file}.text(), pictureOf(file));
    });
    connect(list, &ListImage::fileActivated, this, [this](const QString& file) {
        if (mayPlace()) {
            Q_EMIT placeAsked(SpritePayload{sprite_type::Symbol, file}.text());
        }
    });
    listImageSymbols_.push_back({path, list});
    tabSymbols_->addTab(getFileName(path).replace(u'&', QLatin1String("&&")));
    tabSymbols_->setCurrentIndex(tabSymbols_->count() - 1);
}

void Palette::showCollectionTab() {
    const int selected = tabSymbols_->currentIndex();
    emptyHint_->setVisible(listImageSymbols_.empty());
    for (std::size_t i = 0; i < listImageSymbols_.size(); ++i) {
        Tab& tab = listImageSymbols_[i];
        const bool shown = static_cast<int>(i) == selected;
        if (shown && tab.list->symbols().rowCount() == 0) {
            lblSymbolsMessage_->show();
            tab.list->load(tab.folder);
            lblSymbolsMessage_->hide();
        }
        tab.list->setVisible(shown);
    }
    resizeEvent(nullptr);
}

void Palette::refreshCurrentList() {
    const HourglassGuard hourglass(shell_);
    if (ListImage* list = currentList()) {
        list->clear();
        list->load(listImageSymbols_[static_cast<std::size_t>(tabSymbols_->currentIndex())].folder);
    }
}

ListImage* Palette::currentList() const {
    const auto index = static_cast<std::size_t>(tabSymbols_->currentIndex());
    return index < listImageSymbols_.size() ? listImageSymbols_[index].list : nullptr;
}

QList<QWidget*> Palette::focusOrder() const {
    QList<QWidget*> order = {imgText_, tabSymbols_};
    for (const Tab& tab : listImageSymbols_) {
        order << tab.list;
    }
    return order;
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

void Palette::startDrag(const QString& payload, const QPixmap& picture) {
    if (!mayPlace()) {
        return;
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
    drag->exec(Qt::CopyAction);
    allowDrop(false);
}

QPixmap Palette::pictureOf(const QString& file) const {
    const auto animation = animations_.get(file);
    return animation ? QPixmap::fromImage(animation->pictureAt(0)) : QPixmap();
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
    imgText_->setGeometry(Gap, 0, std::max(0, width() - 2 * Gap), textHeight);
    const int tabTop = textHeight + Gap;
    const int tabHeight = tabSymbols_->count() > 0 ? tabSymbols_->sizeHint().height() : 0;
    tabSymbols_->setGeometry(Gap, tabTop, std::max(0, width() - Gap), tabHeight);
    const QRect area(Gap, tabTop + tabHeight, std::max(0, width() - Gap),
                     std::max(0, height() - tabTop - tabHeight));
    lblSymbolsMessage_->setGeometry(area);
    emptyHint_->setGeometry(area);
    for (const Tab& tab : listImageSymbols_) {
        tab.list->setGeometry(area);
    }
}

}  // namespace nubivane
