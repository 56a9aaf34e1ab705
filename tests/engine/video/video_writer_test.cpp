// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/video/video_writer.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "support/fixtures.h"
#include "support/processes.h"

#include <QDir>

namespace nubivane::testing {

namespace {

class VideoWriterTest : public ::testing::Test {
  protected:
    QString host(const QString& name) const { return folder.file(name); }
    QString path(const QString& name) const { return host_files::toModel(host(name)); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    void write(const QString& name, VideoFormat format, QSize size, VideoRate rate,
               int pictures = 3) {
        VideoWriter video(path(name), format, size, rate);
        for (int i = 0; i < pictures; ++i) {
            video.add(plainImage({40, 30}, static_cast<Qt::GlobalColor>(Qt::red + i))
                          .convertToFormat(QImage::Format_RGB32));
        }
        video.finish();
    }

    int refusal(VideoFormat format, QSize size, VideoRate rate) {
        try {
            write("a", format, size, rate);
        } catch (const Error& error) {
            return error.number();
        }
        return 0;
    }

    QByteArray probed(const QString& name) const {
        return runProgram("ffprobe", {"-v", "error", "-count_frames", "-show_entries",
                                      "stream=width,height,avg_frame_rate,nb_read_frames", "-of",
                                      "default=noprint_wrappers=1:nokey=1", host(name)})
            .out;
    }

    TemporaryFolder folder;
};

}  // namespace

TEST_F(VideoWriterTest, ASizeThatTheFormatDoesNotHaveIsRefused) {
    for (const QSize size : {QSize(1, 30), QSize(40, 1), QSize(0, 0), QSize(-2, 30),
                             QSize(MaxVideoSide + 1, 30), QSize(40, MaxVideoSide + 1)}) {
        EXPECT_EQ(refusal(VideoFormat::Avi, size, {10}), error_number::InvalidVideo);
        EXPECT_EQ(refusal(VideoFormat::Mp4, size, {10}), error_number::InvalidVideo);
    }
    EXPECT_EQ(refusal(VideoFormat::Mp4, {41, 30}, {10}), error_number::InvalidVideo);
    EXPECT_EQ(refusal(VideoFormat::Mp4, {40, 31}, {10}), error_number::InvalidVideo);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(VideoWriterTest, ARateOfNoPicturesOrNoTimeIsRefused) {
    for (const VideoRate rate :
         {VideoRate{0, 1}, VideoRate{-1, 1}, VideoRate{1, 0}, VideoRate{1, -1}, VideoRate{0, 0}}) {
        EXPECT_EQ(refusal(VideoFormat::Avi, {40, 30}, rate), error_number::InvalidVideo);
        EXPECT_EQ(refusal(VideoFormat::Mp4, {40, 30}, rate), error_number::InvalidVideo);
    }
    EXPECT_EQ(files(), QStringList());
}

TEST_F(VideoWriterTest, TheSmallestRateAndSizeAreWritten) {
    write("a.avi", VideoFormat::Avi, {2, 2}, {1, 1});
    EXPECT_EQ(probed("a.avi"), "2\n2\n1/1\n3\n");
    write("a.mp4", VideoFormat::Mp4, {2, 2}, {1, 1});
    EXPECT_EQ(probed("a.mp4"), "2\n2\n1/1\n3\n");
}

TEST_F(VideoWriterTest, OddSidesStayInAnAviAndNotInAnMp4) {
    EXPECT_EQ(VideoWriter::sizeFor(VideoFormat::Avi, {41, 31}), QSize(41, 31));
    EXPECT_EQ(VideoWriter::sizeFor(VideoFormat::Mp4, {41, 31}), QSize(40, 30));
    EXPECT_EQ(VideoWriter::sizeFor(VideoFormat::Mp4, {1, 3}), QSize(2, 2));
    EXPECT_EQ(VideoWriter::sizeFor(VideoFormat::Avi, {-5, MaxVideoSide + 5}),
              QSize(2, MaxVideoSide));
    write("a.avi", VideoFormat::Avi, {41, 31}, {25});
    EXPECT_EQ(probed("a.avi"), "41\n31\n25/1\n3\n");
}

TEST_F(VideoWriterTest, PicturesOfSeveralSizesAreScaledEach) {
    {
        VideoWriter video(path("a.avi"), VideoFormat::Avi, {40, 30}, {10});
        for (const QSize size : {QSize(40, 30), QSize(80, 90), QSize(40, 30), QSize(3, 2)}) {
            video.add(plainImage(size, Qt::green).convertToFormat(QImage::Format_RGB32));
        }
        video.finish();
    }
    EXPECT_EQ(probed("a.avi"), "40\n30\n10/1\n4\n");
}

TEST_F(VideoWriterTest, WithoutAFinishTheOldFileStays) {
    writeFile(host("a.avi"), "old");
    {
        VideoWriter video(path("a.avi"), VideoFormat::Avi, {40, 30}, {10});
        video.add(plainImage({40, 30}, Qt::red).convertToFormat(QImage::Format_RGB32));
    }
    EXPECT_EQ(readFile(host("a.avi")), "old");
    EXPECT_EQ(files(), QStringList("a.avi"));
}

TEST_F(VideoWriterTest, TheSamePicturesGiveTheSameFile) {
    for (const VideoFormat format : {VideoFormat::Avi, VideoFormat::Mp4}) {
        write("a", format, {40, 30}, {10});
        write("b", format, {40, 30}, {10});
        EXPECT_EQ(readFile(host("a")), readFile(host("b")));
        EXPECT_FALSE(readFile(host("a")).contains("Lavf")) << "not another one after an upgrade";
    }
}

}  // namespace nubivane::testing
