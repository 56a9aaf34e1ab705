// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_access.h"

#include "windows/canvas/label_editor.h"
#include "windows/canvas/many_fixture.h"

namespace nubivane {

using ::testing::ElementsAre;

/// What those hear who have the map read to them.
class MapReadAloud : public testing::ManyFixture {
  protected:
    QAccessibleInterface& map() { return *QAccessible::queryAccessibleInterface(&canvas()); }
    QAccessibleInterface& child(int index) { return *map().child(index); }
    void act(int index, const QString& action) { child(index).actionInterface()->doAction(action); }
};

TEST_F(MapReadAloud, EachSpriteIsAChildWithNameRoleAndPlace) {
    startWithSprites();
    EXPECT_EQ(map().role(), QAccessible::Canvas);
    ASSERT_GE(map().childCount(), 4);
    EXPECT_EQ(child(0).text(QAccessible::Name), "sun");
    EXPECT_EQ(child(0).role(), QAccessible::Graphic);
    EXPECT_EQ(child(0).text(QAccessible::Description), "Symbol at 84, 84, 32 x 32");
    EXPECT_EQ(child(3).text(QAccessible::Name), "Label");
    EXPECT_EQ(child(3).role(), QAccessible::StaticText);
    EXPECT_EQ(child(1).rect(), QRect(canvas().mapToGlobal(QPoint(185, 85)), QSize(32, 32)));
    EXPECT_EQ(child(2).parent(), &map());
    EXPECT_EQ(map().indexOfChild(&child(2)), 2);
}

TEST_F(MapReadAloud, TheSpriteUnderAPointIsFound) {
    startWithSprites();
    const QPoint at = canvas().mapToGlobal(QPoint(200, 100));
    EXPECT_EQ(map().childAt(at.x(), at.y()), &child(1));
    const QPoint bare = canvas().mapToGlobal(QPoint(400, 350));
    EXPECT_EQ(map().childAt(bare.x(), bare.y()), nullptr);
}

TEST_F(MapReadAloud, ItTellsWhatIsSelected) {
    startWithSprites();
    select({first, third});
    EXPECT_TRUE(child(0).state().selected);
    EXPECT_FALSE(child(1).state().selected);
    EXPECT_TRUE(child(2).state().selected);
    canvas().setFocus();
    EXPECT_EQ(map().focusChild(), canvas().hasFocus() ? &child(2) : map().focusChild());
}

TEST_F(MapReadAloud, ActionsSelectTakeInAndEdit) {
    startWithSprites();
    act(1, QAccessibleActionInterface::pressAction());
    EXPECT_THAT(selected(), ElementsAre(second));
    act(0, QAccessibleActionInterface::toggleAction());
    EXPECT_THAT(selected(), ElementsAre(second, first));
    act(3, "Edit");
    EXPECT_TRUE(window().canvas().labelEditor().isVisible());
    EXPECT_FALSE(child(0).actionInterface()->localizedActionName("Edit").isEmpty());
}

TEST_F(MapReadAloud, OneThatIsGoneIsNoLongerAChild) {
    startWithSprites();
    QAccessibleInterface& gone = child(1);
    EXPECT_TRUE(gone.isValid());
    const int before = map().childCount();
    select({second});
    trigger("mnuDelSymbol");
    EXPECT_FALSE(gone.isValid());
    EXPECT_EQ(gone.text(QAccessible::Name), "");
    EXPECT_TRUE(gone.state().invalid);
    EXPECT_EQ(map().childCount(), before - 1);
    EXPECT_EQ(child(1).text(QAccessible::Description), "Symbol at 284, 84, 32 x 32");
}

TEST_F(MapReadAloud, TheOrderIsThatFromBottomToTop) {
    startWithSprites();
    select({first});
    trigger("mnuToFront");
    EXPECT_EQ(child(2).text(QAccessible::Value), "84, 84, 32 x 32");
}

TEST_F(MapReadAloud, AChildIsTheSameHoweverOftenItIsAskedFor) {
    startWithSprites();
    QAccessibleInterface* symbol = &child(1);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(&child(1), symbol);
        EXPECT_EQ(map().indexOfChild(symbol), 1);
    }
    select({first});
    trigger("mnuDelSymbol");
    EXPECT_EQ(&child(0), symbol);
    EXPECT_EQ(map().indexOfChild(symbol), 0);
    EXPECT_EQ(map().child(-1), nullptr);
    EXPECT_EQ(map().child(1000), nullptr);
}

