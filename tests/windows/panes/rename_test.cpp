// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QApplication>
#include <QContextMenuEvent>

namespace nubivane {

/// The field laid over a tab to rename its Frame, worked by keys.
class Renaming : public testing::EditorFixture {
  protected:
    QLineEdit& field() { return *window().tabs().txtDay(); }
    void startActive() {
        start();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }
    void type(const QString& text) { QTest::keyClicks(&field(), text); }
    void enter() { QTest::keyClick(&field(), Qt::Key_Return); }
    void expectRefusal() {
        shell.expectMessage(
            "Map name cannot contain any of the following characters:    \r\n"
            R"x(                     \ /  : *  ? " < > {Space} !)x",
            Icon::Exclamation);
    }
    QString caption() { return window().tabs().caption(1); }
};

TEST_F(Renaming, TheFieldLiesOnTheSelectedTabWithItsCaptionSelected) {
    startActive();
    trigger("mnuFrameInsert");
    EXPECT_FALSE(field().isVisible());
    trigger("mnuMapRename");
    EXPECT_TRUE(field().isVisible());
    EXPECT_TRUE(field().hasFocus());
    EXPECT_EQ(field().text(), "Map2");
    EXPECT_EQ(field().selectedText(), "Map2");
    const QTabBar* bar = window().tabs().tabDay();
    const QRect tab = bar->tabRect(1).translated(bar->pos());
    EXPECT_EQ(field().geometry().topLeft(), tab.topLeft());
    EXPECT_GE(field().width(), tab.width());
}

TEST_F(Renaming, EnterGivesTabAndFrameTheName) {
    startActive();
    trigger("mnuMapRename");
    type("Monday");
    EXPECT_EQ(caption(), "Map1");
    enter();
    EXPECT_EQ(caption(), "Monday");
    EXPECT_EQ(window().tabs().tabDay()->tabText(0), "Monday");
    EXPECT_EQ(frame().Texts().Label, "Monday");
    EXPECT_FALSE(field().isVisible());
    EXPECT_TRUE(workspace.ProjectChanged);
    workspace.ProjectChanged = false;
}

