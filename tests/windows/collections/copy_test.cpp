// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/dialog_parts.h"
#include "support/fixtures.h"
#include "windows/collections/frm_copy.h"

#include <QDir>

#include <functional>

namespace nubivane {

using namespace testing;

namespace {

/// Looks at the window during its pauses.
class WatchingShell : public ScriptedShell {
  public:
    std::function<void()> look;
    void wait(int milliseconds) override {
        ScriptedShell::wait(milliseconds);
        QApplication::processEvents();
        look();
    }
};

/// The progress window of imports.
class CopyWindow : public WorkspaceFixture {
  protected:
    CopyWindow() {
        writeFile(temporary.file("moon.gif"), "moon");
        watching.look = [this] {
            const QWidget* window = QApplication::activeModalWidget();
            ASSERT_TRUE(window);
            percents << part<QProgressBar>(*window, "pBar")->value();
            caption = window->windowTitle();
            text = part<QLabel>(*window, "lblFile")->text();
            film = part<QWidget>(*window, "gifCopy")->isVisible();
        };
    }
    void copy(const QString& target) {
        frmCopy(workspace, watching, nullptr).Init(modelPath("moon.gif"), modelPath(target));
    }
    QString modelPath(const QString& name) const {
        return temporary.file(name).replace(u'/', u'\\');
    }

    WatchingShell watching;
    QList<int> percents;
    QString caption;
    QString text;
    bool film = false;
};

}  // namespace

TEST_F(CopyWindow, TellsWhatItCopiesAndHowFarItIs) {
    copy("target.gif");
    EXPECT_EQ(caption, "Importing map");
    EXPECT_EQ(text, "Copying file moon.gif to maps folder");
    EXPECT_EQ(percents, QList<int>({1, 30, 100}));
    EXPECT_EQ(watching.waits, QList<int>({300, 300, 500}));
    EXPECT_EQ(readFile(temporary.file("target.gif")), "moon");
    EXPECT_EQ(watching.pointer, Pointer::Default);
}

TEST_F(CopyWindow, ShowsItsFilmWhereThereIsOne) {
    copy("target.gif");
    EXPECT_FALSE(film);
    writeFile(host("Media/FILECOPY.GIF"), readFile(host("Symbols/set-1/sun.gif")));
    copy("target.gif");
    EXPECT_TRUE(film);
    writeFile(host("Media/FILECOPY.GIF"), "no picture");
    copy("target.gif");
    EXPECT_FALSE(film);
}

TEST_F(CopyWindow, ACopyThatFailsIsNotReported) {
    copy("no/such/folder.gif");
    EXPECT_EQ(percents, QList<int>({1, 30, 100}));
    EXPECT_FALSE(QFile::exists(temporary.file("no")));
}

TEST_F(CopyWindow, CannotBeLeftWhileItCopies) {
    const auto seen = watching.look;
    watching.look = [&] {
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        QApplication::activeModalWidget()->close();
        seen();
    };
    copy("target.gif");
    EXPECT_EQ(percents, QList<int>({1, 30, 100}));
    EXPECT_EQ(readFile(temporary.file("target.gif")), "moon");
}

}  // namespace nubivane
