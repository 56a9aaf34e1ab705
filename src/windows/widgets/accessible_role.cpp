// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/accessible_role.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace nubivane {

namespace {

constexpr char RoleProperty[] = "accessibleRole";

QAccessibleInterface* withRole(const QString&, QObject* object) {
    const QVariant role = object->isWidgetType() ? object->property(RoleProperty) : QVariant();
    return role.isValid() ? new QAccessibleWidget(static_cast<QWidget*>(object),
                                                  static_cast<QAccessible::Role>(role.toInt()))
                          : nullptr;
}

}  // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    widget.setProperty(RoleProperty, static_cast<int>(role));
    QAccessible::installFactory(withRole);  // the same one twice counts once
    // One that was asked for before has the role of its class.
    if (QAccessibleInterface* known = QAccessible::queryAccessibleInterface(&widget)) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
    }
}

}  // namespace nubivane
