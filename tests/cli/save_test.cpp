// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

namespace nubivane::testing {

namespace {

class SaveCommand : public CliTest {
  protected:
    void expectSameProject(const QString& one, const QString& other) {
        EXPECT_EQ(readFile(one), readFile(other));
        EXPECT_EQ(readFile(one.chopped(1) + 'x'), readFile(other.chopped(1) + 'x'));
    }
};

}  // namespace

TEST_F(SaveCommand, SavesUnderItsOwnNameInSilence) {
    const QString project = useSoundProject();
    const ProcessResult result = run({"save", project});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(run({"show", project}).exitCode, 0);
}

TEST_F(SaveCommand, ATargetTakesTheProjectAndTheOriginalStays) {
    const QString project = useSoundProject();
    const QByteArray xml = readFile(project);
    EXPECT_EQ(run({"save", project, beside("copy.nvpf")}).exitCode, 0);
    EXPECT_EQ(readFile(project), xml);
    EXPECT_EQ(readFile(beside("copy.nvpx")), readFile(beside("project.nvpx")));
    EXPECT_EQ(run({"show", beside("copy.nvpf")}).exitCode, 0);
}

TEST_F(SaveCommand, ATargetMayLieInAFolderWithBlanksAndForeignLetters) {
    const QString project = useSoundProject();
    const QString target =
        beside(QString::fromUtf8("two  words/Gr\xC3\xB6\xC3\x9F"
                                 "e \xD0\xBA\xD0\xB0/m\xC3\xA9t\xC3\xA9o \xE2\x98\x80.nvpf"));
    QDir().mkpath(QFileInfo(target).path());
    const ProcessResult result = run({"save", project, target});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_TRUE(QFile::exists(target));
    EXPECT_TRUE(QFile::exists(target.chopped(1) + 'x'));
    EXPECT_EQ(run({"show", target}).exitCode, 0);
}

TEST_F(SaveCommand, ForeignLettersInNamesNeedNoUtf8Locale) {
    const QString project = useSoundProject();
    const QString target =
        beside(QString::fromUtf8("Gr\xC3\xB6\xC3\x9F"
                                 "e.nvpf"));
    const ProcessResult result =
        run({"save", project, target}, {.environment = {"LC_ALL=C", "LANG=C"}});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(QFile::exists(target));
}

TEST_F(SaveCommand, RelativePathsStartAtTheWorkingFolder) {
    useSoundProject("from/project.nvpf");
    QDir().mkpath(beside("from/sub dir"));
    const ProcessResult result =
        run({"save", "project.nvpf", "sub dir/../sub dir/copy.nvpf"}, {.folder = beside("from")});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_TRUE(QFile::exists(beside("from/sub dir/copy.nvpf")));
    EXPECT_TRUE(QFile::exists(beside("from/sub dir/copy.nvpx")));
}

TEST_F(SaveCommand, SavingTwiceChangesNothingMore) {
    const QString project = useProject("engine/web/golden/buttons-one-frame-bare/project.nvpf");
    EXPECT_EQ(run({"save", project, beside("one.nvpf")}).exitCode, 0);
    EXPECT_EQ(run({"save", beside("one.nvpf"), beside("two.nvpf")}).exitCode, 0);
    expectSameProject(beside("one.nvpf"), beside("two.nvpf"));
}

TEST_F(SaveCommand, ATargetWithoutExtensionFailsAndWritesNothing) {
    const QString project = useSoundProject();
    run({"show", project});
    const QStringList before = files();
    const ProcessResult result = run({"save", project, beside("noext")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err,
              "An error occurred while saving the project.\n"
              "  The file name has no ending; type it with \".nvpf\" behind it.\n");
    EXPECT_EQ(files(), before);
}

TEST_F(SaveCommand, ATargetInAFolderThatIsMissingFails) {
    const ProcessResult result = run({"save", useSoundProject(), beside("nowhere/copy.nvpf")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.startsWith("An error occurred while saving the project.\n  "));
    EXPECT_FALSE(QDir(beside("nowhere")).exists());
}

TEST_F(SaveCommand, ATargetThatIsAFolderFails) {
    QDir().mkpath(beside("copy.nvpf"));
    const ProcessResult result = run({"save", useSoundProject(), beside("copy.nvpf")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.startsWith("An error occurred while saving the project.\n  "));
    EXPECT_FALSE(QFile::exists(beside("copy.nvpx")));
}

TEST_F(SaveCommand, AMissingDamagedOrForeignProjectSavesNothing) {
    const QString damaged = useProject("engine/project/defects/not-xml.nvpf", "damaged.nvpf");
    const QString foreign = useProject("engine/project/defects/version-1.0.nvpf", "foreign.nvpf");
    for (const QString& project : {beside("nowhere.nvpf"), damaged, foreign}) {
        const ProcessResult result = run({"save", project, beside("copy.nvpf")});
        EXPECT_EQ(result.exitCode, 1) << project.toStdString();
        EXPECT_NE(result.err, "") << project.toStdString();
        EXPECT_FALSE(QFile::exists(beside("copy.nvpf"))) << project.toStdString();
        EXPECT_FALSE(QFile::exists(beside("copy.nvpx"))) << project.toStdString();
    }
}

TEST_F(SaveCommand, TheMissingSymbolsAreWarnedOfBeforeTheyAreLost) {
    const QString project = useProject("engine/project/golden/missing-symbols/input.nvpf");
    const ProcessResult result = run({"save", project, beside("copy.nvpf")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, MissingSymbolsText);
    EXPECT_EQ(run({"show", beside("copy.nvpf")}).err, "");
}

}  // namespace nubivane::testing
