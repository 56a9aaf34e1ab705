// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/workspace.h"

#include "engine/core/host_files.h"

#include <utility>

namespace nubivane {

Workspace::Workspace(ProgramFolder folderOfProgram, SettingsStore& store)
    : folder(std::move(folderOfProgram)), settings(store) {
    resetProject();
    clearTempPicture();
}

void Workspace::resetProject() {
    Project = std::make_unique<cWrapper>();
    Frames().Add();
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
