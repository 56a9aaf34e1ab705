// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/frame_tabs.h"

#include "engine/core/shell.h"
#include "engine/model/edits/frame_edits.h"
#include "engine/model/edits/project_edits.h"
#include "windows/widgets/one_line.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t Forbidden[] = u"?*:/\\<>!\" ";

bool hasForbidden(const QString& name) {
    return std::any_of(name.cbegin(), name.cend(),
                       [](QChar c) { return QStringView(Forbidden).contains(c); });
}

/// Tabs as wide as their names, but for one that would take the strip for itself. They are not
/// squeezed either: a strip that is too full scrolls.
class NameTabs : public QTabBar {
  public:
    using QTabBar::QTabBar;

    /// Whether a name is shown with an ellipsis.
    bool isElided(int index) const { return QTabBar::tabSizeHint(index).width() > widest(); }

  protected:
    QSize tabSizeHint(int index) const override {
        const QSize size = QTabBar::tabSizeHint(index);
        return {std::min(size.width(), widest()), size.height()};
    }
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }

  private:
    int widest() const { return 32 * fontMetrics().averageCharWidth(); }
};

/// Sets a flag to false while it lives.
class TabEventsGuard {
  public:
    explicit TabEventsGuard(bool& enabled) : enabled_(enabled) { enabled_ = false; }
    ~TabEventsGuard() { enabled_ = true; }
    TabEventsGuard(const TabEventsGuard&) = delete;
    TabEventsGuard& operator=(const TabEventsGuard&) = delete;

  private:
    bool& enabled_;
};

}  // namespace

FrameTabs::FrameTabs(Workspace& workspace, Shell& shell, QWidget* parent)
    : QWidget(parent),
      workspace_(workspace),
      shell_(shell),
      tabDay_(new NameTabs(this)),
      txtDay_(new QLineEdit(this)),
      allFrames_(new QToolButton(this)) {
    tabDay_->setObjectName("tabDay");
    tabDay_->setAccessibleName(tr("Maps of the project"));
    tabDay_->setShape(QTabBar::RoundedSouth);
    tabDay_->setExpanding(false);
    tabDay_->setUsesScrollButtons(true);
    tabDay_->setElideMode(Qt::ElideRight);
    tabDay_->setDrawBase(false);
    tabDay_->installEventFilter(this);
    txtDay_->setObjectName("txtDay");
    txtDay_->setAccessibleName(tr("Name of the map"));
    keepOneLine(*txtDay_);
    txtDay_->hide();
    txtDay_->installEventFilter(this);
    allFrames_->setObjectName("allFrames");
    allFrames_->setAccessibleName(tr("All maps of the project"));
    allFrames_->setToolTip(tr("All maps of the project"));
    allFrames_->setAutoRaise(true);
    allFrames_->setArrowType(Qt::UpArrow);
    allFrames_->setPopupMode(QToolButton::InstantPopup);
    allFrames_->setMenu(new QMenu(allFrames_));
    allFrames_->hide();
    colorArrow();
    connect(allFrames_->menu(), &QMenu::aboutToShow, this, &FrameTabs::listFrames);
    connect(tabDay_, &QTabBar::currentChanged, this, [this] {
        txtDay_->hide();
        if (workspace_.TabEventsEnabled) {
            Q_EMIT frameSelected();
        }
    });
    workspace_.TabEventsEnabled = true;
    workspace_.edits().watch(*this);
}

FrameTabs::~FrameTabs() {
    workspace_.edits().unwatch(*this);
}

void FrameTabs::setTabDay(bool newProject) {
    const TabEventsGuard quiet(workspace_.TabEventsEnabled);
    txtDay_->hide();
    while (tabDay_->count() > 0) {
        tabDay_->removeTab(tabDay_->count() - 1);
    }
    captions_.clear();
    if (newProject) {
        nameNewProject(workspace_, QStringLiteral("Map1"));
    }
    matchTabs();
    select(1);
}

void FrameTabs::framesChanged() {
    matchTabs();
    select(workspace_.Status.CurrentFrame);
}

void FrameTabs::captionChanged(qint32 frame) {
    setCaption(frame - 1, workspace_.Frames().Item(frame).Texts().Label);
    layoutStrip();
}

