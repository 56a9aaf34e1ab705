#pragma once

#include <QString>

namespace nubivane {

class ExportStage;
class ExportWatcher;
class Workspace;

/// Writes a Frame as one image file, in the format that the last three characters of the path (in
/// any case) name: bmp, gif, jpg, png or tif. Raises `Error`: `UnsupportedFormat` for another
/// ending, FileAccess and others as they come. Nothing half written is left.
void saveMapFile(Workspace& workspace, qint32 frame, const QString& path, ExportWatcher& watcher);

/// The same on a stage that serves for several Frames: what they share is decoded once.
void saveMapFile(ExportStage& stage, qint32 frame, const QString& path, ExportWatcher& watcher);

}  // namespace nubivane
