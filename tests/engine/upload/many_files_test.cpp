// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_fixture.h"
#include "support/tree_watcher.h"

#include <QRegularExpression>

namespace nubivane::testing {

namespace {

/// A site of so many small files that they get their names together.
class ManyFiles : public UploadTest {
  protected:
    static constexpr int Further = 30;

    ManyFiles() {
        for (int i = 0; i < Further; ++i) {
            writeFile(host(nameOf(i)), contentOf(i));
        }
    }

    static QString nameOf(int i) {
        return QStringLiteral("Symbols/set-%1/s%2.gif").arg(i % 2 + 1).arg(i);
    }
    static QByteArray contentOf(int i) {
        return QByteArray::number(i) + QByteArray(500, static_cast<char>('a' + i % 26));
    }
    QMap<QString, QByteArray> site() const {
        QMap<QString, QByteArray> files = wholeSite();
        for (int i = 0; i < Further; ++i) {
            files.insert("nVane/" + nameOf(i), contentOf(i));
        }
        return files;
    }
    bool upload(const FtpServerProcess& server, int connections = 1) {
        return run.runUpload(true, server.address(), {.connections = connections, .retries = 2});
    }
    /// Where the first command after the files that are named together first stands.
    static qsizetype endOfFirstBatch(const QStringList& lines) {
        qsizetype last = -1;
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (lines[i].startsWith("STOR ")) {
                last = i;
            } else if (lines[i].startsWith("RNFR ")) {
                break;
            }
        }
        return last + 1;
    }
};

}  // namespace

TEST_F(ManyFiles, AreAskedForTheirSizesTogetherBeforeTheyGetTheirNames) {
    OwnFtpServer server({"--unix"});
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(server.tree(), site());
    const QStringList lines = server.commands();
    EXPECT_LT(lines.filter(QRegularExpression("^SIZE ")).size(), 6);
    EXPECT_EQ(lines.filter(QRegularExpression("^RNTO ")).size(), site().size() + 1);
    const QString next = lines.mid(endOfFirstBatch(lines)).join(u'\n');
    EXPECT_TRUE(next.startsWith("STAT Symbols/")) << next.left(100).toStdString();
}

TEST_F(ManyFiles, GoOverSeveralConnectionsToo) {
    OwnFtpServer server({"--unix", "--delay", "0.005"});
    ASSERT_TRUE(upload(server, 4));
    EXPECT_EQ(server.tree(), site());
    OwnFtpServer few({"--unix", "--delay", "0.005", "--most", "2"});
    ASSERT_TRUE(upload(few, 4));
    EXPECT_EQ(few.tree(), site());
}

TEST_F(ManyFiles, ThatWereCutInSilenceAreFoundOut) {
    OwnFtpServer server({"--unix", "--fault", "STOR:7=lie", "--fault", "STOR:30=lie"});
    const TreeWatcher watcher(server.root(), site());
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(server.tree(), site());
    EXPECT_EQ(watcher.halfFiles(), QStringList());
}

TEST_F(ManyFiles, WhateverFailsBeforeTheyHaveTheirNamesTheNextRunMendsIt) {
    OwnFtpServer server({"--unix"});
    ASSERT_TRUE(upload(server));
    const qsizetype first = endOfFirstBatch(server.commands());
    TreeWatcher watcher(server.root(), site());
    for (const char* fault : {"drop", "reset", "421 closing", "450 not now", "550 never"}) {
        for (const qsizetype command : {first + 1, first + 2, first + 5, first + 6, first + 20}) {
            SCOPED_TRACE(fault + std::to_string(command));
            watcher.pause();
            server.beginAnew({QStringLiteral("#%1=%2").arg(command).arg(fault)});
            server.empty();
            forgetServers();
            watcher.resume();
            EXPECT_TRUE(upload(server));
            server.beginAnew({});
            EXPECT_TRUE(upload(server));
            EXPECT_TRUE(server.tree() == site());
            EXPECT_EQ(server.everything().filter(".part"), QStringList());
            ASSERT_FALSE(HasFailure());
        }
    }
    EXPECT_EQ(watcher.halfFiles(), QStringList());
}

TEST_F(ManyFiles, HaveTheirNamesWhenALaterOneIsRefused) {
    OwnFtpServer server({"--unix", "--fault", "STOR:12=553 not this one"});
    PatientShell patient;
    UploadRun faulty(Editor{workspace, patient, view}, window, testLimits());
    EXPECT_FALSE(faulty.runUpload(true, server.address(), {.connections = 1}));
    ASSERT_EQ(patient.told.size(), 1);
    EXPECT_TRUE(patient.told[0].startsWith("Cannot upload ")) << patient.told[0].toStdString();
    EXPECT_EQ(server.tree().size(), 11);
    EXPECT_EQ(server.everything().filter(".part"), QStringList());
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(server.tree(), site());
}

TEST_F(ManyFiles, ArriveAtServersOfOldToo) {
    const QList<QStringList> kinds{{"--unix", "--old"},
                                   {"--dos"},
                                   {"--unix", "--without", "MLSD"},
                                   {"--unix", "--without", "SIZE,MLST"},
                                   {"--unix", "--without", "MLSD,MLST,LIST,STAT"},
                                   {"--unix", "--without", "MLSD,MLST,LIST,STAT,SIZE"},
                                   {"--unix", "--without", "RNFR,RNTO"}};
    for (const QStringList& kind : kinds) {
        OwnFtpServer server(kind);
        EXPECT_TRUE(upload(server)) << kind.join(u' ').toStdString();
        EXPECT_EQ(server.tree(), site()) << kind.join(u' ').toStdString();
    }
}

}  // namespace nubivane::testing
