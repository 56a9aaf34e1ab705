// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/settings_store.h"
#include "engine/model/workspace.h"
#include "support/scripted_shell.h"
#include "windows/main/frm_map.h"

#include <QTest>

namespace nubivane::testing {

/// Another run of the program on the same program folder and the same settings.
class NextStart {
  public:
    explicit NextStart(const Workspace& before, SettingsStore& settings)
        : workspace(before.folder, settings), window(workspace, shell) {
        window.Init({});
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    ScriptedShell shell;
    OpenWorkspace workspace;
    frmMap window;
};

}  // namespace nubivane::testing
