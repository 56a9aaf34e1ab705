// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace nubivane {

/// A caption with an object name; its access key leads to `buddy`.
inline QLabel* makeLabel(const char* name, const QString& caption, QWidget* buddy = nullptr) {
    auto* label = new QLabel(caption);
    label->setObjectName(QLatin1String(name));
    label->setBuddy(buddy);
    return label;
}

}  // namespace nubivane
