// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/many_fixture.h"
#include "windows/commands/alignment.h"

#include <QInputDialog>
#include <QTimer>

namespace nubivane {

using ::testing::ElementsAre;

TEST(Alignments, BringOneSideOrMiddleTogether) {
    const std::vector<QRect> rects = {{10, 20, 30, 10}, {50, 60, 10, 40}};
    EXPECT_THAT(aligned(rects, Alignment::Left),
                ElementsAre(QRect(10, 20, 30, 10), QRect(10, 60, 10, 40)));
    EXPECT_THAT(aligned(rects, Alignment::Right),
                ElementsAre(QRect(30, 20, 30, 10), QRect(50, 60, 10, 40)));
    EXPECT_THAT(aligned(rects, Alignment::Centre),
                ElementsAre(QRect(20, 20, 30, 10), QRect(30, 60, 10, 40)));
    EXPECT_THAT(aligned(rects, Alignment::Top),
                ElementsAre(QRect(10, 20, 30, 10), QRect(50, 20, 10, 40)));
    EXPECT_THAT(aligned(rects, Alignment::Bottom),
                ElementsAre(QRect(10, 90, 30, 10), QRect(50, 60, 10, 40)));
    EXPECT_THAT(aligned(rects, Alignment::Middle),
                ElementsAre(QRect(10, 55, 30, 10), QRect(50, 40, 10, 40)));
}

TEST(Alignments, DistributeBetweenTheOutermost) {
    EXPECT_THAT(distributed({{0, 0, 10, 10}, {90, 5, 10, 10}, {12, 7, 20, 10}}, Qt::Horizontal),
                ElementsAre(QRect(0, 0, 10, 10), QRect(90, 5, 10, 10), QRect(40, 7, 20, 10)));
    EXPECT_THAT(distributed({{0, 0, 10, 10}, {0, 25, 10, 10}, {0, 15, 10, 10}}, Qt::Vertical),
                ElementsAre(QRect(0, 0, 10, 10), QRect(0, 25, 10, 10), QRect(0, 13, 10, 10)));
    const std::vector<QRect> two = {{0, 0, 10, 10}, {33, 0, 10, 10}};
    EXPECT_EQ(distributed(two, Qt::Horizontal), two);
}

/// Sprites put in order.
class Arranging : public testing::ManyFixture {
  protected:
    QString order() {
        QString keys;
        for (const cSymbol& symbol : symbols()) {
            keys += symbol.Key_.right(1);
        }
        return keys;
    }
    std::vector<SpriteId> shownOrder() {
        std::vector<SpriteId> ids;
        for (const SpriteControl* control : sprites().controls()) {
            ids.push_back(control->id);
        }
        return ids;
    }
};

TEST_F(Arranging, FrontAndBackGoIntoTheModelAndOntoTheScreen) {
    startWithSprites();
    select({first});
    trigger("mnuToFront");
    EXPECT_EQ(order(), "231");
    EXPECT_THAT(shownOrder(), ElementsAre(second, third, first, label));
    EXPECT_TRUE(workspace.ProjectChanged);
    trigger("mnuToBack");
    EXPECT_EQ(order(), "123");
    EXPECT_THAT(selected(), ElementsAre(first));
    EXPECT_EQ(made(), 2);
    trigger("mnuUndo");
    EXPECT_EQ(order(), "231");
    EXPECT_THAT(shownOrder(), ElementsAre(second, third, first, label));
    trigger("mnuUndo");
    EXPECT_EQ(order(), "123");
    trigger("mnuRedo");
    EXPECT_EQ(order(), "231");
}

TEST_F(Arranging, OneStepGoesPastOneNeighbour) {
    startWithSprites();
    select({first});
    trigger("mnuRaise");
    EXPECT_EQ(order(), "213");
    trigger("mnuRaise");
    trigger("mnuRaise");
    EXPECT_EQ(order(), "231");
    EXPECT_EQ(made(), 2);  // the last one changed nothing
    trigger("mnuLower");
    EXPECT_EQ(order(), "213");
}

TEST_F(Arranging, SeveralKeepTheirOrderAmongThemselves) {
    startWithSprites();
    select({second, first});
    trigger("mnuToFront");
    EXPECT_EQ(order(), "312");
    trigger("mnuLower");
    EXPECT_EQ(order(), "123");
    select({second, third});
    trigger("mnuLower");
    EXPECT_EQ(order(), "231");
}

TEST_F(Arranging, TheKeysAreThoseOfThePages) {
    startWithSprites();
    select({first});
    keyOnMap(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(order(), "213");
    keyOnMap(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(order(), "231");
    keyOnMap(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(order(), "213");
    keyOnMap(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(order(), "123");
}

TEST_F(Arranging, WhatWasInFrontIsSeenInFront) {
    const QString red = addStill("red.png", {40, 40}, Qt::red);
    const QString blue = addStill("blue.png", {40, 40}, Qt::blue);
    start();
    const SpriteId below{SpriteKind::Symbol, placeSymbol({200, 200}, red)};
    placeSymbol({200, 200}, blue);
    EXPECT_EQ(shown({200, 200}), QColor(Qt::blue));
    select({below});
    trigger("mnuToFront");
    EXPECT_EQ(shown({200, 200}), QColor(Qt::red));
}

TEST_F(Arranging, AligningIsOneEditAndKeepsTheSelection) {
    startWithSprites();
    select({first, second, label});
    const QPoint text = position(label);
    trigger("mnuAlignLeft");
    EXPECT_EQ(position(first), QPoint(84, 84));
    EXPECT_EQ(position(second), QPoint(84, 84));
    EXPECT_EQ(position(label), QPoint(84, text.y()));
    EXPECT_EQ(made(), 1);
    EXPECT_EQ(selected().size(), 3U);
    trigger("mnuUndo");
    EXPECT_EQ(position(second), QPoint(184, 84));
    EXPECT_EQ(position(label), text);
}

TEST_F(Arranging, CommandsAreThereForAsManyAsTheyNeed) {
    startWithSprites();
    const auto enabled = [this](const char* name) {
        return window().commands().action(name)->isEnabled();
    };
    EXPECT_FALSE(enabled("mnuToFront"));
    EXPECT_FALSE(enabled("mnuDuplicate"));
    select({first});
    EXPECT_TRUE(enabled("mnuToFront"));
    EXPECT_FALSE(enabled("mnuAlignLeft"));
    select({first, second});
    EXPECT_TRUE(enabled("mnuAlignLeft"));
    EXPECT_FALSE(enabled("mnuDistributeAcross"));
    select({first, second, third});
    EXPECT_TRUE(enabled("mnuDistributeAcross"));
    window().clearSelection();
    EXPECT_FALSE(enabled("mnuDistributeAcross"));
}

TEST_F(Arranging, TheGridIsAskedForAndRemembered) {
    startWithSprites();
    QTimer::singleShot(0, &window(), [this] {
        auto* dialog = window().findChild<QInputDialog*>();
        ASSERT_TRUE(dialog);
        dialog->setIntValue(30);
        dialog->accept();
    });
    trigger("mnuGrid");
    EXPECT_EQ(settings.text(Setting::Grid), "30");
    drag({100, 100}, {136, 100});
    EXPECT_EQ(position(first), QPoint(120, 90));
}

}  // namespace nubivane
