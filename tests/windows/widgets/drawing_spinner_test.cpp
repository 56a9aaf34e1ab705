// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/scrspn.h"

#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace nubivane {

/// The spin control with a field, from 1 to 10.
class DrawingSpinner : public ::testing::Test {
  protected:
    DrawingSpinner() : spinner(&window), field(&window) {
        spinner.setRange(1, 10);
        spinner.attach(field);
    }
    void arrow(const char* name) {
        QTest::mouseClick(spinner.findChild<QToolButton*>(name), Qt::LeftButton);
    }
    void turn(int angle) {
        QWheelEvent wheel(QPointF(1, 1), QPointF(1, 1), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&field, &wheel);
    }

    QWidget window;
    ScrSpn spinner;
    QLineEdit field;
};

TEST_F(DrawingSpinner, TheFieldHasTheValueFromTheBeginning) {
    EXPECT_EQ(field.text(), "1");
    EXPECT_EQ(spinner.min(), 1);
    EXPECT_EQ(spinner.max(), 10);
}

TEST_F(DrawingSpinner, TheArrowsStepAndStopAtTheEnds) {
    arrow("up");
    EXPECT_EQ(field.text(), "2");
    arrow("down");
    arrow("down");
    EXPECT_EQ(field.text(), "1");
    for (int i = 0; i < 20; ++i) {
        arrow("up");
    }
    EXPECT_EQ(spinner.value(), 10);
    EXPECT_EQ(field.text(), "10");
}

TEST_F(DrawingSpinner, AValueSetGoesIntoTheFieldAndIsTold) {
    QSignalSpy told(&spinner, &ScrSpn::valueChanged);
    spinner.setValue(7);
    EXPECT_EQ(field.text(), "7");
    spinner.setValue(7);
    ASSERT_EQ(told.count(), 1);
    EXPECT_EQ(told.first().first().toInt(), 7);
}

TEST_F(DrawingSpinner, AValueBeyondTheRangeBecomesItsEnd) {
    spinner.setValue(99);
    EXPECT_EQ(spinner.value(), 10);
    spinner.setValue(-99);
    EXPECT_EQ(spinner.value(), 1);
    spinner.setValue(8);
    spinner.setRange(2, 5);
    EXPECT_EQ(spinner.value(), 5);
    EXPECT_EQ(field.text(), "5");
}

TEST_F(DrawingSpinner, ATypedNumberInTheRangeIsTakenOverAndStaysAsItIsTyped) {
    field.setText("07");
    EXPECT_EQ(spinner.value(), 7);
    EXPECT_EQ(field.text(), "07");
    arrow("up");
    EXPECT_EQ(field.text(), "8");
}

TEST_F(DrawingSpinner, AnyOtherTextLeavesTheValue) {
    spinner.setValue(4);
    for (const char* text : {"", "x", "11", "0", "-1", "99999999999"}) {
        field.setText(text);
        EXPECT_EQ(spinner.value(), 4) << text;
        EXPECT_EQ(field.text(), text);
    }
}

TEST_F(DrawingSpinner, ANumberPastedWithItsLineEndIsTakenOver) {
    QApplication::clipboard()->setText("7\n");
    field.selectAll();
    field.paste();
    EXPECT_EQ(field.text(), "7");
    EXPECT_EQ(spinner.value(), 7);
}

TEST_F(DrawingSpinner, AtTheEndAnArrowStillReplacesATextThatIsNoNumber) {
    spinner.setValue(10);
    field.setText("x");
    arrow("up");
    EXPECT_EQ(field.text(), "10");
}

TEST_F(DrawingSpinner, UpAndDownStepInTheField) {
    QTest::keyClick(&field, Qt::Key_Up);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(field.text(), "3");
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(field.text(), "2");
}

TEST_F(DrawingSpinner, TheWheelStepsByItsNotches) {
    turn(240);
    EXPECT_EQ(field.text(), "3");
    turn(-120);
    EXPECT_EQ(field.text(), "2");
    turn(60);
    EXPECT_EQ(field.text(), "2");
    turn(60);
    EXPECT_EQ(field.text(), "3");
}

}  // namespace nubivane
