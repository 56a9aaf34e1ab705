// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/loaded_forms.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace nubivane {

bool isFormLoaded(const QString& name) {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [&name](const QWidget* window) {
        return window->objectName().toLower() == name.toLower();
    });
}

}  // namespace nubivane
