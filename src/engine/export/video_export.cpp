// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/video_export.h"

#include "engine/export/capture_plan.h"
#include "engine/export/export_watcher.h"
#include "engine/export/film_stage.h"
#include "engine/picture/image_ex.h"
#include "engine/video/video_writer.h"

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int MillisecondsPerSecond = 1000;
constexpr int HundredthsPerSecond = 100;
constexpr int ProgressOfCaptures = 70;  // percent

/// The size asked for, the map's where nothing is asked for, as near as the format has it.
QSize videoSize(VideoFormat format, QSize asked, QSize map) {
    return VideoWriter::sizeFor(format, {asked.width() > 0 ? asked.width() : map.width(),
                                         asked.height() > 0 ? asked.height() : map.height()});
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
        stage_.loadMap(frame_);
        stage_.loadStageSprites(frame_);
        plan_ = isAvi() ? planVideo(stage_.timing(), options_.compression)
                        : planGif(stage_.timing(), options_.compression);
    }

    void save(ExportWatcher& watcher) override {
        watcher.setCaption(u" Creating frames - step 1 of 3"_s);
        const QSize size = videoSize(format_, options_.size, stage_.size());
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
    CapturePlan plan_{};
};

}  // namespace

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
    const QSize size = VideoWriter::sizeFor(VideoFormat::Mp4, largest);
    VideoWriter video(path, VideoFormat::Mp4, size, {HundredthsPerSecond, options.FrameInterval});
    for (qint32 i = 1; i <= film.count(); ++i) {
        video.add(onSheet(film.captureFrame(i).picture, size));
        watcher.setProgress(i * 100 / film.count());
        watcher.working();
    }
    video.finish();
}

}  // namespace nubivane
