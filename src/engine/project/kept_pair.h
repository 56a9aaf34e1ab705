// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

class SettingsStore;

/// Writes a pair of files (host paths) as the project `target` (path text), byte for byte. What the
/// target held before is kept as a version of its own. Raises `Error` (FileAccess); the target is
/// then as it was.
void writeKeptPair(const QString& hostDocument, const QString& hostData, const QString& target,
                   const SettingsStore& settings);

}  // namespace nubivane
