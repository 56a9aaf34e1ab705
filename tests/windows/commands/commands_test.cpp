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
    EXPECT_EQ(disabled, QStringList({"mnuUndo",           "mnuRedo",
                                     "mnuDuplicate",      "mnuToFront",
                                     "mnuRaise",          "mnuLower",
                                     "mnuToBack",         "mnuAlignLeft",
                                     "mnuAlignCentre",    "mnuAlignRight",
                                     "mnuAlignTop",       "mnuAlignMiddle",
                                     "mnuAlignBottom",    "mnuDistributeAcross",
                                     "mnuDistributeDown", "mnuCut",
                                     "mnuCopy",           "mnuPaste",
                                     "mnuDelSymbol",      "mnuRestore",
                                     "mnuProperty",       "mnuFrameRemove",
                                     "mnuFrameLeft",      "mnuFrameRight"}));
}

}  // namespace nubivane
