// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/work_snapshot.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/replaced_file.h"
#include "engine/history/version_store.h"
#include "engine/model/edits/edit_watcher.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/workspace.h"

namespace nubivane {

namespace {

/// The canvas without a figure that is still being drawn, which a save would wipe as well.
Picture persistentPicture(const MapSurface& surface) {
    return surface.scratchArea().isEmpty() ? surface.image() : Picture(surface.pixels());
}

Picture pictureOf(const Workspace& workspace, qint32 frame) {
    if (frame == workspace.Status.CurrentFrame) {
        const Picture canvas = persistentPicture(workspace.pctMap);
        if (!canvas.isEmpty()) {
            return canvas;
        }
    }
    return workspace.pctPanel.picture(frame);
}

}  // namespace

WorkSnapshot takeSnapshot(const Workspace& workspace) {
    return WorkSnapshots(workspace).take();
}

void WorkSnapshots::note(const ProjectChange& change) {
    if (change.order || change.map) {
        known_.clear();
    }
    for (const qint32 frame : change.frames) {
        if (frame >= 1 && static_cast<std::size_t>(frame) <= known_.size()) {
            known_[static_cast<std::size_t>(frame) - 1].reset();
        }
    }
}

WorkSnapshot WorkSnapshots::take() {
    WorkSnapshot snapshot;
    snapshot.project = workspace_.Status.CurrentProject;
    if (workspace_.opened && workspace_.opened->project == snapshot.project) {
        snapshot.opened = workspace_.opened->state;
    }
    snapshot.mapFile = workspace_.Status.CurrentMap;
    snapshot.time = QDateTime::currentDateTime();
    snapshot.head = headOf(workspace_);
    const qint32 frames = workspace_.Frames().Count();
    known_.resize(static_cast<std::size_t>(frames));
    for (qint32 i = 1; i <= frames; ++i) {
        auto& records = known_[static_cast<std::size_t>(i) - 1];
        if (!records) {
            records = std::make_shared<const FrameRecords>(recordsOf(workspace_.Frames().Item(i)));
        }
        snapshot.frames.push_back({records, pictureOf(workspace_, i)});
    }
    return snapshot;
}

QByteArray writeSnapshot(const WorkSnapshot& snapshot,
                         const std::function<void(const QByteArray&)>& append) {
    const PictureFormat format = formatOfExtension(getExtension(snapshot.mapFile));
    const QByteArray map = host_files::read(snapshot.mapFile, MaxPictureBytes);
    append(map);
    std::vector<qint64> sizes{map.size()};
    std::vector<QByteArray> texts;
    for (const WorkSnapshot::Frame& frame : snapshot.frames) {
        const QByteArray block = frame.picture.isEmpty() ? map : frame.picture.encoded(format);
        append(block);
        sizes.push_back(block.size());
        texts.push_back(frameText(*frame.records));
    }
    return joinDocument(snapshot.head, sizes, texts);
}

void keepUnsavedWork(const Workspace& workspace, VersionCause cause) {
    const auto versions = VersionStore::ofUser(workspace.settings);
    if (!versions || !workspace.edits().isUnsaved()) {
        return;
    }
    try {
        const QString& project = workspace.Status.CurrentProject;
        versions->add(project.isEmpty() ? QString() : behindLinks(host_files::toHost(project)),
                      cause, [&workspace](ReplacedFile& data) {
                          return writeSnapshot(takeSnapshot(workspace),
                                               [&data](const auto& bytes) { data.append(bytes); });
                      });
    } catch (const Error&) {
        // The person has decided to leave it; that stands above keeping it.
    }
}

}  // namespace nubivane
