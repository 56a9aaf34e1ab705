// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

#include <unistd.h>

namespace nubivane::testing {

namespace {

/// Every command that has a result to print.
class Output : public CliTest {
  protected:
    QList<QStringList> talkative() const {
        const QString project = beside("project.nvpf");
        return {{"show", project},
                {"page", project},
                {"settings", "get", "S", "G", "K"},
                {"--help"},
                {"--version"}};
    }
};

void closeOutput() {
    ::close(STDOUT_FILENO);
}

void closeError() {
    ::close(STDERR_FILENO);
}

}  // namespace

TEST_F(Output, AFullStandardOutputIsAFailure) {
    useSoundProject();
    for (const QStringList& words : talkative()) {
        EXPECT_EQ(run(words, {.standardOutput = "/dev/full"}).exitCode, 1)
            << words[0].toStdString();
    }
}

TEST_F(Output, AClosedStandardOutputIsAFailure) {
    useSoundProject();
    for (const QStringList& words : talkative()) {
        EXPECT_EQ(run(words, {.inChild = closeOutput}).exitCode, 1) << words[0].toStdString();
    }
}

TEST_F(Output, AResultLostIsToldOnStandardError) {
    useSoundProject();
    for (const QStringList& words : talkative()) {
        EXPECT_NE(run(words, {.standardOutput = "/dev/full"}).err, "") << words[0].toStdString();
    }
}

TEST_F(Output, ASilentCommandNeedsNoStandardOutput) {
    const QString project = useSoundProject();
    EXPECT_EQ(run({"save", project}, {.inChild = closeOutput}).exitCode, 0);
    EXPECT_EQ(run({"settings", "set", "S", "G", "K", "V"}, {.inChild = closeOutput}).exitCode, 0);
}

TEST_F(Output, ClosedStreamsEndUpInNoFile) {
    // A project without labels: saving it changes nothing.
    const QString project = useProject("engine/web/golden/buttons-one-frame-bare/project.nvpf");
    run({"save", project});
    run({"page", project});
    const QStringList before = files();
    QHash<QString, QByteArray> contents;
    for (const QString& file : before) {
        contents.insert(file, readFile(beside(file)));
    }

    for (const char* command : {"save", "page", "show"}) {
        run({command, project}, {.inChild = [] {
                closeOutput();
                closeError();
            }});
        EXPECT_EQ(files(), before) << command;
        for (const QString& file : before) {
            EXPECT_EQ(readFile(beside(file)), contents[file]) << command;
        }
    }
}

TEST_F(Output, AClosedStandardErrorDoesNotChangeTheExitCode) {
    const QString project = useSoundProject();
    EXPECT_EQ(run({"show", project}, {.inChild = closeError}).exitCode, 0);
    EXPECT_EQ(run({"show", "nowhere.nvpf"}, {.inChild = closeError}).exitCode, 1);
    EXPECT_EQ(run({"frob"}, {.inChild = closeError}).exitCode, 2);
}

TEST_F(Output, AResultInAFileIsTheSameAsInAPipe) {
    const QString project = useSoundProject();
    const QByteArray piped = run({"show", project}).out;
    EXPECT_EQ(run({"show", project}, {.standardOutput = beside("out.json")}).exitCode, 0);
    EXPECT_EQ(readFile(beside("out.json")), piped);
}

}  // namespace nubivane::testing
