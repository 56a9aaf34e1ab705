// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/combo_ex.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QWheelEvent>

namespace nubivane {

using namespace Qt::StringLiterals;

comboEx::comboEx(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(14);
    // Some styles would otherwise cover the whole screen with a long list.
    setStyleSheet(u"QComboBox { combobox-popup: 0; }"_s);
}

void comboEx::showPopup() {
    QAbstractItemView& list = *view();
    list.setMinimumWidth(list.sizeHintForColumn(0) + list.verticalScrollBar()->sizeHint().width() +
                         2 * list.frameWidth());
    QComboBox::showPopup();
}

void comboEx::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace nubivane
