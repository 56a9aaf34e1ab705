// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/drawing_fixture.h"

#include <QFile>

namespace nubivane {

/// How a drawing leaves the canvas: into the project's files and back, and into the page.
class DrawingProject : public testing::DrawingFixture {
  protected:
    void SetUp() override {
        startDrawing();
        setWidth("9");
    }
    void TearDown() override { workspace.ProjectChanged = false; }

    void drawLine(QPoint from, QPoint to) {
        choose("draw");
        drag(from, to);
    }
    void save() {
        shell.expectSaveDialog("Save project", model("drawn.nvpf"));
        trigger("mnuSaveProject");
    }
    static bool isRed(const QImage& picture, QPoint position) {
        return testing::isNearly(picture.pixelColor(position), Qt::red);
    }
};

TEST_F(DrawingProject, StrokesAndFiguresComeBackWithTheProject) {
    drawLine({100, 100}, {200, 100});
    choose("line");
    click({100, 200});
    click({200, 200});
    apply();
    trigger("mnuFrameInsert");
    drawLine({100, 300}, {200, 300});
    save();
    EXPECT_FALSE(workspace.ProjectChanged);

    start(model("drawn.nvpf"));
    EXPECT_TRUE(isRed(onScreen(), {150, 100}));
    EXPECT_TRUE(isRed(onScreen(), {150, 200}));
    EXPECT_FALSE(isRed(onScreen(), {150, 300}));
    selectTab(2);
    EXPECT_FALSE(isRed(onScreen(), {150, 100}));
    EXPECT_TRUE(isRed(onScreen(), {150, 300}));
}

TEST_F(DrawingProject, SavingDropsAFigureThatIsBeingEdited) {
    drawLine({100, 100}, {200, 100});
    choose("line");
    click({100, 200});
    click({200, 200});
    save();
    EXPECT_FALSE(actionLoaded());
    EXPECT_EQ(drawing().points().pointCount(), 0);
    EXPECT_FALSE(isRed(onScreen(), {150, 200}));
    start(model("drawn.nvpf"));
    EXPECT_TRUE(isRed(onScreen(), {150, 100}));
    EXPECT_FALSE(isRed(onScreen(), {150, 200}));
}

TEST_F(DrawingProject, DrawingGoesOnAfterASave) {
    drawLine({100, 100}, {200, 100});
    save();
    drawLine({100, 200}, {200, 200});
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_TRUE(isRed(onScreen(), {150, 100}));
    EXPECT_TRUE(isRed(onScreen(), {150, 200}));
    EXPECT_TRUE(isRed(committed(), {150, 200}));
}

TEST_F(DrawingProject, ThePagesPictureHoldsTheDrawing) {
    drawLine({100, 100}, {200, 100});
    choose("circle");
    click({300, 200});
    click({300, 250});
    apply();
    trigger("mnuCrea");
    const QImage page(host("Web/Forecast1.jpg"));
    ASSERT_EQ(page.size(), QSize(500, 400));
    EXPECT_TRUE(isRed(page, {150, 100}));
    EXPECT_TRUE(isRed(page, {250, 200}));
    EXPECT_TRUE(isRed(page, {300, 150}));
    EXPECT_TRUE(testing::isNearly(page.pixelColor(300, 200), Qt::cyan));
}

TEST_F(DrawingProject, EachFrameHasItsOwnDrawing) {
    drawLine({100, 100}, {200, 100});
    trigger("mnuFrameInsert");
    EXPECT_FALSE(isRed(onScreen(), {150, 100}));
    drawLine({100, 200}, {200, 200});
    selectTab(1);
    EXPECT_TRUE(isRed(onScreen(), {150, 100}));
    EXPECT_FALSE(isRed(onScreen(), {150, 200}));
}

TEST_F(DrawingProject, ADrawingIsNoObjectOfTheModel) {
    drawLine({100, 100}, {200, 100});
    EXPECT_EQ(frame().Sprites().Count(), 0);
    EXPECT_TRUE(sprites().controls().empty());
}

TEST_F(DrawingProject, ANewProjectShowsTheBareMap) {
    drawLine({100, 100}, {200, 100});
    workspace.ProjectChanged = false;
    trigger("mnuNewProject");
    compare();
}

}  // namespace nubivane
