// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/error.h"

namespace nubivane {

/// The two failures of opening a project, with their fixed texts.
Error damagedProject(const QString& cause);
Error unsupportedVersion(const QString& cause);

}  // namespace nubivane
