// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/select_on_focus.h"

#include <QFocusEvent>

namespace nubivane {

SelectOnFocus::SelectOnFocus(QWidget* field) : QObject(field) {
    field->installEventFilter(this);
}

/// The selection comes after the press has placed the cursor. Coming back from another window or
/// from the field's own menu is not taking the keyboard.
bool SelectOnFocus::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            QMetaObject::invokeMethod(watched, "selectAll", Qt::QueuedConnection);
        }
    }
    return false;
}

}  // namespace nubivane
