// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/export/print_export.h"
#include "windows/canvas/canvas_fixture.h"

#include <QPainter>

namespace nubivane {

using namespace testing;

namespace {

/// Keeps what is printed, or refuses to.
class PaperPrinter : public PagePrinter {
  public:
    struct Log {
        std::vector<QImage> pages;
        QStringList titles;
        std::vector<QWidget*> setUps;
        bool broken = false;
        std::function<void()> look;
    };

    explicit PaperPrinter(Log& log) : log_(log) {}
    void setUp(QWidget* over) override { log_.setUps.push_back(over); }
    void print(const QImage& picture, const QString& title) override {
        if (log_.look) {
            log_.look();
        }
        if (log_.broken) {
            throw Error(error_number::FileAccess, "printing", "Cannot print.", "no paper");
        }
        log_.pages.push_back(picture);
        log_.titles << title;
    }

  private:
    Log& log_;
};

class Printing : public CanvasFixture {
  protected:
    void TearDown() override { workspace.ProjectChanged = false; }
    void startPrinting() {
        start();
        window().findChild<PrintCommands*>()->printer = std::make_unique<PaperPrinter>(log);
    }
    const QImage& page() { return log.pages.at(0); }

    PaperPrinter::Log log;
};

}  // namespace

TEST_F(Printing, ThePictureIsOnePixelNarrowerAndLowerThanTheCanvas) {
    startPrinting();
    trigger("mnuPrint");
    ASSERT_EQ(log.pages.size(), 1U);
    ASSERT_EQ(canvas().size(), QSize(502, 402));
    EXPECT_EQ(page().size(), QSize(501, 401));
}

TEST_F(Printing, TheMapStandsAtTheCornerWithoutTheCanvassFrameThere) {
    startPrinting();
    trigger("mnuPrint");
    const QImage map = workspace.pctMap.pixels().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(page().copy(0, 0, 500, 400), map);
    EXPECT_EQ(page().pixel(500, 10), CanvasBorderColor);
    EXPECT_EQ(page().pixel(10, 400), CanvasBorderColor);
}

TEST_F(Printing, SpritesArePrintedInTheSizesTheyHaveOnTheCanvas) {
    startPrinting();
    addStill("red.png", {10, 10});
    const QString key = placeSymbol({100, 100}, "red.png");
    SpriteControl* control = symbolControl(key);
    sprites().Move(*control, QRect(200, 200, 40, 40));
    selection().clearSelection();
    trigger("mnuPrint");
    EXPECT_EQ(page().pixel(202, 202), qRgb(255, 0, 0));
    EXPECT_EQ(page().pixel(237, 237), qRgb(255, 0, 0));
    EXPECT_NE(page().pixel(242, 242), qRgb(255, 0, 0));
}

TEST_F(Printing, TheFrameOfTheSelectionIsNotPrintedAndIsBackAfterwards) {
    startPrinting();
    const QString key = placeSymbol({100, 100}, addStill("red.png", {20, 20}));
    ASSERT_TRUE(selection().shpSelector());
    const QRect frame = selection().shpSelector()->rect();
    const QImage seen = canvas().grab().toImage();
    trigger("mnuPrint");
    ASSERT_TRUE(selection().shpSelector());
    EXPECT_EQ(selection().shpSelector()->rect(), frame);
    EXPECT_EQ(canvas().grab().toImage(), seen);
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
    EXPECT_EQ(shell.pointer, Pointer::Default);

    const QImage withFrame = page();
    selection().clearSelection();
    trigger("mnuPrint");
    EXPECT_EQ(log.pages.at(1), withFrame);
}

TEST_F(Printing, TheJobIsCalledAfterTheProjectAndTheFrameThatIsShown) {
    startPrinting();
    trigger("mnuFrameInsert");
    trigger("mnuPrint");
    workspace.Status.CurrentProject = "C:\\maps\\week.nvpf";
    trigger("mnuPrint");
    EXPECT_EQ(log.titles, QStringList({"Map2", "week: Map2"}));
}

TEST_F(Printing, WithoutASelectionNoneAppears) {
    startPrinting();
    trigger("mnuPrint");
    EXPECT_FALSE(selection().shpSelector());
}

TEST_F(Printing, AFailureIsToldAndTheFrameStaysHidden) {
    startPrinting();
    placeSymbol({100, 100});
    log.broken = true;
    log.look = [this] { EXPECT_EQ(shell.pointer, Pointer::Hourglass); };
    shell.expectMessage("An error occurred while printing.", Icon::Critical);
    trigger("mnuPrint");
    EXPECT_FALSE(selection().shpSelector());
    EXPECT_FALSE(selection().isEmpty());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(Printing, TheSetUpIsThePrintersOwnAndPrintsNothing) {
    startPrinting();
    trigger("mnuSetPrinter");
    EXPECT_EQ(log.setUps, std::vector<QWidget*>{&window()});
    EXPECT_TRUE(log.pages.empty());
}

}  // namespace nubivane
