// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/at_once.h"

#include <QAbstractButton>
#include <QShortcutEvent>

namespace nubivane {

namespace {

class AtOnce : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Shortcut ||
            static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
            return false;
        }
        auto* button = static_cast<QAbstractButton*>(watched);
        if (button->isCheckable() && button->focusPolicy() & Qt::ClickFocus) {
            button->setFocus(Qt::ShortcutFocusReason);
        }
        button->click();
        return true;
    }
};

}  // namespace

void answerKeysAtOnce(QWidget& window) {
    auto* filter = new AtOnce(&window);
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        button->installEventFilter(filter);
    }
}

}  // namespace nubivane
