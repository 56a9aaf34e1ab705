// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_fixture.h"
#include "support/tree_watcher.h"

namespace nubivane::testing {

namespace {

/// Takes each message for read.
class PatientShell : public ScriptedShell {
  public:
    QStringList told;

    Answer messageBox(const Message& message) override {
        told << message.text;
        return Answer::Ok;
    }
};

/// One way to fail, at each command of a whole run in turn.
class UploadMatrix : public UploadTest, public ::testing::WithParamInterface<const char*> {
  protected:
    UploadMatrix() { writeFile(host("Maps/europe.jpg"), QByteArray(300000, 'x')); }

    /// Runs against a server that knows nothing, or what a run before has left there.
    bool upload(UploadRun& with, const QStringList& faults) {
        server.beginAnew(faults);
        patient.told.clear();
        const bool done = with.runUpload(true, server.address(), {.retries = 2});
        EXPECT_EQ(patient.told.size(), done ? 0 : 1);
        return done;
    }

    /// Whether a fault of that kind is one that a new connection mends.
    static bool mends(const QString& fault) {
        return fault == u"drop" || fault == u"reset" || fault.startsWith("421");
    }

    /// So short that sixty silences are over soon.
    static FtpOptions impatient() {
        FtpOptions options = shortLimits();
        options.response = options.stall = Milliseconds(200);
        options.farewell = Milliseconds(50);
        return options;
    }

    OwnFtpServer server{{"--unix"}};
    PatientShell patient;
    UploadRun sound{Editor{workspace, patient, view}, window, shortLimits()};
    UploadRun hasty{Editor{workspace, patient, view}, window, impatient()};
};

}  // namespace

TEST_P(UploadMatrix, WhateverFailsNoHalfFileIsSeenAndTheNextRunMendsIt) {
    const QString fault = QLatin1String(GetParam());
    ASSERT_TRUE(upload(sound, {}));
    const QStringList lines = server.commands();
    const auto login = lines.indexOf("PASS secret");
    ASSERT_GT(lines.size(), 40);
    TreeWatcher watcher(server.root(), wholeSite());
    for (qsizetype i = 0; i < lines.size(); ++i) {
        SCOPED_TRACE(QStringLiteral("#%1 %2").arg(i + 1).arg(lines[i]).toStdString());
        watcher.pause();
        server.empty();
        forgetServers();
        watcher.resume();
        UploadRun& faulty = fault == u"silent" ? hasty : sound;
        const bool done = upload(faulty, {QStringLiteral("#%1=%2").arg(i + 1).arg(fault)});
        if (done && faulty.report().refused.isEmpty()) {
            EXPECT_EQ(server.tree().keys(), wholeSite().keys());
        }
        EXPECT_TRUE(done || !mends(fault) || i <= login);
        expectNoHalfFile(server.tree());
        EXPECT_TRUE(upload(sound, {}));
        EXPECT_TRUE(server.tree() == wholeSite());
        EXPECT_EQ(server.everything().filter(".part"), QStringList());
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_EQ(watcher.halfFiles(), QStringList());
    EXPECT_GT(watcher.looks(), 0);
}

INSTANTIATE_TEST_SUITE_P(Faults, UploadMatrix,
                         ::testing::Values("drop", "reset", "silent", "421 closing", "450 not now",
                                           "452 the disk is full", "550 never"),
                         [](const auto& test) {
                             return QString(test.param).section(u' ', 0, 0).toStdString();
                         });

}  // namespace nubivane::testing
