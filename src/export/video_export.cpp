#include "export/video_export.h"

#include "export/capture_plan.h"
#include "export/export_watcher.h"
#include "export/film_stage.h"
#include "picture/image_ex.h"
#include "picture/video_writer.h"

#include <algorithm>

namespace nubivane {

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

/// What stands around the captures of a Frame, the same for both formats.
void saveFrame(Workspace& workspace, qint32 frame, const QString& path, VideoFormat format,
               const VideoOptions& options, ExportWatcher& watcher) {
    watcher.setCaption(" Creating frames - step 1 of 3");
    ExportStage stage(workspace);
    stage.loadMap(frame);
    stage.loadStageSprites(frame);
    const bool avi = format == VideoFormat::Avi;
    const CapturePlan plan = avi ? planVideo(stage.timing(), options.compression)
                                 : planGif(stage.timing(), options.compression);
    const QSize size = videoSize(format, options.size, stage.size());
    const VideoRate rate = avi ? VideoRate{framesPerSecond(plan.interval), 1}
                               : VideoRate{MillisecondsPerSecond, static_cast<int>(plan.interval)};
    VideoWriter video(path, format, size, rate);
    for (qint64 i = 0; i < plan.count(); ++i) {
        const qint64 elapsed = i * plan.interval;
        video.add(withoutOddPixel(stage.grabStage(elapsed), size));
        if (elapsed < plan.longestLoop) {
            watcher.setProgress(static_cast<int>(elapsed * ProgressOfCaptures / plan.longestLoop));
        }
        watcher.working();
    }
    watcher.setCaption(" Creating file - step 2 of 3");
    watcher.setProgress(80);
    watcher.setCaption(" Saving - step 3 of 3");
    video.finish();
    watcher.setProgress(100);
}

}  // namespace

int framesPerSecond(qint64 interval) {
    return std::max(1, static_cast<int>(MillisecondsPerSecond / std::max<qint64>(1, interval)));
}

void saveAvi(Workspace& workspace, qint32 frame, const QString& AviFileName,
             const VideoOptions& options, ExportWatcher& watcher) {
    saveFrame(workspace, frame, AviFileName, VideoFormat::Avi, options, watcher);
}

void saveMp4(Workspace& workspace, qint32 frame, const QString& path, const VideoOptions& options,
             ExportWatcher& watcher) {
    saveFrame(workspace, frame, path, VideoFormat::Mp4, options, watcher);
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
