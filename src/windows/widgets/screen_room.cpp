// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/screen_room.h"

#include <QScreen>
#include <QWidget>

namespace nubivane {

namespace {

constexpr QSize RoomOfFrame(16, 48);  // as much as frames of the usual desktops take

}  // namespace

QSize withinScreen(const QWidget& window, const QSize& wanted) {
    return wanted.boundedTo(window.screen()->availableSize() - RoomOfFrame);
}

}  // namespace nubivane
