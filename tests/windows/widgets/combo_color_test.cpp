// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/combo_color.h"

#include "engine/model/color_table.h"
#include "support/fixtures.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QColor>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace nubivane {

namespace {

/// What an item's swatch shows in its middle.
QColor swatchOf(const comboColor& combo, int index) {
    const QImage picture = combo.itemIcon(index).pixmap(QSize(24, 12)).toImage();
    return picture.pixelColor(picture.width() / 4, picture.height() / 2);
}

}  // namespace

TEST(ComboColor, ListsNoneAndThe115ColoursInTheOrderOfTheTable) {
    const comboColor combo;
    const ColorTable table;
    ASSERT_EQ(combo.count(), 116);
    int index = 0;
    for (const ColorTable::Row& row : table.rows()) {
        EXPECT_EQ(combo.Key(index), "K" + QString::number(row.color)) << index;
        ++index;
    }
    EXPECT_EQ(combo.itemText(0), "none");
    EXPECT_EQ(combo.Key(0), "K-1");
    EXPECT_EQ(combo.Key(1), "K36607");
    EXPECT_EQ(combo.Key(115), "K14024852");
}

TEST(ComboColor, BearsTheNamesOfTheWebColours) {
    const comboColor combo;
    const ColorTable table;
    // The two web colours that no name stands for.
    const QHash<QString, QString> nearest{{"#8B2DD2", "DarkOrchid"}, {"#8FBC8B", "DarkSeaGreen"}};
    for (int i = 1; i < combo.count(); ++i) {
        const QString webColor = table.Item(combo.Key(i));
        const QString name = combo.itemText(i);
        EXPECT_TRUE(name.front().isUpper()) << name.toStdString();
        if (nearest.contains(webColor)) {
            EXPECT_EQ(name, nearest.value(webColor));
        } else {
            EXPECT_EQ(QColor(name).name().toUpper(), webColor) << name.toStdString();
        }
    }
}

TEST(ComboColor, GivesNoNameTwice) {
    const comboColor combo;
    QSet<QString> seen;
    for (int i = 0; i < combo.count(); ++i) {
        seen.insert(combo.itemText(i));
    }
    EXPECT_EQ(seen.size(), 116);
}

TEST(ComboColor, StartsWithNothingSelected) {
    const comboColor combo;
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_EQ(combo.key(), "");
    EXPECT_EQ(combo.color(), -1);
}

TEST(ComboColor, ShowsAColourByItsNumber) {
    comboColor combo;
    combo.setColor(255);
    EXPECT_EQ(combo.currentText(), "Red");
    EXPECT_EQ(combo.key(), "K255");
    EXPECT_EQ(combo.color(), 255);
    combo.setColor(0);
    EXPECT_EQ(combo.currentText(), "Black");
    combo.setColor(-1);
    EXPECT_EQ(combo.currentText(), "none");
    EXPECT_EQ(combo.color(), -1);
}

TEST(ComboColor, SelectsNothingForAColourThatItDoesNotList) {
    comboColor combo;
    combo.setColor(255);
    combo.setColor(254);
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_EQ(combo.key(), "");
}

TEST(ComboColor, SwatchesShowTheNumbersOwnColour) {
    const comboColor combo;
    EXPECT_EQ(swatchOf(combo, combo.findText("Red")), QColor(255, 0, 0));
    EXPECT_EQ(swatchOf(combo, combo.findText("Blue")), QColor(0, 0, 255));
    // K36607 is 0x8EFF in hexadecimal digits: red 255, green 142, blue 0.
    EXPECT_EQ(swatchOf(combo, 1), QColor(255, 142, 0));
}

TEST(ComboColor, ColorNameIsTheCaptionOfTheItem) {
    EXPECT_EQ(colorName(36607), "DarkOrange");
    EXPECT_EQ(colorName(14024852), "DarkViolet");
    EXPECT_EQ(colorName(-1), "none");
    EXPECT_EQ(colorName(1), "");
}

TEST(ComboColor, ALetterKeyGoesToTheNextNameThatBeginsWithIt) {
    comboColor combo;
    combo.show();
    QTest::keyClick(&combo, Qt::Key_K);
    EXPECT_EQ(combo.currentText(), "Khaki");
}

TEST(ComboColor, TheWheelLeavesABoxAloneThatHasNotTheFocus) {
    QWidget form;
    auto* combo = new comboColor(&form);
    auto* other = new QComboBox(&form);
    form.show();
    combo->setColor(255);
    other->setFocus();
    QWheelEvent wheel(QPointF(5, 5), combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    wheel.accept();
    QApplication::sendEvent(combo, &wheel);
    EXPECT_EQ(combo->color(), 255);
    EXPECT_FALSE(wheel.isAccepted());
}

TEST(ComboColor, TheListShowsWholeNamesUnderANarrowBox) {
    comboColor combo;
    combo.setFixedWidth(60);
    combo.show();
    combo.showPopup();
    EXPECT_GE(combo.view()->viewport()->width(), combo.view()->sizeHintForColumn(0));
    combo.hidePopup();
}

TEST(ComboColor, TheWheelNeverChangesAClosedBox) {
    comboColor combo;
    combo.setCurrentIndex(5);
    combo.show();
    combo.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&combo));
    combo.setFocus();
    QWheelEvent turn(QPointF(5, 5), combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &turn);
    EXPECT_EQ(combo.currentIndex(), 5);
    EXPECT_FALSE(turn.isAccepted());
}

}  // namespace nubivane
