// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/film_export.h"

#include "engine/export/export_watcher.h"
#include "engine/export/film_stage.h"
#include "engine/export/gif_file.h"
#include "engine/export/video_size.h"
#include "engine/picture/sheet.h"

#include <utility>
#include <vector>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int HundredthsPerSecond = 100;

class GifFilmJob : public ExportJob {
  public:
    GifFilmJob(const Workspace& workspace, const FilmRequest& request)
        : request_(request), film_(workspace, request.current, request.FrameInterval) {}

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
            list.push_back({static_cast<double>(request_.FrameInterval),
                            sizes_.at(static_cast<std::size_t>(i) - 1),
                            [this, i] { return film_.captureFrame(i); }});
        }
        const auto captured = [&](int done, int count) {
            if (done < count) {
                watcher.setProgress((done + 1) * ProgressOfCaptures / count);
            }
            watcher.working();
        };
        writeGif(std::move(list), request_.path, request_.quality, captured, watcher);
    }

  private:
    FilmRequest request_;
    FilmStage film_;
    std::vector<QSize> sizes_;
};

class Mp4FilmJob : public ExportJob {
  public:
    Mp4FilmJob(const Workspace& workspace, const FilmRequest& request)
        : request_(request), film_(workspace, request.current, request.FrameInterval) {}

    void load() override {
        for (qint32 i = 1; i <= film_.count(); ++i) {
            largest_ = largest_.expandedTo(film_.size(i));
        }
    }

    void save(ExportWatcher& watcher) override {
        film_.remarkMissingLetters(watcher);
        const QSize size =
            sizeInFormat(VideoFormat::Mp4, sizeOfVideo(VideoFormat::Mp4, {}, largest_), watcher);
        const QSize sheet = isTooLargeForVideo(largest_) ? largest_ : size;
        VideoWriter video(request_.path, VideoFormat::Mp4, size,
                          {HundredthsPerSecond, request_.FrameInterval});
        for (qint32 i = 1; i <= film_.count(); ++i) {
            video.add(onSheet(film_.captureFrame(i).picture, sheet));
            watcher.setProgress(i * 100 / film_.count());
            watcher.working();
        }
        video.finish();
    }

  private:
    FilmRequest request_;
    FilmStage film_;
    QSize largest_;
};

}  // namespace

std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const FilmRequest& request) {
    if (request.format == FilmFormat::Mp4) {
        return std::make_unique<Mp4FilmJob>(workspace, request);
    }
    return std::make_unique<GifFilmJob>(workspace, request);
}

}  // namespace nubivane
