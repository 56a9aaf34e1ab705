// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

#include <QDateTime>
#include <QJsonArray>

#include <sys/stat.h>

namespace nubivane::testing {

namespace {

/// Earlier versions, as the command line keeps and writes them.
class Versions : public CliTest {
  protected:
    Versions() {
        // Several sound projects of different content to be saved onto one target.
        const QStringList golden{"buttons-two-frames-width-500", "buttons-four-frames-effects-off",
                                 "buttons-one-frame-bare"};
        for (const QString& name : golden) {
            sources << useProject("engine/web/golden/" + name + "/project.nvpf", name + ".nvpf");
        }
    }

    void save(int source) const {
        const ProcessResult result = run({"save", sources[source], target()});
        ASSERT_EQ(result.exitCode, 0) << result.err.toStdString();
    }

    QString target() const { return beside("week.nvpf"); }
    QList<QByteArray> pair(const QString& project) const {
        return {readFile(project), readFile(QString(project).replace(project.size() - 1, 1, u'x'))};
    }

    QJsonArray versions() const {
        const ProcessResult result = run({"versions", target(), "--json"});
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        return QJsonDocument::fromJson(result.out).array();
    }

    QStringList sources;
};

}  // namespace

TEST_F(Versions, OfAProjectThatWasNeverSavedOverThereAreNone) {
    EXPECT_EQ(versions(), QJsonArray());
    save(0);
    EXPECT_EQ(versions(), QJsonArray());
    const ProcessResult lines = run({"versions", target()});
    EXPECT_EQ(lines.exitCode, 0);
    EXPECT_EQ(lines.out, "");
}

TEST_F(Versions, EachSaveKeepsThePairAsItWasByteForByte) {
    save(0);
    const auto first = pair(target());
    save(1);
    const auto second = pair(target());
    save(2);
    const QJsonArray list = versions();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].toObject()["number"], 1);
    EXPECT_EQ(list[0].toObject()["cause"], "saved");
    EXPECT_EQ(list[0].toObject()["frames"], 4);
    EXPECT_EQ(list[1].toObject()["frames"], 2);
    EXPECT_TRUE(
        QDateTime::fromString(list[0].toObject()["time"].toString(), Qt::ISODate).isValid());
    ASSERT_EQ(run({"version", target(), "1", beside("out.nvpf")}).exitCode, 0);
    EXPECT_EQ(pair(beside("out.nvpf")), second);
    ASSERT_EQ(run({"version", target(), "2", beside("out.nvpf")}).exitCode, 0);
    EXPECT_EQ(pair(beside("out.nvpf")), first) << "no tail of the longer pair before it";
}

TEST_F(Versions, ASaveThatChangesNothingAddsNone) {
    save(0);
    save(0);
    save(0);
    EXPECT_EQ(versions(), QJsonArray());
    save(1);
    save(1);
    EXPECT_EQ(versions().size(), 1);
}

TEST_F(Versions, LinesHoldNumberTimeCauseFramesAndSpritesPartedByTabs) {
    save(0);
    save(1);
    const QList<QByteArray> fields = run({"versions", target()}).out.trimmed().split('\t');
    ASSERT_EQ(fields.size(), 5);
    EXPECT_EQ(fields[0], "1");
    EXPECT_EQ(fields[2], "saved");
    EXPECT_EQ(fields[3], "2");
    EXPECT_EQ(fields[4].toInt(), versions()[0].toObject()["sprites"].toInt());
}

TEST_F(Versions, SpritesAreSymbolsAndLabels) {
    save(0);
    int sprites = 0;
    for (const auto& frame : show(target())["Frames"].toArray()) {
        sprites += static_cast<int>(frame.toObject()["Symbols"].toArray().size() +
                                    frame.toObject()["Labels"].toArray().size());
    }
    save(2);
    EXPECT_EQ(versions()[0].toObject()["sprites"].toInt(), sprites);
}

TEST_F(Versions, AnUnknownNumberIsRefusedAndNothingIsWritten) {
    save(0);
    save(1);
    for (const char* number : {"0", "2", "-1", "x", "99999999999999999999"}) {
        const ProcessResult result = run({"version", target(), number, beside("out.nvpf")});
        EXPECT_EQ(result.exitCode, 1) << number;
        EXPECT_FALSE(result.err.isEmpty()) << number;
    }
    EXPECT_FALSE(QFileInfo::exists(beside("out.nvpf")));
}

TEST_F(Versions, WritingIntoThePairInPlaceChangesNoVersion) {
    save(0);
    const auto before = pair(target());
    // Sprites alone: the data file stays, and the version must not share its content.
    writeFile(sources[0], readFile(sources[0]).replace("Label=\"", "Label=\"x"));
    save(0);
    writeFile(beside("week.nvpx"), "overwritten by a person");
    writeFile(target(), "this too");
    ASSERT_EQ(run({"version", target(), "1", beside("out.nvpf")}).exitCode, 0);
    EXPECT_EQ(pair(beside("out.nvpf")), before);
}

TEST_F(Versions, ASwitchKeepsNone) {
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Versions", "keep", "0"});
    save(0);
    save(1);
    EXPECT_EQ(versions(), QJsonArray());
}

TEST_F(Versions, NoMoreAreKeptThanTheSettingsWant) {
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Versions", "last", "2"});
    for (const int source : {0, 1, 2, 0, 1}) {
        save(source);
    }
    EXPECT_EQ(versions().size(), 2);
}

TEST_F(Versions, BeyondTheRoomForAllTheOldestGo) {
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Versions", "megabytes", "0"});
    save(0);
    save(1);
    EXPECT_EQ(versions(), QJsonArray());
}

TEST_F(Versions, ThatCannotBeKeptAreNoFailureOfTheSave) {
    save(0);
    writeFile(beside("state-file"), "a file");
    const ProcessResult result = run({"save", sources[1], target()},
                                     {.environment = {"XDG_STATE_HOME=" + beside("state-file")}});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(show(target())["Frames"].toArray().size(), 4);
}

TEST_F(Versions, LieWhereOnlyTheirOwnerSeesThem) {
    save(0);
    save(1);
    struct stat about {};
    ASSERT_EQ(::stat(QFile::encodeName(state.file("Nubivane")).constData(), &about), 0);
    EXPECT_EQ(about.st_mode & 07777, 0700U);
}

}  // namespace nubivane::testing
