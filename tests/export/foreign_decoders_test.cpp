#include "export/export_stage.h"
#include "export/gif_export.h"
#include "picture/made_pictures.h"
#include "stage_fixture.h"
#include "support/processes.h"

namespace nubivane::testing {

namespace {

/// GIFs of ours as others read them.
class ForeignDecoders : public StageFixture {
  protected:
    /// Writes out/a.gif: symbols of one pixel moving over a map.
    void save(const QImage& map) {
        workspace.pctPanel.setPicture(1, Picture(map));
        makeSymbol("dot.gif", QList<int>(8, 7));
        for (int i = 0; i < 60; ++i) {
            addSymbol("dot.gif", {10 + i % 10, 5 + i / 10});
        }
        saveAniGif(workspace, 1, output("a.gif"), 1, watcher);
    }

    /// Runs a decoder that writes pictures named as `pattern`; none may complain.
    std::vector<QImage> images(const QString& tool, const QStringList& words,
                               const QString& filter) {
        const ProcessResult result = runProgram(tool, words);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_EQ(result.err, "");
        std::vector<QImage> found;
        const QDir folder(host("out"));
        for (const QString& name : folder.entryList({filter}, QDir::Files, QDir::Name)) {
            found.push_back(QImage(folder.filePath(name)).convertToFormat(QImage::Format_RGB32));
        }
        return found;
    }

    std::vector<QImage> byFfmpeg() {
        return images("ffmpeg",
                      {"-v", "warning", "-i", outputHost("a.gif"), "-vsync", "0", "-pix_fmt",
                       "rgb24", outputHost("ffmpeg-%04d.png")},
                      "ffmpeg-*.png");
    }
    std::vector<QImage> byImageMagick() {
        return images("convert",
                      {outputHost("a.gif"), "-coalesce", "PNG24:" + outputHost("magick-%04d.png")},
                      "magick-*.png");
    }
    /// Gifsicle takes the file apart into GIFs, which Qt then reads.
    std::vector<QImage> byGifsicle() {
        return images("gifsicle",
                      {"-U", "--explode", outputHost("a.gif"), "-o", outputHost("sicle.gif")},
                      "sicle.gif.*");
    }

    /// The stage at the times of the captures: one pass of 8 images of 70 ms.
    std::vector<QImage> truth() {
        std::vector<QImage> stages;
        for (qint64 time = 0; time <= 560; time += 70) {
            stages.push_back(renderFrame(workspace, 1, time));
        }
        return stages;
    }
};

}  // namespace

TEST_F(ForeignDecoders, OfFewColoursAllSeeWhatTheStageShows) {
    save(scattered({90, 70}, 200));
    EXPECT_EQ(byFfmpeg(), truth());
    EXPECT_EQ(byImageMagick(), truth());
    EXPECT_EQ(byGifsicle(), truth());
}

TEST_F(ForeignDecoders, OfManyColoursAllSeeTheSameCloseToTheStage) {
    save(shaded({90, 70}));
    const std::vector<QImage> seen = byFfmpeg();
    EXPECT_EQ(byImageMagick(), seen);
    EXPECT_EQ(byGifsicle(), seen);
    const std::vector<QImage> stages = truth();
    ASSERT_EQ(seen.size(), stages.size());
    for (std::size_t i = 0; i < seen.size(); ++i) {
        EXPECT_GT(psnr(seen[i], stages[i]), 28) << i;
        EXPECT_EQ(seen[i].pixel(10, 5), stages[i].pixel(10, 5)) << i;
    }
}

TEST_F(ForeignDecoders, GifsicleSeesTheDelays) {
    save(scattered({90, 70}, 200));
    const ProcessResult result = runProgram("gifsicle", {"--info", outputHost("a.gif")});
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out.count("delay 0.07s"), 9);
    EXPECT_TRUE(result.out.contains("loop forever"));
}

}  // namespace nubivane::testing
