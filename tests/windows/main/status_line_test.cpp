// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/status_line.h"

#include "support/editor_fixture.h"

#include <QLabel>
#include <QToolButton>

namespace nubivane {

/// What the line below the editor says.
class StatusLineText : public testing::EditorFixture {
  protected:
    StatusLine& line() { return *window().findChild<StatusLine*>(); }
    void choose(int tool) {
        QTest::mouseClick(window().pctTlbDraw().btnDraw(tool), Qt::LeftButton);
    }
};

TEST_F(StatusLineText, TellsHowTheToolInHandIsUsedAndHowToLeaveIt) {
    start();
    EXPECT_EQ(line().text(), "");
    choose(4);
    EXPECT_TRUE(line().text().contains("both ends")) << line().text().toStdString();
    EXPECT_TRUE(line().text().contains("Esc"));
    EXPECT_FALSE(line().cmdShowInFolder()->isVisible());
    key(Qt::Key_Escape);
    EXPECT_EQ(line().text(), "");
}

TEST_F(StatusLineText, TellsWhereThePageIsAndShowsItsFolder) {
    start();
    trigger("mnuCrea");
    ASSERT_EQ(shell.opened.size(), 1);
    const QString page = shell.opened.first();
    EXPECT_TRUE(line().text().contains(page)) << line().text().toStdString();
    ASSERT_TRUE(line().cmdShowInFolder()->isVisible());
    QTest::mouseClick(line().cmdShowInFolder(), Qt::LeftButton);
    EXPECT_EQ(shell.opened.last(), page.section('/', 0, -2));
}

TEST_F(StatusLineText, ALongPathNeitherWidensTheWindowNorHidesTheButton) {
    start();
    const QSize before = window().size();
    line().tellFile("The page is /" + QString("folder/").repeated(80) + "Forecast.htm",
                    "/folder/Forecast.htm");
    QApplication::processEvents();
    EXPECT_EQ(window().size(), before);
    EXPECT_LE(line().cmdShowInFolder()->geometry().right(), line().width());
    EXPECT_TRUE(line().findChild<QLabel*>("lblStatus")->toolTip().contains("Forecast.htm"));
}

}  // namespace nubivane
