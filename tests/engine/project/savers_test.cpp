// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/handmade_project.h"
#include "support/processes.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <array>
#include <memory>
#include <vector>

namespace nubivane::testing {

namespace {

constexpr int Savers = 8;

/// Several runs of the command line save projects of their own onto one target.
class SaversAtOnce : public ::testing::Test {
  protected:
    struct Pair {
        QByteArray project;
        QByteArray data;
        bool operator==(const Pair&) const = default;
    };

    SaversAtOnce() {
        copyFolder(testFile("fixtures/program"), temporary.file("program"));
        QDir().mkpath(temporary.file("target"));
        for (int i = 0; i < Savers; ++i) {
            // As many bytes for each, so that a mix of two would open.
            HandmadeProject project;
            project.map = QStringLiteral("map-%1.bmp").arg(i);
            project.mapBytes =
                encodePicture(plainImage({230, 230}, static_cast<Qt::GlobalColor>(Qt::red + i)),
                              PictureFormat::Bmp);
            project.blocks = {project.mapBytes, project.mapBytes};
            project.write(source(i));
            EXPECT_EQ(runProgram(cliProgram(), command(i)).exitCode, 0);
            results[static_cast<std::size_t>(i)] = found();
        }
    }

    QString source(int i) const { return temporary.file(QStringLiteral("source-%1.nvpf").arg(i)); }
    QString target() const { return temporary.file("target/weather.nvpf"); }
    QStringList command(int i) const {
        return {"--program-folder",
                temporary.file("program"),
                "--settings",
                temporary.file("settings.ini"),
                "save",
                source(i),
                target()};
    }
    Pair found() const {
        return {readFile(target()), readFile(temporary.file("target/weather.nvpx"))};
    }
    void removeTarget() const {
        QFile::remove(target());
        QFile::remove(temporary.file("target/weather.nvpx"));
    }

    /// All of them started within `spreadMs`; the exit code of each. Those whose number is in
    /// `killed` get no chance to end by themselves.
    std::vector<int> saveAll(QRandomGenerator& random, int spreadMs, int killed) {
        std::vector<std::unique_ptr<QProcess>> runs;
        for (int i = 0; i < Savers; ++i) {
            runs.push_back(std::make_unique<QProcess>());
            runs.back()->start(cliProgram(), command(i), QIODevice::ReadOnly);
            if (spreadMs > 0) {
                QThread::msleep(random.bounded(static_cast<quint32>(spreadMs / Savers) + 1));
            }
        }
        for (int i = 0; i < killed; ++i) {
            QThread::msleep(random.bounded(10U));
            runs[static_cast<std::size_t>(random.bounded(Savers))]->kill();
        }
        std::vector<int> codes;
        for (auto& run : runs) {
            EXPECT_TRUE(run->waitForFinished(60000));
            const bool ended = run->exitStatus() == QProcess::NormalExit;
            codes.push_back(ended ? run->exitCode() : -1);
            EXPECT_TRUE(!ended || run->exitCode() == 0 || !run->readAllStandardError().isEmpty());
        }
        return codes;
    }

    int indexOf(const Pair& pair) const {
        for (int i = 0; i < Savers; ++i) {
            if (results[static_cast<std::size_t>(i)] == pair) {
                return i;
            }
        }
        return -1;
    }

    QStringList entries() const {
        return QDir(temporary.file("target")).entryList(QDir::Files | QDir::Hidden);
    }

    /// Few where every change is tested; NUBIVANE_ROUNDS asks for more.
    static int rounds(int few) { return qEnvironmentVariableIntValue("NUBIVANE_ROUNDS") + few; }

    TemporaryFolder temporary;
    std::array<Pair, Savers> results;
};

}  // namespace

TEST_F(SaversAtOnce, OneResultStandsWholeAndItsSaverKnowsIt) {
    QRandomGenerator random(1);
    const int all = rounds(50);
    for (int round = 0; round < all; ++round) {
        if (round % 3 == 0) {
            removeTarget();
        }
        const std::vector<int> codes = saveAll(random, round % 2 == 0 ? 0 : 80, 0);
        const int winner = indexOf(found());
        ASSERT_GE(winner, 0) << "round " << round << ": parts of different projects";
        EXPECT_EQ(codes[static_cast<std::size_t>(winner)], 0) << "round " << round;
        EXPECT_EQ(entries(), QStringList({"weather.nvpf", "weather.nvpx"})) << "round " << round;
    }
}

TEST_F(SaversAtOnce, SomeOfWhichAreKilledLeaveAResultThatOpensAndNothingElseAfterTheNextSave) {
    QRandomGenerator random(2);
    const int all = rounds(8);
    for (int round = 0; round < all; ++round) {
        saveAll(random, 40, 4);
        const ProcessResult shown =
            runProgram(cliProgram(), command(0).first(4) + QStringList{"show", target()});
        ASSERT_EQ(shown.exitCode, 0) << "round " << round << ": " << shown.err.toStdString();
        ASSERT_GE(indexOf(found()), 0) << "round " << round << ": parts of different projects";
        ASSERT_EQ(runProgram(cliProgram(), command(round % Savers)).exitCode, 0);
        EXPECT_EQ(entries(), QStringList({"weather.nvpf", "weather.nvpx"})) << "round " << round;
    }
}

}  // namespace nubivane::testing
