// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/export/export_stage.h"
#include "engine/export/gif_export.h"
#include "engine/export/stage_fixture.h"
#include "engine/gif/gif_reader.h"
#include "engine/picture/image_ex.h"
#include "engine/picture/made_pictures.h"
#include "engine/picture/sheet.h"
#include "support/processes.h"

#include <algorithm>

namespace nubivane::testing {

namespace {

/// Where two pictures differ first; an empty text when they are equal. (Pictures from files may
/// name a colour space, which alone would make them differ.)
std::string differenceOf(const QImage& seen, const QImage& shown) {
    if (seen.size() != shown.size()) {
        return "the sizes differ";
    }
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            if (seen.pixel(x, y) != shown.pixel(x, y)) {
                return QStringLiteral("%1, %2: %3 for %4")
                    .arg(x)
                    .arg(y)
                    .arg(QColor(seen.pixel(x, y)).name(), QColor(shown.pixel(x, y)).name())
                    .toStdString();
            }
        }
    }
    return {};
}

/// Moving GIFs as three other programs see them: without a complaint, and pixel for pixel.
class ForeignDecoders : public StageFixture {
  protected:
    ForeignDecoders() { makeSymbol("dot.gif", QList<int>(6, 10)); }

    QString gif() const { return outputHost("a.gif"); }

    /// The images of a file as our own reader sees them.
    static QList<QImage> read(const QString& file) {
        QList<QImage> pictures;
        for (const GifImage& image : readGif(readFile(file))) {
            pictures << image.picture.convertToFormat(QImage::Format_RGB32);
        }
        return pictures;
    }

    /// Runs a program that has nothing to say.
    static void runSilently(const QString& program, const QStringList& arguments) {
        const ProcessResult result = runProgram(program, arguments);
        EXPECT_EQ(result.exitCode, 0) << program.toStdString();
        EXPECT_EQ(result.err, "") << program.toStdString();
    }

    /// The pictures that a program has put into a folder of its own.
    QList<QImage> unpacked(const QString& folder) const {
        QList<QImage> pictures;
        for (const QFileInfo& file : QDir(host(folder)).entryInfoList(QDir::Files, QDir::Name)) {
            pictures << QImage(file.filePath()).convertToFormat(QImage::Format_RGB32);
        }
        return pictures;
    }
    QString folderFor(const QString& program) const {
        QDir(host(program)).removeRecursively();
        QDir().mkpath(host(program));
        return host(program) + "/%04d.png";
    }

    static void expectSame(const QList<QImage>& seen, const QList<QImage>& shown,
                           const char* program) {
        ASSERT_EQ(seen.size(), shown.size()) << program;
        for (qsizetype i = 0; i < seen.size(); ++i) {
            EXPECT_EQ(differenceOf(seen[i], shown[i]), "") << program << ", image " << i;
        }
    }

    /// All three see what our reader sees; returns that.
    QList<QImage> expectAllSeeTheSame() const {
        QList<QImage> shown = read(gif());
        const QString ffmpeg = folderFor("ffmpeg");
        runSilently("ffmpeg", {"-v", "warning", "-i", gif(), "-fps_mode", "passthrough", ffmpeg});
        expectSame(unpacked("ffmpeg"), shown, "ffmpeg");
        const QString magick = folderFor("magick");
        runSilently("convert", {gif(), "-coalesce", magick});
        expectSame(unpacked("magick"), shown, "ImageMagick");
        runSilently("gifsicle", {"--info", gif(), "-o", outputHost("info.txt")});
        // It only complains that it must itself write local palettes, where there are any.
        const QString copy = outputHost("copy.gif");
        runSilently("gifsicle", {"--no-warnings", "-O2", gif(), "-o", copy});
        // It makes one image of several that are the same.
        QList<QImage> distinct = shown;
        distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
        expectSame(read(copy), distinct, "gifsicle");
        return shown;
    }

    void saveAndExpectExact(qint32 interval = 100) {
        run(AniGifRequest{.GifFileName = output("a.gif")});
        const QList<QImage> shown = expectAllSeeTheSame();
        for (qsizetype i = 0; i < shown.size(); ++i) {
            EXPECT_EQ(shown[i], renderFrame(workspace, 1, i * interval)) << i;
        }
        // With one palette for all, images can also be made whole again without re-coding.
        const QString whole = outputHost("whole.gif");
        runSilently("gifsicle", {"--unoptimize", gif(), "-o", whole});
        expectSame(read(whole), shown, "gifsicle --unoptimize");
    }

