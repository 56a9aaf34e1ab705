// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

class QWidget;

namespace nubivane {

/// Says what a widget of our own is to those who have the window read to them; by itself every such
/// widget would be a plain surface. To be called before anybody asks.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

}  // namespace nubivane
