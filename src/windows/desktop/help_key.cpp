// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/help_key.h"

#include "windows/widgets/help_topic.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace nubivane {

HelpKey::HelpKey(const Workspace& workspace, Shell& shell) : workspace_(workspace), shell_(shell) {
    qApp->installEventFilter(this);
}

/// The key comes here before the control that has the keyboard sees it, but after shortcuts.
bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) {
        return false;
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) {
        return false;
    }
    const QString topic = helpTopicOf(static_cast<QWidget*>(watched)->window()->objectName());
    if (topic.isEmpty()) {
        return false;
    }
    openHelpTopic(workspace_, shell_, topic);
    return true;
}

}  // namespace nubivane
