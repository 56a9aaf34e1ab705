// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/tool_strip.h"

#include "engine/core/settings_store.h"
#include "windows/commands/commands.h"
#include "windows/widgets/icons.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QToolButton>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int GripWidth = 10;
constexpr int LargeIcon = 32;
constexpr int StripMargin = 2;

}  // namespace

ToolBar::ToolBar(const char* name, const QString& title, std::initializer_list<Button> buttons,
                 const Commands& commands, QWidget* parent)
    : QFrame(parent) {
    setObjectName(name);
    setAccessibleName(title);
    setCursor(Qt::ArrowCursor);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(GripWidth, 1, 2, 1);
    row->setSpacing(1);
    for (const Button& entry : buttons) {
        auto* button = new QToolButton(this);
        button->setObjectName(entry.name);
        button->setDefaultAction(commands[entry.command]);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
        buttons_ << button;
    }
}

void ToolBar::setIconSize(int size) {
    for (QToolButton* button : buttons_) {
        button->setIconSize({size, size});
    }
    layout()->invalidate();
    resize(sizeHint());
}

void ToolBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    QColor dots = palette().color(QPalette::WindowText);
    dots.setAlpha(90);
    painter.setBrush(dots);
    for (int y = 7; y < height() - 7; y += 4) {
        painter.drawRect(3, y, 2, 2);
    }
}

void ToolBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        grabbed_ = event->position().toPoint();
        raise();
    }
}

void ToolBar::mouseMoveEvent(QMouseEvent* event) {
    if (grabbed_) {
        Q_EMIT moved(mapToParent(event->position().toPoint()) - *grabbed_);
    }
}

void ToolBar::mouseReleaseEvent(QMouseEvent*) {
    if (grabbed_) {
        grabbed_.reset();
        Q_EMIT moveFinished();
    }
}

ToolStrip::ToolStrip(Commands& commands, SettingsStore& settings, QWidget* parent)
    : QWidget(parent),
      commands_(commands),
      settings_(settings),
      standardBar_(new ToolBar("StandardBar", tr("Main toolbar"),
                               {{"btnNewProject", Command::mnuNewProject},
                                {"btnOpenProject", Command::mnuOpenProject},
                                {"btnSaveProject", Command::mnuSaveProject},
                                {"btnUpload", Command::mnuInvia},
                                {"btnCreateHtml", Command::mnuCrea},
                                {"btnHelp", Command::mnuSommario}},
                               commands, this)),
      mapBar_(new ToolBar("MapBar", tr("Map toolbar"),
                          {{"btnUndo", Command::mnuUndo},
                           {"btnRedo", Command::mnuRedo},
                           {"btnStationDelete", Command::mnuDelSymbol},
                           {"btnLock", Command::mnuLock},
                           {"btnSymbols", Command::mnuCollection},
                           {"btnMap", Command::mnuOpenMap},
                           {"btnProperty", Command::btnProperty}},
                          commands, this)) {
    for (ToolBar* bar : {standardBar_, mapBar_}) {
        connect(bar, &ToolBar::moved, this, [this, bar](QPoint wanted) { moveBar(*bar, wanted); });
        connect(bar, &ToolBar::moveFinished, this, &ToolStrip::savePlaces);
    }
    handleCommands();
}

void ToolStrip::handleCommands() {
    commands_.makeCheckable({Command::mnuViewMainToolbar, Command::mnuViewMapToolbar,
                             Command::mnuViewLargeIcons, Command::mnuViewSmallIcons});
    commands_.handle(Command::mnuViewMainToolbar, [this] {
        toggle(*standardBar_, Command::mnuViewMainToolbar, Setting::ShowStandardBar);
    });
    commands_.handle(Command::mnuViewMapToolbar,
                     [this] { toggle(*mapBar_, Command::mnuViewMapToolbar, Setting::ShowMapBar); });
    commands_.handle(Command::mnuViewLargeIcons, [this] { useLargeIcons(true); });
    commands_.handle(Command::mnuViewSmallIcons, [this] { useLargeIcons(false); });
}

void ToolStrip::restore() {
    const bool standard = settings_.text(Setting::ShowStandardBar) == u"1";
    const bool map = settings_.text(Setting::ShowMapBar) == u"1";
    const bool large = settings_.text(Setting::LargeIcons) == u"1";
    standardBar_->setVisible(standard);
    mapBar_->setVisible(map);
    commands_[Command::mnuViewMainToolbar]->setChecked(standard);
    commands_[Command::mnuViewMapToolbar]->setChecked(map);
    commands_[Command::mnuViewLargeIcons]->setChecked(large);
    commands_[Command::mnuViewSmallIcons]->setChecked(!large);
    setToolbarIcons(large ? LargeIcon : SmallIcon);

    placeBars();
    restored_ = true;
}

