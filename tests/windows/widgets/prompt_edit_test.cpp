// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/prompt_edit.h"

#include "support/dialog_parts.h"
#include "windows/widgets/quiet_color.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace nubivane::testing {

namespace {

/// A prompting box between two neighbours, one of which leaves it empty.
class PromptBox : public ::testing::Test {
  protected:
    PromptBox() {
        auto* column = new QVBoxLayout(&window);
        for (QWidget* widget : std::initializer_list<QWidget*>{first, box, quiet}) {
            column->addWidget(widget);
        }
        box->setQuietNeighbours({quiet});
        showActive(window);
        first->setFocus();
    }
    bool isGrey() const {
        return box->palette().color(QPalette::Text) ==
               quietColor(QApplication::palette(), QPalette::Text, QPalette::Base);
    }
    bool isNormal() const {
        return box->palette().color(QPalette::Text) ==
               QApplication::palette().color(QPalette::Text);
    }

    QWidget window;
    QPushButton* first = new QPushButton("first");
    PromptEdit* box = new PromptEdit("Type text here", nullptr);
    QPushButton* quiet = new QPushButton("quiet");
};

}  // namespace

TEST_F(PromptBox, StartsWithTheGreyPrompt) {
    EXPECT_EQ(box->toPlainText(), "Type text here");
    EXPECT_TRUE(isGrey());
}

TEST_F(PromptBox, IsEmptyAndDarkWhenItIsEntered) {
    QTest::mouseClick(box->viewport(), Qt::LeftButton);
    EXPECT_EQ(box->toPlainText(), "");
    EXPECT_TRUE(isNormal());
    QTest::keyClicks(box, "It says no");
    EXPECT_EQ(box->toPlainText(), "It says no");
}

TEST_F(PromptBox, GetsThePromptBackWhenItIsLeftBlank) {
    for (const char* blank : {"", "   ", "\n\n"}) {
        box->setFocus();
        box->setPlainText(blank);
        first->setFocus();
        EXPECT_EQ(box->toPlainText(), "Type text here");
        EXPECT_TRUE(isGrey());
    }
}

TEST_F(PromptBox, StaysEmptyWhenAQuietNeighbourTakesTheKeyboard) {
    box->setFocus();
    quiet->setFocus();
    EXPECT_EQ(box->toPlainText(), "");
    EXPECT_TRUE(isNormal());
}

TEST_F(PromptBox, KeepsWhatWasTyped) {
    box->setFocus();
    QTest::keyClicks(box, "It says no");
    first->setFocus();
    EXPECT_EQ(box->toPlainText(), "It says no");
    EXPECT_TRUE(isNormal());
    QTest::mouseClick(box->viewport(), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(box->toPlainText(), "It says no");
    EXPECT_EQ(box->textCursor().selectedText(), "It says no") << "all of it is selected";
}

TEST_F(PromptBox, ThePromptTypedByHandIsThePrompt) {
    box->setFocus();
    QTest::keyClicks(box, "Type text here");
    first->setFocus();
    box->setFocus();
    EXPECT_EQ(box->toPlainText(), "");
}

TEST_F(PromptBox, TheTabKeyLeavesIt) {
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_TRUE(quiet->hasFocus());
}

}  // namespace nubivane::testing
