// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/export/export_stage.h"
#include "engine/gif/gif_reader.h"
#include "support/dialog_parts.h"
#include "windows/drawing/drawing_fixture.h"

#include <QDir>
#include <QProgressBar>
#include <QStatusTipEvent>
#include <QTimer>

namespace nubivane {

using namespace testing;

namespace {

/// The entries of the menu "Export", worked through their windows.
class ExportCommandsTest : public DrawingFixture {
  protected:
    ExportCommandsTest() { QDir().mkpath(host("out")); }
    void TearDown() override { workspace.ProjectChanged = false; }

    QString outputHost(const QString& name) const { return host("out/" + name); }
    QImage output(const QString& name) const {
        return QImage(outputHost(name)).convertToFormat(QImage::Format_RGB32);
    }
    QStringList outputs() const {
        return QDir(host("out")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    void exportStill(const char* command, const QString& chosen) {
        shell.expectSaveDialog("Export map", chosen);
        trigger(command);
    }

    /// Opens a dialog by its entry, gives it a name for a file, and lets the run end.
    void exportBy(const char* command, const char* dialogName, const QString& file) {
        QTimer::singleShot(0, &window(), [&, file] {
            auto* dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog);
            EXPECT_EQ(dialog->objectName(), dialogName);
            EXPECT_EQ(dialog->parentWidget(), &window());
            part<QLineEdit>(*dialog, "txtFileName")->setText(file);
            clickPart(*dialog, "cmdSave");
            if (dialog->isVisible()) {
                dialog->close();
            }
        });
        trigger(command);
    }

    /// A line across the map, drawn by hand. Sprites can be placed again after it.
    void drawLine() {
        choose("draw");
        drag({20, 20}, {60, 20});
        choose("cursor");
    }
};

/// What a window is told to say in its status line.
class StatusTips : public QObject {
  public:
    QStringList told;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::StatusTip) {
            told << static_cast<QStatusTipEvent*>(event)->tip();
        }
        return false;
    }
};

}  // namespace

TEST_F(ExportCommandsTest, LettersWithoutAFontAreToldInTheStatusLineOnce) {
    start();
    placeLabel({300, 200});
    for (cLabel& label : workspace.Frames().Item(1).Sprites().Labels()) {
        label.Text = QString::fromUtf8("\xE6\x97\xA5");
    }
    StatusTips tips;
    window().installEventFilter(&tips);
    exportStill("subEsportaPng", model("out/a.png"));
    ASSERT_EQ(tips.told.size(), 1);
    EXPECT_TRUE(tips.told[0].startsWith("Frame 1: no installed font has "))
        << tips.told[0].toStdString();
}

TEST_F(ExportCommandsTest, EachEntryAsksForAFileOfItsKind) {
    start();
    const std::pair<const char*, const char*> rows[] = {
        {"subEsportaBmp", "bitmaps (*.bmp)|*.bmp|"}, {"subEsportaGif", "gif (*.gif)|*.gif"},
        {"subEsportaJpg", "jpg (*.jpg)|*.jpg|"},     {"subEsportaPng", "png (*.png)|*.png|"},
        {"subEsportaTif", "tif (*.tif)|*.tif|"},
    };
    for (const auto& [command, filter] : rows) {
        exportStill(command, {});
        EXPECT_EQ(shell.lastFileRequest.folder, workspace.folder.path());
        EXPECT_EQ(shell.lastFileRequest.filter, filter);
        EXPECT_TRUE(shell.lastFileRequest.confirmOverwrite);
    }
}

TEST_F(ExportCommandsTest, TheNameDecidesTheFormatWhateverTheEntry) {
    start();
    exportStill("subEsportaBmp", model("out/map.JPG"));
    EXPECT_EQ(probePicture(readFile(outputHost("map.JPG"))).format, PictureFormat::Jpeg);
}

