#include "dialogs/combo_ex.h"

#include <QWheelEvent>

namespace nubivane {

comboEx::comboEx(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(14);
    // Some styles would otherwise cover the whole screen with a long list.
    setStyleSheet("QComboBox { combobox-popup: 0; }");
}

void comboEx::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

}  // namespace nubivane
