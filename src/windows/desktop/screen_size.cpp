// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/screen_size.h"

#include "engine/core/shell.h"

#include <QCoreApplication>

namespace nubivane {

namespace {

constexpr int NeededWidth = 1024;

}  // namespace

bool screenSuffices(Shell& shell, QSize screen) {
    if (screen.width() >= NeededWidth) {
        return true;
    }
    const QString text =
        QCoreApplication::translate(
            "nubivane::ScreenSize",
            "Nubivane requires a minimum resolution of 1024 x 768 pixels.\rThe current resolution "
            "is %1 x %2, do you want to continue anyway ?")
            .arg(screen.width())
            .arg(screen.height());
    return shell.messageBox({text, Icon::Exclamation, Buttons::YesNo, {}}) == Answer::Yes;
}

}  // namespace nubivane
