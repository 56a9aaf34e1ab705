#include "widgets/help_topic.h"

#include "core/host_files.h"
#include "core/shell.h"
#include "model/workspace.h"

namespace nubivane {

void openHelpTopic(const Workspace& workspace, Shell& shell, const QString& topic,
                   const QString& notFound) {
    for (const QString& name : {topic, QStringLiteral("Nubivane.chm")}) {
        const QString file = workspace.folder.entry("Help\\" + name);
        if (host_files::fileExists(file)) {
            shell.openInBrowser(host_files::toHost(file));
            return;
        }
    }
    shell.messageBox({notFound, Icon::Critical, Buttons::Ok, {}});
}

}  // namespace nubivane
