// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/gif_export.h"

#include "engine/export/capture_plan.h"
#include "engine/export/export_stage.h"
#include "engine/export/export_watcher.h"
#include "engine/export/gif_file.h"

#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr double MillisecondsPerHundredth = 10;

class AniGifJob : public ExportJob {
  public:
    AniGifJob(const Workspace& workspace, const AniGifRequest& request)
        : request_(request), frame_(contentOf(workspace, request.frame)) {}

    void load() override {
        checkGifSize(stage_.mapOf(frame_).size());
        stage_.loadMap(frame_);
        stage_.loadStageSprites(frame_);
        plan_ = planGif(stage_.timing(), request_.compression);
    }

    void save(ExportWatcher& watcher) override {
        remarkMissingLetters(frame_, watcher);
        watcher.setCaption(u" Creating frames - step 1 of 4"_s);
        FrameList list;
        for (qint64 i = 0; i < plan_.count(); ++i) {
            const qint64 time = i * plan_.interval;
            list.push_back({static_cast<double>(plan_.interval) / MillisecondsPerHundredth,
                            stage_.size(), [this, time] { return stage_.capture(time); }});
        }
        const auto captured = [&](int done, int) {
            const qint64 elapsed = (done - 1) * plan_.interval;
            if (elapsed < plan_.longestLoop) {
                watcher.setProgress(
                    static_cast<int>(elapsed * ProgressOfCaptures / plan_.longestLoop));
            }
            watcher.working();
        };
        writeGif(std::move(list), request_.GifFileName, request_.quality, captured, watcher);
    }

  private:
    AniGifRequest request_;
    FrameContent frame_;
    ExportStage stage_;
    CapturePlan plan_{};
};

}  // namespace

std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const AniGifRequest& request) {
    return std::make_unique<AniGifJob>(workspace, request);
}

}  // namespace nubivane
