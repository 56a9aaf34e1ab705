// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/services/symbol_packs.h"

#include "support/ftp_servers.h"

#include <QDir>
#include <QTimer>

#include <functional>

namespace nubivane::testing {

namespace {

constexpr char Remote[] = "software/update/nVane/6.0.0/";
constexpr char WillBe[] = "The following weather symbols packs will be downloaded and installed";
constexpr char AreBeing[] = "The weather symbols extended pack are being downloaded and installed";

class RecordingPackView : public PackView {
  public:
    QString lblInfo;
    QString txtInfo;
    QString lblProgress;
    QStringList progressTexts;
    QList<int> percents;
    bool progressShown = true;
    bool startEnabled = true;
    QString caption;
    QStringList captions;
    std::function<void()> atProgressText;

    void setLblInfo(const QString& text) override { lblInfo = text; }
    void setTxtInfo(const QString& text) override { txtInfo = text; }
    void setLblProgress(const QString& text) override {
        lblProgress = text;
        if (!text.isEmpty()) {
            progressTexts << text;
            if (atProgressText) {
                atProgressText();
            }
        }
    }
    void setProgress(int percent) override { percents << percent; }
    void showProgress(bool shown) override { progressShown = shown; }
    void enableStart(bool enabled) override { startEnabled = enabled; }
    void setCancelCloseCaption(const QString& text) override {
        caption = text;
        captions << text;
    }
};

class Packs : public WorkspaceFixture {
  protected:
    /// Two packs of two files and one.
    static void fill(const FtpServerProcess& server) {
        writeFile(server.file(QLatin1String(Remote) + "night/moon.gif"), "moon");
        writeFile(server.file(QLatin1String(Remote) + "night/stars.gif"), QByteArray(200000, '*'));
        writeFile(server.file(QLatin1String(Remote) + "set-1/sun.gif"), "another sun");
    }

    SymbolPacks packsOf(const FtpServerProcess& server) {
        return SymbolPacks(workspace.folder, server.address(), shell, view_, testLimits());
    }

    QStringList symbolFolders() const { return folderNames(host("Symbols")); }

