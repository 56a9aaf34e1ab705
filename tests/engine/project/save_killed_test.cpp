// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/handmade_project.h"
#include "support/processes.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace nubivane::testing {

namespace {

/// The command-line program saves one of two projects over the other and is killed.
class KilledSave : public ::testing::Test {
  protected:
    KilledSave() {
        copyFolder(testFile("fixtures/program"), temporary.file("program"));
        // Large enough that the writing takes a fair part of the whole.
        write("first", {900, 600}, 3);
        write("second", {1000, 700}, 2);
    }

    void write(const QString& name, QSize size, int frames) {
        HandmadeProject project;
        project.map = name + ".bmp";
        project.mapBytes = encodePicture(plainImage(size, Qt::blue), PictureFormat::Bmp);
        project.blocks = QList<QByteArray>(frames, project.mapBytes);
        project.write(temporary.file(name + ".nvpf"));
    }

    QStringList arguments(const QStringList& command) const {
        return QStringList{"--program-folder", temporary.file("program"), "--settings",
                           temporary.file("settings.ini")} +
               command;
    }

    QStringList saveOver(const QString& name) const {
        return arguments({"save", temporary.file(name + ".nvpf"), temporary.file("target.nvpf")});
    }

    TemporaryFolder temporary;
};

}  // namespace

TEST_F(KilledSave, AtAnyMomentLeavesAProjectThatOpens) {
    QElapsedTimer clock;
    clock.start();
    ASSERT_EQ(runProgram(cliProgram(), saveOver("first")).exitCode, 0);
    const int wholeTime = static_cast<int>(clock.elapsed()) + 10;

    constexpr int Rounds = 30;
    int killed = 0;
    for (int round = 0; round <= Rounds; ++round) {
        QProcess save;
        save.start(cliProgram(), saveOver(round % 2 == 0 ? "second" : "first"));
        if (!save.waitForFinished(wholeTime * round / Rounds)) {
            save.kill();
            ASSERT_TRUE(save.waitForFinished());
            ++killed;
        }
        const ProcessResult shown =
            runProgram(cliProgram(), arguments({"show", temporary.file("target.nvpf")}));
        ASSERT_EQ(shown.exitCode, 0) << "round " << round << ": " << shown.err.toStdString();
        const QJsonObject project = QJsonDocument::fromJson(shown.out).object();
        const QString map = project["Map"].toString();
        const auto frames = project["Frames"].toArray().size();
        EXPECT_TRUE((map == "first.bmp" && frames == 3) || (map == "second.bmp" && frames == 2))
            << "round " << round << ": " << map.toStdString() << ", " << frames << " Frames";
    }
    EXPECT_GT(killed, 0);
}

}  // namespace nubivane::testing
