// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/frame_tabs.h"

#include "engine/core/shell.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace nubivane {

namespace {

constexpr char16_t Forbidden[] = u"?*:/\\<>!\" ";

bool hasForbidden(const QString& name) {
    return std::any_of(name.cbegin(), name.cend(),
                       [](QChar c) { return QStringView(Forbidden).contains(c); });
}

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
      tabDay_(new QTabBar(this)),
      txtDay_(new QLineEdit(this)),
      allFrames_(new QToolButton(this)) {
    tabDay_->setObjectName("tabDay");
    tabDay_->setAccessibleName(tr("Forecast periods"));
    tabDay_->setShape(QTabBar::RoundedSouth);
    tabDay_->setExpanding(false);
    tabDay_->setUsesScrollButtons(true);
    tabDay_->setElideMode(Qt::ElideNone);
    tabDay_->setDrawBase(false);
    tabDay_->installEventFilter(this);
    txtDay_->setObjectName("txtDay");
    txtDay_->setAccessibleName(tr("Name of the period"));
    txtDay_->hide();
    txtDay_->installEventFilter(this);
    allFrames_->setObjectName("allFrames");
    allFrames_->setAccessibleName(tr("All forecast periods"));
    allFrames_->setToolTip(tr("All forecast periods"));
    allFrames_->setAutoRaise(true);
    allFrames_->setArrowType(Qt::UpArrow);
    allFrames_->setPopupMode(QToolButton::InstantPopup);
    allFrames_->setMenu(new QMenu(allFrames_));
    allFrames_->hide();
    connect(allFrames_->menu(), &QMenu::aboutToShow, this, &FrameTabs::listFrames);
    connect(tabDay_, &QTabBar::currentChanged, this, [this] {
        txtDay_->hide();
        if (workspace_.TabEventsEnabled && frameSelected) {
            frameSelected();
        }
    });
    workspace_.TabEventsEnabled = true;
}

void FrameTabs::setTabDay(bool newProject) {
    const TabEventsGuard quiet(workspace_.TabEventsEnabled);
    txtDay_->hide();
    while (tabDay_->count() > 0) {
        tabDay_->removeTab(tabDay_->count() - 1);
    }
    captions_.clear();
    if (newProject) {
        workspace_.Frames().Item(1).Texts().Label = "Map1";
        append("Map1");
    } else {
        for (qint32 i = 1; i <= workspace_.Frames().Count(); ++i) {
            captions_ << QString();
            tabDay_->addTab({});
            setCaption(i - 1, workspace_.Frames().Item(i).Texts().Label);
        }
    }
    layoutStrip();
    select(1);
}

void FrameTabs::append(const QString& caption) {
    const TabEventsGuard quiet(workspace_.TabEventsEnabled);
    captions_ << caption;
    tabDay_->addTab({});
    setCaption(count() - 1, caption);
    layoutStrip();
    tabDay_->setCurrentIndex(count() - 1);
}

void FrameTabs::remove(int frame) {
    const TabEventsGuard quiet(workspace_.TabEventsEnabled);
    captions_.removeAt(frame - 1);
    tabDay_->removeTab(frame - 1);
    layoutStrip();
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
}

QString FrameTabs::freeFrameName() const {
    for (int i = 1;; ++i) {
        QString name = "Map" + QString::number(i);
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
    if (watched == tabDay_ && event->type() == QEvent::MouseButtonPress) {
        const auto* press = static_cast<QMouseEvent*>(event);
        return pressTab(press->position().toPoint(), press->button(),
                        press->globalPosition().toPoint());
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

bool FrameTabs::pressTab(const QPoint& position, Qt::MouseButton button, const QPoint& global) {
    const int index = tabDay_->tabAt(position);
    if (index >= 0 && index != tabDay_->currentIndex()) {
        tabDay_->setCurrentIndex(index);
    }
    if (button == Qt::RightButton && menuRequested) {
        menuRequested(global);
    }
    return index >= 0;
}

bool FrameTabs::renameKey(int key) {
    projectChanged();
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
        shell_.messageBox(
            {"Map name cannot contain any of the following characters:    \r\n"
             "                     \\ /  : *  ? \" < > {Space} !",
             Icon::Exclamation,
             Buttons::Ok,
             {}});
        refusing_ = false;
        txtDay_->setFocus();
        return;
    }
    setCaption(tabDay_->currentIndex(), name);
    layoutStrip();
    workspace_.Frames().Item(workspace_.Status.CurrentFrame).Texts().Label = name;
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
