// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/project/message_log.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"
#include "support/processes.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace nubivane::testing {

namespace {

QString goldenFile(const QString& name, const QString& file) {
    return testFile("engine/project/golden/" + name + '/' + file);
}

QStringList goldenCases() {
    return folderNames(testFile("engine/project/golden"));
}

QStringList casesWithShow() {
    QStringList cases = goldenCases();
    cases.removeIf([](const QString& name) {
        return !QFileInfo::exists(goldenFile(name, "expected-show.json"));
    });
    return cases;
}

/// Label flags move on at each opening, so a project with Labels does not come back unchanged.
QStringList casesWithoutLabels() {
    QStringList cases = goldenCases();
    cases.removeIf([](const QString& name) {
        return readFile(goldenFile(name, "expected.nvpf")).contains("<Label>");
    });
    return cases;
}

std::string caseName(const ::testing::TestParamInfo<QString>& info) {
    return QString(info.param).replace(u'-', u'_').toStdString();
}

class Golden : public WorkspaceFixture, public ::testing::WithParamInterface<QString> {
  protected:
    static QString caseFile(const QString& name) { return goldenFile(GetParam(), name); }

    void saveUnderAnotherName(const QString& input) {
        MessageLog log(view);
        const Editor editor{workspace, log, view};
        OpenProject(editor, host_files::toModel(input));
        workspace.Status.CurrentProject = host_files::toModel(temporary.file("saved.nvpf"));
        ASSERT_TRUE(saveProject(editor, false));
    }

    void expectWhatIsExpected() {
        EXPECT_EQ(readFile(temporary.file("saved.nvpf")), readFile(caseFile("expected.nvpf")));
        EXPECT_TRUE(readFile(temporary.file("saved.nvpx")) == readFile(caseFile("expected.nvpx")));
    }

    ProcessResult runCli(const QStringList& command) {
        return runProgram(cliProgram(), QStringList{"--program-folder", temporary.file("program"),
                                                    "--settings", temporary.file("settings.ini")} +
                                            command);
    }
};

class GoldenShow : public Golden {};
class GoldenWithoutLabels : public Golden {};

}  // namespace

TEST_P(Golden, OpenedAndSavedUnderAnotherName) {
    saveUnderAnotherName(caseFile("input.nvpf"));
    expectWhatIsExpected();
}

TEST_P(Golden, TheCommandLineSavesTheSame) {
    const ProcessResult result =
        runCli({"save", caseFile("input.nvpf"), temporary.file("saved.nvpf")});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.out, QByteArray());
    expectWhatIsExpected();
}

TEST_P(GoldenWithoutLabels, WhatWasSavedComesBackUnchanged) {
    saveUnderAnotherName(caseFile("expected.nvpf"));
    expectWhatIsExpected();
}

TEST_P(GoldenShow, TheCommandLineShowsTheModel) {
    const ProcessResult result = runCli({"show", caseFile("input.nvpf")});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();

    QByteArray expected = readFile(caseFile("expected-show.json"));
    expected.replace("@PROGRAM@",
                     host_files::toModel(temporary.file("program")).replace("\\", "\\\\").toUtf8());
    QJsonParseError error;
    const QJsonDocument wanted = QJsonDocument::fromJson(expected, &error);
    ASSERT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    const QJsonDocument shown = QJsonDocument::fromJson(result.out, &error);
    ASSERT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    EXPECT_EQ(QString::fromUtf8(shown.toJson()), QString::fromUtf8(wanted.toJson()));
}

TEST(GoldenCases, AreAllThere) {
    EXPECT_GE(goldenCases().size(), 14);
    EXPECT_GE(casesWithShow().size(), 5);
    EXPECT_GE(casesWithoutLabels().size(), 5);
}

INSTANTIATE_TEST_SUITE_P(, Golden, ::testing::ValuesIn(goldenCases()), caseName);
INSTANTIATE_TEST_SUITE_P(, GoldenShow, ::testing::ValuesIn(casesWithShow()), caseName);
INSTANTIATE_TEST_SUITE_P(, GoldenWithoutLabels, ::testing::ValuesIn(casesWithoutLabels()),
                         caseName);

}  // namespace nubivane::testing
