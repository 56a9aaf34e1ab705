// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"
#include "engine/gif/gif_reader.h"
#include "engine/picture/image_codec.h"

namespace nubivane::testing {

namespace {

using namespace Qt::StringLiterals;

/// Where the commands that write pictures put them.
class ExportTargets : public CliTest {
  protected:
    ExportTargets() : project(useSoundProject()) { QDir().mkpath(beside("out")); }

    QString out(const QString& name) const { return beside("out/" + name); }
    QStringList outputs() const {
        return QDir(beside("out")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    /// What a command writes to the standard output.
    QByteArray written(const QStringList& words) const {
        const ProcessResult result = run(words);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(outputs(), QStringList());
        return result.out;
    }

    QString project;
};

}  // namespace

TEST_F(ExportTargets, ADashWritesAStillToTheStandardOutput) {
    run({"still", project, "2", out("a.png")});
    const QByteArray png = readFile(out("a.png"));
    QFile::remove(out("a.png"));
    EXPECT_EQ(written({"still", project, "2", "-"}), png);
    for (const char* format : {"bmp", "gif", "jpg", "png", "tif"}) {
        const QByteArray bytes = written({"still", project, "2", "-", "--format", format});
        EXPECT_EQ(probePicture(bytes).format, formatOfExtension(format)) << format;
    }
}

TEST_F(ExportTargets, ADashWritesMovingGifFilmAndPrintToTheStandardOutput) {
    EXPECT_GE(readGif(written({"anigif", project, "1", "-"})).size(), 1U);
    EXPECT_EQ(readGif(written({"film", project, "-"})).size(), 2U);
    const QByteArray pdf = written({"print", project, "1", "-"});
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    EXPECT_TRUE(pdf.endsWith("%%EOF\n"));
    EXPECT_FALSE(QFile::exists(beside("-")));
}

TEST_F(ExportTargets, AVideoIsPutInOrderInItsFileAndGoesNowhereElse) {
    for (const char* command : {"avi", "mp4"}) {
        const ProcessResult result = run({command, project, "1", "-"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(result.err.startsWith("A video cannot be written to the standard output.\n  "));
    }
}

TEST_F(ExportTargets, NothingGoesToTheStandardOutputWhenAnExportFails) {
    const ProcessResult result = run({"still", project, "9", "-"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(run({"still", project, "all", "-"}).exitCode, 1);
}

TEST_F(ExportTargets, AStandardOutputThatCannotBeWrittenIsAFailure) {
    RunOptions full;
    full.standardOutput = "/dev/full";
    const ProcessResult result = run({"still", project, "1", "-"}, full);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.startsWith("The result could not be written.\n"))
        << result.err.toStdString();
}

TEST_F(ExportTargets, AFormatIsForTheStandardOutputAlone) {
    const ProcessResult result = run({"still", project, "1", out("a.png"), "--format", "gif"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.contains("--format is for the standard output alone."));
    EXPECT_EQ(run({"still", project, "1", "-", "--format", "mp4"}).exitCode, 2);
    EXPECT_EQ(outputs(), QStringList());
}

TEST_F(ExportTargets, AnEndingThatSaysSomethingElseIsRefused) {
    const QList<QStringList> cases{
        {"anigif", project, "1", out("a.png")}, {"anigif", project, "1", out("a.MP4")},
        {"avi", project, "1", out("a.mp4")},    {"mp4", project, "1", out("a.avi")},
        {"film", project, out("a.avi")},        {"print", project, "1", out("a.png")}};
    for (const QStringList& words : cases) {
        const ProcessResult result = run(words);
        EXPECT_EQ(result.exitCode, 1) << words.join(u' ').toStdString();
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(result.err.contains("does not fit what would be written.\n  It ends in ."))
            << result.err.toStdString();
        EXPECT_TRUE(result.err.contains(words.last().toUtf8())) << result.err.toStdString();
    }
    EXPECT_EQ(outputs(), QStringList());
}

TEST_F(ExportTargets, AnEndingThatSaysNothingIsLetPass) {
    for (const char* name : {"a", "a.GIF", "a.gif.part1", "monday.north"}) {
        EXPECT_EQ(run({"anigif", project, "1", out(name)}).exitCode, 0) << name;
    }
    EXPECT_EQ(outputs().size(), 4);
}

TEST_F(ExportTargets, OneSideOfAVideoKeepsItsProportions) {
    EXPECT_EQ(run({"avi", project, "1", out("a.avi"), "--height", "150"}).exitCode, 0);
    const QByteArray avi = readFile(out("a.avi"));
    // Width and height of the main header (AVIMAINHEADER), which begins behind "avih" and its size.
    const qsizetype header = avi.indexOf("avih") + 8;
    EXPECT_EQ(static_cast<uchar>(avi[header + 32]), 249);
    EXPECT_EQ(static_cast<uchar>(avi[header + 36]), 150);
}

TEST_F(ExportTargets, AnOddSizeThatMp4CannotHoldIsTold) {
    const ProcessResult result =
        run({"mp4", project, "1", out("a.mp4"), "--width", "321", "--height", "200"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err,
              "The video has 320 x 200 pixels instead of 321 x 200: MP4 holds even sides alone.\n");
}

TEST_F(ExportTargets, LettersWithoutAFontAreToldOncePerLabel) {
    QByteArray xml = readFile(project);
    const qsizetype text = xml.indexOf("Text=\"", xml.indexOf("<Label>"));
    ASSERT_GT(text, 0);
    xml.insert(text + 6, u"\u65E5\u672C "_s.toUtf8());
    writeFile(project, xml);
    RunOptions fonts;
    fonts.environment = {"FONTCONFIG_FILE=" + testFile("support/fonts.conf")};
    for (const QStringList& words : {QStringList{"still", project, "all", out("a%d.png")},
                                     QStringList{"film", project, out("a.gif")},
                                     QStringList{"anigif", project, "1", out("b.gif")},
                                     QStringList{"print", project, "1", out("a.pdf")},
                                     QStringList{"mp4", project, "1", out("a.mp4")}}) {
        const ProcessResult result = run(words, fonts);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.err.count('\n'), 1)
            << words[0].toStdString() << ": " << result.err.toStdString();
        EXPECT_TRUE(
            QString::fromUtf8(result.err)
                .startsWith(u"Frame 1: no installed font has \u65E5\u672C of the label \""_s))
            << result.err.toStdString();
    }
}

}  // namespace nubivane::testing