    /// A GIF of given pictures, each on a map of its own where one is given.
    void assemble(const QList<Capture>& captures) {
        FrameList list;
        for (const Capture& capture : captures) {
            list.push_back({10, capture.picture.size(), [capture] { return capture; }});
        }
        ImageEx::AssembleGif(list, output("a.gif"));
        expectAllSeeTheSame();
        ImageEx::OptimizeGif(output("a.gif"), output("a.gif"), 2);
    }
};

}  // namespace

TEST_F(ForeignDecoders, OnePixelThatChangesOnAPlainMap) {
    addSymbol("dot.gif", {10, 10});
    saveAndExpectExact();
}

TEST_F(ForeignDecoders, PixelsFarApart) {
    addSymbol("dot.gif", {0, 0});
    addSymbol("dot.gif", {59, 39});
    addSymbol("dot.gif", {30, 7});
    saveAndExpectExact();
}

TEST_F(ForeignDecoders, AMapOfTwoColours) {
    workspace.pctPanel.setPicture(
        1, Picture(withSquare(plainImage({60, 40}, Qt::black), {5, 5, 9, 9}, Qt::white)));
    addSymbol("dot.gif", {6, 6});
    addSymbol("dot.gif", {40, 30});
    saveAndExpectExact();
}

TEST_F(ForeignDecoders, GreyColoursAlone) {
    QImage map(120, 80, QImage::Format_RGB32);
    for (int y = 0; y < map.height(); ++y) {
        for (int x = 0; x < map.width(); ++x) {
            map.setPixel(x, y, qRgb(x, x, x));
        }
    }
    assemble({{map, map},
              {withSquare(map, {20, 20, 30, 30}, Qt::black), map},
              {withSquare(map, {40, 20, 30, 30}, Qt::white), map},
              {map, map}});
    const QList<QImage> shown = expectAllSeeTheSame();
    EXPECT_EQ(shown.first(), map);
    EXPECT_EQ(shown.last(), map);
}

TEST_F(ForeignDecoders, TheSameImageTwice) {
    const QImage map = scattered({30, 20}, 5);
    const QImage other = withSquare(map, {3, 3, 5, 5}, Qt::black);
    assemble({{map, map}, {map, map}, {other, map}, {other, map}, {map, map}});
    EXPECT_EQ(expectAllSeeTheSame(), QList<QImage>({map, map, other, other, map}));
}

TEST_F(ForeignDecoders, ExactlyAsManyColoursAsAPaletteHolds) {
    for (const int colors : {255, 256}) {
        const QImage map = scattered({40, 30}, colors);
        const QImage other = map.mirrored(true, true);
        assemble({{map, map}, {other, map}, {map, map}});
        EXPECT_EQ(expectAllSeeTheSame(), QList<QImage>({map, other, map})) << colors;
    }
}

TEST_F(ForeignDecoders, PicturesThatHaveNothingInCommon) {
    const QImage red = plainImage({30, 20}, Qt::red);
    const QImage colours = scattered({30, 20}, 250);
    assemble({{red, red}, {colours, colours}, {red, red}});
    EXPECT_EQ(expectAllSeeTheSame(), QList<QImage>({red, colours, red}));
}

TEST_F(ForeignDecoders, AShadedMapUnderMovingSymbols) {
    const QImage map = shaded({200, 150});
    QList<Capture> captures;
    for (int i = 0; i < 8; ++i) {
        QImage picture = withSquare(map, {20 * i, 40, 30, 30}, QColor(250, 20, 30));
        QPainter(&picture).drawImage(150 - 15 * i, 90, shaded({40, 40}, 7).mirrored());
        captures << Capture{picture, map};
    }
    assemble(captures);
    const QList<QImage> shown = expectAllSeeTheSame();
    for (qsizetype i = 0; i < shown.size(); ++i) {
        EXPECT_GT(psnr(shown[i], captures[i].picture), 28) << i;
        const QRect square(20 * static_cast<int>(i), 40, 30, 30);
        EXPECT_EQ(shown[i].copy(square), captures[i].picture.copy(square)) << i;
    }
}

TEST_F(ForeignDecoders, AFilmOfMapsThatAllDiffer) {
    for (qint32 i = 2; i <= 4; ++i) {
        workspace.Frames().Add();
    }
    workspace.pctPanel.resize(4);
    workspace.pctPanel.setPicture(2, Picture(shaded({150, 90})));
    workspace.pctPanel.setPicture(3, Picture(shaded({90, 120}, 40)));
    workspace.pctPanel.setPicture(4, Picture(plainImage({10, 10}, Qt::green)));
    run(FilmRequest{.path = output("a.gif"), .FrameInterval = 20});
    const QList<QImage> shown = expectAllSeeTheSame();
    ASSERT_EQ(shown.size(), 4);
    EXPECT_EQ(shown[3], onSheet(plainImage({10, 10}, Qt::green), {150, 120}));
}

}  // namespace nubivane::testing
