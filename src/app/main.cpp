// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/settings_store.h"
#include "engine/core/version.h"
#include "windows/desktop/command_line.h"
#include "windows/desktop/desktop_shell.h"
#include "windows/desktop/frm_splash.h"
#include "windows/desktop/help_key.h"
#include "windows/desktop/screen_size.h"
#include "windows/desktop/single_instance.h"
#include "windows/main/frm_map.h"
#include "windows/main/startup.h"
#include "windows/widgets/icons.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QScreen>

using namespace nubivane;

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(ProgramTitle);
    QApplication::setApplicationVersion(Version);
    QApplication::setDesktopFileName("nubivane");
    QApplication::setWindowIcon(programIcon("nubivane"));
    QApplication::setQuitOnLastWindowClosed(false);

    const ProgramFolder folder = ProgramFolder::ofThisProgram();
    SingleInstance instance(folder.path());
    if (!instance.isFirst()) {
        return 0;
    }
    DesktopShell shell;
    const QScreen& primary = *QGuiApplication::primaryScreen();
    if (!screenSuffices(shell, (QSizeF(primary.size()) * primary.devicePixelRatio()).toSize())) {
        return 0;
    }
    QString project = projectArgument(QApplication::arguments().mid(1));
    if (!project.isEmpty()) {
        if (!isStartableProject(project)) {
            prepareFolders(folder);  // as every start does
            shell.messageBox({notStartableText(project), Icon::Critical, Buttons::Ok, {}});
            return 1;
        }
        project = host_files::toModel(QFileInfo(project).absoluteFilePath());
    }
    SettingsStore settings(SettingsStore::standardFile());
    Workspace workspace(folder, settings);
    const HelpKey helpKey(workspace, shell);
    frmMap window(workspace, shell);
    window.setAttribute(Qt::WA_QuitOnClose);
    shell.setProgressBar(window.pBarMain());
    instance.raised = [&window] {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
        window.raise();
        window.activateWindow();
    };

    frmSplash splash;
    bool started = false;
    splash.init = [&] {
        try {
            window.Init(project);
            started = true;
        } catch (const Error& error) {
            shell.messageBox({"An error occurred while initializing: " + error.description(),
                              Icon::Critical, Buttons::Ok, error.cause()});
        }
    };
    splash.done = [&] {
        if (!started) {
            QApplication::exit(1);
            return;
        }
        QApplication::setQuitOnLastWindowClosed(true);
        window.show();
    };
    shell.setPointer(Pointer::ArrowWithHourglass);
    splash.show();
    return QApplication::exec();
}
