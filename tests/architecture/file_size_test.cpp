// SPDX-License-Identifier: GPL-3.0-or-later
#include "architecture/source_tree.h"

namespace nubivane::testing {

TEST(FileSize, NoSourceFileIsLongerThanSevenHundredLines) {
    for (const SourceFile& file : sourceFiles()) {
        EXPECT_LE(file.text.count(u'\n'), 700) << file.path.toStdString();
    }
}

}  // namespace nubivane::testing
