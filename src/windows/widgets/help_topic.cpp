// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/help_topic.h"

#include "engine/core/host_files.h"
#include "engine/core/shell.h"
#include "engine/model/workspace.h"

#include <QCoreApplication>
#include <QHash>

namespace nubivane {

using namespace Qt::StringLiterals;

void openHelpTopic(const Workspace& workspace, Shell& shell, const QString& topic,
                   const QString& notFound) {
    const QString file = host_files::toHost(workspace.folder.entry(u"Help\\Nubivane.chm"_s));
    if (!shell.openHelp(file, topic)) {
        shell.messageBox({notFound.isEmpty()
                              ? QCoreApplication::translate("nubivane::Help", "Help not found.")
                              : notFound,
                          Icon::Critical,
                          Buttons::Ok,
                          {}});
    }
}

QString helpTopicOf(const QString& window) {
    static const QHash<QString, QString> topics = {
        {u"frmMap"_s, u"index.htm"_s},
        {u"frmLabelProperty"_s, u"LabelProperties.htm"_s},
        {u"frmSymbolProperty"_s, u"SymbolProperties.htm"_s},
        {u"frmFrameProperty"_s, u"MapProperties.htm"_s},
        {u"frmFramePropertyDetail"_s, u"ForecastText.htm"_s},
        {u"frmFont"_s, u"Font.htm"_s},
        {u"frmUtility"_s, u"CopySpecial.htm"_s},
        {u"frmDrawAction"_s, u"Drawing.htm"_s},
        {u"frmSymbolSelection"_s, u"SymbolSelection.htm"_s},
        {u"frmSymbolsCollection"_s, u"SymbolCollections.htm"_s},
        {u"frmMapsCollection"_s, u"MapSelection.htm"_s},
        {u"frmVersions"_s, u"Versions.htm"_s},
        {u"frmHistory"_s, u"Undo.htm"_s},
        {u"frmPageSetting"_s, u"PageSettings.htm"_s},
        {u"frmFtp"_s, u"ftpSettings.htm"_s},
        {u"frmSetAniGif"_s, u"exportAniGif.htm"_s},
        {u"frmSetFilm"_s, u"exportAnimation.htm"_s},
        {u"frmSetAvi"_s, u"exportAvi.htm"_s},
        {u"frmBugReport"_s, u"BugReport.htm"_s},
        {u"frmPack"_s, u"SymbolPacks.htm"_s},
        {u"frmAbout"_s, u"About.htm"_s},
    };
    return topics.value(window);
}

}  // namespace nubivane
