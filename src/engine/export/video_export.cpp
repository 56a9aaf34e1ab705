// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/video_export.h"

#include "engine/core/error.h"
#include "engine/export/capture_plan.h"
#include "engine/export/export_watcher.h"
#include "engine/export/film_stage.h"
#include "engine/picture/image_ex.h"
#include "engine/video/video_writer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int MillisecondsPerSecond = 1000;
constexpr int HundredthsPerSecond = 100;
constexpr int ProgressOfCaptures = 70;  // percent

/// A side of a video in the proportion of two others, as near as the format has it.
int inProportion(VideoFormat format, int side, int from, int to) {
    const int step = format == VideoFormat::Mp4 ? 2 : 1;
    const double exact = double(side) * to / from;
    return static_cast<int>(
        std::min(std::round(exact / step) * step, double(std::numeric_limits<int>::max())));
}

QSize checked(QSize size) {
    if (size.width() < 2 || size.height() < 2 || size.width() > MaxVideoSide ||
        size.height() > MaxVideoSide) {
        throw Error(error_number::OutOfRange, u"export"_s,
                    u"The video would have %1 x %2 pixels."_s.arg(size.width()).arg(size.height()),
                    u"a side has 2 to %1 pixels; give the other side too"_s.arg(MaxVideoSide));
    }
    return size;
}

/// A map that is larger than a video may be, scaled down whole.
QSize scaledDown(VideoFormat format, QSize map) {
    const QSize scaled = map.scaled(MaxVideoSide, MaxVideoSide, Qt::KeepAspectRatio);
    return VideoWriter::sizeFor(format, scaled);
}

bool isTooLarge(QSize map) {
    return map.width() > MaxVideoSide || map.height() > MaxVideoSide;
}

/// The size as near as the format has it, which is told where it is another.
QSize sizeInFormat(VideoFormat format, QSize wanted, ExportWatcher& watcher) {
    const QSize size = VideoWriter::sizeFor(format, wanted);
    if (size != wanted) {
        const QString reason = format == VideoFormat::Mp4 ? u"MP4 holds even sides alone"_s
                                                          : u"a side has at least 2 pixels"_s;
        watcher.remark(u"The video has %1 x %2 pixels instead of %3 x %4: %5."_s.arg(
            QString::number(size.width()), QString::number(size.height()),
            QString::number(wanted.width()), QString::number(wanted.height()), reason));
    }
    return size;
}

/// A picture that is a pixel too wide or too high loses it: scaled, it would blur as a whole.
QImage withoutOddPixel(const QImage& picture, QSize size) {
    const QSize excess = picture.size() - size;
    const bool odd =
        excess.width() >= 0 && excess.width() <= 1 && excess.height() >= 0 && excess.height() <= 1;
    return odd ? onSheet(picture, size) : picture;
}

/// A Frame as a video of either format.
class VideoJob : public ExportJob {
  public:
    VideoJob(Workspace& workspace, qint32 frame, const QString& path, VideoFormat format,
             const VideoOptions& options)
        : frame_(contentOf(workspace, frame)), path_(path), format_(format), options_(options) {}

    void load() override {
        size_ = sizeOfVideo(format_, options_.size, stage_.mapOf(frame_).size());
        stage_.loadMap(frame_);
        stage_.loadStageSprites(frame_);
        plan_ = isAvi() ? planVideo(stage_.timing(), options_.compression)
                        : planGif(stage_.timing(), options_.compression);
    }

    void save(ExportWatcher& watcher) override {
        remarkMissingLetters(frame_, watcher);
        const QSize size = sizeInFormat(format_, size_, watcher);
        watcher.setCaption(u" Creating frames - step 1 of 3"_s);
        VideoWriter video(path_, format_, size, rate());
        for (qint64 i = 0; i < plan_.count(); ++i) {
            add(video, i * plan_.interval, size, watcher);
        }
        watcher.setCaption(u" Creating file - step 2 of 3"_s);
        watcher.setProgress(80);
        watcher.setCaption(u" Saving - step 3 of 3"_s);
        video.finish();
        watcher.setProgress(100);
    }

  private:
    bool isAvi() const { return format_ == VideoFormat::Avi; }

    VideoRate rate() const {
        return isAvi() ? VideoRate{framesPerSecond(plan_.interval), 1}
                       : VideoRate{MillisecondsPerSecond, static_cast<int>(plan_.interval)};
    }

    void add(VideoWriter& video, qint64 elapsed, QSize size, ExportWatcher& watcher) {
        const QImage picture = stage_.grabStage(elapsed);
        watcher.showStage(picture);
        // Only where the format itself wants even sides: a size that was asked for is kept.
        video.add(isAvi() ? picture : withoutOddPixel(picture, size));
        if (elapsed < plan_.longestLoop) {
            watcher.setProgress(static_cast<int>(elapsed * ProgressOfCaptures / plan_.longestLoop));
        }
        watcher.working();
    }

    FrameContent frame_;
    QString path_;
    VideoFormat format_;
    VideoOptions options_;
    ExportStage stage_;
    QSize size_;
    CapturePlan plan_{};
};

}  // namespace

QSize sizeOfVideo(VideoFormat format, QSize asked, QSize map) {
    if (asked.width() > 0 && asked.height() > 0) {
        return asked;
    }
    if (asked.width() > 0) {
        const int height = inProportion(format, asked.width(), map.width(), map.height());
        return checked({asked.width(), height});
    }
    if (asked.height() > 0) {
        const int width = inProportion(format, asked.height(), map.height(), map.width());
        return checked({width, asked.height()});
    }
    return isTooLarge(map) ? scaledDown(format, map) : map;
}

int framesPerSecond(qint64 interval) {
    return std::max(1, static_cast<int>(MillisecondsPerSecond / std::max<qint64>(1, interval)));
}

std::unique_ptr<ExportJob> aviJob(Workspace& workspace, qint32 frame, const QString& AviFileName,
                                  const VideoOptions& options) {
    return std::make_unique<VideoJob>(workspace, frame, AviFileName, VideoFormat::Avi, options);
}

void saveAvi(Workspace& workspace, qint32 frame, const QString& AviFileName,
             const VideoOptions& options, ExportWatcher& watcher) {
    runExport(*aviJob(workspace, frame, AviFileName, options), watcher);
}

void saveMp4(Workspace& workspace, qint32 frame, const QString& path, const VideoOptions& options,
             ExportWatcher& watcher) {
    VideoJob job(workspace, frame, path, VideoFormat::Mp4, options);
    runExport(job, watcher);
}

void saveFilmMp4(Workspace& workspace, const QString& path, const FilmOptions& options,
                 ExportWatcher& watcher) {
    FilmStage film(workspace, options);
    QSize largest;
    for (qint32 i = 1; i <= film.count(); ++i) {
        largest = largest.expandedTo(film.size(i));
    }
    film.remarkMissingLetters(watcher);
    const QSize size =
        sizeInFormat(VideoFormat::Mp4, sizeOfVideo(VideoFormat::Mp4, {}, largest), watcher);
    const QSize sheet = isTooLarge(largest) ? largest : size;
    VideoWriter video(path, VideoFormat::Mp4, size, {HundredthsPerSecond, options.FrameInterval});
    for (qint32 i = 1; i <= film.count(); ++i) {
        video.add(onSheet(film.captureFrame(i).picture, sheet));
        watcher.setProgress(i * 100 / film.count());
        watcher.working();
    }
    video.finish();
}

}  // namespace nubivane
