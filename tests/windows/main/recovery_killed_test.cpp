// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/open_project.h"
#include "support/processes.h"
#include "windows/main/safekeeping_fixture.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QProcess>

#include <csignal>

namespace nubivane {

namespace {

/// All that a project file can hold of what is open, as a checksum. Pictures count as long as they
/// are saved without loss.
QByteArray digestOf(const Workspace& workspace) {
    QCryptographicHash sum(QCryptographicHash::Md5);
    const WorkSnapshot snapshot = takeSnapshot(workspace);
    sum.addData(snapshot.head.map.toUtf8());
    const bool isLossless = snapshot.head.map.endsWith(".png");
    for (const WorkSnapshot::Frame& frame : snapshot.frames) {
        sum.addData(frameText(*frame.records));
        if (isLossless) {
            const Picture picture =
                frame.picture.isEmpty() ? workspace.loadCurrentMap() : frame.picture;
            const QImage image = picture.image().convertToFormat(QImage::Format_RGB32);
            for (int y = 0; y < image.height(); ++y) {
                sum.addData(QByteArrayView(reinterpret_cast<const char*>(image.constScanLine(y)),
                                           qsizetype{4} * image.width()));
            }
        }
    }
    return sum.result().toHex();
}

qint64 now() {
    return QDateTime::currentMSecsSinceEpoch();
}

}  // namespace

/// Not a test: the editor that is driven at random until it is killed, run by the tests below in a
/// process of its own. It writes down each state that it has been in.
class DrivenEditor : public testing::SafekeepingFixture {
  protected:
    QString copiesOfParent() const { return qEnvironmentVariable("NUBIVANE_DRIVEN_COPIES"); }
};

TEST_F(DrivenEditor, DISABLED_Runs) {
    ASSERT_TRUE(qEnvironmentVariableIsSet("NUBIVANE_DRIVEN_LOG"));
    startRandom(static_cast<quint32>(qEnvironmentVariableIntValue("NUBIVANE_DRIVEN_SEED")));
    const std::chrono::milliseconds idle(qEnvironmentVariableIntValue("NUBIVANE_DRIVEN_IDLE"));
    const Safekeeping safe(window(), workspace, copiesOfParent(), {idle, 4 * idle, idle});
    window().findChild<FrameCommands*>()->changeMap(model("Maps/other.png"));
    QFile log(qEnvironmentVariable("NUBIVANE_DRIVEN_LOG"));
    ASSERT_TRUE(log.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const auto note = [&] {
        log.write(QByteArray::number(now()) + ' ' + digestOf(workspace) + ' ' +
                  (edits().isUnsaved() ? "unsaved" : "clean") + '\n');
    };
    note();
    for (;;) {
        QTest::qWait(below(30));
        if (below(5) == 0) {
            randomTravel();
        } else {
            randomEdit();
        }
        note();
    }
}

/// An editor that is killed at any moment loses no more than its last seconds.
///
/// NUBIVANE_KILLS sets the number of kills, NUBIVANE_RANDOM_SEED the seed of the first.
class KilledEditor : public testing::WorkspaceFixture {
  protected:
    struct State {
        qint64 since;
        QByteArray digest;
        bool isUnsaved;
    };

    QString copies() const { return temporary.file("copies"); }
    QString log() const { return temporary.file("states.txt"); }

    void startDriven(int seed, int idleMs) {
        QDir(copies()).removeRecursively();
        QFile::remove(log());
        QDir().mkpath(temporary.file("tmp"));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", temporary.file("tmp"));
        environment.insert("NUBIVANE_DRIVEN_COPIES", copies());
        environment.insert("NUBIVANE_DRIVEN_LOG", log());
        environment.insert("NUBIVANE_DRIVEN_SEED", QString::number(seed));
        environment.insert("NUBIVANE_DRIVEN_IDLE", QString::number(idleMs));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(
            QCoreApplication::applicationFilePath(),
            {"--gtest_filter=DrivenEditor.DISABLED_Runs", "--gtest_also_run_disabled_tests"});
        ASSERT_TRUE(QTest::qWaitFor([this] { return states().size() > 1; }, 60'000))
            << process.readAll().toStdString();
    }

    /// The states that were written down whole.
    QList<State> states() const {
        QList<State> list;
        QFile file(log());
        if (!file.open(QIODevice::ReadOnly)) {
            return list;
        }
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
            const QList<QByteArray> fields = lines[i].split(' ');
            list.append({fields[0].toLongLong(), fields.value(1), fields.value(2) == "unsaved"});
        }
        return list;
    }

    /// What the next start is offered: the digest of the project, empty for nothing.
    QByteArray recovered() {
        QStringList faults;
        const QList<RecoveryEntry> entries = recoveryEntries(copies(), faults);
        EXPECT_TRUE(faults.isEmpty()) << faults.join('\n').toStdString();
        EXPECT_LE(entries.size(), 1);
        if (entries.isEmpty()) {
            return {};
        }
        EXPECT_FALSE(entries[0].isOpen);
        const QString target = temporary.file("recovered.nvpf");
        writeRecovered(entries[0], host_files::toModel(target), settings);
        const testing::ProcessResult shown = testing::runProgram(
            testing::cliProgram(), {"--program-folder", temporary.file("program"), "--settings",
                                    temporary.file("cli.ini"), "show", target});
        EXPECT_EQ(shown.exitCode, 0) << shown.err.toStdString();
        open(target);
        return digestOf(workspace);
    }

    /// Whether that is what the editor was in the last five seconds before it was killed, or what
    /// it did not come to write down any more.
    static bool isFresh(const QByteArray& digest, const QList<State>& states, qint64 killed) {
        constexpr qint64 OldestMs = 5000;
        for (qsizetype i = states.size() - 1; i >= 0; --i) {
            const bool isLast = i + 1 == states.size();
            if (!isLast && states[i + 1].since < killed - OldestMs) {
                return false;
            }
            if (digest.isEmpty() ? !states[i].isUnsaved || states[0].since > killed - OldestMs
                                 : states[i].digest == digest) {
                return true;
            }
        }
        return false;
    }

    QProcess process;
};

TEST_F(KilledEditor, AtAnyMomentOffersAStateOfTheLastSeconds) {
    const int wanted = qEnvironmentVariableIntValue("NUBIVANE_KILLS");
    const int kills = wanted > 0 ? wanted : 12;
    const int chosen = qEnvironmentVariableIntValue("NUBIVANE_RANDOM_SEED");
    const int first = chosen > 0 ? chosen : QRandomGenerator::global()->bounded(1, 1'000'000);
    std::cout << "seeds from " << first << '\n';
    int offered = 0;
    for (int round = 0; round < kills && !HasFailure(); ++round) {
        const int seed = first + round;
        SCOPED_TRACE("seed " + std::to_string(seed));
        QRandomGenerator random(static_cast<quint32>(seed));
        startDriven(seed, 15);
        process.waitForFinished(random.bounded(1500));
        process.kill();
        ASSERT_TRUE(process.waitForFinished());
        ASSERT_EQ(process.exitStatus(), QProcess::CrashExit) << process.readAll().toStdString();
        const qint64 killed = now();
        const QByteArray digest = recovered();
        offered += digest.isEmpty() ? 0 : 1;
        EXPECT_TRUE(isFresh(digest, states(), killed))
            << (digest.isEmpty() ? "nothing is offered" : "a state that never was, or an old one");
    }
    std::cout << offered << " of " << kills << " kills offered work\n";
    EXPECT_GT(offered, 0);
}

TEST_F(KilledEditor, BySignalsOfTheSystemKeepsTheVeryLastState) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        SCOPED_TRACE(signal);
        constexpr int NeverByItself = 100'000;
        startDriven(7, NeverByItself);
        ASSERT_TRUE(QTest::qWaitFor([this] { return states().size() > 10; }, 30'000));
        QElapsedTimer clock;
        clock.start();
        ::kill(static_cast<pid_t>(process.processId()), signal);
        ASSERT_TRUE(process.waitForFinished(20'000));
        EXPECT_LT(clock.elapsed(), 2000);
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 128 + signal);
        const QByteArray digest = recovered();
        EXPECT_TRUE(states().last().digest == digest ||
                    (digest.isEmpty() && !states().last().isUnsaved));
    }
}

}  // namespace nubivane
