#pragma once

#include <QString>

namespace nubivane {

class ExportWatcher;
class Workspace;

/// Writes a Frame as one image file, in the format that the last three characters of the path (in
/// any case) name: bmp, gif, jpg, png or tif. Raises `Error`: `UnsupportedFormat` for another
/// ending, FileAccess and others as they come. Nothing half written is left.
void saveMapFile(Workspace& workspace, qint32 frame, const QString& path, ExportWatcher& watcher);

}  // namespace nubivane
