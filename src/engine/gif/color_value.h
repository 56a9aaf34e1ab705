// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

namespace nubivane {

/// The colour that a number of the model stands for, red in its low byte; an invalid one for
/// "none".
inline QColor colorOf(qint32 value) {
    return value == -1 ? QColor() : QColor(value & 0xFF, value >> 8 & 0xFF, value >> 16 & 0xFF);
}

/// The number of a colour.
inline qint32 valueOf(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

}  // namespace nubivane
