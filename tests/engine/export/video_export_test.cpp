// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/video_export.h"

#include "engine/core/error.h"
#include "engine/export/export_stage.h"
#include "engine/export/stage_fixture.h"
#include "engine/export/video_size.h"
#include "engine/picture/made_pictures.h"
#include "engine/video/riff_check.h"
#include "support/processes.h"

#include <QtEndian>

namespace nubivane::testing {

namespace {

class VideoExport : public StageFixture {
  protected:
    VideoExport() {
        workspace.pctPanel.setPicture(1, Picture(shaded({200, 150})));
        makeSymbol("dot.gif", QList<int>(10, 10));
    }

    /// What ffprobe says of the video stream, as "name=value" lines.
    QStringList probed(const QString& name) const {
        const ProcessResult result = runProgram(
            "ffprobe", {"-v", "error", "-count_frames", "-show_entries",
                        "stream=codec_name,width,height,pix_fmt,r_frame_rate,nb_read_frames,"
                        "duration",
                        "-of", "default=noprint_wrappers=1", outputHost(name)});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.err, "");
        return QString::fromUtf8(result.out).split(u'\n', Qt::SkipEmptyParts);
    }

    /// A frame of a video, as ffmpeg decodes it.
    QImage frameOf(const QString& name, int number) const {
        const QString picture = outputHost("frame.png");
        const ProcessResult result = runProgram(
            "ffmpeg", {"-v", "error", "-y", "-i", outputHost(name), "-vf",
                       QStringLiteral("select=eq(n\\,%1)").arg(number), "-frames:v", "1", picture});
        EXPECT_EQ(result.err, "");
        return QImage(picture).convertToFormat(QImage::Format_RGB32);
    }
};

}  // namespace

TEST_F(VideoExport, AnAviHasAllCapturesAtWholeFramesASecond) {
    addSymbol("dot.gif", {0, 0});
    run(VideoRequest{.path = output("a.avi")});
    const QStringList found = probed("a.avi");
    EXPECT_TRUE(found.contains("codec_name=mjpeg"));
    EXPECT_TRUE(found.contains("pix_fmt=yuvj444p"));
    EXPECT_TRUE(found.contains("width=200"));
    EXPECT_TRUE(found.contains("height=150"));
    EXPECT_TRUE(found.contains("r_frame_rate=10/1"));
    EXPECT_TRUE(found.contains("nb_read_frames=11"));
    EXPECT_EQ(complaintsOfRiff(readFile(outputHost("a.avi"))), QStringList());
    EXPECT_EQ(outputs(), QStringList({"a.avi"}));
}

TEST_F(VideoExport, AnAviShowsWhatTheStageShows) {
    addSymbol("dot.gif", {0, 0});
    run(VideoRequest{.path = output("a.avi")});
    for (const int number : {0, 5, 10}) {
        EXPECT_GT(psnr(frameOf("a.avi", number), renderFrame(workspace, 1, number * 100)), 34)
            << number;
    }
}

TEST_F(VideoExport, PicturesAreSqueezedNotFramed) {
    workspace.pctPanel.setPicture(1, Picture(plainImage({500, 400}, Qt::red)));
    run(VideoRequest{.path = output("a.avi"), .size = {320, 288}});
    const QImage frame = frameOf("a.avi", 0);
    ASSERT_EQ(frame.size(), QSize(320, 288));
    for (const QPoint corner : {QPoint(0, 0), QPoint(319, 0), QPoint(0, 287), QPoint(319, 287)}) {
        EXPECT_GT(qRed(frame.pixel(corner)), 245);
        EXPECT_LT(qGreen(frame.pixel(corner)), 10);
    }
}

TEST_F(VideoExport, ASizeOnePixelOffTheMapsIsScaledToo) {
    QImage map = plainImage({201, 150}, Qt::red);
    QPainter(&map).fillRect(195, 0, 6, 150, Qt::blue);
    workspace.pctPanel.setPicture(1, Picture(map));
    run(VideoRequest{.path = output("a.avi"), .size = {200, 150}});
    // Scaled, the stripe begins 6 pixels before the right side; cut off, it would be 5.
    const QImage frame = frameOf("a.avi", 0);
    EXPECT_GT(qRed(frame.pixel(192, 75)), 200);
    EXPECT_GT(qBlue(frame.pixel(194, 75)), 150);
    EXPECT_LT(qRed(frame.pixel(194, 75)), 100);
}

