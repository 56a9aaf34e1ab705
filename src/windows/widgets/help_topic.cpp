// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/help_topic.h"

#include "engine/core/host_files.h"
#include "engine/core/shell.h"
#include "engine/model/workspace.h"

#include <QHash>

namespace nubivane {

void openHelpTopic(const Workspace& workspace, Shell& shell, const QString& topic,
                   const QString& notFound) {
    const QString file = host_files::toHost(workspace.folder.entry("Help\\Nubivane.chm"));
    if (!shell.openHelp(file, topic)) {
        shell.messageBox({notFound, Icon::Critical, Buttons::Ok, {}});
    }
}

QString helpTopicOf(const QString& window) {
    static const QHash<QString, QString> topics = {
        {"frmMap", "index.htm"},
        {"frmLabelProperty", "LabelProperties.htm"},
        {"frmSymbolProperty", "SymbolProperties.htm"},
        {"frmFrameProperty", "MapProperties.htm"},
        {"frmFramePropertyDetail", "ForecastText.htm"},
        {"frmFont", "Font.htm"},
        {"frmUtility", "CopySpecial.htm"},
        {"frmDrawAction", "Drawing.htm"},
        {"frmSymbolSelection", "SymbolSelection.htm"},
        {"frmSymbolsCollection", "SymbolCollections.htm"},
        {"frmMapsCollection", "MapSelection.htm"},
        {"frmPageSetting", "PageSettings.htm"},
        {"frmFtp", "ftpSettings.htm"},
        {"frmSetAniGif", "exportAniGif.htm"},
        {"frmSetFilm", "exportAnimation.htm"},
        {"frmSetAvi", "exportAvi.htm"},
        {"frmBugReport", "BugReport.htm"},
        {"frmPack", "SymbolPacks.htm"},
        {"frmAbout", "About.htm"},
    };
    return topics.value(window);
}

}  // namespace nubivane
