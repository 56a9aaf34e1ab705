// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/recovery_copy.h"
#include "windows/main/safekeeping_fixture.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace nubivane {

/// What is open and unsaved is kept, and offered again after an end that was no proper close.
class RecoveryOfWork : public testing::SafekeepingFixture {
  protected:
    ~RecoveryOfWork() override {
        ::chmod(QFile::encodeName(copies()).constData(), S_IRWXU);  // so that it can be removed
    }
    void saveAs(const QString& name) {
        shell.expectSaveDialog("Save project", model(name));
        trigger("mnuSaveProject");
    }
    /// What a restart finds in the newest copy.
    QString labelInCopy() {
        QStringList faults;
        const QString target = temporary.file("looked-at.nvpf");
        writeRecovered(recoveryEntries(copies(), faults).first(), host_files::toModel(target),
                       settings);
        return QString::fromUtf8(testing::readFile(target));
    }
};

TEST_F(RecoveryOfWork, AnUntouchedProjectHasNoCopyAndNoBar) {
    startSafe();
    QTest::qWait(60);
    EXPECT_TRUE(entries().isEmpty());
    EXPECT_FALSE(safe().bar().isVisible());
}

TEST_F(RecoveryOfWork, AnEditOfAProjectThatWasNeverSavedIsKept) {
    startSafe();
    placeSymbol({200, 150});
    ASSERT_TRUE(waitForCopy());
    EXPECT_EQ(entries()[0].project, "");
    EXPECT_TRUE(entries()[0].isOpen);
}

TEST_F(RecoveryOfWork, EditsThatMarkNothingAreKeptToo) {
    startSafe();
    placeSymbol({200, 150});
    saveAs("week.nvpf");
    trigger("mnuDelSymbol");
    EXPECT_FALSE(workspace.ProjectChanged);
    ASSERT_TRUE(waitForCopy());
    EXPECT_EQ(entries()[0].project, model("week.nvpf"));
}

TEST_F(RecoveryOfWork, ASaveEndsTheCopy) {
    startSafe();
    placeSymbol({200, 150});
    ASSERT_TRUE(waitForCopy());
    saveAs("week.nvpf");
    EXPECT_TRUE(waitForNoCopy());
}

TEST_F(RecoveryOfWork, UndoToTheSavedStateEndsTheCopyAndRedoBringsItBack) {
    startSafe();
    placeSymbol({200, 150});
    ASSERT_TRUE(waitForCopy());
    trigger("mnuUndo");
    EXPECT_TRUE(waitForNoCopy());
    trigger("mnuRedo");
    EXPECT_TRUE(waitForCopy());
}

TEST_F(RecoveryOfWork, AProperCloseLeavesNoCopy) {
    startSafe();
    placeSymbol({200, 150});
    ASSERT_TRUE(waitForCopy());
    safe().close();
    EXPECT_TRUE(entries().isEmpty());
}

TEST_F(RecoveryOfWork, EditsWithoutAPauseAreWrittenMeanwhile) {
    startRandom(1);
    keep({.idle = std::chrono::hours(1), .longest = std::chrono::milliseconds(30)});
    QElapsedTimer clock;
    clock.start();
    while (entries().isEmpty() && clock.elapsed() < 10'000) {
        placeSymbol({200, 150});
        QTest::qWait(5);
    }
    EXPECT_FALSE(entries().isEmpty());
}

TEST_F(RecoveryOfWork, TheCopyFollowsTheLastEdit) {
    startSafe();
    placeSymbol({200, 150});
    ASSERT_TRUE(waitForCopy());
    trigger("mnuMapRename");
    QTest::keyClicks(window().tabs().txtDay(), "Tuesday");
    QTest::keyClick(window().tabs().txtDay(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return labelInCopy().contains("Label=\"Tuesday\""); }));
}

TEST_F(RecoveryOfWork, TheEndOfTheProcessWritesAtOnce) {
    startRandom(1);
    keep({.idle = std::chrono::hours(1), .longest = std::chrono::hours(1)});
    placeSymbol({200, 150});
    EXPECT_TRUE(entries().isEmpty());
    Recovery recovery(window(), workspace, safe().bar(), copies());
    recovery.writeNow();
    EXPECT_EQ(entries().size(), 1);
}

TEST_F(RecoveryOfWork, TheBarOffersWhatACrashHasLeft) {
    startRandom(1);
    placeSymbol({200, 150});
    const QString work = testing::snapshotOf(workspace);
    leaveCrashed(model("italy.nvpf"));
    const QString time = entries()[0].time.toLocalTime().toString("HH:mm");
    workspace.ProjectChanged = false;
    trigger("mnuNewProject");
    keep({});
    ASSERT_EQ(told(), QStringList("Unsaved work on italy.nvpf from " + time));
    EXPECT_TRUE(safe().bar().isVisible());
    press(0, "recoveryRestore");
    // The map's path is written as it is at every opening.
    EXPECT_EQ(testing::snapshotOf(workspace).section('\n', 1), work.section('\n', 1));
    EXPECT_EQ(workspace.Status.CurrentProject, model("italy.nvpf"));
    EXPECT_EQ(window().windowTitle(), "italy.nvpf - Nubivane");
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_TRUE(edits().isUnsaved());
    EXPECT_FALSE(safe().bar().isVisible());
    ASSERT_EQ(entries().size(), 1) << "the work is kept by this editor now";
    EXPECT_TRUE(entries()[0].isOpen);
    EXPECT_FALSE(QFile::exists(host("italy.nvpf"))) << "the person's own file is not touched";
    EXPECT_TRUE(settings.list(SettingList::RecentFiles).isEmpty());
}

