// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/dropped_pictures.h"

#include "engine/collections/picture_check.h"
#include "engine/core/host_files.h"

#include <QMimeData>
#include <QUrl>

namespace nubivane {

QStringList droppedPictures(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        const QString file = url.toLocalFile();
        if (file.isEmpty() || !hasPictureExtension(file)) {
            return {};
        }
        paths << host_files::toModel(file);
    }
    return paths;
}

}  // namespace nubivane
