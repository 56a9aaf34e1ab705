// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/window_geometry.h"

#include "engine/core/settings_store.h"
#include "windows/widgets/twips.h"
#include "windows/widgets/window_place.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace nubivane {

namespace {

constexpr int DefaultWidth = 15000;
constexpr int DefaultHeight = 11000;

int pixels(std::optional<int> twips, int defaultTwips, int limit) {
    return std::clamp(twips.value_or(defaultTwips) / TwipsPerPixel, 320, std::max(320, limit));
}

QString twips(int pixelCount) {
    return QString::number(pixelCount * TwipsPerPixel);
}

/// 0 normal, 1 minimised, 2 maximised.
int windowState(const QWidget& window) {
    return window.isMinimized() ? 1 : window.isMaximized() ? 2 : 0;
}

/// The corner of a frame in the middle of the screen. A window that is too large with its frame
/// becomes smaller first.
QPoint centred(QWidget& window, const QSize& frame) {
    const QRect room = window.screen()->availableGeometry();
    const QSize tooMuch = (frame - room.size()).expandedTo({0, 0});
    if (!tooMuch.isNull()) {
        window.resize(window.size() - tooMuch);
    }
    QRect place(QPoint(), frame - tooMuch);
    place.moveCenter(room.center());
    return place.topLeft();
}

}  // namespace

void restoreGeometry(QWidget& window, const SettingsStore& settings) {
    const QRect screen = window.screen()->availableGeometry();
    const QSize size(
        pixels(settings.number(Setting::WindowWidth), DefaultWidth, screen.width()),
        pixels(settings.number(Setting::WindowHeight), DefaultHeight, screen.height()));
    window.resize(size);
    auto* place = new WindowPlace(window);
    place->put([&window](const QSize& frame) { return centred(window, frame); });
    const QString state = settings.text(Setting::WindowMaximized).trimmed();
    if (state == u"1") {
        window.setWindowState(Qt::WindowMinimized);
    } else if (state == u"2") {
        window.setWindowState(Qt::WindowMaximized);
    }
}

void storeGeometry(const QWidget& window, const QRect& normal, SettingsStore& settings) {
    if (windowState(window) != 0) {
        settings.set(Setting::WindowFormTop, twips(normal.top()));
        settings.set(Setting::WindowFormLeft, twips(normal.left()));
        settings.set(Setting::WindowFormWidth, twips(normal.width()));
        settings.set(Setting::WindowFormHeight, twips(normal.height()));
    } else {
        settings.set(Setting::WindowTop, twips(window.y()));
        settings.set(Setting::WindowLeft, twips(window.x()));
        settings.set(Setting::WindowWidth, twips(normal.width()));
        settings.set(Setting::WindowHeight, twips(normal.height()));
    }
    settings.set(Setting::WindowMaximized, QString::number(windowState(window)));
}

}  // namespace nubivane
