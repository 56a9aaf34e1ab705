// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"
#include "engine/core/host_files.h"
#include "engine/model/workspace.h"
#include "engine/project/open_project.h"
#include "engine/project/recovery_copy.h"
#include "engine/project/save_project.h"

#include <QDateTime>
#include <QJsonArray>

namespace nubivane::testing {

namespace {

/// Recovery copies, written as an editor does and read by the command line.
class Recovered : public CliTest {
  protected:
    Recovered() : project(useSoundProject("my week.nvpf")) {
        ScriptedShell shell;
        OpenProject({workspace, shell, view}, host_files::toModel(project));
    }

    QString folder() const { return state.file("Nubivane/recovery"); }
    void edit(const QString& label) { workspace.Frames().Item(1).Texts().Label = label; }

    QJsonArray list() const {
        const ProcessResult result = run({"recovered", "--json"});
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        return QJsonDocument::fromJson(result.out).array();
    }

    QString project;
    SettingsStore settings{temporary.file("editor.ini")};
    Workspace workspace{ProgramFolder(host_files::toModel(programFolder())), settings};
    RecordingView view;
};

}  // namespace

TEST_F(Recovered, WithoutACopyThereIsNoOutput) {
    const ProcessResult result = run({"recovered"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(run({"recovered", "--json"}).out, "[]\n");
}

TEST_F(Recovered, ACopyIsOpenWhileItsEditorLivesAndCrashedAfterwards) {
    {
        RecoveryCopy copy(folder());
        edit("unsaved");
        copy.write(takeSnapshot(workspace));
        EXPECT_EQ(list()[0].toObject()["state"], "open");
    }
    const QJsonArray entries = list();
    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0].toObject()["number"], 1);
    EXPECT_EQ(entries[0].toObject()["project"], project);
    EXPECT_EQ(entries[0].toObject()["state"], "crashed");
    EXPECT_TRUE(
        QDateTime::fromString(entries[0].toObject()["time"].toString(), Qt::ISODate).isValid());
    const QList<QByteArray> fields = run({"recovered"}).out.chopped(1).split('\t');
    ASSERT_EQ(fields.size(), 4);
    EXPECT_EQ(fields[1], project.toUtf8());
}

TEST_F(Recovered, WritesWhatASaveWouldHaveWrittenAndKeepsTheEntry) {
    {
        RecoveryCopy copy(folder());
        edit("unsaved");
        copy.write(takeSnapshot(workspace));
        edit("unsaved \"Size=\" 12");
        copy.write(takeSnapshot(workspace));
    }
    const ProcessResult result = run({"recover", "1", beside("out.nvpf")});
    ASSERT_EQ(result.exitCode, 0) << result.err.toStdString();
    workspace.Status.CurrentProject = host_files::toModel(beside("saved.nvpf"));
    ScriptedShell shell;
    ASSERT_TRUE(saveProject({workspace, shell, view}, false));
    EXPECT_EQ(readFile(beside("out.nvpf")), readFile(beside("saved.nvpf")));
    EXPECT_EQ(readFile(beside("out.nvpx")), readFile(beside("saved.nvpx")));
    EXPECT_EQ(list().size(), 1);
}

TEST_F(Recovered, AProjectThatWasNeverSavedHasNoPath) {
    workspace.Status.CurrentProject.clear();
    {
        RecoveryCopy copy(folder());
        copy.write(takeSnapshot(workspace));
    }
    EXPECT_EQ(list()[0].toObject()["project"], "");
    EXPECT_EQ(run({"recover", "1", beside("out.nvpf")}).exitCode, 0);
    EXPECT_EQ(run({"show", beside("out.nvpf")}).exitCode, 0);
}

TEST_F(Recovered, AnUnknownNumberIsRefusedAndNothingIsWritten) {
    for (const char* number : {"0", "1", "x"}) {
        const ProcessResult result = run({"recover", number, beside("out.nvpf")});
        EXPECT_EQ(result.exitCode, 1) << number;
        EXPECT_FALSE(result.err.isEmpty()) << number;
    }
    EXPECT_FALSE(QFileInfo::exists(beside("out.nvpf")));
}

TEST_F(Recovered, AProperCloseLeavesNoCopy) {
    RecoveryCopy copy(folder());
    copy.write(takeSnapshot(workspace));
    copy.clear();
    EXPECT_EQ(list(), QJsonArray());
    copy.write(takeSnapshot(workspace));
    EXPECT_EQ(list().size(), 1);
}

TEST_F(Recovered, SeveralCopiesAreListedTheNewestFirst) {
    RecoveryCopy older(folder());
    RecoverySnapshot snapshot = takeSnapshot(workspace);
    snapshot.time = snapshot.time.addSecs(-100);
    older.write(snapshot);
    workspace.Status.CurrentProject = "C:\\newer.nvpf";
    RecoveryCopy newer(folder());
    newer.write(takeSnapshot(workspace));
    const QJsonArray entries = list();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_TRUE(entries[0].toObject()["project"].toString().contains("newer"));
}

TEST_F(Recovered, OnlyPicturesThatChangedAreWrittenAgain) {
    RecoveryCopy copy(folder());
    copy.write(takeSnapshot(workspace));
    const auto blocks = [this] {
        QStringList names;
        QDirIterator all(folder(), {"block-*"}, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            names << all.next();
        }
        names.sort();
        return names;
    };
    const QStringList before = blocks();
    edit("texts alone");
    copy.write(takeSnapshot(workspace));
    EXPECT_EQ(blocks(), before);
    workspace.pctMap.persistentLayer().setPixelColor(1, 1, Qt::white);
    copy.write(takeSnapshot(workspace));
    EXPECT_NE(blocks(), before);
    EXPECT_LE(blocks().size(), before.size() + 1);
}

TEST_F(Recovered, TheSameWorkIsKnownAgain) {
    const RecoverySnapshot one = takeSnapshot(workspace);
    EXPECT_TRUE(sameWork(one, takeSnapshot(workspace)));
    edit("another");
    EXPECT_FALSE(sameWork(one, takeSnapshot(workspace)));
}

TEST_F(Recovered, CopiesOfALaterOrDamagedFormAreLeftAsideWithASentence) {
    for (const char* head : {"{\"form\":2}\n<FILE/>", "no JSON", "", "{\"form\":1}\n"}) {
        writeFile(folder() + "/1-damaged/state", head);
        const ProcessResult result = run({"recovered"});
        EXPECT_EQ(result.exitCode, 0) << head;
        EXPECT_EQ(result.out, "") << head;
        EXPECT_FALSE(result.err.isEmpty()) << head;
        EXPECT_EQ(readFile(folder() + "/1-damaged/state"), head);
    }
}

}  // namespace nubivane::testing
