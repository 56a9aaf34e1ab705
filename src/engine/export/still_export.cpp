// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/still_export.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/export/export_stage.h"
#include "engine/export/export_watcher.h"
#include "engine/export/frame_content.h"
#include "engine/picture/image_ex.h"

#include <QStringList>

#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Exactly three characters count, so "jpeg" and "tiff" are no formats here.
PictureFormat formatOf(const QString& path) {
    const QString end = path.right(3).toLower();
    static const QStringList known{u"bmp"_s, u"gif"_s, u"jpg"_s, u"png"_s, u"tif"_s};
    if (!known.contains(end)) {
        throw Error(error_number::UnsupportedFormat, u"DoSaveMap"_s, u"Unsupported format"_s,
                    u"the name \""_s + host_files::toHost(path) + u"\" ends in none of "_s +
                        known.join(u", "_s));
    }
    return formatOfExtension(end);
}

/// Writes what stands on a stage.
void writeStage(const ExportStage& stage, const QString& path, ExportWatcher& watcher) {
    watcher.setProgress(45);
    const QImage picture = stage.grabStage(0);
    watcher.showStage(picture);
    watcher.setProgress(70);
    ImageEx::SaveImage(picture, path, formatOf(path));
    watcher.setProgress(90);
    watcher.setProgress(100);
}

class StillJob : public ExportJob {
  public:
    StillJob(const Workspace& workspace, const StillRequest& request) {
        for (const StillRequest::File& file : request.files) {
            Still still{contentOf(workspace, file.frame), file.path};
            if (!file.map.isEmpty()) {
                still.frame.drawn = file.map;
            }
            stills_.push_back(std::move(still));
        }
    }

    void load() override {
        if (!stills_.empty()) {
            setStage(stills_.front().frame);
        }
    }

    void save(ExportWatcher& watcher) override {
        for (const Still& still : stills_) {
            if (&still != &stills_.front()) {
                setStage(still.frame);
            }
            remarkMissingLetters(still.frame, watcher);
            writeStage(stage_, still.path, watcher);
        }
    }

  private:
    struct Still {
        FrameContent frame;
        QString path;
    };

    void setStage(const FrameContent& frame) {
        stage_.loadMap(frame);
        stage_.loadStageSprites(frame);
    }

    std::vector<Still> stills_;
    ExportStage stage_;
};

}  // namespace

std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const StillRequest& request) {
    return std::make_unique<StillJob>(workspace, request);
}

}  // namespace nubivane
