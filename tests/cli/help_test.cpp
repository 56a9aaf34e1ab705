// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

namespace nubivane::testing {

namespace {

class Help : public CliTest {};

}  // namespace

TEST_F(Help, MentionsEveryCommandAndOption) {
    const ProcessResult result = runPlain({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    for (const char* word :
         {"show PROJECT\n", "save PROJECT [TARGET.nvpf]\n",
          "page PROJECT [--type 1|2|3|4|5] [--into DIR]\n",
          "plan PROJECT [--symbols] [--maps] [--html-page] [--bytes] [--all]\n",
          "upload PROJECT [--initialize]", "[--host H]", "[--port P]", "[--user U]",
          "[--password-file F]\n", "settings get SECTION GROUP KEY [DEFAULT]\n",
          "settings set SECTION GROUP KEY VALUE\n", "settings delete SECTION GROUP KEY\n",
          "  recovered [--json]\n", "--program-folder DIR", "--settings FILE", "--help",
          "--version"}) {
        EXPECT_TRUE(result.out.contains(word)) << word;
    }
}

TEST_F(Help, TellsTheExitCodes) {
    EXPECT_TRUE(runPlain({"--help"}).out.contains("0 done, 1 failed, 2 wrong usage"));
}

TEST_F(Help, FitsATerminalOfEightyColumns) {
    for (const QByteArray& line : runPlain({"--help"}).out.split('\n')) {
        EXPECT_LE(line.size(), 80) << line.toStdString();
    }
}

TEST_F(Help, IsTheSameBehindACommand) {
    const QByteArray text = runPlain({"--help"}).out;
    EXPECT_EQ(runPlain({"page", "--help"}).out, text);
    EXPECT_EQ(runPlain({"settings", "get", "--help"}).out, text);
    EXPECT_EQ(runPlain({"--settings", "s.ini", "--help"}).out, text);
}

TEST_F(Help, HasAShortForm) {
    const QByteArray text = runPlain({"--help"}).out;
    EXPECT_TRUE(text.contains("-h, --help"));
    EXPECT_TRUE(text.contains("-V, --version"));
    EXPECT_EQ(runPlain({"-h"}).out, text);
    EXPECT_EQ(runPlain({"page", "-h"}).out, text);
    EXPECT_EQ(runPlain({"page", "a.nvpf", "--frob", "-h"}).out, text);
    EXPECT_EQ(runPlain({"-V"}).out, runPlain({"--version"}).out);
}

TEST_F(Help, WorksOnTheFirstWordOfATwoWordCommand) {
    const ProcessResult result = runPlain({"settings", "--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, runPlain({"--help"}).out);
    EXPECT_EQ(runPlain({"settings", "-h"}).out, result.out);
}

TEST_F(Help, OpensAndWritesNothing) {
    const QStringList before = files();
    EXPECT_EQ(run({"--help"}).exitCode, 0);
    EXPECT_EQ(run({"--version"}).exitCode, 0);
    EXPECT_EQ(files(), before);
}

TEST_F(Help, VersionIsOneLine) {
    const ProcessResult result = runPlain({"--version"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "Nubivane 6.0.0\n");
    EXPECT_EQ(result.err, "");
}

}  // namespace nubivane::testing
