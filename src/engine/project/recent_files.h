// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

class EditorView;
class SettingsStore;

/// Puts a path at the top of the recent files, of which four are kept. Paths are compared exactly:
/// another spelling of one file is another entry. An empty path does nothing.
void addRecentFile(SettingsStore& settings, EditorView& view, const QString& path);

}  // namespace nubivane
