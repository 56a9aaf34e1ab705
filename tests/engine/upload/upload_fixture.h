// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/server_memory.h"
#include "engine/upload/upload_commands.h"
#include "engine/upload/upload_plan.h"
#include "support/ftp_servers.h"

#include <QDir>
#include <QFileInfo>

#include <functional>

namespace nubivane::testing {

/// A view that writes down what it was shown, and lets a test act at each text.
class RecordingUploadView : public UploadView {
  public:
    explicit RecordingUploadView(QStringList& log) : log_(log) {}

    QStringList infos;
    QList<int> percents;
    QList<FtpTab> tabs;
    QStringList chosen;
    QStringList lines;
    QStringList unsendable;
    bool open = false;
    bool openLock = false;
    std::function<void()> atInfo;
    std::function<void(int)> atPercent;

    void openFtpSettings(FtpTab tab) override { tabs << tab; }
    void Init(const QString& caption) override {
        log_ << "open " + caption;
        open = true;
    }
    void setInfo(const QString& text) override {
        infos << text;
        if (atInfo) {
            atInfo();
        }
    }
    void setProgress(int percent) override {
        percents << percent;
        if (atPercent) {
            atPercent(percent);
        }
    }
    void setChosen(qsizetype files, qsizetype all, qint64 bytes) override {
        chosen << QStringLiteral("%1 of %2, %3 bytes").arg(files).arg(all).arg(bytes);
    }
    void addLine(const QString& line) override { lines << line; }
    void showUnsendable(const QStringList& names) override { unsendable = names; }
    void showOpenLock() override { openLock = true; }
    void disableCancel() override { log_ << "disableCancel"; }
    void close() override {
        log_ << "close";
        open = false;
    }

  private:
    QStringList& log_;
};

/// Takes each message for read.
class PatientShell : public ScriptedShell {
  public:
    QStringList told;

    Answer messageBox(const Message& message) override {
        told << message.text;
        return Answer::Ok;
    }
};

/// A whole site in a program folder, and the commands that send it. The calls to both views stand
/// in `view.calls` in their order.
class UploadTest : public WorkspaceFixture {
  protected:
    UploadTest() {
        for (const char* file : {"Maps/europe.jpg", "Forecast.htm", "Forecast.js",
                                 "Web/Forecast1.jpg", "Web/Forecast2.jpg"}) {
            writeFile(host(file), QByteArray("content of ") + file);
        }
        while (workspace.Frames().Count() < 2) {
            workspace.Frames().Add();
        }
        useServer("127.0.0.1");
    }

    void useServer(const QString& hostName) {
        settings.set(Setting::FtpUrl, hostName);
        settings.set(Setting::FtpUserName, FtpUser);
        settings.set(Setting::FtpPassword, FtpPassword);
        settings.set(Setting::FtpNubivaneFolder, "nVane");
    }

    void choose(bool symbols, bool maps, bool htmlPage) {
        settings.set(Setting::UploadSymbols, symbols ? "1" : "0");
        settings.set(Setting::UploadMaps, maps ? "1" : "0");
        settings.set(Setting::UploadHtmlPage, htmlPage ? "1" : "0");
    }

    /// What a server holds when all has arrived, by path below its root.
    QMap<QString, QByteArray> wholeSite() const {
        QMap<QString, QByteArray> files;
        for (const QString& file :
             {QStringLiteral("Symbols/sea/wave.png"), QStringLiteral("Symbols/set-1/rain.gif"),
              QStringLiteral("Symbols/set-1/snow.gif"), QStringLiteral("Symbols/set-1/sun.gif"),
              QStringLiteral("Maps/europe.jpg"), QStringLiteral("Forecast.htm"),
              QStringLiteral("Forecast.js"), QStringLiteral("Web/Forecast1.jpg"),
              QStringLiteral("Web/Forecast2.jpg")}) {
            files.insert("nVane/" + file, readFile(host(file)));
        }
        return files;
    }

    /// As if this machine had never sent anything.
    static void forgetServers() { QDir(ServerMemory::folder() + "/uploads").removeRecursively(); }

    /// What stands under the name that a reader asks for is whole.
    void expectNoHalfFile(const QMap<QString, QByteArray>& tree) const {
        const QMap<QString, QByteArray> site = wholeSite();
        for (auto file = tree.cbegin(); file != tree.cend(); ++file) {
            if (!file.key().endsWith(".part")) {
                EXPECT_TRUE(site.contains(file.key()) && *file == site[file.key()])
                    << file.key().toStdString();
            }
        }
    }

    /// After a run, however it ended.
    void expectAllClosed() const {
        EXPECT_FALSE(window.open);
        EXPECT_FALSE(view.calls.isEmpty());
        EXPECT_EQ(view.calls.lastIndexOf("enable") > view.calls.lastIndexOf("disable"), true);
        EXPECT_EQ(shell.pointer, Pointer::Default);
    }

    /// Short limits, and the port of a server of this machine in the place of 21.
    static FtpOptions limitsFor(const FtpServerProcess& server) {
        FtpOptions options = testLimits();
        options.port = server.port();
        return options;
    }

    RecordingUploadView window{view.calls};
    UploadCommands commands{editor(), window, testLimits()};
    UploadRun& run = commands.run();
};

}  // namespace nubivane::testing
