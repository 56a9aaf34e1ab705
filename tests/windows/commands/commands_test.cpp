// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

namespace nubivane {

using CommandsAtStart = testing::EditorFixture;

TEST_F(CommandsAtStart, AllCanBeGivenButThoseThatNeedASpriteOrASecondFrame) {
    start();
    QStringList disabled;
    for (const CommandRow& row : commandTable()) {
        if (!window().commands()[row.id]->isEnabled()) {
            disabled << row.name;
        }
    }
    EXPECT_EQ(disabled,
              QStringList({"mnuUndo", "mnuRedo", "mnuCut", "mnuCopy", "mnuPaste", "mnuDelSymbol",
                           "mnuRestore", "mnuProperty", "mnuFrameRemove"}));
}

}  // namespace nubivane
