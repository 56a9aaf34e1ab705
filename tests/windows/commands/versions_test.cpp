// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/model/edits/frame_edits.h"
#include "engine/model/edits/project_edits.h"
#include "support/modal.h"
#include "support/project_snapshot.h"
#include "windows/canvas/canvas_fixture.h"
#include "windows/commands/frm_versions.h"

#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

namespace nubivane {

using testing::partOf;
using testing::withModal;

/// "Earlier versions...": what was kept of the project that is open.
class EarlierVersions : public testing::CanvasFixture {
  protected:
    ~EarlierVersions() override { workspace.ProjectChanged = false; }

    /// A project saved with one symbol, then with a second Frame and a label.
    void saveTwice() {
        start();
        placeSymbol({200, 150});
        shell.expectSaveDialog("Save project", model("week.nvpf"));
        trigger("mnuSaveProject");
        first_ = testing::snapshotOf(workspace);
        trigger("mnuFrameInsert");
        placeLabel({100, 100});
        trigger("mnuSaveProject");
    }
    void withWindow(const std::function<void(frmVersions&)>& work) {
        withModal([this] { trigger("mnuVersions"); },
                  [&work](QWidget& window) { work(dynamic_cast<frmVersions&>(window)); });
    }
    static void click(QWidget& window, const char* button) {
        QTest::mouseClick(&partOf<QPushButton>(window, button), Qt::LeftButton);
    }

    QString first_;
};

TEST_F(EarlierVersions, WithoutAnyTheWindowSaysSoAndOffersNothing) {
    start();
    shell.expectSaveDialog("Save project", model("week.nvpf"));
    trigger("mnuSaveProject");
    withWindow([](frmVersions& window) {
        EXPECT_TRUE(partOf<QLabel>(window, "lblHeading").text().startsWith("No earlier version"));
        for (const char* button : {"cmdOpen", "cmdCompare", "cmdSaveAs"}) {
            EXPECT_FALSE(partOf<QPushButton>(window, button).isEnabled()) << button;
        }
        window.reject();
    });
}

TEST_F(EarlierVersions, AreListedWithTimeCauseAndContent) {
    saveTwice();
    withWindow([](frmVersions& window) {
        ASSERT_EQ(window.list()->count(), 1);
        const QStringList lines = window.list()->item(0)->text().split('\n');
        ASSERT_EQ(lines.size(), 4);
        EXPECT_TRUE(lines[0].contains(QDate::currentDate().toString("yyyy")));
        EXPECT_EQ(lines.mid(1), QStringList({"saved", "Maps: 1", "Symbols and labels: 1"}));
        window.reject();
    });
}

TEST_F(EarlierVersions, ShowTheirFirstMap) {
    saveTwice();
    withWindow([](frmVersions& window) {
        const auto middle = [&window] {
            const QImage picture =
                window.list()->item(0)->icon().pixmap(frmVersions::PictureSize).toImage();
            return picture.pixelColor(picture.width() / 2, picture.height() - 12);
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return middle().alpha() == 255; }));
        EXPECT_GT(middle().blue(), 200) << "the map is cyan";
        EXPECT_LT(middle().red(), 60);
        window.reject();
    });
}

TEST_F(EarlierVersions, OpenAsANewProjectUnsavedAndWithoutAName) {
    saveTwice();
    const QByteArray onDisk = testing::readFile(host("week.nvpf"));
    withWindow([](frmVersions& window) { click(window, "cmdOpen"); });
    EXPECT_EQ(testing::snapshotOf(workspace).section('\n', 1), first_.section('\n', 1));
    EXPECT_EQ(workspace.Status.CurrentProject, "");
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_TRUE(workspace.edits().isUnsaved());
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
    EXPECT_EQ(testing::readFile(host("week.nvpf")), onDisk);
    EXPECT_EQ(settings.list(SettingList::RecentFiles), QStringList(model("week.nvpf")));
}