TEST_F(Renaming, TheEnterKeyOfTheKeypadServesToo) {
    startActive();
    trigger("mnuMapRename");
    type("Tuesday");
    QTest::keyClick(&field(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(frame().Texts().Label, "Tuesday");
}

TEST_F(Renaming, OnlyTheFrameShownIsRenamed) {
    startActive();
    trigger("mnuFrameInsert");
    trigger("mnuMapRename");
    type("Evening");
    enter();
    EXPECT_EQ(frame(1).Texts().Label, "Map1");
    EXPECT_EQ(frame(2).Texts().Label, "Evening");
}

TEST_F(Renaming, EscapeLeavesTheNameAlone) {
    startActive();
    trigger("mnuMapRename");
    type("Monday");
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_FALSE(field().isVisible());
    EXPECT_EQ(caption(), "Map1");
    EXPECT_EQ(frame().Texts().Label, "Map1");
}

TEST_F(Renaming, AnyKeyMarksTheProjectChanged) {
    startActive();
    trigger("mnuMapRename");
    EXPECT_FALSE(workspace.ProjectChanged);
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_TRUE(workspace.ProjectChanged);
    workspace.ProjectChanged = false;
}

TEST_F(Renaming, LeavingTheFieldLeavesTheNameAlone) {
    startActive();
    trigger("mnuMapRename");
    type("Monday");
    canvas().setFocus();
    EXPECT_FALSE(field().isVisible());
    EXPECT_EQ(caption(), "Map1");
    EXPECT_EQ(frame().Texts().Label, "Map1");
}

TEST_F(Renaming, APressOnTheMapLeavesTheField) {
    startActive();
    trigger("mnuMapRename");
    click({100, 100});
    EXPECT_FALSE(field().isVisible());
    EXPECT_EQ(caption(), "Map1");
}

TEST_F(Renaming, APressOnAnotherTabLeavesTheField) {
    startActive();
    trigger("mnuFrameInsert");
    trigger("mnuMapRename");
    type("Evening");
    QTabBar* bar = window().tabs().tabDay();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
    ASSERT_EQ(workspace.Status.CurrentFrame, 1);
    EXPECT_FALSE(field().isVisible());
    EXPECT_EQ(frame(1).Texts().Label, "Map1");
    EXPECT_EQ(frame(2).Texts().Label, "Map2");
}

TEST_F(Renaming, InsertingAFrameByItsKeyLeavesTheField) {
    startActive();
    trigger("mnuMapRename");
    QTest::keyClick(&field(), Qt::Key_T, Qt::ControlModifier);
    ASSERT_EQ(workspace.Status.CurrentFrame, 2);
    EXPECT_FALSE(field().isVisible());
}

TEST_F(Renaming, TheFieldsOwnMenuDoesNotLeaveIt) {
    startActive();
    trigger("mnuMapRename");
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, field().mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&field(), &event);
    ASSERT_TRUE(QApplication::activePopupWidget());
    EXPECT_TRUE(field().isVisible());
    QApplication::activePopupWidget()->close();
    EXPECT_TRUE(field().isVisible());
}

TEST_F(Renaming, ABlankIsRefusedAndTheTextStaysForCorrecting) {
    startActive();
    trigger("mnuMapRename");
    type("Monday night");
    expectRefusal();
    enter();
    EXPECT_TRUE(field().isVisible());
    EXPECT_TRUE(field().hasFocus());
    EXPECT_EQ(field().text(), "Monday night");
    EXPECT_EQ(caption(), "Map1");
    EXPECT_EQ(frame().Texts().Label, "Map1");
}

TEST_F(Renaming, ARefusedTextCanBeCorrected) {
    startActive();
    trigger("mnuMapRename");
    type("Monday ");
    expectRefusal();
    enter();
    QTest::keyClick(&field(), Qt::Key_Backspace);
    enter();
    EXPECT_EQ(caption(), "Monday");
}

TEST_F(Renaming, EveryForbiddenCharacterIsRefused) {
    startActive();
    for (const QChar forbidden : QString(R"x(?*:/\<>!" )x")) {
        trigger("mnuMapRename");
        type(QString("a") + forbidden + 'b');
        expectRefusal();
        enter();
        EXPECT_EQ(caption(), "Map1") << forbidden.toLatin1();
    }
}

TEST_F(Renaming, OtherSignsAreTaken) {
    startActive();
    trigger("mnuMapRename");
    type("Sat&Sun,1-2_(3)|'#");
    enter();
    EXPECT_EQ(frame().Texts().Label, "Sat&Sun,1-2_(3)|'#");
}

TEST_F(Renaming, AnEmptyNameIsTaken) {
    startActive();
    trigger("mnuMapRename");
    QTest::keyClick(&field(), Qt::Key_Delete);
    enter();
    EXPECT_EQ(frame().Texts().Label, "");
}

TEST_F(Renaming, ANameThatDiffersFromAnotherOnlyByCaseIsTaken) {
    startActive();
    trigger("mnuFrameInsert");
    trigger("mnuMapRename");
    type("mAP1");
    enter();
    EXPECT_EQ(frame(2).Texts().Label, "mAP1");
    // A free name treats both as one.
    EXPECT_EQ(window().tabs().freeFrameName(), "Map2");
}

TEST_F(Renaming, KeysTypedIntoTheFieldDoNotMoveTheSelectedSymbol) {
    startActive();
    const QString key = placeSymbol({200, 150});
    trigger("mnuMapRename");
    for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        QTest::keyClick(&field(), arrow, Qt::ShiftModifier);
    }
    QTest::keyClick(&field(), Qt::Key_Delete);
    const cSymbols& symbols = frame().Sprites().Symbols();
    ASSERT_EQ(symbols.Count(), 1);
    EXPECT_EQ(QPoint(symbols.Item(key).PosX, symbols.Item(key).PosY), QPoint(184, 134));
}

TEST_F(Renaming, TheKeyF2Begins) {
    startActive();
    canvas().setFocus();
    key(Qt::Key_F2);
    EXPECT_TRUE(field().isVisible());
}

}  // namespace nubivane
