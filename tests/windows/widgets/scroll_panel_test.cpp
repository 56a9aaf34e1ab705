// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/scroll_panel.h"

#include "support/fixtures.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace nubivane {

/// A panel of 20 parts, each 20 pixels high.
class Panel : public ::testing::Test {
  protected:
    static constexpr int Content = 400;

    Panel() {
        auto* column = new QVBoxLayout(panel.fraText());
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        for (int i = 0; i < Content / 20; ++i) {
            parts << new QWidget;
            parts.back()->setFixedHeight(20);
            column->addWidget(parts.back());
        }
        column->addStretch(1);
        panel.setFrameShape(QFrame::NoFrame);
        panel.resize(200, 100);
        panel.show();
    }
    QScrollBar& bar() { return *panel.VScroll(); }
    /// Where a part begins in the panel's window.
    int top(int i) { return parts[i]->mapTo(&panel, QPoint(0, 0)).y(); }
    void turnWheel(int notches) {
        QWheelEvent wheel(QPointF(5, 5), panel.mapToGlobal(QPointF(5, 5)), {}, {0, -120 * notches},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&panel, &wheel);
    }

    ScrollPanel panel{nullptr};
    QList<QWidget*> parts;
};

TEST_F(Panel, HasABarOfStepsOf16PixelsWhenItsContentIsTaller) {
    panel.resize(200, 80);
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(bar().minimum(), 0);
    EXPECT_EQ(bar().maximum(), (400 - 80) / 16);
    EXPECT_EQ(panel.fraText()->width(), 200 - bar().width());
    EXPECT_EQ(bar().geometry().right(), 199);
    EXPECT_EQ(bar().height(), 80);
    bar().setValue(3);
    EXPECT_EQ(top(0), -48);
}

TEST_F(Panel, HidesTheBarAndTakesTheWholeWidthWhenAllFits) {
    bar().setValue(5);
    panel.resize(200, 400);
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(panel.fraText()->geometry(), QRect(0, 0, 200, 400));
}

TEST_F(Panel, ShowsItsLastPixelAtTheEndOfTheBarAtAnyHeight) {
    for (const int height : {399, 393, 200, 107, 100}) {
        panel.resize(200, height);
        ASSERT_TRUE(bar().isVisible()) << height;
        bar().setValue(bar().maximum());
        EXPECT_LE(top(19) + 20, height) << height;
        EXPECT_LT(top(0), 0) << height;
    }
}

TEST_F(Panel, FollowsContentThatGrows) {
    panel.resize(200, 400);
    parts.first()->setFixedHeight(116);
    QCoreApplication::processEvents();
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(bar().maximum(), 6);
}

TEST_F(Panel, ScrollsToAPartThatIsOutOfSight) {
    panel.ensureVisible(*parts[10]);
    EXPECT_GE(top(10), 0);
    EXPECT_LE(top(10) + 20, 100);
    panel.ensureVisible(*parts[2]);
    EXPECT_GE(top(2), 0);
    EXPECT_LE(top(2) + 20, 100);
}

TEST_F(Panel, StaysWhereItIsForAPartInSight) {
    bar().setValue(4);
    panel.ensureVisible(*parts[5]);
    EXPECT_EQ(bar().value(), 4);
}

TEST_F(Panel, IsScrolledByTheWheel) {
    turnWheel(1);
    const int down = bar().value();
    EXPECT_GT(down, 0);
    turnWheel(-1);
    EXPECT_EQ(bar().value(), 0);
}

TEST_F(Panel, StaysWhereItIsWhileItsBarIsDisabled) {
    bar().setEnabled(false);
    turnWheel(1);
    EXPECT_EQ(bar().value(), 0);
}

}  // namespace nubivane
