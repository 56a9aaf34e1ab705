// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"
#include "support/ftp_servers.h"
#include "support/tree_watcher.h"

#include <QElapsedTimer>
#include <QRandomGenerator>

namespace nubivane::testing {

namespace {

/// An upload whose process is killed at whatever moment.
class KilledUpload : public CliTest {
  protected:
    KilledUpload() {
        writeFile(beside("password"), FtpPassword);
        run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Ftp", "nubivane folder", "nVane"});
        writeFile(host("Maps/europe.jpg"), QByteArray(2000000, 'x'));
        project = useSoundProject();
        EXPECT_EQ(run({"page", project}).exitCode, 0);
        QDirIterator entries(programFolder(), QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString path = entries.next();
            site.insert("nVane/" + QDir(programFolder()).relativeFilePath(path), readFile(path));
        }
    }

    QStringList words(const FtpServerProcess& server) const {
        return {"upload",
                project,
                "--initialize",
                "--host",
                "127.0.0.1",
                "--port",
                QString::number(server.port()),
                "--user",
                server.address().user,
                "--password-file",
                beside("password"),
                "--encryption",
                "none"};
    }

    /// Starts an upload and kills it after so many milliseconds, if it still runs.
    void killAfter(const FtpServerProcess& server, int ms) const {
        QProcess process;
        QProcessEnvironment variables;
        variables.insert("HOME", temporary.path());
        variables.insert("XDG_STATE_HOME", state.path());
        process.setProcessEnvironment(variables);
        process.start(cliProgram(), QStringList{"--program-folder", programFolder(), "--settings",
                                                settingsFile()} +
                                        words(server));
        process.waitForFinished(ms);
        process.kill();
        process.waitForFinished();
    }

    QString project;
    QMap<QString, QByteArray> site;
};

int rounds() {
    constexpr int quick = 12;  // more on request, they take their time
    const int wished = qEnvironmentVariableIntValue("NUBIVANE_KILLS");
    return wished > 0 ? wished : quick;
}

}  // namespace

TEST_F(KilledUpload, AtAnyMomentLeavesNoHalfFileAndTheNextRunMendsIt) {
    OwnFtpServer server({"--unix", "--delay", "0.002"});
    QElapsedTimer clock;
    clock.start();
    ASSERT_EQ(run(words(server)).exitCode, 0);
    const auto whole = static_cast<int>(clock.elapsed());
    EXPECT_EQ(server.tree(), site);
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    TreeWatcher watcher(server.root(), site);
    for (int round = 0; round < rounds(); ++round) {
        watcher.pause();
        server.empty();
        QDir(state.path()).removeRecursively();
        watcher.resume();
        const int ms = random.bounded(whole + 1);
        SCOPED_TRACE(
            QStringLiteral("seed %1, round %2, %3 ms").arg(seed).arg(round).arg(ms).toStdString());
        killAfter(server, ms);
        server.beginAnew({});
        const ProcessResult next = run(words(server));
        EXPECT_EQ(next.exitCode, 0) << next.err.toStdString();
        EXPECT_TRUE(server.tree() == site);
        EXPECT_EQ(server.everything().filter(".part"), QStringList());
    }
    EXPECT_EQ(watcher.halfFiles(), QStringList());
}

}  // namespace nubivane::testing
