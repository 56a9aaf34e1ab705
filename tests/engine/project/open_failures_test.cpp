// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/project/folder_snapshot.h"
#include "engine/project/handmade_project.h"
#include "engine/project/model_text.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"

namespace nubivane::testing {

namespace {

constexpr char DamagedText[] = "Cannot open the specified file. It could be damaged or not valid.";
constexpr char VersionText[] = "Version format not currently supported.";

/// A project of three Frames is open, changed, on its second Frame; another one fails to open.
class FailedOpening : public WorkspaceFixture {
  protected:
    FailedOpening() {
        HandmadeProject project;
        project.map = "old.png";
        project.blocks = QList<QByteArray>(
            3, encodePicture(plainImage({8, 6}, Qt::darkGreen), PictureFormat::Png));
        project.write(temporary.file("old.nvpf"));
        open(temporary.file("old.nvpf"));
        workspace.Status.CurrentFrame = 2;
        workspace.Status.CurrentTool = Tool::line;
        workspace.TabEventsEnabled = true;
        oldModel = workspace.Project.get();
        oldText = projectText(workspace);
        oldPicture = workspace.pctMap.image();
        view.calls.clear();
        view.caption = "old caption";
        filesBefore = snapshotOf(temporary.path());
    }

    QString target() const { return temporary.file("other.nvpf"); }

    void expectFailure(int number, const char* text) {
        filesBefore = snapshotOf(temporary.path());
        try {
            open(target());
            ADD_FAILURE() << "it opened";
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), number) << error.what();
            EXPECT_EQ(error.description(), QLatin1String(text));
            EXPECT_EQ(error.source(), "OpenProject");
        }
        EXPECT_EQ(differences(filesBefore, snapshotOf(temporary.path())), QStringList());
        EXPECT_EQ(workspace.Status.CurrentProject, host_files::toModel(temporary.file("old.nvpf")));
        EXPECT_EQ(settings.list(SettingList::RecentFiles),
                  QStringList{host_files::toModel(temporary.file("old.nvpf"))});
        EXPECT_EQ(view.caption, "old caption");
        EXPECT_TRUE(workspace.pctMap.image().sharesContentWith(oldPicture));
        EXPECT_EQ(view.calls.last(), "enable");
        EXPECT_EQ(shell.pointer, Pointer::Default);
        EXPECT_FALSE(shell.progressVisible);
    }

    void expectUntouched() {
        EXPECT_EQ(workspace.Project.get(), oldModel);
        EXPECT_EQ(projectText(workspace), oldText);
        EXPECT_EQ(workspace.Status.CurrentFrame, 2);
        EXPECT_EQ(workspace.Status.CurrentTool, Tool::line);
        EXPECT_TRUE(workspace.TabEventsEnabled);
        EXPECT_EQ(view.calls, QStringList({"disable", "enable"}));
    }

    void expectDamagedAndUntouched() {
        expectFailure(error_number::DamagedProject, DamagedText);
        expectUntouched();
    }

    void expectDamagedAndPartlyRead() {
        expectFailure(error_number::DamagedProject, DamagedText);
        EXPECT_NE(workspace.Project.get(), oldModel);
        EXPECT_EQ(workspace.Status.CurrentMap, model("Maps/plain.png"));
        EXPECT_TRUE(view.calls.contains("unloadFrameSprites"));
        // One can go on with what was read.
        EXPECT_TRUE(view.calls.contains("rebuildFrameTabs"));
        EXPECT_EQ(workspace.Status.CurrentFrame, 1);
        EXPECT_EQ(workspace.pctPanel.Count(), workspace.Frames().Count());
    }

    const cWrapper* oldModel = nullptr;
    QStringList oldText;
    Picture oldPicture;
    Snapshot filesBefore;
};

}  // namespace

TEST_F(FailedOpening, WithoutTheDataFile) {
    writeFile(target(), HandmadeProject().xml());
    expectDamagedAndUntouched();
}

TEST_F(FailedOpening, OfAFileWithAnotherExtension) {
    const HandmadeProject project;
    writeFile(temporary.file("other.xml"), project.xml());
    writeFile(temporary.file("other.xmx"), project.data());
    writeFile(temporary.file("other.nvpx"), project.data());
    EXPECT_THROW(open(temporary.file("other.xml")), Error);
    expectUntouched();
}

