// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

#include <QJsonArray>

namespace nubivane::testing {

namespace {

class Show : public CliTest {};

}  // namespace

TEST_F(Show, PrintsOneJsonObjectAndNothingElse) {
    const ProcessResult result = run({"show", useSoundProject()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(result.out.startsWith('{'));
    EXPECT_TRUE(result.out.endsWith("}\n"));
    EXPECT_EQ(result.out.count('\n'), 1);
}

TEST_F(Show, TellsMapCollectionsFramesAndWarnings) {
    const QJsonObject object = show(useSoundProject());
    EXPECT_EQ(object.keys(),
              QStringList({"Collections", "CurrentMap", "Frames", "Map", "Warnings"}));
    EXPECT_EQ(object["Map"].toString(), "plain-498x300.jpg");
    EXPECT_TRUE(object["CurrentMap"].toString().endsWith("\\program\\Maps\\plain-498x300.jpg"));
    EXPECT_EQ(object["Collections"].toArray().size(), 2);
    EXPECT_EQ(object["Frames"].toArray().size(), 2);
    EXPECT_EQ(object["Warnings"].toArray().size(), 0);
}

TEST_F(Show, TellsEverySpriteWithItsProperties) {
    const QJsonObject frame = show(useSoundProject())["Frames"].toArray()[0].toObject();
    EXPECT_EQ(frame["Label"].toString(), "Today");
    const QJsonObject symbol = frame["Symbols"].toArray()[0].toObject();
    EXPECT_EQ(symbol["Key_"].toString(), "K-1");
    EXPECT_EQ(symbol["Type_"].toInt(), 1);
    EXPECT_EQ(symbol["Tooltip"].toString(), "Sunny");
    EXPECT_EQ(symbol["PosX"].toInt(), 100);
    EXPECT_EQ(symbol["Note"].toString(), "north");
    EXPECT_TRUE(symbol["FileGif"].toString().endsWith("\\Symbols\\set-1\\sun.gif"));
    const QJsonObject label = frame["Labels"].toArray()[0].toObject();
    EXPECT_EQ(label["Type_"].toInt(), 2);
    EXPECT_EQ(label["FontName"].toString(), "Arial");
    EXPECT_TRUE(label["FontBold"].isBool());
}

TEST_F(Show, TellsTheForecast) {
    const QJsonObject forecast =
        show(useSoundProject())["Frames"].toArray()[0].toObject()["Forecast"].toObject();
    EXPECT_EQ(forecast.keys(), QStringList({"Body", "Div", "Header", "Subtitle", "Title"}));
    EXPECT_EQ(forecast["Title"].toObject()["FontSize"].toInt(), 24);
    EXPECT_EQ(forecast["Div"].toObject()["BackColor"].toInt(), -1);
}

TEST_F(Show, AMissingProjectFailsWithTheTextOfTheEditor) {
    const ProcessResult result = run({"show", "nowhere.nvpf"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err,
              "nowhere.nvpf.\n"
              "This is not a valid Nubivane file, or its format is not currently supported.\n"
              "  There is no such file.\n");
}

TEST_F(Show, AFolderIsNoProject) {
    QDir().mkpath(beside("folder.nvpf"));
    const ProcessResult result = run({"show", "folder.nvpf"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.startsWith("folder.nvpf.\nThis is not a valid Nubivane file"));
}

TEST_F(Show, ADamagedProjectFailsWithTheTextOfTheEditorAndTheCause) {
    const ProcessResult result = run({"show", useProject("engine/project/defects/not-xml.nvpf")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(result.err.startsWith(QByteArray(DamagedText) + "  ")) << result.err.toStdString();
}

TEST_F(Show, AProjectWithoutItsDataFileIsDamaged) {
    const QString project = useSoundProject();
    QFile::remove(beside("project.nvpx"));
    const ProcessResult result = run({"show", project});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.startsWith(DamagedText));
}

TEST_F(Show, AFileWithAnotherExtensionIsDamaged) {
    useSoundProject();
    QFile::copy(beside("project.nvpf"), beside("project.xml"));
    const ProcessResult result = run({"show", "project.xml"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.startsWith(DamagedText));
}

TEST_F(Show, AnotherVersionFailsWithItsOwnText) {
    const ProcessResult result =
        run({"show", useProject("engine/project/defects/version-1.0.nvpf")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(result.err.startsWith(VersionText)) << result.err.toStdString();
}

TEST_F(Show, MissingSymbolsAreAWarningOnStderrAndInTheObject) {
    const ProcessResult result =
        run({"show", useProject("engine/project/golden/missing-symbols/input.nvpf")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, MissingSymbolsText);
    const QJsonArray warnings = QJsonDocument::fromJson(result.out).object()["Warnings"].toArray();
    ASSERT_EQ(warnings.size(), 1);
    EXPECT_EQ(warnings[0].toString() + '\n', MissingSymbolsText);
}

TEST_F(Show, TextsOutsideAsciiComeAsUtf8) {
    const ProcessResult result =
        run({"show", useProject("engine/web/golden/characters-in-button-captions/project.nvpf")},
            {.environment = {"LC_ALL=C"}});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(QString::fromUtf8(result.out).toUtf8(), result.out);
    EXPECT_FALSE(std::all_of(result.out.begin(), result.out.end(),
                             [](char c) { return static_cast<uchar>(c) < 0x80; }));
}

TEST_F(Show, PutsTheMapIntoTheProgramFolderAndTheProjectIntoTheRecentFiles) {
    const QString project = useSoundProject();
    const QStringList before = files();
    show(project);
    QStringList added = files();
    for (const QString& file : before) {
        added.removeOne(file);
    }
    EXPECT_EQ(added, QStringList({"program/Maps/plain-498x300.jpg", "settings.ini"}));
    EXPECT_EQ(
        run({"settings", "get", "Nubivane\\6.0.0\\Settings\\General", "Recent Files", "1"}).out,
        QDir::toNativeSeparators(project).replace(u'/', u'\\').toUtf8() + '\n');
}

TEST_F(Show, LeavesTheProjectAsItIs) {
    const QString project = useSoundProject();
    const QByteArray xml = readFile(project);
    const QByteArray data = readFile(beside("project.nvpx"));
    show(project);
    EXPECT_EQ(readFile(project), xml);
    EXPECT_EQ(readFile(beside("project.nvpx")), data);
}

}  // namespace nubivane::testing
