// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/still_export.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/export/export_stage.h"
#include "engine/export/export_watcher.h"
#include "engine/picture/image_codec.h"
#include "engine/picture/jpeg_encoder.h"

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

/// Coloured letters on a JPEG need colour as fine as brightness; the pages' maps have always done
/// without, and their bytes are kept.
QByteArray encoded(const QImage& picture, PictureFormat format) {
    return format == PictureFormat::Jpeg ? encodeJpegWithFullColor(picture, JpegQuality)
                                         : encodePicture(picture, format);
}

/// Writes what stands on a stage.
void writeStage(const ExportStage& stage, const QString& path, ExportWatcher& watcher) {
    watcher.setProgress(45);
    const QImage picture = stage.grabStage(0);
    watcher.showStage(picture);
    watcher.setProgress(70);
    const QByteArray bytes = encoded(picture, formatOf(path));
    host_files::writeHostFile(host_files::toHost(path), bytes);
    watcher.setProgress(90);
    watcher.setProgress(100);
}

class MapFileJob : public ExportJob {
  public:
    MapFileJob(FrameContent frame, const QString& path) : frame_(std::move(frame)), path_(path) {}

    void load() override {
        stage_.loadMap(frame_);
        stage_.loadStageSprites(frame_);
    }

    void save(ExportWatcher& watcher) override {
        remarkMissingLetters(frame_, watcher);
        writeStage(stage_, path_, watcher);
    }

  private:
    FrameContent frame_;
    QString path_;
    ExportStage stage_;
};

}  // namespace

std::unique_ptr<ExportJob> mapFileJob(FrameContent frame, const QString& path) {
    return std::make_unique<MapFileJob>(std::move(frame), path);
}

void saveMapFile(Workspace& workspace, qint32 frame, const QString& path, ExportWatcher& watcher) {
    runExport(*mapFileJob(contentOf(workspace, frame), path), watcher);
}

void saveMapFile(ExportStage& stage, const FrameContent& frame, const QString& path,
                 ExportWatcher& watcher) {
    stage.loadMap(frame);
    stage.loadStageSprites(frame);
    remarkMissingLetters(frame, watcher);
    writeStage(stage, path, watcher);
}

}  // namespace nubivane