TEST_F(FailedOpening, OfADataFileByItself) {
    HandmadeProject().write(target());
    EXPECT_THROW(open(temporary.file("other.nvpx")), Error);
    expectUntouched();
}

TEST_F(FailedOpening, OfXmlThatIsNotWellFormed) {
    const HandmadeProject project;
    project.writeWith(target(), project.xml().chopped(3));
    expectDamagedAndUntouched();
}

TEST_F(FailedOpening, OfValidXmlWithoutFILE) {
    HandmadeProject().writeWith(target(), "<PROJECT><Frames/></PROJECT>");
    expectDamagedAndUntouched();
}

TEST_F(FailedOpening, OfAnEmptyFile) {
    HandmadeProject().writeWith(target(), "");
    expectDamagedAndUntouched();
}

TEST_F(FailedOpening, OfVersion1) {
    HandmadeProject project;
    project.version = "1.0";
    project.write(target());
    expectFailure(error_number::UnsupportedVersion, VersionText);
    expectUntouched();
}

TEST_F(FailedOpening, OfVersion200BecauseTheTextIsCompared) {
    HandmadeProject project;
    project.version = "2.00";
    project.write(target());
    expectFailure(error_number::UnsupportedVersion, VersionText);
    expectUntouched();
}

TEST_F(FailedOpening, OfARootWithThreeAttributes) {
    const HandmadeProject project;
    project.writeWith(target(), project.xml().replace(" Version=\"2.0\"", ""));
    expectFailure(error_number::UnsupportedVersion, VersionText);
    expectUntouched();
}

TEST_F(FailedOpening, OfAVersionAtAnotherPosition) {
    const HandmadeProject project;
    QByteArray xml = project.xml().replace(" Version=\"2.0\"", "");
    project.writeWith(target(), xml.replace("<FILE ", "<FILE Version=\"2.0\" "));
    expectFailure(error_number::UnsupportedVersion, VersionText);
    expectUntouched();
}

TEST_F(FailedOpening, OfANumberOfFramesThatIsNone) {
    const HandmadeProject project;
    project.writeWith(target(), project.xml().replace("Frames=\"1\"", "Frames=\"one\""));
    expectDamagedAndUntouched();
}

TEST_F(FailedOpening, OfAMapSizeThatIsNoNumber) {
    const HandmadeProject project;
    const QByteArray size = "Size=\"" + QByteArray::number(project.mapBytes.size()) + "\" Version";
    project.writeWith(target(), project.xml().replace(size, "Size=\"big\" Version"));
    expectDamagedAndUntouched();
}

TEST_F(FailedOpening, OfAMapThatWouldLeaveTheFolderOfMaps) {
    for (const char* map : {"..\\evil.png", "../evil.png", "/tmp/evil.png", "C:\\evil.png", ".."}) {
        HandmadeProject project;
        project.map = map;
        project.write(target());
        SCOPED_TRACE(map);
        view.calls.clear();
        expectDamagedAndUntouched();
    }
}

TEST_F(FailedOpening, InTheSecondFrameKeepsWhatWasRead) {
    HandmadeProject project;
    project.blocks = QList<QByteArray>(3, project.blocks[0]);
    project.write(target());
    project.writeWith(target(), project.xml().replace("Label=\"Day 2\"", ""));
    expectDamagedAndPartlyRead();
    EXPECT_EQ(workspace.Frames().Count(), 2);
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Label, "Day 1");
    EXPECT_EQ(workspace.Frames().Item(2).Texts().Label, "");
}

TEST_F(FailedOpening, InASpriteKeepsTheSpritesBefore) {
    HandmadeProject project;
    const QString good = HandmadeProject::symbolItem("set-1\\sun.gif");
    project.frameBodies = {
        "<Symbol>" + good +
        HandmadeProject::symbolItem("set-1\\rain.gif").replace("Width=\"12\"", "Width=\"wide\"") +
        good + "</Symbol>"};
    project.write(target());
    expectDamagedAndPartlyRead();
    EXPECT_EQ(workspace.Frames().Item(1).Sprites().Symbols().Count(), 1);
}

