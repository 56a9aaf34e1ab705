// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

#include <QRegularExpression>
#include <QUrl>

namespace nubivane::testing {

namespace {

class PageCommand : public CliTest {
  protected:
    /// What a run writes beyond what opening the project leaves.
    QStringList writtenBy(const QStringList& words, ProcessResult& result) {
        run({"show", words.last()});
        const QStringList before = files();
        result = run(words);
        QStringList written = files();
        for (const QString& file : before) {
            written.removeOne(file);
        }
        return written;
    }
};

}  // namespace

TEST_F(PageCommand, PrintsTheHostPathsOfAllFilesWritten) {
    ProcessResult result;
    const QStringList written = writtenBy({"page", useSoundProject()}, result);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    ASSERT_TRUE(result.out.endsWith('\n'));
    QStringList printed;
    for (const QString& path : QString::fromUtf8(result.out).chopped(1).split(u'\n')) {
        EXPECT_TRUE(QFileInfo(path).isFile()) << path.toStdString();
        EXPECT_TRUE(QFileInfo(path).isAbsolute()) << path.toStdString();
        printed += QDir(temporary.path()).relativeFilePath(path);
    }
    printed.sort();
    EXPECT_EQ(printed, written);
    EXPECT_EQ(written, QStringList({"program/Forecast.htm", "program/Forecast.js",
                                    "program/Web/Forecast1.jpg", "program/Web/Forecast2.jpg"}));
}

TEST_F(PageCommand, EachTypeIsMadeOnRequest) {
    const QString project = useSoundProject();
    const QList<QPair<QString, QByteArray>> types{{"1", "_Init();"},
                                                  {"2", "javascript:_Show();"},
                                                  {"3", "setInterval("},
                                                  {"4", "<!-- SLIDER -->"},
                                                  {"5", "<section class=\"period\""}};
    for (const auto& [type, mark] : types) {
        EXPECT_EQ(run({"page", "--type", type, project}).exitCode, 0);
        EXPECT_TRUE(readFile(host("Forecast.htm")).contains(mark)) << type.toStdString();
    }
}

TEST_F(PageCommand, WithoutATypeTheSettingDecides) {
    const QString project = useSoundProject();
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Html page", "Type", "3"});
    EXPECT_EQ(run({"page", project}).exitCode, 0);
    EXPECT_TRUE(readFile(host("Forecast.htm")).contains("setInterval("));
}

TEST_F(PageCommand, TheSettingsOfTheGivenFileCount) {
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Html page", "Filename", "Island"});
    const ProcessResult result = run({"page", useSoundProject()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(QFile::exists(host("Island.htm")));
    EXPECT_TRUE(result.out.contains("/Web/Island2.jpg\n"));
    EXPECT_FALSE(QFile::exists(host("Forecast.htm")));
}

TEST_F(PageCommand, ASiteOfItsOwnHoldsAllThatThePageRefersTo) {
    const QString project =
        useProject("engine/web/golden/buttons-four-frames-effects-off/project.nvpf");
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Html page", "Language", "en"});
    for (const QString type : {"1", "2", "3", "4", "5"}) {
        const QString site = temporary.file("site/" + type);
        const QStringList before = files();
        const ProcessResult result = run({"page", project, "--type", type, "--into", site});
        ASSERT_EQ(result.exitCode, 0) << result.err.toStdString();
        QStringList printed = QString::fromUtf8(result.out).chopped(1).split(u'\n');
        QStringList written = files();
        for (const QString& file : before) {
            EXPECT_TRUE(written.removeOne(file)) << file.toStdString();
        }
        for (QString& path : printed) {
            path = QDir(temporary.path()).relativeFilePath(path);
            EXPECT_TRUE(path.startsWith("site/" + type + u'/')) << path.toStdString();
        }
        printed.sort();
        EXPECT_EQ(printed, written);
        EXPECT_TRUE(QFileInfo(site + "/Forecast.htm").isFile());
        const QString page = QString::fromUtf8(readFile(site + "/Forecast.htm"));
        static const QRegularExpression reference(
            "(?:src|srcset|href)=\"((?:Web|Symbols)/[^\"]*)\"");
        for (const auto& match : reference.globalMatch(page)) {
            const QString file = QUrl::fromPercentEncoding(match.captured(1).toUtf8());
            EXPECT_TRUE(QFileInfo(site + u'/' + file).isFile()) << file.toStdString();
        }
    }
}

TEST_F(PageCommand, ASiteLeavesOtherFilesOfItsFolder) {
    const QString project = useSoundProject();
    const QString site = temporary.file("site");
    writeFile(site + "/Web/other.jpg", "other");
    writeFile(site + "/Forecast-custom.css", "body{}");
    EXPECT_EQ(run({"page", project, "--type", "5", "--into", site}).exitCode, 0);
    EXPECT_EQ(readFile(site + "/Web/other.jpg"), "other");
    EXPECT_EQ(readFile(site + "/Forecast-custom.css"), "body{}");
    EXPECT_TRUE(readFile(site + "/Forecast.htm").contains("\"Forecast-custom.css\""));
}

TEST_F(PageCommand, ASiteIsNotWrittenThroughALinkToAnotherPlace) {
    const QString project = useSoundProject();
    const QString site = temporary.file("site");
    const QString elsewhere = temporary.file("elsewhere");
    ASSERT_TRUE(QDir().mkpath(site) && QDir().mkpath(elsewhere));
    ASSERT_TRUE(QFile::link(elsewhere, site + "/Web"));
    for (const QString type : {"1", "5"}) {
        const ProcessResult result = run({"page", project, "--type", type, "--into", site});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_TRUE(result.err.contains("leads to another place")) << result.err.toStdString();
        EXPECT_TRUE(QDir(elsewhere).isEmpty());
    }
}

TEST_F(PageCommand, AMissingOrDamagedProjectWritesNoPage) {
    const QString damaged = useProject("engine/project/defects/not-xml.nvpf");
    for (const QString& project : {QStringLiteral("nowhere.nvpf"), damaged}) {
        const ProcessResult result = run({"page", project});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_NE(result.err, "");
        EXPECT_FALSE(QFile::exists(host("Forecast.htm")));
        EXPECT_FALSE(QDir(host("Web")).exists());
    }
}

TEST_F(PageCommand, AFailureWithTheImagesIsToldWithItsCause) {
    writeFile(host("Web"), "no folder");
    const ProcessResult result = run({"page", useSoundProject()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(result.err.startsWith("An error occurred while creating the page.\n  "))
        << result.err.toStdString();
}

TEST_F(PageCommand, AFailureWithThePageIsToldWithItsCause) {
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Html page", "Backcolor", "123"});
    const ProcessResult result = run({"page", useSoundProject()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err,
              "An error occurred while creating the page: Unknown colour.\n"
              "  The colour 123 is not one of those that a page can show.\n");
}

TEST_F(PageCommand, AHostileFileNameInTheSettingsWritesNothingOutside) {
    const QString project = useSoundProject();
    run({"show", project});
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Html page", "Filename", "..\\..\\evil"});
    const QStringList before = files();
    EXPECT_EQ(run({"page", project}).exitCode, 1);
    EXPECT_EQ(files(), before);
}

TEST_F(PageCommand, AWarningDoesNotStopThePage) {
    const ProcessResult result =
        run({"page", useProject("engine/project/golden/missing-symbols/input.nvpf")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, MissingSymbolsText);
    EXPECT_TRUE(QFile::exists(host("Forecast.htm")));
}

}  // namespace nubivane::testing
