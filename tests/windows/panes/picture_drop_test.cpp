// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/project_edits.h"
#include "windows/canvas/canvas_fixture.h"

#include <QMimeData>
#include <QUrl>

namespace nubivane {

/// Picture files dropped from a file manager.
class PictureDrop : public testing::CanvasFixture {
  protected:
    void SetUp() override {
        sun = outside.file("my sun.png");
        testing::writeFile(
            sun, encodePicture(testing::plainImage({32, 32}, Qt::red), PictureFormat::Png));
        text = outside.file("notes.txt");
        testing::writeFile(text, "no picture");
    }
    /// Whether the drop was taken.
    bool dropFiles(QWidget& on, const QStringList& files, QPoint at) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files) {
            urls << QUrl::fromLocalFile(file);
        }
        data.setUrls(urls);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&on, &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&on, &drop);
        return true;
    }
    Palette& palette() { return window().palette(); }

    testing::TemporaryFolder outside;
    QString sun;
    QString text;
};

TEST_F(PictureDrop, OnThePaletteImportsIntoTheCollectionShown) {
    start();
    const int before = palette().currentList()->symbols().rowCount();
    EXPECT_TRUE(dropFiles(palette(), {sun}, {50, 200}));
    EXPECT_EQ(palette().currentList()->symbols().rowCount(), before + 1);
    EXPECT_TRUE(palette().currentList()->selectedFile().startsWith(model("Symbols/set-1")));
    EXPECT_EQ(symbols().Count(), 0);
}

TEST_F(PictureDrop, OnTheMapPlacesWhatWasImported) {
    start();
    EXPECT_TRUE(dropFiles(canvas(), {sun, sun}, {201, 151}));
    ASSERT_EQ(symbols().Count(), 2);
    EXPECT_EQ(symbolRect(symbols().Item(1).Key_), QRect(184, 134, 32, 32));
    EXPECT_TRUE(symbols().Item(1).PathFileGif.startsWith(model("Symbols/set-1")));
    EXPECT_NE(symbols().Item(1).PathFileGif, symbols().Item(2).PathFileGif);
    EXPECT_EQ(workspace.edits().count(), 1);
}

TEST_F(PictureDrop, WhatIsNoPictureIsNotTaken) {
    start();
    EXPECT_FALSE(dropFiles(canvas(), {text}, {200, 150}));
    EXPECT_FALSE(dropFiles(palette(), {sun, text}, {50, 200}));
    EXPECT_EQ(symbols().Count(), 0);
}

TEST_F(PictureDrop, ADrawingToolTakesNothing) {
    start();
    workspace.Status.CurrentTool = Tool::draw;
    EXPECT_FALSE(dropFiles(canvas(), {sun}, {200, 150}));
}

}  // namespace nubivane
