// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/at_once.h"

#include "support/dialog_parts.h"

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QVBoxLayout>

namespace nubivane::testing {

TEST(AtOnce, ABoxTakesItsAccessKeyBeforeEnterClosesTheWindow) {
    QDialog window;
    auto* column = new QVBoxLayout(&window);
    auto* box = new QCheckBox("&Underline");
    auto* ok = new QPushButton("OK");
    ok->setDefault(true);
    column->addWidget(ok);
    column->addWidget(box);
    QObject::connect(ok, &QPushButton::clicked, &window, &QDialog::accept);
    answerKeysAtOnce(window);
    showActive(window);
    ok->setFocus();
    QTest::keyClick(&window, Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(box->isChecked());
    EXPECT_TRUE(box->hasFocus());
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(window.result(), QDialog::Accepted);
}

TEST(AtOnce, AButtonPressedTwiceByItsKeyActsTwice) {
    QDialog window;
    auto* column = new QVBoxLayout(&window);
    auto* add = new QPushButton("&Add");
    column->addWidget(add);
    int added = 0;
    QObject::connect(add, &QPushButton::clicked, &window, [&added] { ++added; });
    answerKeysAtOnce(window);
    showActive(window);
    QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
    QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(added, 2);
    add->setEnabled(false);
    QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(added, 2);
}

TEST(AtOnce, TwoOfOneKeyAreChosenFromAsBefore) {
    QDialog window;
    auto* column = new QVBoxLayout(&window);
    auto* first = new QCheckBox("&One");
    auto* second = new QCheckBox("&Other");
    column->addWidget(first);
    column->addWidget(second);
    answerKeysAtOnce(window);
    showActive(window);
    QTest::keyClick(&window, Qt::Key_O, Qt::AltModifier);
    EXPECT_FALSE(first->isChecked());
    EXPECT_FALSE(second->isChecked());
}

}  // namespace nubivane::testing
