// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/workspace.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/model/edits/project_edits.h"

#include <utility>

namespace nubivane {

Workspace::Workspace(ProgramFolder folderOfProgram, SettingsStore& store)
    : folder(std::move(folderOfProgram)),
      settings(store),
      edits_(std::make_unique<ProjectEdits>(*this)) {
    resetProject();
    clearTempPicture();
}

Workspace::~Workspace() = default;

void Workspace::resetProject() {
    Project = std::make_unique<cWrapper>();
    Project->Frames().Add();
    edits_->clear();
}

void Workspace::clearTempPicture() {
    pctPanel.reset(Frames().Count());
}

void Workspace::storeCurrentFrame() {
    const Picture image = pctMap.image();
    if (!image.isEmpty()) {
        pctPanel.setPicture(Status.CurrentFrame, image);
    }
}

void Workspace::showFrame(qint32 frame) {
    Status.CurrentFrame = static_cast<qint16>(frame);
    Picture picture = pctPanel.picture(frame);
    if (picture.isEmpty()) {
        try {
            picture = loadCurrentMap();
        } catch (const Error&) {
            picture = pctMap.image();
        }
    }
    pctMap.setPicture(picture);
}

void Workspace::fillPanels() {
    // After a project that could be read only in part there may be fewer panels than Frames.
    pctPanel.resize(Frames().Count());
    Picture map;
    for (qint32 i = 1; i <= pctPanel.Count(); ++i) {
        if (pctPanel.picture(i).isEmpty()) {
            if (map.isEmpty()) {
                map = loadCurrentMap();
            }
            pctPanel.setPicture(i, map);
        }
    }
}

Picture Workspace::loadCurrentMap() const {
    return Picture::fromEncoded(host_files::read(Status.CurrentMap, MaxPictureBytes));
}

}  // namespace nubivane
