// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/safekeeping_fixture.h"

#include <QFileInfo>
#include <QLockFile>
#include <QProcess>

#include <fcntl.h>
#include <sys/stat.h>

namespace nubivane {

/// Who has a project open is told in the bar, and nobody is kept out.
class LockOfProject : public testing::SafekeepingFixture {
  protected:
    void saveAs(const QString& name) {
        shell.expectSaveDialog("Save project", model(name));
        trigger("mnuSaveProject");
    }
    QString lockFile(const QString& name) { return ProjectLock::lockFileOf(model(name)); }
    /// A lock as another machine's editor leaves it.
    void leaveLock(const QString& name, const QByteArray& process, const QByteArray& host) {
        testing::writeFile(lockFile(name), process + "\nNubivane\n" + host + "\n\n\n");
    }
};

TEST_F(LockOfProject, StandsBesideTheProjectWhileItIsOpenAndGoesWithIt) {
    startSafe();
    saveAs("week.nvpf");
    EXPECT_TRUE(QFileInfo::exists(lockFile("week.nvpf")));
    trigger("mnuNewProject");
    EXPECT_FALSE(QFileInfo::exists(lockFile("week.nvpf")));
}

TEST_F(LockOfProject, AProperCloseLeavesThePairAlone) {
    startSafe();
    saveAs("week.nvpf");
    safe().close();
    EXPECT_FALSE(QFileInfo::exists(lockFile("week.nvpf")));
}

TEST_F(LockOfProject, TheSecondWindowSeesWhoHasItAndIsNotKeptOut) {
    startSafe();
    saveAs("week.nvpf");
    // Locks belong to processes' open files: this one stands for another editor.
    NoticeBar bar(nullptr);
    ProjectLock second(workspace, bar);
    const auto notices = bar.findChildren<Notice*>("notice");
    ASSERT_EQ(notices.size(), 1);
    const QString owner = QFileInfo(lockFile("week.nvpf")).owner();
    EXPECT_EQ(notices[0]->text(), "week.nvpf is open in another window too: by " + owner + " on " +
                                      QSysInfo::machineHostName() +
                                      ". A save asks before it replaces what was saved there.");
    placeSymbol({200, 150});
    trigger("mnuSaveProject");
    EXPECT_FALSE(workspace.ProjectChanged) << "it saves as ever";
}

TEST_F(LockOfProject, TheSentenceGoesWhenTheOtherWindowIsClosed) {
    startSafe();
    saveAs("week.nvpf");
    NoticeBar bar(nullptr);
    const ProjectLock second(workspace, bar);
    crash();
    EXPECT_TRUE(QTest::qWaitFor(
        [&bar] {
            const auto notices = bar.findChildren<Notice*>("notice");
            return notices.isEmpty() || notices[0]->isHidden();
        },
        10'000));
    EXPECT_TRUE(QFileInfo::exists(lockFile("week.nvpf"))) << "it is the second one's now";
}

TEST_F(LockOfProject, ThatOfADeadProcessIsTakenOver) {
    QProcess process;
    process.start("true", {});
    ASSERT_TRUE(process.waitForStarted());
    const QByteArray dead = QByteArray::number(process.processId());
    process.waitForFinished();
    startSafe();
    leaveLock("week.nvpf", dead, QSysInfo::machineHostName().toUtf8());
    saveAs("week.nvpf");
    EXPECT_TRUE(told().isEmpty());
    trigger("mnuNewProject");
    EXPECT_FALSE(QFileInfo::exists(lockFile("week.nvpf")));
}

TEST_F(LockOfProject, ThatOfAnotherMachineIsToldAndKeepsNobodyOut) {
    startSafe();
    leaveLock("week.nvpf", "1", "desk-3");
    saveAs("week.nvpf");
    ASSERT_EQ(told().size(), 1);
    EXPECT_TRUE(told()[0].contains("on desk-3"));
    placeSymbol({200, 150});
    trigger("mnuSaveProject");
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(LockOfProject, AnOldOneOfAnotherMachineIsNotTold) {
    startSafe();
    leaveLock("week.nvpf", "1", "desk-3");
    const std::array<timespec, 2> longAgo{{{1000, 0}, {1000, 0}}};
    ::utimensat(AT_FDCWD, QFile::encodeName(lockFile("week.nvpf")).constData(), longAgo.data(), 0);
    saveAs("week.nvpf");
    EXPECT_TRUE(told().isEmpty());
}

TEST_F(LockOfProject, DamagedOnesKeepNobodyOut) {
    startSafe();
    int number = 0;
    for (const char* content : {"", "rubbish", "-1\n\n\n"}) {
        SCOPED_TRACE(content);
        const QString name = QString("week-%1.nvpf").arg(++number);
        testing::writeFile(lockFile(name), content);
        saveAs(name);
        EXPECT_TRUE(QFileInfo::exists(host(name)));
        trigger("mnuNewProject");
    }
}

TEST_F(LockOfProject, AFolderThatCannotBeWrittenNeedsNone) {
    startSafe();
    saveAs("week.nvpf");
    const QString folder = temporary.file("read-only");
    QDir().mkpath(folder);
    for (const char* name : {"week.nvpf", "week.nvpx"}) {
        QFile::copy(host(name), folder + '/' + name);
    }
    ::chmod(QFile::encodeName(folder).constData(), S_IRUSR | S_IXUSR);
    window().projectCommands().open(host_files::toModel(folder + "/week.nvpf"));
    EXPECT_EQ(workspace.Status.CurrentProject, host_files::toModel(folder + "/week.nvpf"));
    EXPECT_TRUE(told().isEmpty());
    ::chmod(QFile::encodeName(folder).constData(), S_IRWXU);
}

}  // namespace nubivane
