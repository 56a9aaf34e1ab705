// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// A value of a record as a project file holds it.
inline QString valueText(const QString& text) {
    return text;
}
inline QString valueText(bool flag) {
    return flag ? QStringLiteral("True") : QStringLiteral("False");
}
inline QString valueText(qint32 number) {
    return QString::number(number);
}

}  // namespace nubivane
