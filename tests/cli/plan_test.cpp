// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

namespace nubivane::testing {

namespace {

class PlanCommand : public CliTest {
  protected:
    /// The steps that stand in every plan of this program folder, as they are printed.
    static QByteArray folders() {
        return "MKDIR\tnVane\t\t0\nCHDIR\tnVane\t\t1\n"
               "MKDIR\tWeb\t\t0\nCHDIR\tWeb\t\t1\nCHDIR\t..\\\t\t1\n"
               "MKDIR\tSymbols\t\t0\nCHDIR\tSymbols\t\t1\n"
               "MKDIR\tsea\t\t0\nCHDIR\tsea\t\t1\nCHDIR\t..\\\t\t1\n"
               "MKDIR\tset-1\t\t0\nCHDIR\tset-1\t\t1\nCHDIR\t..\\\t\t1\n";
    }
    static QByteArray mapsFolder() {
        return "CHDIR\t..\\\t\t1\nMKDIR\tMaps\t\t0\nCHDIR\tMaps\t\t1\nCHDIR\t..\\\t\t1\n";
    }
    /// A local path as the plan holds it.
    QByteArray local(const QString& relative) const {
        return host(relative).replace('/', '\\').toUtf8();
    }
    QByteArray symbols() const {
        QByteArray lines;
        for (const char* name :
             {"sea/wave.png", "set-1/rain.gif", "set-1/snow.gif", "set-1/sun.gif"}) {
            lines += "UPLOAD\t" + local(QStringLiteral("Symbols/") + name) + '\t' +
                     QByteArray(name).replace('/', '\\') + "\t1\n";
        }
        return lines;
    }
};

}  // namespace

TEST_F(PlanCommand, WithoutGroupsItPrintsNothing) {
    const ProcessResult result = run({"plan", useSoundProject()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
}

TEST_F(PlanCommand, PrintsOneStepALineInFourColumns) {
    const ProcessResult result = run({"plan", "--symbols", useSoundProject()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, folders() + symbols() + mapsFolder());
}

TEST_F(PlanCommand, WithBytesItPrintsTheFilesThatHaveChanged) {
    const auto bytes = [this](const char* name) {
        return QByteArray::number(QFileInfo(host(QStringLiteral("Symbols/") + name)).size());
    };
    QByteArray lines;
    qint64 sum = 0;
    for (const char* name : {"sea/wave.png", "set-1/rain.gif", "set-1/snow.gif", "set-1/sun.gif"}) {
        lines += QByteArray("send\tSymbols/") + name + '\t' + bytes(name) + '\n';
        sum += bytes(name).toLongLong();
    }
    lines += "4 of 4 files, " + QByteArray::number(sum) + " bytes\n";
    const QString project = useSoundProject();
    EXPECT_EQ(run({"plan", "--symbols", "--bytes", project}).out, lines);
    // What has been sent to the server of the settings is not sent again.
    QDir().mkpath(beside("www"));
    const QString section = "Nubivane\\6.0.0\\Settings";
    ASSERT_EQ(run({"settings", "set", section, "Ftp", "url", "file:" + beside("www")}).exitCode, 0);
    ASSERT_EQ(run({"settings", "set", section, "Ftp", "nubivane folder", "nVane"}).exitCode, 0);
    ASSERT_EQ(run({"upload", "--initialize", project}).exitCode, 0);
    EXPECT_EQ(run({"plan", "--symbols", "--bytes", project}).out, "0 of 4 files, 0 bytes\n");
    EXPECT_EQ(run({"plan", "--symbols", "--bytes", "--all", project}).out, lines);
    writeFile(host("Symbols/set-1/sun.gif"), "12345");
    EXPECT_EQ(run({"plan", "--symbols", "--bytes", project}).out,
              "send\tSymbols/set-1/sun.gif\t5\n1 of 4 files, 5 bytes\n");
}

TEST_F(PlanCommand, ListsNamesThatCannotBeSent) {
    writeFile(host("Symbols/set-1/two\nlines.gif"), "x");
    const ProcessResult result = run({"plan", "--symbols", useSoundProject()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, folders() + symbols() + mapsFolder());
    EXPECT_EQ(result.err, "Cannot send " + host("Symbols/set-1/two\\x0Alines.gif").toUtf8() +
                              ": its name holds a line end\n");
}

TEST_F(PlanCommand, AllGroupsOfAFinishedPage) {
    const QString project = useSoundProject();
    ASSERT_EQ(run({"page", project}).exitCode, 0);
    const ProcessResult result = run({"plan", project, "--html-page", "--symbols", "--maps"});
    EXPECT_EQ(result.exitCode, 0);
    QByteArray maps;
    for (const QString& name : QDir(host("Maps")).entryList(QDir::Files, QDir::Name)) {
        maps += "UPLOAD\t" + local("Maps/" + name) + "\tMaps\\" + name.toUtf8() + "\t1\n";
    }
    EXPECT_EQ(result.out, folders() + symbols() + mapsFolder() + maps +  //
                              "UPLOAD\t" + local("Forecast.htm") + "\tForecast.htm\t1\n" +
                              "UPLOAD\t" + local("Forecast.js") + "\tForecast.js\t1\n" +
                              "UPLOAD\t" + local("Web/Forecast1.jpg") + "\tWeb/Forecast1.jpg\t0\n" +
                              "UPLOAD\t" + local("Web/Forecast2.jpg") + "\tWeb/Forecast2.jpg\t0\n");
}

TEST_F(PlanCommand, TheFoldersOfTheSettingsStandInIt) {
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Ftp", "remote folder", "htdocs"});
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Ftp", "nubivane folder", "weather"});
    const ProcessResult result = run({"plan", "--maps", useSoundProject()});
    EXPECT_TRUE(result.out.startsWith(
        "CHDIR\thtdocs\t\t1\nMKDIR\tweather\t\t0\nCHDIR\tweather\t\t1\nMKDIR\tWeb\t\t0\n"))
        << result.out.toStdString();
}

TEST_F(PlanCommand, ADamagedProjectHasNoPlan) {
    const ProcessResult result =
        run({"plan", "--symbols", useProject("engine/project/defects/not-xml.nvpf")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(result.err.contains(DamagedText)) << result.err.toStdString();
}

}  // namespace nubivane::testing
