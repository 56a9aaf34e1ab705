// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/gif_export.h"

#include "engine/core/error.h"
#include "engine/export/capture_plan.h"
#include "engine/export/export_watcher.h"
#include "engine/export/film_stage.h"
#include "engine/picture/image_ex.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr double MillisecondsPerHundredth = 10;
constexpr int ProgressOfCaptures = 70;  // percent

/// The largest moving GIF. A picture takes some thirty bytes a pixel on the way to its colours, so
/// that this one needs 300 MB at most.
constexpr qint64 MaxGifPixels = 8'000'000;

/// Refuses a map before memory is taken for its pixels.
void checkGifSize(QSize size) {
    if (qint64{size.width()} * size.height() > MaxGifPixels) {
        throw Error(error_number::OutOfRange, u"export"_s,
                    u"The map is too large for a moving GIF."_s,
                    u"%1 x %2 pixels, where at most %3 million are written: choose a smaller map, "
                    "or write a video"_s.arg(size.width())
                        .arg(size.height())
                        .arg(MaxGifPixels / 1'000'000));
    }
}

Capture shown(Capture capture, ExportWatcher& watcher) {
    watcher.showStage(capture.picture);
    return capture;
}

/// The end that all animated GIFs have in common. The captures of `list` are taken while they are
/// written, one at a time; `captured` tells how many are done.
void writeGif(const FrameList& list, const QString& path, GifQuality quality,
              const PictureProgress& captured, ExportWatcher& watcher) {
    constexpr int TryEverything = 2;
    ImageEx::AssembleGif(list, path, captured, quality);
    watcher.setCaption(u" Assembling file - step 2 of 4"_s);
    watcher.setProgress(80);
    watcher.setCaption(u" Optimizing file - step 3 of 4"_s);
    watcher.setProgress(90);
    watcher.setCaption(u" Saving file - step 4 of 4"_s);
    try {
        ImageEx::OptimizeGif(path, path, TryEverything,
                             [&watcher](int, int) { watcher.working(); });
    } catch (const Error&) {
        // The file is whole, only larger than it might be.
    }
    watcher.setProgress(100);
}

class AniGifJob : public ExportJob {
  public:
    AniGifJob(Workspace& workspace, qint32 frame, const QString& path, int compression,
              GifQuality quality)
        : frame_(contentOf(workspace, frame)),
          path_(path),
          compression_(compression),
          quality_(quality) {}

    void load() override {
        checkGifSize(stage_.mapOf(frame_).size());
        stage_.loadMap(frame_);
        stage_.loadStageSprites(frame_);
        plan_ = planGif(stage_.timing(), compression_);
    }

    void save(ExportWatcher& watcher) override {
        remarkMissingLetters(frame_, watcher);
        watcher.setCaption(u" Creating frames - step 1 of 4"_s);
        FrameList list;
        for (qint64 i = 0; i < plan_.count(); ++i) {
            const qint64 time = i * plan_.interval;
            list.push_back(
                {static_cast<double>(plan_.interval) / MillisecondsPerHundredth, stage_.size(),
                 [this, &watcher, time] { return shown(stage_.capture(time), watcher); }});
        }
        const auto captured = [&](int done, int) {
            const qint64 elapsed = (done - 1) * plan_.interval;
            if (elapsed < plan_.longestLoop) {
                watcher.setProgress(
                    static_cast<int>(elapsed * ProgressOfCaptures / plan_.longestLoop));
            }
            watcher.working();
        };
        writeGif(list, path_, quality_, captured, watcher);
    }

  private:
    FrameContent frame_;
    QString path_;
    int compression_;
    GifQuality quality_;
    ExportStage stage_;
    CapturePlan plan_{};
};

class FilmJob : public ExportJob {
  public:
    FilmJob(Workspace& workspace, const QString& path, const FilmOptions& options)
        : film_(workspace, options), path_(path), options_(options) {}

    void load() override {
        QSize sheet;
        for (qint32 i = 1; i <= film_.count(); ++i) {
            sizes_.push_back(film_.size(i));
            sheet = sheet.expandedTo(sizes_.back());
        }
        checkGifSize(sheet);
    }

    void save(ExportWatcher& watcher) override {
        film_.remarkMissingLetters(watcher);
        watcher.setCaption(u" Creating frames - step 1 of 4"_s);
        FrameList list;
        for (qint32 i = 1; i <= film_.count(); ++i) {
            list.push_back({static_cast<double>(options_.FrameInterval),
                            sizes_.at(static_cast<std::size_t>(i) - 1),
                            [this, &watcher, i] { return shown(film_.captureFrame(i), watcher); }});
        }
        const auto captured = [&](int done, int count) {
            if (done < count) {
                watcher.setProgress((done + 1) * ProgressOfCaptures / count);
            }
            watcher.working();
        };
        writeGif(list, path_, options_.quality, captured, watcher);
    }

  private:
    FilmStage film_;
    QString path_;
    FilmOptions options_;
    std::vector<QSize> sizes_;
};

}  // namespace

std::unique_ptr<ExportJob> aniGifJob(Workspace& workspace, qint32 frame, const QString& GifFileName,
                                     int compression, GifQuality quality) {
    return std::make_unique<AniGifJob>(workspace, frame, GifFileName, compression, quality);
}

void saveAniGif(Workspace& workspace, qint32 frame, const QString& GifFileName, int compression,
                ExportWatcher& watcher, GifQuality quality) {
    runExport(*aniGifJob(workspace, frame, GifFileName, compression, quality), watcher);
}

std::unique_ptr<ExportJob> filmJob(Workspace& workspace, const QString& GifFileName,
                                   const FilmOptions& options) {
    return std::make_unique<FilmJob>(workspace, GifFileName, options);
}

void saveFilm(Workspace& workspace, const QString& GifFileName, const FilmOptions& options,
              ExportWatcher& watcher) {
    runExport(*filmJob(workspace, GifFileName, options), watcher);
}

}  // namespace nubivane