TEST_F(RecoveryOfWork, RestoredWorkIsUnsavedHoweverFarItIsUndone) {
    startRandom(1);
    leaveCrashed({});
    keep({});
    press(0, "recoveryRestore");
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
    placeSymbol({200, 150});
    trigger("mnuUndo");
    EXPECT_TRUE(edits().isUnsaved());
    EXPECT_FALSE(edits().savedIndex());
}

TEST_F(RecoveryOfWork, DiscardTakesTheEntryAway) {
    startRandom(1);
    leaveCrashed(model("italy.nvpf"));
    keep({});
    press(0, "recoveryDiscard");
    EXPECT_TRUE(entries().isEmpty());
    EXPECT_FALSE(safe().bar().isVisible());
}

TEST_F(RecoveryOfWork, ShowOpensItAsANewProjectAndKeepsTheEntry) {
    startRandom(1);
    placeSymbol({200, 150});
    leaveCrashed(model("italy.nvpf"));
    workspace.ProjectChanged = false;
    trigger("mnuNewProject");
    keep({});
    press(0, "recoveryShow");
    EXPECT_EQ(symbols().Count(), 1);
    EXPECT_EQ(workspace.Status.CurrentProject, "");
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
    EXPECT_EQ(entries().size(), 1);
    EXPECT_EQ(told().size(), 1);
}

TEST_F(RecoveryOfWork, SeveralCrashedEditorsAreSeveralEntriesTheNewestFirst) {
    startRandom(1);
    leaveCrashed(model("older.nvpf"), 60);
    leaveCrashed(model("newer.nvpf"));
    leaveCrashed({}, 100'000);
    keep({});
    const QStringList sentences = told();
    ASSERT_EQ(sentences.size(), 3);
    EXPECT_TRUE(sentences[0].startsWith("Unsaved work on newer.nvpf from "));
    EXPECT_TRUE(sentences[1].startsWith("Unsaved work on older.nvpf from "));
    EXPECT_TRUE(sentences[2].startsWith("Unsaved work on a project without a name from "));
    EXPECT_GT(sentences[2].size(),
              QString("Unsaved work on a project without a name from 14:32").size())
        << "of another day: the day is told";
    press(1, "recoveryDiscard");
    EXPECT_EQ(told().size(), 2);
    EXPECT_EQ(entries().size(), 2);
}

TEST_F(RecoveryOfWork, TheWorkOfAnEditorThatLivesIsNotOffered) {
    startRandom(1);
    RecoveryCopy other(copies());
    other.write(takeSnapshot(workspace));
    keep({});
    EXPECT_TRUE(told().isEmpty());
}

TEST_F(RecoveryOfWork, AGuardThatIsCancelledKeepsTheEntryAndWhatIsOpen) {
    startRandom(1);
    leaveCrashed(model("italy.nvpf"));
    keep({});
    placeSymbol({200, 150});
    shell.expectMessage("The project has been changed. Save file before closing ?",
                        Icon::Exclamation, Buttons::YesNoCancel, Answer::Cancel);
    press(0, "recoveryRestore");
    EXPECT_EQ(symbols().Count(), 1);
    EXPECT_EQ(told().size(), 1);
}

TEST_F(RecoveryOfWork, ADamagedCopyIsLeftAsideWithASentence) {
    startRandom(1);
    testing::writeFile(copies() + "/1-damaged/state", "{\"form\":99}");
    keep({});
    ASSERT_EQ(told().size(), 1);
    EXPECT_TRUE(told()[0].startsWith("A recovery copy cannot be read and is left as it is."))
        << told()[0].toStdString();
    press(0, "noticeClose");
    EXPECT_FALSE(safe().bar().isVisible());
    EXPECT_EQ(testing::readFile(copies() + "/1-damaged/state"), "{\"form\":99}");
}

TEST_F(RecoveryOfWork, ACopyThatCannotBeWrittenIsToldOnceAndTriedAgain) {
    testing::writeFile(copies(), "a file where the folder should be");
    startSafe();
    placeSymbol({200, 150});
    ASSERT_TRUE(QTest::qWaitFor([this] { return !told().isEmpty(); }));
    EXPECT_TRUE(told()[0].startsWith("Unsaved work cannot be kept for the case of a crash: "));
    placeSymbol({100, 150});
    QTest::qWait(100);
    EXPECT_EQ(told().size(), 1);
    QFile::remove(copies());
    EXPECT_TRUE(waitForCopy()) << "without another edit";
    EXPECT_TRUE(QTest::qWaitFor([this] { return told().isEmpty(); }));
}

TEST_F(RecoveryOfWork, RestoredWorkAsksBeforeItReplacesWhatWasSavedSince) {
    startRandom(1);
    placeSymbol({200, 150});
    shell.expectSaveDialog("Save project", model("italy.nvpf"));
    trigger("mnuSaveProject");
    placeSymbol({100, 150});
    leaveCrashed(workspace.Status.CurrentProject);
    workspace.ProjectChanged = true;
    trigger("mnuSaveProject");  // by somebody else, as far as the crashed editor knows
    keep({});
    press(0, "recoveryRestore");
    shell.expectMessage(
        "italy.nvpf has been changed on the disk since it was opened or saved here. Save over it "
        "? What stands there now would be kept among the earlier versions.",
        Icon::Exclamation, Buttons::YesNoSaveAs, Answer::No);
    trigger("mnuSaveProject");
    EXPECT_TRUE(workspace.ProjectChanged);
}

}  // namespace nubivane
