// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/input_block.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace nubivane {

void InputBlock::setActive(bool active) {
    if (active == active_) {
        return;
    }
    active_ = active;
    if (active) {
        qApp->installEventFilter(this);
    } else {
        qApp->removeEventFilter(this);
    }
}

bool InputBlock::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType() || static_cast<QWidget*>(watched)->window() != &window_) {
        return false;
    }
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            event->accept();  // so that no shortcut takes the key
            return true;
        case QEvent::Close:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            event->ignore();
            return true;
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
        case QEvent::InputMethod:
            return true;
        default:
            return false;
    }
}

}  // namespace nubivane