/// Brings the tabs to what the project says, leaving alone those at both ends that are right.
void FrameTabs::matchTabs() {
    const TabEventsGuard quiet(workspace_.TabEventsEnabled);
    QStringList wanted;
    for (qint32 i = 1; i <= workspace_.Frames().Count(); ++i) {
        wanted << workspace_.Frames().Item(i).Texts().Label;
    }
    qsizetype first = 0;
    while (first < std::min(wanted.size(), captions_.size()) && wanted[first] == captions_[first]) {
        ++first;
    }
    qsizetype last = 0;  // counted from the end
    while (last < std::min(wanted.size(), captions_.size()) - first &&
           wanted[wanted.size() - 1 - last] == captions_[captions_.size() - 1 - last]) {
        ++last;
    }
    while (captions_.size() > first + last) {
        captions_.removeAt(first);
        tabDay_->removeTab(static_cast<int>(first));
    }
    for (qsizetype i = first; i < wanted.size() - last; ++i) {
        insertTab(static_cast<int>(i), wanted[i]);
    }
    layoutStrip();
}

void FrameTabs::insertTab(int index, const QString& caption) {
    captions_.insert(index, QString());
    tabDay_->insertTab(index, {});
    setCaption(index, caption);
}

void FrameTabs::select(int frame) {
    const TabEventsGuard quiet(workspace_.TabEventsEnabled);
    tabDay_->setCurrentIndex(frame - 1);
    showCaption();
}

void FrameTabs::showCaption() {
    txtDay_->setText(caption(selected()));
}

/// A tab shows a caption as it stands: an ampersand is no access key there.
void FrameTabs::setCaption(int index, const QString& caption) {
    captions_[index] = caption;
    tabDay_->setTabText(index, QString(caption).replace(u'&', QLatin1String("&&")));
    const bool elided = static_cast<NameTabs*>(tabDay_)->isElided(index);
    tabDay_->setTabToolTip(index, elided ? caption.toHtmlEscaped() : QString());
}

QString FrameTabs::freeFrameName() const {
    for (int i = 1;; ++i) {
        QString name = u"Map"_s + QString::number(i);
        if (!captions_.contains(name, Qt::CaseInsensitive)) {
            return name;
        }
    }
}

void FrameTabs::startRenaming() {
    if (selected() == 0) {
        return;
    }
    QRect place = tabDay_->tabRect(tabDay_->currentIndex()).translated(tabDay_->pos());
    place.setWidth(std::max(place.width(), 90));
    txtDay_->setGeometry(place);
    showCaption();
    txtDay_->show();
    txtDay_->raise();
    txtDay_->selectAll();
    txtDay_->setFocus();
}

bool FrameTabs::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tabDay_) {
        return tabEvent(*event);
    }
    if (watched == txtDay_ && event->type() == QEvent::KeyPress) {
        return renameKey(static_cast<QKeyEvent*>(event)->key());
    }
    if (watched == txtDay_ && event->type() == QEvent::FocusOut && !refusing_ &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        txtDay_->hide();
    }
    return QWidget::eventFilter(watched, event);
}

bool FrameTabs::tabEvent(QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress: {
            const auto& press = static_cast<QMouseEvent&>(event);
            return pressTab(press.position().toPoint(), press.button(),
                            press.globalPosition().toPoint());
        }
        case QEvent::MouseButtonDblClick: {
            const auto& press = static_cast<QMouseEvent&>(event);
            return renameTab(press.position().toPoint(), press.button());
        }
        case QEvent::MouseMove: {
            const auto& move = static_cast<QMouseEvent&>(event);
            return move.buttons() & Qt::LeftButton && dragTab(move.position().toPoint());
        }
        case QEvent::MouseButtonRelease:
            dropTab();
            return false;
        case QEvent::KeyPress:
            return moveTabByKey(static_cast<QKeyEvent&>(event));
        default:
            return false;
    }
}

bool FrameTabs::pressTab(const QPoint& position, Qt::MouseButton button, const QPoint& global) {
    const int index = tabDay_->tabAt(position);
    if (index >= 0 && index != tabDay_->currentIndex()) {
        tabDay_->setCurrentIndex(index);
    }
    if (button == Qt::RightButton) {
        Q_EMIT menuRequested(global);
    }
    pressed_ = index >= 0 && button == Qt::LeftButton ? std::optional(position) : std::nullopt;
    draggedFrom_ = -1;
    return index >= 0;
}

