// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/video_export.h"

#include "engine/export/capture_plan.h"
#include "engine/export/export_stage.h"
#include "engine/export/export_watcher.h"
#include "engine/export/video_size.h"
#include "engine/picture/sheet.h"

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int MillisecondsPerSecond = 1000;
constexpr int ProgressOfCaptures = 70;  // percent

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
    VideoJob(const Workspace& workspace, const VideoRequest& request)
        : request_(request), frame_(contentOf(workspace, request.frame)) {}

    void load() override {
        size_ = sizeOfVideo(request_.format, request_.size, stage_.mapOf(frame_).size());
        stage_.loadMap(frame_);
        stage_.loadStageSprites(frame_);
        plan_ = isAvi() ? planVideo(stage_.timing(), request_.compression)
                        : planGif(stage_.timing(), request_.compression);
    }

    void save(ExportWatcher& watcher) override {
        remarkMissingLetters(frame_, watcher);
        const QSize size = sizeInFormat(request_.format, size_, watcher);
        watcher.setCaption(u" Creating frames - step 1 of 3"_s);
        VideoWriter video(request_.path, request_.format, size, rate());
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
    bool isAvi() const { return request_.format == VideoFormat::Avi; }

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

    VideoRequest request_;
    FrameContent frame_;
    ExportStage stage_;
    QSize size_;
    CapturePlan plan_{};
};

}  // namespace

int framesPerSecond(qint64 interval) {
    return std::max(1, static_cast<int>(MillisecondsPerSecond / std::max<qint64>(1, interval)));
}

std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const VideoRequest& request) {
    return std::make_unique<VideoJob>(workspace, request);
}

}  // namespace nubivane
