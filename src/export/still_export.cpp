#include "export/still_export.h"

#include "core/error.h"
#include "core/host_files.h"
#include "export/export_stage.h"
#include "export/export_watcher.h"
#include "picture/image_codec.h"

#include <QStringList>

namespace nubivane {

namespace {

/// Exactly three characters count, so "jpeg" and "tiff" are no formats here.
PictureFormat formatOf(const QString& path) {
    const QString end = path.right(3).toLower();
    static const QStringList known{"bmp", "gif", "jpg", "png", "tif"};
    if (!known.contains(end)) {
        throw Error(error_number::UnsupportedFormat, "DoSaveMap", "Unsupported format",
                    "the name \"" + path + "\" ends in none of " + known.join(", "));
    }
    return formatOfExtension(end);
}

}  // namespace

void saveMapFile(Workspace& workspace, qint32 frame, const QString& path, ExportWatcher& watcher) {
    ExportStage stage(workspace);
    saveMapFile(stage, frame, path, watcher);
}

void saveMapFile(ExportStage& stage, qint32 frame, const QString& path, ExportWatcher& watcher) {
    watcher.setProgress(45);
    stage.loadMap(frame);
    stage.loadStageSprites(frame);
    const QImage picture = stage.grabStage(0);
    watcher.setProgress(70);
    const QByteArray bytes = encodePicture(picture, formatOf(path));
    host_files::writeHostFile(host_files::toHost(path), bytes);
    watcher.setProgress(90);
    watcher.setProgress(100);
}

}  // namespace nubivane
