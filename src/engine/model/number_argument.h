// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/error.h"
#include "engine/core/number_text.h"

namespace nubivane {

/// A number that came as text, for the lists' `Add`. Raises `Error` (TypeMismatch) when the text is
/// no number or the number does not fit its slot.
inline qint16 int16Argument(const QString& text) {
    if (const auto number = toInt16(text)) {
        return *number;
    }
    throw Error(error_number::TypeMismatch, QStringLiteral("Add"), QStringLiteral("Type mismatch."),
                QStringLiteral("\"") + text + QStringLiteral("\" is no 16-bit number"));
}

inline qint32 int32Argument(const QString& text) {
    if (const auto number = toInt32(text)) {
        return *number;
    }
    throw Error(error_number::TypeMismatch, QStringLiteral("Add"), QStringLiteral("Type mismatch."),
                QStringLiteral("\"") + text + QStringLiteral("\" is no 32-bit number"));
}

}  // namespace nubivane
