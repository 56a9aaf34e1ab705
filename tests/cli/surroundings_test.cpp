// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

#include <sys/resource.h>

#include <csignal>

namespace nubivane::testing {

namespace {

class Surroundings : public CliTest {
  protected:
    /// Runs the program with no environment at all.
    ProcessResult runBare(const QStringList& words) const {
        return runProgram("env", QStringList{"-i", cliProgram(), "--program-folder",
                                             programFolder(), "--settings", settingsFile()} +
                                     words);
    }

    /// A disk on which no file can grow beyond some bytes.
    static std::function<void()> fullDisk() {
        return [] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{100, 100};
            setrlimit(RLIMIT_FSIZE, &limit);
        };
    }
};

}  // namespace

TEST_F(Surroundings, AnEmptyEnvironmentMakesNoNoise) {
    const QString project = useSoundProject();
    for (const QStringList& words :
         {QStringList{"show", project}, QStringList{"save", project}, QStringList{"page", project},
          QStringList{"settings", "get", "S", "G", "K"}}) {
        const ProcessResult result = runBare(words);
        EXPECT_EQ(result.exitCode, 0) << words[0].toStdString();
        EXPECT_EQ(result.err, "") << words[0].toStdString();
    }
}

TEST_F(Surroundings, TheLocaleCMakesNoNoise) {
    const QString project = useSoundProject();
    for (const char* locale : {"LC_ALL=C", "LANG=C", "LC_ALL=POSIX", "LC_ALL=xx_YY.unknown"}) {
        const ProcessResult result = run({"page", project}, {.environment = {locale}});
        EXPECT_EQ(result.exitCode, 0) << locale;
        EXPECT_EQ(result.err, "") << locale;
    }
}

TEST_F(Surroundings, NumbersAreWrittenTheSameInEveryLocale) {
    const QString project = useSoundProject();
    const QByteArray plain = run({"show", project}).out;
    for (const char* locale : {"LC_ALL=de_DE.UTF-8", "LC_ALL=ar_EG.UTF-8"}) {
        EXPECT_EQ(run({"show", project}, {.environment = {locale}}).out, plain) << locale;
    }
}

TEST_F(Surroundings, NoDisplayIsNeededNorLookedFor) {
    const ProcessResult result =
        run({"page", useSoundProject()},
            {.environment = {"DISPLAY=:4711", "WAYLAND_DISPLAY=none", "QT_QPA_PLATFORM=none"}});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
}

TEST_F(Surroundings, AMissingProgramFolderIsAFailure) {
    const ProcessResult result = runPlain({"--program-folder", beside("nowhere"), "--settings",
                                           settingsFile(), "show", useSoundProject()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "There is no program folder \"" + beside("nowhere").toUtf8() + "\".\n");
    EXPECT_FALSE(QDir(beside("nowhere")).exists());
}

TEST_F(Surroundings, AFileIsNoProgramFolder) {
    writeFile(beside("file"), "no folder");
    const ProcessResult result = runPlain({"--program-folder", beside("file"), "--settings",
                                           settingsFile(), "show", useSoundProject()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "There is no program folder \"" + beside("file").toUtf8() + "\".\n");
}

TEST_F(Surroundings, EveryPathMayBeRelative) {
    useSoundProject("folder/project.nvpf");
    const ProcessResult result = runPlain({"--program-folder", "../program", "--settings",
                                           "../settings.ini", "page", "./project.nvpf"},
                                          {.folder = beside("folder")});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_TRUE(QFile::exists(host("Forecast.htm")));
    EXPECT_TRUE(QFile::exists(host("Maps/plain-498x300.jpg")));
    EXPECT_TRUE(QFile::exists(settingsFile()));
    EXPECT_EQ(QDir(beside("folder")).entryList(QDir::Files),
              QStringList({"project.nvpf", "project.nvpx"}));
}

TEST_F(Surroundings, AProgramFolderEndingInASlashMakesNoDoubledSeparators) {
    const QString project = useSoundProject();
    const QString slash = programFolder() + '/';
    const ProcessResult page =
        runPlain({"--program-folder", slash, "--settings", settingsFile(), "page", project});
    EXPECT_EQ(page.exitCode, 0);
    EXPECT_FALSE(page.out.contains("//")) << page.out.toStdString();
    const ProcessResult shown =
        runPlain({"--program-folder", slash, "--settings", settingsFile(), "show", project});
    EXPECT_EQ(shown.out, run({"show", project}).out);
}

TEST_F(Surroundings, AFullDiskFailsASaveAndLeavesBothFiles) {
    const QString project = useSoundProject();
    run({"show", project});
    const QByteArray xml = readFile(project);
    const QByteArray data = readFile(beside("project.nvpx"));
    const QStringList before = files();
    const ProcessResult result = run({"save", project}, {.inChild = fullDisk()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.startsWith("An error occurred while saving the project.\n  "))
        << result.err.toStdString();
    EXPECT_EQ(readFile(project), xml);
    EXPECT_EQ(readFile(beside("project.nvpx")), data);
    EXPECT_EQ(files(), before);
}

TEST_F(Surroundings, AFullDiskFailsAPageAndLeavesTheOldOne) {
    const QString project = useSoundProject();
    run({"page", project});
    const QByteArray page = readFile(host("Forecast.htm"));
    const ProcessResult result = run({"page", project}, {.inChild = fullDisk()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(result.err.startsWith("An error occurred while creating the page.\n  "))
        << result.err.toStdString();
    EXPECT_EQ(readFile(host("Forecast.htm")), page);
}

TEST_F(Surroundings, AFullDiskFailsASettingAndLeavesTheOldOnes) {
    run({"settings", "set", "S", "G", "K", "old"});
    run({"settings", "set", "S", "G", "Long", QString(1000, u'x')});
    const QByteArray before = readFile(settingsFile());
    for (const QStringList& words : {QStringList{"settings", "set", "S", "G", "K", "new"},
                                     QStringList{"settings", "delete", "S", "G", "K"}}) {
        const ProcessResult result = run(words, {.inChild = fullDisk()});
        EXPECT_EQ(result.exitCode, 1) << words[1].toStdString();
        EXPECT_EQ(result.err, "The settings could not be written.\n") << words[1].toStdString();
        EXPECT_EQ(readFile(settingsFile()), before) << words[1].toStdString();
        writeFile(settingsFile(), before);
    }
}

}  // namespace nubivane::testing