TEST_F(EarlierVersions, CompareTellsFramesSpritesAndTexts) {
    saveTwice();
    symbols();
    workspace.edits().push(std::make_unique<RenameFrame>(1, "Monday"));
    withWindow([](frmVersions& window) {
        click(window, "cmdCompare");
        auto& text = partOf<QPlainTextEdit>(window, "txtDifferences");
        EXPECT_TRUE(text.isVisible());
        EXPECT_EQ(text.toPlainText(),
                  "Maps in this version: 1, now: 2.\nMonday: called Map1 in this version.");
        window.reject();
    });
    window().tabs().tabDay()->setCurrentIndex(0);
    placeLabel({50, 50});
    trigger("mnuSaveProject");
    workspace.edits().goTo(0);
    withWindow([](frmVersions& window) {
        window.list()->setCurrentRow(1);
        click(window, "cmdCompare");
        EXPECT_EQ(partOf<QPlainTextEdit>(window, "txtDifferences").toPlainText(),
                  "Map1: symbols only in this version: 1.");
        window.list()->setCurrentRow(0);
        EXPECT_FALSE(partOf<QPlainTextEdit>(window, "txtDifferences").isVisible());
        window.reject();
    });
}

TEST_F(EarlierVersions, TheSameStateHasNoDifferences) {
    saveTwice();
    workspace.edits().goTo(1);
    withWindow([](frmVersions& window) {
        click(window, "cmdCompare");
        EXPECT_EQ(partOf<QPlainTextEdit>(window, "txtDifferences").toPlainText(),
                  "Its maps, symbols, labels and texts are those that are open now.");
        window.reject();
    });
}

TEST_F(EarlierVersions, SaveAsWritesThePairAsItWas) {
    start();
    placeSymbol({200, 150});
    shell.expectSaveDialog("Save project", model("week.nvpf"));
    trigger("mnuSaveProject");
    const QByteArray document = testing::readFile(host("week.nvpf"));
    const QByteArray data = testing::readFile(host("week.nvpx"));
    placeLabel({100, 100});
    trigger("mnuSaveProject");
    shell.expectSaveDialog("Save version as", model("old.nvpf"));
    withWindow([](frmVersions& window) {
        click(window, "cmdSaveAs");
        window.reject();
    });
    EXPECT_EQ(testing::readFile(host("old.nvpf")), document);
    EXPECT_EQ(testing::readFile(host("old.nvpx")), data);
    EXPECT_EQ(workspace.Status.CurrentProject, model("week.nvpf")) << "it is not opened";
}

TEST_F(EarlierVersions, ClosingKeepsWhatIsLeftBehindFlaggedOrNot) {
    saveTwice();
    trigger("mnuDelSymbol");
    EXPECT_FALSE(workspace.ProjectChanged) << "deleting marks nothing, and nothing is asked";
    EXPECT_TRUE(window().close());
    window().show();
    withWindow([](frmVersions& window) {
        ASSERT_EQ(window.list()->count(), 2);
        EXPECT_EQ(window.list()->item(0)->text().split('\n').mid(1),
                  QStringList({"closed without saving", "Maps: 2", "Symbols and labels: 1"}));
        window.reject();
    });
}

TEST_F(EarlierVersions, OneThatCannotBeReadIsToldAndNothingChanges) {
    saveTwice();
    const auto versions =
        VersionStore::ofUser(VersionLimits{}).versionsOf(host("week.nvpf"), host("week.nvpx"));
    ASSERT_EQ(versions.size(), 1);
    const QString before = testing::snapshotOf(workspace);
    withWindow([&](frmVersions& window) {
        QFile::remove(versions[0].data);
        shell.expectMessage("This version cannot be read.", Icon::Critical);
        click(window, "cmdOpen");
        shell.expectMessage("This version cannot be read.", Icon::Critical);
        click(window, "cmdCompare");
        window.reject();
    });
    EXPECT_EQ(testing::snapshotOf(workspace), before);
}

}  // namespace nubivane
