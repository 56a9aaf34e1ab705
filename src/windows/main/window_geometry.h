// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

class QWidget;

namespace nubivane {

class SettingsStore;

/// Sizes the main window as the settings say, always centred on its screen, and maximises it where
/// it was left so.
void restoreGeometry(QWidget& window, const SettingsStore& settings);

/// Stores the window's place; `normal` is the rectangle it last had while neither minimised nor
/// maximised.
void storeGeometry(const QWidget& window, const QRect& normal, SettingsStore& settings);

}  // namespace nubivane