    RecordingPackView view_;
};

}  // namespace

TEST_F(Packs, AreListedWhenTheWindowOpens) {
    OwnFtpServer server;
    fill(server);
    SymbolPacks packs = packsOf(server);
    packs.open();
    EXPECT_EQ(view_.lblInfo, WillBe);
    EXPECT_EQ(view_.txtInfo, "night\r\nset-1");
    EXPECT_TRUE(view_.startEnabled);
    EXPECT_FALSE(view_.progressShown);
    EXPECT_EQ(view_.caption, "Close");
    EXPECT_EQ(server.commands().last(), "QUIT");
    EXPECT_TRUE(packs.cancelClose());
}

TEST_F(Packs, AnEmptyListIsTold) {
    OwnFtpServer server;
    QDir().mkpath(server.file(Remote));
    SymbolPacks packs = packsOf(server);
    packs.open();
    EXPECT_EQ(view_.lblInfo, WillBe);
    EXPECT_EQ(view_.txtInfo, "No packs available");
    EXPECT_FALSE(view_.startEnabled);
    packs.start();
    EXPECT_EQ(view_.txtInfo, "No packs available");
}

TEST_F(Packs, AServerThatCannotBeReachedIsTold) {
    for (const char* fault : {"PASS=530 no", "CWD=550 no", "MLSD=drop", "EPSV=drop"}) {
        OwnFtpServer server({"--fault", fault});
        fill(server);
        SymbolPacks packs = packsOf(server);
        view_.startEnabled = true;
        packs.open();
        EXPECT_EQ(view_.lblInfo, WillBe) << fault;
        EXPECT_EQ(view_.txtInfo, "Cannot connect to the ftp server...") << fault;
        EXPECT_FALSE(view_.startEnabled) << fault;
    }
    SymbolPacks nowhere(workspace.folder, {}, shell, view_, testLimits());
    nowhere.open();
    EXPECT_EQ(view_.txtInfo, "Cannot connect to the ftp server...");
}

TEST_F(Packs, AreDownloadedIntoFoldersOfTheirNames) {
    OwnFtpServer server;
    fill(server);
    SymbolPacks packs = packsOf(server);
    packs.open();
    packs.start();
    EXPECT_EQ(readFile(host("Symbols/night/moon.gif")), "moon");
    EXPECT_EQ(readFile(host("Symbols/night/stars.gif")), QByteArray(200000, '*'));
    EXPECT_EQ(readFile(host("Symbols/set-1/sun.gif")), "another sun");
    EXPECT_EQ(symbolFolders(), QStringList({"night", "sea", "set-1"}));
    EXPECT_EQ(view_.progressTexts, QStringList({"Downloading night file: moon.gif (1 of 2)",
                                                "Downloading night file: stars.gif (2 of 2)",
                                                "Downloading set-1 file: sun.gif (1 of 1)"}));
    EXPECT_EQ(view_.lblInfo, AreBeing);
    EXPECT_EQ(view_.txtInfo, "Download completed successfully\r\nnight\r\nset-1");
    EXPECT_EQ(view_.lblProgress, "");
    EXPECT_FALSE(view_.progressShown);
    EXPECT_EQ(view_.captions, QStringList({"Close", "Cancel", "Close"}));
    EXPECT_EQ(view_.percents.last(), 0);
    EXPECT_TRUE(packs.cancelClose());
    EXPECT_EQ(server.commands().last(), "QUIT");
}

TEST_F(Packs, OtherFilesOfAFolderStay) {
    OwnFtpServer server;
    fill(server);
    const QByteArray rain = readFile(host("Symbols/set-1/rain.gif"));
    SymbolPacks packs = packsOf(server);
    packs.open();
    packs.start();
    EXPECT_EQ(readFile(host("Symbols/set-1/rain.gif")), rain);
}

TEST_F(Packs, AFolderIsFoundUnderAnotherSpelling) {
    OwnFtpServer server;
    writeFile(server.file(QLatin1String(Remote) + "SET-1/sun.gif"), "another sun");
    SymbolPacks packs = packsOf(server);
    packs.open();
    packs.start();
    EXPECT_EQ(symbolFolders(), QStringList({"sea", "set-1"}));
    EXPECT_EQ(readFile(host("Symbols/set-1/sun.gif")), "another sun");
}

TEST_F(Packs, AFailureInterruptsAndAllowsAnotherStart) {
    const QList<QPair<QString, QString>> faults{
        {"RETR:2=550 gone", "Download interrupted...\r\nCannot download the file stars.gif: "},
        {"RETR:2=cut", "Download interrupted...\r\nCannot download the file stars.gif: "},
        {"CWD:3=550 gone", "Download interrupted...\r\nCannot find the pack night: 550 gone"},
        {"CWD:2=550 gone", "Download interrupted...\r\nCannot connect to the ftp server: 550 gone"},
        {"USER:2=drop", "Download interrupted...\r\nCannot connect to the ftp server: "}};
    for (const auto& [fault, text] : faults) {
        OwnFtpServer server({"--fault", fault});
        fill(server);
        SymbolPacks packs = packsOf(server);
        packs.open();
        packs.start();
        EXPECT_TRUE(view_.txtInfo.startsWith(text)) << view_.txtInfo.toStdString();
        EXPECT_EQ(view_.lblInfo, WillBe);
        EXPECT_EQ(view_.lblProgress, "");
        EXPECT_FALSE(view_.progressShown);
        EXPECT_TRUE(view_.startEnabled);
        EXPECT_EQ(view_.caption, "Close");
        packs.start();
        EXPECT_EQ(view_.txtInfo, "Download completed successfully\r\nnight\r\nset-1")
            << fault.toStdString();
    }
}

TEST_F(Packs, CancelKeepsWhatIsThereAndAllowsAnotherStart) {
    OwnFtpServer server;
    fill(server);
    SymbolPacks packs = packsOf(server);
    packs.open();
    view_.atProgressText = [&] {
        if (view_.progressTexts.size() == 2) {
            EXPECT_FALSE(packs.cancelClose());
        }
    };
    packs.start();
    EXPECT_TRUE(view_.txtInfo.startsWith("Download interrupted...\r\n"));
    EXPECT_TRUE(view_.startEnabled);
    EXPECT_EQ(view_.caption, "Close");
    EXPECT_TRUE(QFile::exists(host("Symbols/night/moon.gif")));
    EXPECT_FALSE(QFile::exists(host("Symbols/night/stars.gif")));
    EXPECT_EQ(readFile(host("Symbols/set-1/sun.gif")).isEmpty(), false);
    EXPECT_NE(readFile(host("Symbols/set-1/sun.gif")), "another sun");
    packs.start();
    EXPECT_EQ(readFile(host("Symbols/set-1/sun.gif")), "another sun");
}

TEST_F(Packs, CancelEndsAFileThatDoesNotGoOn) {
    OwnFtpServer server({"--fault", "RETR:2=stall"});
    fill(server);
    FtpOptions patient = testLimits();
    patient.stall = std::chrono::hours(1);
    patient.response = std::chrono::hours(1);
    SymbolPacks packs(workspace.folder, server.address(), shell, view_, patient);
    packs.open();
    QTimer often;
    QObject::connect(&often, &QTimer::timeout, [&] {
        if (view_.percents.contains(10)) {  // 20000 of 200000 bytes
            packs.cancelClose();
        }
    });
    often.start(10);
    packs.start();
    EXPECT_TRUE(view_.txtInfo.startsWith("Download interrupted...\r\n"));
    EXPECT_FALSE(QFile::exists(host("Symbols/night/stars.gif")));
}

TEST_F(Packs, AFileIsNoPackAndAFolderWithinAPackIsNoSymbol) {
    for (const QStringList& kind : {QStringList{}, QStringList{"--without", "MLSD"}}) {
        OwnFtpServer server(kind);
        fill(server);
        writeFile(server.file(QLatin1String(Remote) + "readme.txt"), "no pack");
        writeFile(server.file(QLatin1String(Remote) + "night/more/deep.gif"), "no symbol");
        SymbolPacks packs = packsOf(server);
        packs.open();
        EXPECT_FALSE(view_.txtInfo.contains("readme.txt")) << view_.txtInfo.toStdString();
        packs.start();
        EXPECT_TRUE(view_.txtInfo.startsWith("Download completed successfully"))
            << view_.txtInfo.toStdString();
        EXPECT_FALSE(QFileInfo::exists(host("Symbols/night/more")));
        EXPECT_FALSE(symbolFolders().contains("readme.txt"));
    }
}

TEST_F(Packs, HostileNamesReachNoDisk) {
    writeFile(temporary.file("listing"),
              "..\r\n../evil\r\n..\\evil\r\nC:evil\r\n/tmp/evil\r\nevil\x02\r\nnight\r\n");
    OwnFtpServer server({"--listing", temporary.file("listing")});
    fill(server);
    writeFile(server.file(QLatin1String(Remote) + "night/night"), "a file of that name");
    SymbolPacks packs = packsOf(server);
    packs.open();
    EXPECT_EQ(view_.txtInfo, "night");
    packs.start();
    EXPECT_EQ(view_.txtInfo, "Download completed successfully\r\nnight");
    EXPECT_EQ(symbolFolders(), QStringList({"night", "sea", "set-1"}));
    EXPECT_EQ(QDir(host("Symbols/night")).entryList(QDir::Files), QStringList({"night"}));
    EXPECT_EQ(QDir(host("")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList({"Symbols"}));
}

TEST_F(Packs, AFolderWhereAFileShouldBeInterrupts) {
    OwnFtpServer server;
    fill(server);
    writeFile(host("Symbols/night/moon.gif/in-the-way"), "x");
    SymbolPacks packs = packsOf(server);
    packs.open();
    packs.start();
    EXPECT_TRUE(
        view_.txtInfo.startsWith("Download interrupted...\r\nCannot download the file moon.gif: "));
}

TEST_F(Packs, ASecondStartWhileOneRunsDoesNothing) {
    OwnFtpServer server;
    fill(server);
    SymbolPacks packs = packsOf(server);
    packs.open();
    view_.atProgressText = [&] {
        EXPECT_TRUE(packs.running());
        packs.start();
        packs.open();
    };
    packs.start();
    EXPECT_EQ(view_.progressTexts.size(), 3);
    EXPECT_FALSE(packs.running());
}

}  // namespace nubivane::testing