TEST_F(VideoExport, AFrameWithoutSymbolsGivesTwoPicturesOrOne) {
    run(VideoRequest{.path = output("a.avi")});
    EXPECT_TRUE(probed("a.avi").contains("nb_read_frames=2"));
    EXPECT_TRUE(probed("a.avi").contains("r_frame_rate=1000/1"));
    run(VideoRequest{.path = output("a.avi"), .compression = 2});
    EXPECT_TRUE(probed("a.avi").contains("nb_read_frames=1"));
}

TEST_F(VideoExport, AFrameWithStillSymbolsGivesOnePicture) {
    makeSymbol("still.gif", {10});
    addSymbol("still.gif", {0, 0});
    run(VideoRequest{.path = output("a.avi")});
    EXPECT_TRUE(probed("a.avi").contains("nb_read_frames=1"));
    EXPECT_TRUE(probed("a.avi").contains("r_frame_rate=2/1"));
}

TEST(FramesPerSecond, AreWholeAndAtLeastOne) {
    EXPECT_EQ(framesPerSecond(100), 10);
    EXPECT_EQ(framesPerSecond(300), 3);
    EXPECT_EQ(framesPerSecond(1500), 1);
    EXPECT_EQ(framesPerSecond(1000), 1);
    EXPECT_EQ(framesPerSecond(1), 1000);
}

TEST_F(VideoExport, CaptionsAndProgressGoTheirSteps) {
    makeSymbol("two.gif", {10, 10});
    addSymbol("two.gif", {0, 0});
    run(VideoRequest{.path = output("a.avi")});
    EXPECT_EQ(watcher.told,
              QStringList({" Creating frames - step 1 of 3", "0", "35",
                           " Creating file - step 2 of 3", "80", " Saving - step 3 of 3", "100"}));
}

TEST_F(VideoExport, AFailureLeavesTheOldFileAndNothingElse) {
    writeFile(outputHost("a.avi"), "old");
    workspace.clearTempPicture();
    QFile::remove(host("Maps/map.png"));
    EXPECT_THROW(run(VideoRequest{.path = output("a.avi")}), Error);
    EXPECT_THROW(run(VideoRequest{.path = output("none\\a.avi")}), Error);
    EXPECT_EQ(outputs(), QStringList({"a.avi"}));
    EXPECT_EQ(readFile(outputHost("a.avi")), "old");
}

TEST_F(VideoExport, AnMp4LastsAsLongAsItsCaptures) {
    addSymbol("dot.gif", {0, 0});
    run(VideoRequest{.path = output("a.mp4"), .format = VideoFormat::Mp4});
    const QStringList found = probed("a.mp4");
    EXPECT_TRUE(found.contains("codec_name=h264"));
    EXPECT_TRUE(found.contains("pix_fmt=yuv420p"));
    EXPECT_TRUE(found.contains("nb_read_frames=11"));
    EXPECT_TRUE(found.contains("duration=1.100000")) << found.join(u' ').toStdString();
    // Colours have half the resolution here, and the blue of this map changes from pixel to pixel.
    EXPECT_GT(psnr(frameOf("a.mp4", 5), renderFrame(workspace, 1, 500)), 25);
}

TEST_F(VideoExport, AnMp4BeginsWithItsTableOfContents) {
    addSymbol("dot.gif", {0, 0});
    run(VideoRequest{.path = output("a.mp4"), .format = VideoFormat::Mp4});
    const QByteArray file = readFile(outputHost("a.mp4"));
    QByteArrayList parts;
    for (qsizetype at = 0; at + 8 <= file.size();) {
        parts << file.mid(at + 4, 4);
        const auto size = qFromBigEndian<quint32>(file.constData() + at);
        ASSERT_GE(size, 8U);
        at += size;
    }
    ASSERT_TRUE(parts.contains("moov"));
    EXPECT_LT(parts.indexOf("moov"), parts.indexOf("mdat"));
    EXPECT_EQ(outputs(), QStringList({"a.mp4"}));
}

TEST_F(VideoExport, AFailedMp4LeavesTheOldFileAndNothingElse) {
    writeFile(outputHost("a.mp4"), "old");
    EXPECT_THROW(run(VideoRequest{.path = output("none\\a.mp4"), .format = VideoFormat::Mp4}),
                 Error);
    workspace.clearTempPicture();
    QFile::remove(host("Maps/map.png"));
    EXPECT_THROW(run(VideoRequest{.path = output("a.mp4"), .format = VideoFormat::Mp4}), Error);
    EXPECT_EQ(outputs(), QStringList({"a.mp4"}));
    EXPECT_EQ(readFile(outputHost("a.mp4")), "old");
}

