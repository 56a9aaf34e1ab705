// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fixtures.h"

namespace nubivane::testing {

/// Host path of the help file that the build has made.
inline QString builtHelp() {
    return QStringLiteral(NUBIVANE_PROGRAM_FOLDER "/Help/Nubivane.chm");
}

}  // namespace nubivane::testing