/// Puts the bars where the settings say, as far as the strip has room.
void ToolStrip::placeBars() {
    mapBar_->move(-mapBar_->width(), 0);  // out of the way of the first
    moveBar(*standardBar_, {settings_.number(Setting::StandardBarX).value_or(2),
                            settings_.number(Setting::StandardBarY).value_or(2)});
    const int besideStandard = standardBar_->geometry().right() + 3;
    moveBar(*mapBar_, {settings_.number(Setting::MapBarX).value_or(besideStandard),
                       settings_.number(Setting::MapBarY).value_or(2)});
    arrangeToolbars();
}

/// A strip that grows, as when the window is maximised, has room for places it could not keep.
void ToolStrip::resizeEvent(QResizeEvent* event) {
    if (restored_ && event->size().width() != event->oldSize().width()) {
        placeBars();
    }
}

void ToolStrip::toggle(ToolBar& bar, Command command, Setting setting) {
    const bool shown = bar.isHidden();
    bar.setVisible(shown);
    commands_[command]->setChecked(shown);
    settings_.set(setting, shown ? u"1"_s : u"0"_s);
    if (shown) {
        moveBar(bar, bar.pos());  // its place may have been taken meanwhile
    }
    arrangeToolbars();
}

void ToolStrip::useLargeIcons(bool large) {
    const bool isLarge = settings_.text(Setting::LargeIcons) == u"1";
    commands_[Command::mnuViewLargeIcons]->setChecked(large);
    commands_[Command::mnuViewSmallIcons]->setChecked(!large);
    if (isLarge == large) {
        return;
    }
    settings_.set(Setting::LargeIcons, large ? u"1"_s : u"0"_s);
    resizeBars(large ? LargeIcon : SmallIcon);
    savePlaces();
}

/// The bars have another size afterwards: the left one keeps its place, the other one its distance
/// from it, so that going there and back changes nothing.
void ToolStrip::resizeBars(int iconSize) {
    ToolBar& first = standardBar_->x() <= mapBar_->x() ? *standardBar_ : *mapBar_;
    ToolBar& second = &first == standardBar_ ? *mapBar_ : *standardBar_;
    const QPoint firstPlace = first.pos();
    const QPoint secondPlace = second.pos();
    const bool sameRow = !first.isHidden() && firstPlace.y() == secondPlace.y();
    const int gap = secondPlace.x() - first.geometry().right();
    setToolbarIcons(iconSize);
    const auto row = [](const ToolBar& bar, QPoint place) {
        return place.y() > StripMargin ? bar.height() + 2 * StripMargin : StripMargin;
    };
    second.move(-second.width(), 0);  // out of the way of the first
    moveBar(first, {firstPlace.x(), row(first, firstPlace)});
    moveBar(second,
            {sameRow ? first.geometry().right() + gap : secondPlace.x(), row(second, secondPlace)});
}

void ToolStrip::setToolbarIcons(int size) {
    standardBar_->setIconSize(size);
    mapBar_->setIconSize(size);
}

void ToolStrip::arrangeToolbars() {
    const bool any = !standardBar_->isHidden() || !mapBar_->isHidden();
    commands_.setEnabled({Command::mnuViewLargeIcons, Command::mnuViewSmallIcons}, any);
    int bottom = 0;
    for (const ToolBar* bar : {standardBar_, mapBar_}) {
        if (!bar->isHidden()) {
            bottom = std::max(bottom, bar->geometry().bottom() + 1 + StripMargin);
        }
    }
    setFixedHeight(bottom);
    Q_EMIT heightChanged();
}

/// Bars stay inside the strip's width and do not lie on each other: a bar dropped on the other one
/// goes beside it, or below it where there is no room.
void ToolStrip::moveBar(ToolBar& bar, QPoint wanted) {
    const ToolBar& other = &bar == standardBar_ ? *mapBar_ : *standardBar_;
    const int room = std::max(width(), bar.width() + 2 * StripMargin);
    QPoint place(std::clamp(wanted.x(), StripMargin, room - bar.width() - StripMargin),
                 std::clamp(wanted.y(), StripMargin, bar.height() + 2 * StripMargin));
    // Rows, so that bars dragged by hand still line up.
    place.setY(place.y() > bar.height() / 2 ? bar.height() + 2 * StripMargin : StripMargin);
    if (!other.isHidden() && QRect(place, bar.size()).intersects(other.geometry())) {
        const int beside = other.geometry().right() + 3;
        if (beside + bar.width() <= room) {
            place.setX(beside);
        } else if (other.x() - bar.width() - 2 >= StripMargin) {
            place.setX(other.x() - bar.width() - 2);
        } else {
            place = {StripMargin, other.geometry().bottom() + 1 + StripMargin};
        }
    }
    bar.move(place);
}

void ToolStrip::savePlaces() {
    settings_.set(Setting::StandardBarX, QString::number(standardBar_->x()));
    settings_.set(Setting::StandardBarY, QString::number(standardBar_->y()));
    settings_.set(Setting::MapBarX, QString::number(mapBar_->x()));
    settings_.set(Setting::MapBarY, QString::number(mapBar_->y()));
    arrangeToolbars();
}

}  // namespace nubivane
