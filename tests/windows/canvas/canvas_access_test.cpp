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

}  // namespace nubivane
