// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/loaded_forms.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace nubivane {

TEST(LoadedForms, AWindowIsFoundByItsNameInAnyCaseWhileItLives) {
    EXPECT_FALSE(isFormLoaded("frmDrawAction"));
    {
        QWidget form;
        form.setObjectName("frmDrawAction");
        EXPECT_TRUE(isFormLoaded("FRMdrawaction"));
        EXPECT_FALSE(isFormLoaded("frmDraw"));
    }
    EXPECT_FALSE(isFormLoaded("frmDrawAction"));
}

}  // namespace nubivane
