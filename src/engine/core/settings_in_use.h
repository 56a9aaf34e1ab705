// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/settings_table.h"

namespace nubivane {

/// False for what is only written down, and read by nobody.
bool isRead(Setting setting);

/// Whether anything reads an entry of these names, which are compared as the store does it. The
/// places of a numbered list count as entries.
bool isRead(const QString& section, const QString& group, const QString& key);

}  // namespace nubivane
