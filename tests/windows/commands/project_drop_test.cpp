// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

namespace nubivane {

/// A project's file dragged in from the desktop.
class ProjectDrop : public testing::EditorFixture {
  protected:
    void SetUp() override {
        start();
        placeSymbol({100, 100});
        shell.expectSaveDialog("Save project", model("week.nvpf"));
        trigger("mnuSaveProject");
        trigger("mnuNewProject");
    }
    void TearDown() override { workspace.ProjectChanged = false; }

    /// Drops files on a widget as the desktop does; false when the drag was not taken.
    bool dropFiles(QWidget& target, const QStringList& hostFiles) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : hostFiles) {
            urls << QUrl::fromLocalFile(file);
        }
        data.setUrls(urls);
        const QPoint position = target.rect().center();
        QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDragMoveEvent over(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &over);
        QDropEvent dropped(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &dropped);
        return true;
    }
};

TEST_F(ProjectDrop, OnTheWindowOpensIt) {
    EXPECT_TRUE(dropFiles(window(), {host("week.nvpf")}));
    EXPECT_EQ(window().windowTitle(), "week.nvpf - Nubivane");
    EXPECT_EQ(frame().Sprites().Symbols().Count(), 1);
}

TEST_F(ProjectDrop, OnTheMapOpensItToo) {
    EXPECT_TRUE(dropFiles(canvas(), {host("week.nvpf")}));
    EXPECT_EQ(window().windowTitle(), "week.nvpf - Nubivane");
}

TEST_F(ProjectDrop, AnotherKindOfFileIsNotTaken) {
    EXPECT_FALSE(dropFiles(window(), {host("week.nvpx")}));
    EXPECT_FALSE(dropFiles(canvas(), {host("week.nvpx")}));
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
}

TEST_F(ProjectDrop, TwoFilesAreNotTaken) {
    EXPECT_FALSE(dropFiles(window(), {host("week.nvpf"), host("week.nvpf")}));
}

TEST_F(ProjectDrop, PlainTextIsNotTaken) {
    QMimeData data;
    data.setText("symbol|" + model("Symbols/set-1/sun.gif"));
    QDragEnterEvent enter(window().rect().center(), Qt::CopyAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(&window(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(ProjectDrop, UnsavedWorkIsGuarded) {
    placeLabel({200, 100});
    shell.expectMessage("The project has been changed. Save file before closing ?",
                        Icon::Exclamation, Buttons::YesNoCancel, Answer::Cancel);
    EXPECT_TRUE(dropFiles(window(), {host("week.nvpf")}));
    EXPECT_EQ(frame().Sprites().Labels().Count(), 1);
}

TEST_F(ProjectDrop, ADamagedFileShowsItsText) {
    testing::writeFile(host("bad.nvpf"), "no project");
    shell.expectMessage("Cannot open the specified file. It could be damaged or not valid.",
                        Icon::Critical);
    EXPECT_TRUE(dropFiles(window(), {host("bad.nvpf")}));
}

}  // namespace nubivane
