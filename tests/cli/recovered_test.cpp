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

    /// The files of the copies, their states not counted.
    QStringList parts() const {
        QStringList names;
        QDirIterator all(folder(), {"text-*", "picture-*"}, QDir::Files,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            names << all.next();
        }
        names.sort();
        return names;
    }

    QStringList pictures() const { return parts().filter("/picture-"); }

    QString project;
    SettingsStore settings{temporary.file("editor.ini")};
    OpenWorkspace workspace{ProgramFolder(host_files::toModel(programFolder())), settings};
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
    WorkSnapshot snapshot = takeSnapshot(workspace);
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
    const QStringList before = pictures();
    edit("texts alone");
    copy.write(takeSnapshot(workspace));
    EXPECT_EQ(pictures(), before);
    workspace.pctMap.persistentLayer().setPixelColor(1, 1, Qt::white);
    copy.write(takeSnapshot(workspace));
    EXPECT_NE(pictures(), before);
    EXPECT_LE(pictures().size(), before.size() + 1);
}

TEST_F(Recovered, AnEditOfOneFrameAmongManyWritesThatFrameAlone) {
    for (int i = 0; i < 100; ++i) {
        workspace.Frames().Add().Texts().Label = QString("Frame %1").arg(i);
    }
    workspace.fillPanels();
    RecoveryCopy copy(folder());
    copy.write(takeSnapshot(workspace));
    const QStringList before = parts();
    workspace.Frames().Item(50).Texts().Label = "edited";
    copy.write(takeSnapshot(workspace));
    QStringList after = parts();
    EXPECT_EQ(after.size(), before.size()) << "what is not used any more is gone";
    after.removeIf([&before](const QString& name) { return before.contains(name); });
    ASSERT_EQ(after.size(), 1);
    EXPECT_LT(QFileInfo(after[0]).size(), 3000);
}

TEST_F(Recovered, FramesThatOnlyChangePlacesAreNotWrittenAgain) {
    for (int i = 0; i < 10; ++i) {
        workspace.Frames().Add().Texts().Label = QString("Frame %1").arg(i);
    }
    workspace.fillPanels();
    RecoveryCopy copy(folder());
    copy.write(takeSnapshot(workspace));
    const QStringList before = parts();
    workspace.Frames().Insert(2, workspace.Frames().Take(9));
    copy.write(takeSnapshot(workspace));
    EXPECT_EQ(parts(), before);
    ASSERT_EQ(run({"recover", "1", beside("out.nvpf")}).exitCode, 0);
    EXPECT_EQ(show(beside("out.nvpf"))["Frames"].toArray()[1].toObject()["Label"], "Frame 6");
}

TEST_F(Recovered, ACopyThatLacksAPartOrHasAnotherLengthIsLeftAsideWithASentence) {
    {
        RecoveryCopy copy(folder());
        copy.write(takeSnapshot(workspace));
    }
    const QString part = parts().last();
    const QByteArray bytes = readFile(part);
    for (const QByteArray& damaged : {bytes.chopped(1), QByteArray()}) {
        writeFile(part, damaged);
        const ProcessResult result = run({"recovered"});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.out, "");
        EXPECT_FALSE(result.err.isEmpty());
    }
    QFile::remove(part);
    EXPECT_EQ(run({"recover", "1", beside("out.nvpf")}).exitCode, 1);
    EXPECT_FALSE(QFileInfo::exists(beside("out.nvpf")));
    writeFile(part, bytes);
    EXPECT_EQ(list().size(), 1);
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