TEST_F(MapReadAloud, AnotherFramesSpritesAreOthers) {
    startWithSprites();
    QAccessibleInterface& ofTheFirst = child(0);
    trigger("mnuFrameInsert");
    EXPECT_FALSE(ofTheFirst.isValid());
    EXPECT_FALSE(map().child(0) && map().child(0)->role() == QAccessible::Graphic);
}

/// The same with a figure that is being drawn.
class FigureReadAloud : public MapReadAloud {
  protected:
    void begin(const char* tool) {
        start();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        QTest::keyClick(&canvas(), *tool);
        click({100, 100});
        click({200, 150});
    }
    QAccessibleInterface& point(int index) { return *child(0).child(index); }
};

TEST_F(FigureReadAloud, AFigureIsAListOfItsPoints) {
    begin("f");
    EXPECT_EQ(child(0).text(QAccessible::Name), "Cold front");
    EXPECT_EQ(child(0).text(QAccessible::Description), "Figure being drawn, with 2 point(s)");
    EXPECT_EQ(child(0).role(), QAccessible::List);
    ASSERT_EQ(child(0).childCount(), 2);
    EXPECT_EQ(child(0).child(2), nullptr);
    EXPECT_EQ(point(1).text(QAccessible::Name), "Point 2 of 2");
    EXPECT_EQ(point(1).text(QAccessible::Description), "Point at 200, 150");
    EXPECT_EQ(point(1).role(), QAccessible::ListItem);
    EXPECT_EQ(point(1).parent(), &child(0));
    EXPECT_EQ(child(0).indexOfChild(&point(1)), 1);
    EXPECT_EQ(map().indexOfChild(&child(0)), 0);
    const QPoint place = canvas().mapToGlobal(QPoint(201, 151));
    EXPECT_TRUE(point(1).rect().contains(place));
    EXPECT_EQ(map().childAt(place.x(), place.y()), &child(0));
    EXPECT_EQ(child(0).childAt(place.x(), place.y()), &point(1));
}

TEST_F(FigureReadAloud, APointIsTakenInHandAndRemoved) {
    begin("f");
    click({300, 200});
    EXPECT_TRUE(point(2).state().selected);
    point(0).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(point(0).state().selected);
    EXPECT_FALSE(point(2).state().selected);
    QAccessibleInterface& last = point(2);
    point(1).actionInterface()->doAction("Remove");
    EXPECT_EQ(child(0).childCount(), 2);
    EXPECT_FALSE(last.isValid());
    EXPECT_EQ(last.text(QAccessible::Name), "");
    EXPECT_EQ(point(1).text(QAccessible::Value), "300, 200");
}

TEST_F(FigureReadAloud, AFigureIsDrawn) {
    begin("f");
    child(0).actionInterface()->doAction("Draw");
    EXPECT_FALSE(window().canvas().drawing().isUnfinished());
    EXPECT_EQ(workspace.edits().count(), 1);
}

TEST_F(FigureReadAloud, AFigureIsDropped) {
    begin("f");
    child(0).actionInterface()->doAction("Drop");
    EXPECT_FALSE(window().canvas().drawing().isUnfinished());
    EXPECT_EQ(workspace.edits().count(), 0);
}

TEST_F(FigureReadAloud, TheEndsOfALineAreToldToo) {
    begin("l");
    EXPECT_EQ(child(0).text(QAccessible::Name), "Line");
    ASSERT_EQ(child(0).childCount(), 2);
    EXPECT_EQ(point(0).text(QAccessible::Value), "100, 100");
    EXPECT_TRUE(point(0).actionInterface()->actionNames().isEmpty());
    EXPECT_FALSE(point(0).state().selectable);
    child(0).actionInterface()->doAction("Draw");
    EXPECT_EQ(workspace.edits().count(), 1);
}

}  // namespace nubivane
