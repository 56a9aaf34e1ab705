// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_copies.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/picture_limits.h"
#include "engine/core/settings_store.h"
#include "engine/model/workspace.h"
#include "engine/web/site_folder.h"

#include <QSet>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

void copyFile(const QString& path, const QString& name, SiteFolder& site) {
    if (host_files::fileExists(path)) {
        site.write(name, host_files::read(path, MaxPictureBytes));
    }
}

}  // namespace

void copyPictures(const Workspace& workspace, SiteFolder& site) {
    QSet<QString> copied;
    for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
        for (const cSymbol& symbol : workspace.Frames().Item(i).Sprites().Symbols()) {
            const QString folder = getFileName(getFolder(symbol.FileGif));
            const QString file = getFileName(symbol.FileGif);
            const QString name = u"Symbols/"_s + folder + u'/' + file;
            if (host_files::isPlainName(folder) && host_files::isPlainName(file) &&
                !copied.contains(name)) {
                copied.insert(name);
                copyFile(symbol.FileGif, name, site);
            }
        }
    }
    const QString back = workspace.settings.text(Setting::PageBackpicture);
    if (!trimBlanks(back).isEmpty() && host_files::isPlainName(getFileName(back))) {
        copyFile(back, getFileName(back), site);
    }
}

}  // namespace nubivane
