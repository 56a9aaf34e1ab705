// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"
#include "engine/gif/gif_reader.h"
#include "engine/picture/image_codec.h"

#include <sys/resource.h>

#include <csignal>
#include <string_view>

namespace nubivane::testing {

namespace {

/// Commands that write pictures, on a project of two Frames of 498 x 300 pixels with sprites.
class Exports : public CliTest {
  protected:
    Exports() : project(useSoundProject()) { QDir().mkpath(beside("out")); }

    QString out(const QString& name) const { return beside("out/" + name); }
    QStringList outputs() const {
        return QDir(beside("out")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    void expectDone(const ProcessResult& result, const QStringList& written) const {
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(QString::fromUtf8(result.out), written.join(u'\n') + u'\n');
        for (const QString& file : written) {
            EXPECT_TRUE(QFile::exists(file)) << file.toStdString();
        }
    }

    void expectFailed(const ProcessResult& result, const QByteArray& text) const {
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(result.err.startsWith(text + "\n  ")) << result.err.toStdString();
        EXPECT_EQ(outputs(), QStringList());
        EXPECT_FALSE(QFile::exists(host("~temp")));
    }

    QString project;
};

constexpr char SavingFailed[] = "An error occurred while saving the file.";

}  // namespace

TEST_F(Exports, StillWritesOneFrame) {
    for (const char* name : {"a.bmp", "a.gif", "a.jpg", "a.png", "a.tif", "b.PNG"}) {
        expectDone(run({"still", project, "2", out(name)}), {out(name)});
        const PictureInfo info = probePicture(readFile(out(name)));
        EXPECT_EQ(info.format, formatOfExtension(QString(name).right(3))) << name;
        EXPECT_EQ(info.size, QSize(498, 300));
    }
}

TEST_F(Exports, StillOfAllFramesWritesAFileForEach) {
    expectDone(run({"still", project, "all", out("map-%d.png")}),
               {out("map-1.png"), out("map-2.png")});
    EXPECT_NE(readFile(out("map-1.png")), readFile(out("map-2.png")));
    run({"still", project, "2", out("alone.png")});
    EXPECT_EQ(readFile(out("map-2.png")), readFile(out("alone.png")));
}

TEST_F(Exports, StillOfAllFramesNeedsAPlaceForTheNumber) {
    for (const char* name : {"a.png", "%d-%d.png"}) {
        expectFailed(run({"still", project, "all", out(name)}),
                     "The name of the files must hold %d once.");
    }
}

TEST_F(Exports, AnEndingThatNamesNoFormatIsAFailure) {
    for (const char* name : {"map.jpeg", "map.tiff", "map"}) {
        const ProcessResult result = run({"still", project, "1", out(name)});
        expectFailed(result, SavingFailed);
        EXPECT_TRUE(result.err.contains("Unsupported format")) << result.err.toStdString();
    }
}

TEST_F(Exports, AFrameThatIsNotThereIsAFailure) {
    for (const char* frame : {"0", "3", "-1", "x", "", "1.5", "99999999999"}) {
        for (const char* command : {"still", "anigif", "avi", "mp4", "print"}) {
            const ProcessResult result = run({command, project, frame, out("a.gif")});
            const QByteArray text = QByteArray("There is no Frame \"") + frame + "\".";
            // The text of the window that saves stills comes first, the cause below it.
            const bool still = command == std::string_view("still");
            expectFailed(result, still ? "An error occurred while saving the file." : text);
            EXPECT_TRUE(result.err.contains(text)) << result.err.toStdString();
        }
    }
    expectFailed(run({"film", project, out("a.gif"), "--from", "3"}), "There is no Frame \"3\".");
}

TEST_F(Exports, AProjectThatIsNotThereIsAFailure) {
    for (const char* command : {"still", "anigif", "avi", "mp4", "print"}) {
        EXPECT_EQ(run({command, beside("none.nvpf"), "1", out("a.gif")}).exitCode, 1);
    }
    EXPECT_EQ(outputs(), QStringList());
}

TEST_F(Exports, AniGifWritesTheFrameWithItsSymbols) {
    expectDone(run({"anigif", project, "1", out("a.gif")}), {out("a.gif")});
    const std::vector<GifImage> images = readGif(readFile(out("a.gif")));
    EXPECT_GE(images.size(), 1U);
    EXPECT_EQ(images[0].picture.size(), QSize(498, 300));
}

TEST_F(Exports, CompressionTakesOneTwoOrThree) {
    expectDone(run({"anigif", project, "1", out("a.gif"), "--compression", "3"}), {out("a.gif")});
    for (const char* command : {"anigif", "avi", "mp4"}) {
        const ProcessResult result =
            run({command, project, "1", out("b.gif"), "--compression", "4"});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_TRUE(result.err.contains("--compression takes 1|2|3, not \"4\""));
    }
}

TEST_F(Exports, FilmHasAnImageForEachFrame) {
    expectDone(run({"film", project, out("film.gif"), "--interval", "250"}), {out("film.gif")});
    const std::vector<GifImage> images = readGif(readFile(out("film.gif")));
    ASSERT_EQ(images.size(), 2U);
    EXPECT_EQ(images[0].delay, 250);
    EXPECT_EQ(images[1].delay, 250);
}

TEST_F(Exports, FineGifsAreAsLongAndNoVideosAreFine) {
    expectDone(run({"anigif", project, "1", out("usual.gif")}), {out("usual.gif")});
    expectDone(run({"anigif", project, "1", out("fine.gif"), "--fine"}), {out("fine.gif")});
    EXPECT_EQ(readGif(readFile(out("fine.gif"))).size(),
              readGif(readFile(out("usual.gif"))).size());
    expectDone(run({"film", project, out("film.gif"), "--fine"}), {out("film.gif")});
    EXPECT_EQ(readGif(readFile(out("film.gif"))).size(), 2U);
    EXPECT_EQ(run({"avi", project, "1", out("a.avi"), "--fine"}).exitCode, 2);
}

TEST_F(Exports, TheIntervalOfAFilmIsOneSecondUnlessItIsGiven) {
    run({"film", project, out("film.gif")});
    EXPECT_EQ(readGif(readFile(out("film.gif")))[0].delay, 100);
}

TEST_F(Exports, OfTheIntervalTheWholePartCounts) {
    run({"film", project, out("film.gif"), "--interval", "2.9"});
    EXPECT_EQ(readGif(readFile(out("film.gif")))[0].delay, 2);
}

TEST_F(Exports, AnIntervalOutsideItsRangeIsAFailure) {
    for (const char* interval : {"0", "0.9", "1001", "abc", "", "-5", "nan", "inf", "1e9"}) {
        expectFailed(run({"film", project, out("a.gif"), "--interval", interval}),
                     "Insert a valid frames interval");
    }
}

TEST_F(Exports, FilmFromAnotherFrameBeginsWithItsSprites) {
    run({"film", project, out("one.gif")});
    run({"film", project, out("two.gif"), "--from", "2"});
    EXPECT_NE(readGif(readFile(out("one.gif")))[0].picture,
              readGif(readFile(out("two.gif")))[0].picture);
    EXPECT_EQ(readGif(readFile(out("one.gif")))[1].picture.size(),
              readGif(readFile(out("two.gif")))[1].picture.size());
}

TEST_F(Exports, VideosAreWrittenInTheSizeAskedFor) {
    expectDone(run({"avi", project, "1", out("a.avi"), "--width", "320", "--height", "288"}),
               {out("a.avi")});
    EXPECT_TRUE(readFile(out("a.avi")).startsWith("RIFF"));
    expectDone(run({"mp4", project, "1", out("a.mp4"), "--width", "320"}), {out("a.mp4")});
    EXPECT_EQ(readFile(out("a.mp4")).mid(4, 4), "ftyp");
    expectDone(run({"film", project, out("film.MP4")}), {out("film.MP4")});
    EXPECT_EQ(readFile(out("film.MP4")).mid(4, 4), "ftyp");
}

TEST_F(Exports, ASizeThatNoVideoHasIsAFailure) {
    for (const char* size : {"0", "1", "4097", "-320", "x", ""}) {
        expectFailed(run({"avi", project, "1", out("a.avi"), "--width", size}),
                     QByteArray("--width is no size of a video: \"") + size + "\".");
    }
}

TEST_F(Exports, PrintWritesAPdf) {
    expectDone(run({"print", project, "1", out("a.pdf")}), {out("a.pdf")});
    EXPECT_TRUE(readFile(out("a.pdf")).startsWith("%PDF"));
}

TEST_F(Exports, AFolderThatIsNotThereFailsWithTheTextOfTheWindows) {
    for (const auto& [command, file] :
         {std::pair("still", "none/a.png"), std::pair("anigif", "none/a.gif"),
          std::pair("avi", "none/a.avi"), std::pair("mp4", "none/a.mp4")}) {
        expectFailed(run({command, project, "1", out(file)}), SavingFailed);
    }
    expectFailed(run({"film", project, out("none/a.gif")}), SavingFailed);
    expectFailed(run({"print", project, "1", out("none/a.pdf")}),
                 "An error occurred while printing.");
}

TEST_F(Exports, AFullDiskLeavesNoHalfFile) {
    RunOptions full;
    full.inChild = [] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit size{2000, 2000};
        ::setrlimit(RLIMIT_FSIZE, &size);
    };
    for (const auto& [command, file] : {std::pair("still", "a.bmp"), std::pair("anigif", "a.gif"),
                                        std::pair("avi", "a.avi"), std::pair("mp4", "a.mp4")}) {
        const ProcessResult result = run({command, project, "1", out(file)}, full);
        expectFailed(result, SavingFailed);
        EXPECT_TRUE(result.err.contains(out(file).toUtf8() + ": File too large"))
            << result.err.toStdString();
    }
}

TEST_F(Exports, NoDisplayAndNoFontSettingsAreNeeded) {
    RunOptions bare;
    bare.environment = {"LANG=C", "QT_QPA_PLATFORM=xcb"};
    expectDone(run({"still", project, "1", out("a.png")}, bare), {out("a.png")});
}

}  // namespace nubivane::testing
