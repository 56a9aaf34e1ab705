#include "export/gif_export.h"

#include "core/error.h"
#include "core/host_files.h"
#include "export/capture_plan.h"
#include "export/export_watcher.h"
#include "export/film_stage.h"
#include "picture/image_ex.h"

#include <QFile>

namespace nubivane {

namespace {

constexpr double MillisecondsPerHundredth = 10;
constexpr int ProgressOfCaptures = 70;  // percent

/// The end that all animated GIFs have in common. The captures of `list` are taken while they are
/// written, one at a time; `captured` tells how many are done.
void writeGif(const FrameList& list, const QString& path, GifQuality quality,
              const PictureProgress& captured, ExportWatcher& watcher) {
    constexpr int TryEverything = 2;
    QFile::remove(host_files::toHost(path));
    ImageEx::AssembleGif(list, path, captured, quality);
    watcher.setCaption(" Assembling file - step 2 of 4");
    watcher.setProgress(80);
    watcher.setCaption(" Optimizing file - step 3 of 4");
    watcher.setProgress(90);
    watcher.setCaption(" Saving file - step 4 of 4");
    ImageEx::OptimizeGif(path, path, TryEverything, [&watcher](int, int) { watcher.working(); });
    watcher.setProgress(100);
}

}  // namespace

void saveAniGif(Workspace& workspace, qint32 frame, const QString& GifFileName, int compression,
                ExportWatcher& watcher, GifQuality quality) {
    watcher.setCaption(" Creating frames - step 1 of 4");
    ExportStage stage(workspace);
    stage.loadMap(frame);
    stage.loadStageSprites(frame);
    const CapturePlan plan = planGif(stage.timing(), compression);
    FrameList list;
    for (qint64 i = 0; i < plan.count(); ++i) {
        const qint64 time = i * plan.interval;
        list.push_back({static_cast<double>(plan.interval) / MillisecondsPerHundredth, stage.size(),
                        [&stage, time] { return stage.capture(time); }});
    }
    const auto captured = [&](int done, int) {
        const qint64 elapsed = (done - 1) * plan.interval;
        if (elapsed < plan.longestLoop) {
            watcher.setProgress(static_cast<int>(elapsed * ProgressOfCaptures / plan.longestLoop));
        }
        watcher.working();
    };
    writeGif(list, GifFileName, quality, captured, watcher);
}

void saveFilm(Workspace& workspace, const QString& GifFileName, const FilmOptions& options,
              ExportWatcher& watcher) {
    watcher.setCaption(" Creating frames - step 1 of 4");
    FilmStage film(workspace, options);
    FrameList list;
    for (qint32 i = 1; i <= film.count(); ++i) {
        list.push_back({static_cast<double>(options.FrameInterval), film.size(i),
                        [&film, i] { return film.captureFrame(i); }});
    }
    const auto captured = [&](int done, int count) {
        if (done < count) {
            watcher.setProgress((done + 1) * ProgressOfCaptures / count);
        }
        watcher.working();
    };
    writeGif(list, GifFileName, options.quality, captured, watcher);
}

}  // namespace nubivane
