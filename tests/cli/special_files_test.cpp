// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"
#include "engine/core/temporary_name.h"

#include <QRegularExpression>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace nubivane::testing {

namespace {

/// A command and the file that it writes.
struct Writer {
    QStringList words;
    QString target;
};

/// Pipes, devices, links and files without an end in the place of ordinary ones.
class SpecialFiles : public CliTest {
  protected:
    SpecialFiles() : project(useSoundProject()) {}

    /// Every command that writes a file whose name is given.
    QList<Writer> writers() const {
        const auto target = [this](const char* name) { return beside(name); };
        return {
            {{"still", project, "1", target("a.png")}, target("a.png")},
            {{"print", project, "1", target("a.pdf")}, target("a.pdf")},
            {{"anigif", project, "1", target("a.gif")}, target("a.gif")},
            {{"film", project, target("b.gif")}, target("b.gif")},
            {{"film", project, target("b.mp4")}, target("b.mp4")},
            {{"avi", project, "1", target("a.avi")}, target("a.avi")},
            {{"mp4", project, "1", target("a.mp4")}, target("a.mp4")},
            {{"save", project, target("c.nvpf")}, target("c.nvpf")},
            {{"save", project, target("d.nvpf")}, target("d.nvpx")},
            {{"page", project}, host("Forecast.htm")},
            {{"page", project}, host("Forecast.js")},
            {{"page", project}, host("Web/Forecast1.jpg")},
            {{"settings", "set", "S", "G", "K", "V"}, settingsFile()},
        };
    }

    /// Runs a command whose target must not be written: it says so and leaves everything.
    void expectRefused(const Writer& writer) const {
        const std::string name =
            writer.words[0].toStdString() + " " + QFileInfo(writer.target).fileName().toStdString();
        const ProcessResult result = run(writer.words);
        EXPECT_EQ(result.exitCode, 1) << name;
        EXPECT_FALSE(result.err.isEmpty()) << name;
        EXPECT_FALSE(QFileInfo(writer.target).isFile()) << name;
        EXPECT_TRUE(leftovers().isEmpty()) << name << ": " << leftovers().join(' ').toStdString();
    }

    QStringList leftovers() const { return files().filter(".nubivane-"); }

    static void makePipe(const QString& path) {
        QDir().mkpath(QFileInfo(path).path());
        QFile::remove(path);
        ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    }

    static void makeEndless(const QString& path) {
        writeFile(path, {});
        ASSERT_TRUE(QFile::resize(path, qint64{64} << 30));
    }

    /// What opens, and the map's file is the project's own again.
    void expectMapBack(const QString& map) const {
        const ProcessResult result = run({"show", project});
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_TRUE(QFileInfo(map).isFile());
        EXPECT_FALSE(QFileInfo(map).isSymLink());
        EXPECT_LT(QFileInfo(map).size(), 1 << 20);
    }

    QString project;
};

}  // namespace

TEST_F(SpecialFiles, APipeAsTargetIsRefused) {
    for (const Writer& writer : writers()) {
        makePipe(writer.target);
        expectRefused(writer);
        EXPECT_TRUE(QFile::remove(writer.target));
    }
}

TEST_F(SpecialFiles, ALinkToAPipeAsTargetIsRefused) {
    makePipe(beside("pipe"));
    for (const Writer& writer : writers()) {
        QFile::remove(writer.target);
        QDir().mkpath(QFileInfo(writer.target).path());
        ASSERT_TRUE(QFile::link(beside("pipe"), writer.target));
        expectRefused(writer);
        EXPECT_TRUE(QFileInfo(writer.target).isSymLink());
        EXPECT_TRUE(QFile::remove(writer.target));
    }
    EXPECT_TRUE(QFileInfo::exists(beside("pipe")));
}

