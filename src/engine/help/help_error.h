// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/error.h"

namespace nubivane {

/// What every part of the reader raises for a help file that is not as it should be.
inline Error damagedHelp(const char* cause) {
    return Error(error_number::FileAccess, QStringLiteral("help"),
                 QStringLiteral("The help file is damaged."), QLatin1String(cause));
}

}  // namespace nubivane