TEST_F(FailedOpening, WithABadNumberInATitle) {
    const HandmadeProject project;
    project.writeWith(target(), project.xml().replace("<FontSize>24<", "<FontSize>big<"));
    expectDamagedAndPartlyRead();
}

TEST_F(FailedOpening, WithABadFlagInATitle) {
    const HandmadeProject project;
    project.writeWith(target(), project.xml().replace("<FontBold>False<", "<FontBold>maybe<"));
    expectDamagedAndPartlyRead();
}

TEST_F(FailedOpening, WithATitleOfTwelveValues) {
    const HandmadeProject project;
    project.writeWith(target(), project.xml().replace("<Align>0</Align>", ""));
    expectDamagedAndPartlyRead();
}

TEST_F(FailedOpening, WithFrameAttributesSortedAlphabetically) {
    const HandmadeProject project;
    const QByteArray number = "Number=\"1\" Size=\"" +
                              QByteArray::number(project.blocks[0].size()) + "\" Label=\"Day 1\"";
    const QByteArray sorted = "Label=\"Day 1\" Number=\"1\" Size=\"" +
                              QByteArray::number(project.blocks[0].size()) + "\"";
    ASSERT_TRUE(project.xml().contains(number));
    project.writeWith(target(), project.xml().replace(number, sorted));
    expectDamagedAndPartlyRead();
}

TEST_F(FailedOpening, WithADataFileThatIsTooShort) {
    const HandmadeProject project;
    writeFile(target(), project.xml());
    writeFile(temporary.file("other.nvpx"), project.data().chopped(1));
    expectDamagedAndPartlyRead();
    EXPECT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Label, "Day 1");
}

TEST_F(FailedOpening, WithABlockThatIsNoPicture) {
    HandmadeProject project;
    project.blocks = {"this is no picture"};
    project.write(target());
    expectDamagedAndPartlyRead();
}

TEST_F(FailedOpening, WithMoreFramesThanTheRootClaims) {
    HandmadeProject project;
    project.blocks = QList<QByteArray>(2, project.blocks[0]);
    project.writeWith(target(), project.xml().replace("Frames=\"2\"", "Frames=\"1\""));
    expectDamagedAndPartlyRead();
}

TEST_F(FailedOpening, WithAMapThatCannotBeWritten) {
    HandmadeProject().write(target());
    QDir().mkpath(host("Maps/plain.png"));
    expectDamagedAndPartlyRead();
}

TEST_F(FailedOpening, LeavesProjectChangedAsTheGuardLeftIt) {
    writeFile(target(), HandmadeProject().xml());
    workspace.ProjectChanged = true;
    shell.expectMessage("The project has been changed. Save file before closing ?",
                        Icon::Exclamation, Buttons::YesNoCancel, Answer::No);
    EXPECT_THROW(open(target()), Error);
    EXPECT_TRUE(workspace.ProjectChanged);
    expectUntouched();
}

TEST_F(FailedOpening, IsFollowedByASaveThatGivesFramesWithoutPictureTheBareMap) {
    // Three Frames were open, five are read before the damage: panels and Frames disagree.
    HandmadeProject project;
    project.map = "old.png";
    project.blocks = QList<QByteArray>(5, project.blocks[0]);
    project.frameBodies = {"", "", "", "", "<Symbol><Item/></Symbol>"};
    project.write(target());
    EXPECT_THROW(open(target()), Error);
    ASSERT_EQ(workspace.Frames().Count(), 5);
    workspace.Status.CurrentProject = host_files::toModel(temporary.file("rescued.nvpf"));
    if (!saveProject(editor(), false)) {
        FAIL() << "the partly read project could not be saved";
    }
    open(temporary.file("rescued.nvpf"));
    ASSERT_EQ(workspace.pctPanel.Count(), 5);
    EXPECT_TRUE(workspace.pctPanel.picture(4).originalBytes() == readFile(host("Maps/old.png")));
    EXPECT_TRUE(workspace.pctPanel.picture(5).originalBytes() == readFile(host("Maps/old.png")));
}

}  // namespace nubivane::testing