TEST_F(ExportCommandsTest, AnImageShowsDrawingsAndSprites) {
    startDrawing();
    drawLine();
    placeSymbol({200, 150}, addStill("red.png", {20, 20}));
    placeLabel({300, 200});
    exportStill("subEsportaPng", model("out/a.png"));
    const QImage picture = output("a.png");
    ASSERT_EQ(picture.size(), QSize(500, 400));
    EXPECT_EQ(picture.pixel(40, 20), qRgb(255, 0, 0));
    EXPECT_EQ(picture, renderFrame(workspace, 1));
    EXPECT_NE(picture.pixel(200, 150), picture.pixel(400, 300));
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(ExportCommandsTest, AFrameThatWasNeverDrawnOnShowsTheMapAndItsSprites) {
    start();
    placeSymbol({200, 150});
    exportStill("subEsportaPng", model("out/a.png"));
    const QImage map = workspace.loadCurrentMap().image().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(output("a.png").copy(0, 0, 150, 400), map.copy(0, 0, 150, 400));
    EXPECT_NE(output("a.png"), map);
}

TEST_F(ExportCommandsTest, BlanksAroundTheNameDoNotCountAndBlanksAloneAreNone) {
    start();
    exportStill("subEsportaPng", "   ");
    EXPECT_EQ(outputs(), QStringList());
    exportStill("subEsportaPng", model("out/a.png") + "  ");
    EXPECT_EQ(outputs(), QStringList({"a.png"}));
}

TEST_F(ExportCommandsTest, ACancelledDialogTouchesNothing) {
    startDrawing();
    const Picture panel = workspace.pctPanel.picture(1);
    choose("line");
    press({20, 20});
    move({60, 20});
    const QRect scratch = workspace.pctMap.scratchArea();
    ASSERT_FALSE(scratch.isEmpty());
    exportStill("subEsportaPng", {});
    EXPECT_EQ(workspace.pctMap.scratchArea(), scratch);
    EXPECT_TRUE(workspace.pctPanel.picture(1).sharesContentWith(panel));
    release({60, 20});
}

TEST_F(ExportCommandsTest, TheCanvasShowsAfterwardsWhatItShowedBefore) {
    startDrawing();
    drawLine();
    placeSymbol({200, 150}, addStill("red.png", {20, 20}));
    const QImage before = canvas().grab().toImage();
    exportStill("subEsportaPng", model("out/a.png"));
    EXPECT_EQ(canvas().grab().toImage(), before);
    EXPECT_EQ(workspace.pctPanel.picture(1).image().convertToFormat(QImage::Format_RGB32),
              workspace.pctMap.pixels().convertToFormat(QImage::Format_RGB32));
}

TEST_F(ExportCommandsTest, ANameWithoutAKnownEndingIsTold) {
    start();
    shell.expectMessage("An error occurred while saving the file.", Icon::Critical);
    exportStill("subEsportaJpg", model("out/map.jpeg"));
    shell.expectMessage("An error occurred while saving the file.", Icon::Critical);
    exportStill("subEsportaJpg", model("out/map"));
    EXPECT_EQ(outputs(), QStringList());
    EXPECT_TRUE(window().isEnabled());
}

TEST_F(ExportCommandsTest, AnAnimatedGifGoesByItsDialogAndItsRun) {
    startDrawing();
    drawLine();
    addMoving("blink.gif", {10, 10});
    drop("symbol|" + model("Symbols/set-1/blink.gif"), {200, 150});
    exportBy("subEsportaGifAni", "frmSetAniGif", "moving");
    const std::vector<GifImage> images = readGif(readFile(host("moving.gif")));
    ASSERT_EQ(images.size(), 3U);
    EXPECT_EQ(images[0].delay, 10);
    EXPECT_EQ(images[0].picture.pixel(40, 20), qRgb(255, 0, 0));
    EXPECT_NE(images[0].picture, images[1].picture);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(ExportCommandsTest, AFilmTakesTheDrawingOfTheFrameOnTheCanvasToo) {
    startDrawing();
    trigger("mnuFrameInsert");
    ASSERT_EQ(workspace.Frames().Count(), 2);
    selectTab(2);
    drawLine();
    exportBy("subEsportaFilm", "frmSetFilm", "film.gif");
    const std::vector<GifImage> images = readGif(readFile(host("film.gif")));
    ASSERT_EQ(images.size(), 2U);
    EXPECT_NE(images[0].picture.pixel(40, 20), qRgb(255, 0, 0));
    EXPECT_EQ(images[1].picture.pixel(40, 20), qRgb(255, 0, 0));
}

TEST_F(ExportCommandsTest, AVideoGoesByItsDialogAndItsRun) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(host("out"));
    QDir().mkpath(host("out/c:/dell"));
    start();
    exportBy("subEsportaAvi", "frmSetAvi", "clip");
    QDir::setCurrent(before);
    const QByteArray video = readFile(outputHost("c:/dell/clip.avi"));
    EXPECT_EQ(video.left(4), "RIFF");
    EXPECT_EQ(video.mid(8, 4), "AVI ");
}

TEST_F(ExportCommandsTest, ADialogThatIsLeftWritesNothing) {
    start();
    const QStringList before = QDir(host(".")).entryList();
    for (const char* command : {"subEsportaGifAni", "subEsportaFilm", "subEsportaAvi"}) {
        QTimer::singleShot(0, &window(), [] {
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        });
        trigger(command);
    }
    EXPECT_EQ(QDir(host(".")).entryList(), before);
}

TEST_F(ExportCommandsTest, NothingOfItCountsAsAChangeOfTheProject) {
    start();
    exportStill("subEsportaPng", model("out/a.png"));
    exportBy("subEsportaGifAni", "frmSetAniGif", "a");
    EXPECT_FALSE(workspace.ProjectChanged);
}

}  // namespace nubivane