TEST_F(VideoExport, AnMp4OfOddSidesLosesAPixel) {
    workspace.pctPanel.setPicture(1, Picture(shaded({201, 151})));
    run(VideoRequest{.path = output("a.mp4"), .format = VideoFormat::Mp4});
    EXPECT_TRUE(probed("a.mp4").contains("width=200"));
    EXPECT_TRUE(probed("a.mp4").contains("height=150"));
}

TEST_F(VideoExport, AFilmAsMp4HasOnePictureForEachFrame) {
    workspace.Frames().Add();
    workspace.Frames().Add();
    workspace.pctPanel.resize(3);
    workspace.pctPanel.setPicture(2, Picture(plainImage({200, 150}, Qt::green)));
    workspace.pctPanel.setPicture(3, Picture(plainImage({100, 70}, Qt::red)));
    run(FilmRequest{.path = output("a.mp4"), .FrameInterval = 150, .format = FilmFormat::Mp4});
    const QStringList found = probed("a.mp4");
    EXPECT_TRUE(found.contains("nb_read_frames=3"));
    EXPECT_TRUE(found.contains("duration=4.500000")) << found.join(u' ').toStdString();
    const QImage last = frameOf("a.mp4", 2);
    EXPECT_GT(qRed(last.pixel(50, 35)), 240);
    EXPECT_GT(qBlue(last.pixel(150, 110)), 240);
}

TEST(SizeOfVideo, OneSideKeepsTheMapsProportions) {
    using enum VideoFormat;
    EXPECT_EQ(sizeOfVideo(Avi, {400, 0}, {800, 600}), QSize(400, 300));
    EXPECT_EQ(sizeOfVideo(Avi, {0, 300}, {800, 600}), QSize(400, 300));
    EXPECT_EQ(sizeOfVideo(Avi, {320, 0}, {498, 300}), QSize(320, 193));
    EXPECT_EQ(sizeOfVideo(Avi, {320, 0}, {1000, 702}), QSize(320, 225));
    EXPECT_EQ(sizeOfVideo(Avi, {320, 288}, {498, 300}), QSize(320, 288));
    EXPECT_EQ(sizeOfVideo(Avi, {}, {499, 301}), QSize(499, 301));
}

TEST(SizeOfVideo, TheSideThatFollowsIsOneThatMp4Holds) {
    using enum VideoFormat;
    EXPECT_EQ(sizeOfVideo(Mp4, {320, 0}, {498, 300}), QSize(320, 192));
    EXPECT_EQ(sizeOfVideo(Mp4, {0, 200}, {498, 300}), QSize(332, 200));
}

TEST(SizeOfVideo, ASideThatNoVideoHasIsRefused) {
    using enum VideoFormat;
    EXPECT_THROW(sizeOfVideo(Avi, {4000, 0}, {100, 200}), Error);
    EXPECT_THROW(sizeOfVideo(Avi, {10, 0}, {1000, 20}), Error);
    EXPECT_THROW(sizeOfVideo(Avi, {0, 4096}, {16384, 1}), Error);
}

TEST(SizeOfVideo, AMapLargerThanAVideoIsScaledDownWhole) {
    using enum VideoFormat;
    EXPECT_EQ(sizeOfVideo(Avi, {}, {8192, 3000}), QSize(4096, 1500));
    EXPECT_EQ(sizeOfVideo(Mp4, {}, {2999, 8192}), QSize(1498, 4096));
}

TEST_F(VideoExport, AnOddSizeIsToldOfAnMp4AndKeptByAnAvi) {
    workspace.pctPanel.setPicture(1, Picture(shaded({201, 151})));
    run(VideoRequest{.path = output("a.mp4"), .format = VideoFormat::Mp4});
    EXPECT_EQ(watcher.remarks,
              QStringList({"The video has 200 x 150 pixels instead of 201 x 151: MP4 holds even "
                           "sides alone."}));
    watcher.remarks.clear();
    run(VideoRequest{.path = output("a.avi")});
    run(VideoRequest{.path = output("b.mp4"), .format = VideoFormat::Mp4, .size = {100, 0}});
    EXPECT_EQ(watcher.remarks, QStringList());
    run(FilmRequest{.path = output("film.mp4"), .FrameInterval = 100, .format = FilmFormat::Mp4});
    EXPECT_EQ(watcher.remarks.size(), 1);
}

}  // namespace nubivane::testing