bool FrameTabs::renameTab(const QPoint& position, Qt::MouseButton button) {
    if (button != Qt::LeftButton || tabDay_->tabAt(position) != tabDay_->currentIndex()) {
        return false;
    }
    pressed_.reset();
    startRenaming();
    return true;
}

/// The tab follows the pointer past the middle of its neighbours.
bool FrameTabs::dragTab(const QPoint& position) {
    if (!pressed_) {
        return false;
    }
    if (draggedFrom_ < 0) {
        if ((position - *pressed_).manhattanLength() < QApplication::startDragDistance()) {
            return true;
        }
        draggedFrom_ = tabDay_->currentIndex();
    }
    const int current = tabDay_->currentIndex();
    const int over = tabDay_->tabAt({position.x(), tabDay_->tabRect(current).center().y()});
    if (over < 0 || over == current) {
        return true;
    }
    const int middle = tabDay_->tabRect(over).center().x();
    if (over > current ? position.x() >= middle : position.x() <= middle) {
        const TabEventsGuard quiet(workspace_.TabEventsEnabled);
        captions_.move(current, over);
        tabDay_->moveTab(current, over);
    }
    return true;
}

void FrameTabs::dropTab() {
    pressed_.reset();
    const int from = std::exchange(draggedFrom_, -1);
    const int to = tabDay_->currentIndex();
    if (from >= 0 && from != to) {
        Q_EMIT frameMoved(from + 1, to + 1);
    }
}

/// Ctrl and Shift with an arrow move the selected tab.
bool FrameTabs::moveTabByKey(const QKeyEvent& key) {
    const int step = key.key() == Qt::Key_Left ? -1 : key.key() == Qt::Key_Right ? 1 : 0;
    const int to = selected() + step;
    if (step == 0 || key.modifiers() != (Qt::ControlModifier | Qt::ShiftModifier) || to < 1 ||
        to > count()) {
        return false;
    }
    Q_EMIT frameMoved(selected(), to);
    return true;
}

bool FrameTabs::renameKey(int key) {
    Q_EMIT projectChanged();
    if (key == Qt::Key_Escape) {
        txtDay_->hide();
        tabDay_->setFocus();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (selected() > 0) {
            commitName();
        }
        return true;
    }
    return false;
}

void FrameTabs::commitName() {
    const QString name = txtDay_->text();
    if (hasForbidden(name)) {
        // The box takes the focus; the field stays with its text for correcting.
        refusing_ = true;
        shell_.messageBox({tr("Map name cannot contain any of the following characters:    \r\n"
                              "                     \\ /  : *  ? \" < > {Space} !"),
                           Icon::Exclamation,
                           Buttons::Ok,
                           {}});
        refusing_ = false;
        txtDay_->setFocus();
        return;
    }
    workspace_.edits().push(std::make_unique<RenameFrame>(workspace_.Status.CurrentFrame, name));
    txtDay_->hide();
    tabDay_->setFocus();
}

void FrameTabs::listFrames() {
    QMenu& menu = *allFrames_->menu();
    menu.clear();
    for (int index = 0; index < count(); ++index) {
        QAction* frame = menu.addAction(tabDay_->tabText(index));
        frame->setCheckable(true);
        frame->setChecked(index == tabDay_->currentIndex());
        connect(frame, &QAction::triggered, tabDay_,
                [this, index] { tabDay_->setCurrentIndex(index); });
    }
}

/// The strip is dark on light desktops too, and what stands on it must be seen on either.
void FrameTabs::colorArrow() {
    const QColor ground = palette().color(QPalette::Shadow);
    QPalette colors = palette();
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        colors.setColor(role, ground.lightness() < 140 ? Qt::white : Qt::black);
    }
    allFrames_->setPalette(colors);
}

void FrameTabs::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        colorArrow();
    }
    QWidget::changeEvent(event);
}

void FrameTabs::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), palette().shadow());
}

void FrameTabs::layoutStrip() {
    const bool tooMany = tabDay_->sizeHint().width() > width();
    const int button = tooMany ? allFrames_->sizeHint().width() : 0;
    allFrames_->setVisible(tooMany);
    allFrames_->setGeometry(width() - button, 0, button, height());
    tabDay_->setGeometry(0, 0, width() - button, height());
}

}  // namespace nubivane