TEST_F(SpecialFiles, ALinkToADeviceAsTargetIsRefusedAndTheDeviceStays) {
    const QByteArray device = QFile::encodeName(beside("device"));
    if (::mknod(device.constData(), S_IFCHR | 0600, ::makedev(1, 3)) != 0) {
        GTEST_SKIP() << "only root makes devices";
    }
    for (const Writer& writer : writers()) {
        QFile::remove(writer.target);
        QDir().mkpath(QFileInfo(writer.target).path());
        ASSERT_TRUE(QFile::link(beside("device"), writer.target));
        expectRefused(writer);
        struct stat status {};
        ASSERT_EQ(::lstat(device.constData(), &status), 0);
        EXPECT_TRUE(S_ISCHR(status.st_mode));
        EXPECT_TRUE(QFile::remove(writer.target));
    }
}

TEST_F(SpecialFiles, ALinkToAnOrdinaryFileStaysAndItsTargetIsReplaced) {
    QDir().mkpath(beside("real"));
    for (const Writer& writer : writers()) {
        const QString real = beside("real/" + QFileInfo(writer.target).fileName());
        const QByteArray old = writer.target == settingsFile() ? "" : "old";
        writeFile(real, old);
        QFile::remove(writer.target);
        QDir().mkpath(QFileInfo(writer.target).path());
        ASSERT_TRUE(QFile::link(real, writer.target));
        const ProcessResult result = run(writer.words);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_TRUE(QFileInfo(writer.target).isSymLink()) << writer.target.toStdString();
        EXPECT_NE(readFile(real), old) << writer.target.toStdString();
    }
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(SpecialFiles, LeftoversOfRunsThatDiedGoWithTheNextRunOntoTheSameTarget) {
    for (const Writer& writer : writers()) {
        const QFileInfo target(writer.target);
        QDir().mkpath(target.path());
        QString name;
        const int dead = temporary_name::create(target.path(), target.fileName(), {}, 0600, name);
        ASSERT_GE(dead, 0);
        ::close(dead);
        const ProcessResult result = run(writer.words);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_EQ(leftovers(), QStringList()) << writer.words[0].toStdString();
    }
}

TEST_F(SpecialFiles, AMapThatIsAPipeALinkOrEndlessGivesWayToTheProjectsOwn) {
    const QString map = host("Maps/" + show(project)["Map"].toString());
    ASSERT_TRUE(QFile::remove(map));
    makePipe(map);
    expectMapBack(map);
    ASSERT_TRUE(QFile::remove(map));
    writeFile(beside("mine.png"), "a person's own picture");
    ASSERT_TRUE(QFile::link(beside("mine.png"), map));
    expectMapBack(map);
    EXPECT_EQ(readFile(beside("mine.png")), "a person's own picture");
    makeEndless(map);
    expectMapBack(map);
}

TEST_F(SpecialFiles, AProjectOrItsPicturesThatAreNoFilesOrEndlessAreRefused) {
    const QString data = beside("project.nvpx");
    for (const QString& file : {project, data}) {
        const QByteArray bytes = readFile(file);
        makePipe(file);
        EXPECT_EQ(run({"show", project}).exitCode, 1) << file.toStdString();
        QFile::remove(file);
        writeFile(file, bytes);
    }
    makeEndless(project);
    const ProcessResult endless = run({"show", project});
    EXPECT_EQ(endless.exitCode, 1);
    EXPECT_TRUE(endless.err.startsWith(DamagedText)) << endless.err.toStdString();
}

TEST_F(SpecialFiles, ASymbolThatIsAPipeOrEndlessCountsAsMissing) {
    const QString sun = host("Symbols/set-1/sun.gif");
    const QString shown = useProject("engine/web/golden/buttons-two-frames-width-500/project.nvpf",
                                     "with symbols.nvpf");
    const QByteArray before = run({"show", shown}).out;
    ASSERT_TRUE(before.contains("sun.gif"));
    for (const bool pipe : {true, false}) {
        ASSERT_TRUE(QFile::remove(sun));
        pipe ? makePipe(sun) : makeEndless(sun);
        const ProcessResult result = run({"show", shown});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_FALSE(result.out.contains("sun.gif"));
        EXPECT_TRUE(result.err.contains(MissingSymbolsText)) << result.err.toStdString();
    }
}

TEST_F(SpecialFiles, EndlessFilesCostNeitherTimeNorMemory) {
    const QString map = host("Maps/" + show(project)["Map"].toString());
    const QString prefix = temporary_name::prefixFor("project.nvpf");
    for (const QString& file : {map, host("Symbols/set-1/sun.gif"), beside(prefix + "01234567"),
                                beside(prefix + "01234567-1-2-3-4-5-6"), settingsFile(),
                                beside("project.nvpx"), project}) {
        const QByteArray before = QFile::exists(file) ? readFile(file) : QByteArray();
        makeEndless(file);
        const std::string name = QFileInfo(file).fileName().toStdString();
        const ProcessResult result = run({"show", project}, {.inChild = [] {
                                             constexpr rlim_t Seconds = 10;
                                             const rlimit limit{Seconds, Seconds};
                                             ::setrlimit(RLIMIT_CPU, &limit);
                                         }});
        EXPECT_TRUE(result.exitCode == 0 || result.exitCode == 1) << name;
        EXPECT_TRUE(result.exitCode == 0 || !result.err.isEmpty()) << name;
        QFile::remove(file);
        if (!before.isEmpty()) {
            writeFile(file, before);
        }
    }
#ifndef __SANITIZE_ADDRESS__
    rusage used{};
    ASSERT_EQ(::getrusage(RUSAGE_CHILDREN, &used), 0);
    EXPECT_LT(used.ru_maxrss, 400 * 1024) << "kilobytes, of the largest process so far";
#endif
}

TEST_F(SpecialFiles, ANameLongerThanFileSystemsTakeIsRefusedWithItsReason) {
    for (const Writer& writer : writers()) {
        if (!writer.words.contains(writer.target)) {
            continue;  // these have names of their own
        }
        const QString ending = writer.target.right(5);
        QStringList words = writer.words;
        words.last() = beside(QString(256 - ending.size(), u'n') + ending);
        const ProcessResult result = run(words);
        EXPECT_EQ(result.exitCode, 1) << words[0].toStdString();
        EXPECT_TRUE(result.err.contains("File name too long")) << result.err.toStdString();
        // One letter less is a name as any other.
        words.last() = beside(QString(255 - ending.size(), u'n') + ending);
        const ProcessResult longest = run(words);
        EXPECT_EQ(longest.exitCode, 0) << longest.err.toStdString();
        EXPECT_TRUE(QFile::remove(words.last())) << words[0].toStdString();
        QFile::remove(words.last().replace(QRegularExpression("f$"), "x"));
    }
    EXPECT_EQ(files().filter("nnn"), QStringList());
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(SpecialFiles, NamesThatAreNotUtf8AreRefusedAndNothingIsWritten) {
    const QStringList before = files();
    for (const QByteArray& words : {"still '" + QFile::encodeName(project) + "' 1 caf\xe9.png",
                                    "save '" + QFile::encodeName(project) + "' caf\xe9.nvpf",
                                    QByteArray("settings set S G K caf\xc3")}) {
        QProcess shell;
        shell.setWorkingDirectory(temporary.path());
        // The shell hands bytes on as they are, which QProcess does not.
        writeFile(beside("script.sh"), "exec '" + QFile::encodeName(cliProgram()) +
                                           "' --program-folder program --settings settings.ini " +
                                           words + "\n");
        shell.start("/bin/sh", {"script.sh"});
        ASSERT_TRUE(shell.waitForFinished(60000));
        EXPECT_EQ(shell.exitCode(), 1) << words.toStdString();
        EXPECT_TRUE(shell.readAllStandardError().contains("UTF-8")) << words.toStdString();
        QFile::remove(beside("script.sh"));
    }
    EXPECT_EQ(files(), before);
}

}  // namespace nubivane::testing
