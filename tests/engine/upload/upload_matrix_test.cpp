// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_fixture.h"
#include "support/tree_watcher.h"

#include <tuple>

namespace nubivane::testing {

namespace {

/// Each test takes every sixth command of a run, so that none takes long.
constexpr int Shares = 6;

/// One way to fail, at each command of a whole run in turn.
class UploadMatrix : public UploadTest,
                     public ::testing::WithParamInterface<std::tuple<const char*, int>> {
  protected:
    UploadMatrix() { writeFile(host("Maps/europe.jpg"), QByteArray(100000, 'x')); }

    /// Runs against a server that knows nothing, or what a run before has left there.
    bool upload(UploadRun& with, const QStringList& faults) {
        server.beginAnew(faults);
        patient.told.clear();
        const bool done = with.runUpload(true, server.address(), {.retries = 2});
        EXPECT_EQ(patient.told.size(), done ? 0 : 1);
        return done;
    }

    /// The same with one fault. What a server still does for a client that has given it up is done
    /// by then.
    bool uploadFaulty(const QString& fault, qsizetype command) {
        UploadRun& faulty = fault == u"silent" ? hasty : sound;
        const bool done = upload(faulty, {QStringLiteral("#%1=%2").arg(command).arg(fault)});
        server.beginAnew({});
        if (done && faulty.report().refused.isEmpty()) {
            QStringList files = server.tree().keys();
            if (fault == u"silent") {  // one that is merely late may begin what was sent again
                files.removeIf([](const QString& file) { return file.endsWith(".part"); });
            }
            EXPECT_EQ(files, wholeSite().keys());
        }
        expectNoHalfFile(server.tree());
        return done;
    }

    /// Whether a fault of that kind is one that a new connection mends.
    static bool mends(const QString& fault) {
        return fault == u"drop" || fault == u"reset" || fault.startsWith("421");
    }

    /// So short that all silences are over soon.
    static FtpOptions impatient() {
        FtpOptions options = testLimits();
        options.response = options.stall = Milliseconds(300);
        options.farewell = Milliseconds(50);
        return options;
    }

    OwnFtpServer server{{"--unix"}};
    PatientShell patient;
    UploadRun sound{Editor{workspace, patient, view}, window, testLimits()};
    UploadRun hasty{Editor{workspace, patient, view}, window, impatient()};
};

}  // namespace

TEST_P(UploadMatrix, WhateverFailsNoHalfFileIsSeenAndTheNextRunMendsIt) {
    const QString fault = QLatin1String(std::get<0>(GetParam()));
    ASSERT_TRUE(upload(sound, {}));
    const QStringList lines = server.commands();
    const auto login = lines.indexOf("PASS secret");
    ASSERT_GT(lines.size(), 40);
    TreeWatcher watcher(server.root(), wholeSite());
    for (qsizetype i = std::get<1>(GetParam()); i < lines.size(); i += Shares) {
        SCOPED_TRACE(QStringLiteral("#%1 %2").arg(i + 1).arg(lines[i]).toStdString());
        watcher.pause();
        server.empty();
        forgetServers();
        watcher.resume();
        const bool done = uploadFaulty(fault, i + 1);
        EXPECT_TRUE(done || !mends(fault) || i <= login);
        EXPECT_TRUE(upload(sound, {}));
        EXPECT_TRUE(server.tree() == wholeSite());
        EXPECT_EQ(server.everything().filter(".part"), QStringList());
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_EQ(watcher.halfFiles(), QStringList());
    EXPECT_GT(watcher.looks(), 0);
}

INSTANTIATE_TEST_SUITE_P(Faults, UploadMatrix,
                         ::testing::Combine(::testing::Values("drop", "reset", "silent",
                                                              "421 closing", "450 not now",
                                                              "452 the disk is full", "550 never"),
                                            ::testing::Range(0, Shares)),
                         [](const auto& test) {
                             const QString fault = QLatin1String(std::get<0>(test.param));
                             return QStringLiteral("%1_from_%2")
                                 .arg(fault.section(u' ', 0, 0))
                                 .arg(std::get<1>(test.param) + 1)
                                 .toStdString();
                         });

}  // namespace nubivane::testing
