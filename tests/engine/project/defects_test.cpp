// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/defects.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/project/folder_snapshot.h"
#include "engine/project/message_log.h"
#include "engine/project/open_project.h"

#include <QFileInfo>

namespace nubivane::testing {

namespace {

constexpr char Damaged[] = "Cannot open the specified file. It could be damaged or not valid.";
constexpr char WrongVersion[] = "Version format not currently supported.";
constexpr char MissingSymbols[] =
    "Cannot load some symbols: they refer to a location on a hard drive that is unavailable.";

/// A program folder so deep that a name which climbs out of it still lands where it is seen.
constexpr char DeepProgram[] = "a/b/c/d/e/program";

class Defects : public ::testing::TestWithParam<Defect> {
  protected:
    Defects() {
        copyFolder(testFile("fixtures/program"), root.file(DeepProgram));
        for (const QString& extension : {QStringLiteral(".nvpf"), QStringLiteral(".nvpx")}) {
            const QString source = GetParam().file().chopped(5) + extension;
            if (QFileInfo::exists(source)) {
                writeFile(root.file("a/b/c/d/e/projects/" + GetParam().name + extension),
                          readFile(source));
            }
        }
    }

    /// Opens the project and returns the error's number, 0 when there was none.
    int open() {
        TemporaryFolder elsewhere;  // the settings are the only other file that opening writes
        SettingsStore settings(elsewhere.file("settings.ini"));
        Workspace workspace(ProgramFolder(host_files::toModel(root.file(DeepProgram))), settings);
        RecordingView view;
        MessageLog log(view);
        int number = 0;
        try {
            OpenProject(
                {workspace, log, view},
                host_files::toModel(root.file("a/b/c/d/e/projects/" + GetParam().name + ".nvpf")));
        } catch (const Error& error) {
            number = error.number();
            EXPECT_EQ(error.source(), "OpenProject");
            EXPECT_EQ(error.description(), QLatin1String(number == -200 ? WrongVersion : Damaged));
            EXPECT_FALSE(error.cause().isEmpty());
        }
        frames = workspace.Frames().Count();
        panels = workspace.pctPanel.Count();
        messages = log.texts;
        EXPECT_EQ(log.pointer, Pointer::Default);
        EXPECT_FALSE(log.progressVisible);
        EXPECT_EQ(view.calls.isEmpty() ? "" : view.calls.last(), "enable");
        return number;
    }

    TemporaryFolder root;
    qint32 frames = 0;
    qint32 panels = 0;
    QStringList messages;
};

std::string testName(const ::testing::TestParamInfo<Defect>& info) {
    QString name = info.param.name;
    for (QChar& c : name) {
        if (!c.isLetterOrNumber()) {
            c = u'_';
        }
    }
    return name.toStdString();
}

}  // namespace

TEST_P(Defects, GivesWhatIsExpectedAndWritesNothingElsewhere) {
    const Snapshot before = snapshotOf(root.path());
    const int number = open();
    const QString expected = GetParam().expected;
    EXPECT_EQ(number, expected == "opens" ? 0 : expected.toInt());

    QStringList changes = differences(before, snapshotOf(root.path()));
    if (number == 0) {
        const QString maps = QLatin1String(DeepProgram) + "/Maps/";
        EXPECT_EQ(changes.removeIf([&](const QString& change) {
            return change.startsWith("new: " + maps) && change != "new: " + maps;
        }),
                  1)
            << "the map, and only it, is written";
        changes.removeAll("new: " + maps);
        EXPECT_GE(frames, 1);
        EXPECT_EQ(panels, frames);
        EXPECT_TRUE(messages.isEmpty() || messages == QStringList{MissingSymbols});
    } else {
        EXPECT_EQ(messages, QStringList());
    }
    EXPECT_EQ(changes, QStringList());
}

TEST(DefectsList, IsWhole) {
    EXPECT_GE(allDefects().size(), 300);
}

INSTANTIATE_TEST_SUITE_P(, Defects, ::testing::ValuesIn(allDefects()), testName);

}  // namespace nubivane::testing
