// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/error.h"

namespace nubivane {

/// Raises `Error` (InvalidPicture): bytes that are no picture, or one beyond our limits.
[[noreturn]] inline void refusePicture(const QString& cause) {
    throw Error(error_number::InvalidPicture, QStringLiteral("picture"),
                QStringLiteral("Invalid picture."), cause);
}

}  // namespace nubivane
