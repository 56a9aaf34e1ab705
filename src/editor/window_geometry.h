#pragma once

#include <QRect>

class QWidget;

namespace nubivane {

class SettingsStore;

/// Twips (1/1440 inch) in a pixel: one inch is 96 pixels, on every screen.
inline constexpr int TwipsPerPixel = 15;

/// Sizes the main window as the settings say, always centred on its screen, and maximises it where
/// it was left so.
void restoreGeometry(QWidget& window, const SettingsStore& settings);

/// Stores the window's place; `normal` is the rectangle it last had while neither minimised nor
/// maximised.
void storeGeometry(const QWidget& window, const QRect& normal, SettingsStore& settings);

}  // namespace nubivane
