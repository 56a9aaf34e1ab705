// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QWidget;

namespace nubivane {

/// A size as far as the screen of a window has room for it and for the frame around it, which is
/// not known before the window stands.
QSize withinScreen(const QWidget& window, const QSize& wanted);

}  // namespace nubivane
