#include "support/editor_fixture.h"

namespace nubivane {

using LaterCommands = testing::EditorFixture;

/// Commands whose windows are still to come; each leaves this list when its window arrives.
TEST_F(LaterCommands, AreThereAndDisabled) {
    start();
    placeSymbol({200, 150});
    for (const char* name : {"mnuPack", "mnuInitialize", "mnuInvia", "mnuFtpSetting", "mnuWeb",
                             "mnuBugReport", "mnuLastVersion", "mnuInfo"}) {
        EXPECT_FALSE(window().commands()[name]->isEnabled()) << name;
    }
    workspace.ProjectChanged = false;
}

}  // namespace nubivane
