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
#include "windows/main/safekeeping.h"
#include "windows/main/startup.h"
#include "windows/widgets/icons.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QScreen>

#include <iostream>
#include <optional>

using namespace nubivane;
using namespace Qt::StringLiterals;

namespace {

/// Without a display there is nobody to be shown anything: the two questions that a terminal may
/// ask are answered there. On a display every argument is a file's path.
std::optional<int> answerWithoutDisplay(const QStringList& arguments) {
    const bool hasDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
        qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || arguments.contains("-platform"_L1);
    if (hasDisplay) {
        return std::nullopt;
    }
    const QString argument = arguments.value(0);
    if (argument == u"--version" || argument == u"-V") {
        std::cout << ProgramTitle.data() << ' ' << Version.data() << '\n';
        return 0;
    }
    if (argument == u"--help" || argument == u"-h") {
        std::cout << "usage: Nubivane [PROJECT.nvpf]\n\n"
                     "Opens the editor, which needs a display, with a project.\n"
                     "The same work for scripts, without a display: nubivane-cli --help\n";
        return 0;
    }
    std::cerr << "Nubivane: there is no display to open the editor on; nubivane-cli needs none.\n";
    return 1;
}

QString failureText(const Error& error) {
    return QCoreApplication::translate("nubivane::Start",
                                       "An error occurred while initializing: %1")
        .arg(error.description());
}

/// Raises `Error` where there is no folder to work in.
int runEditor() {
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
    QObject::connect(&instance, &SingleInstance::raised, &window, [&window] {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
        window.raise();
        window.activateWindow();
    });

    Safekeeping safekeeping(window, workspace, RecoveryCopy::folderOfUser());

    frmSplash splash;
    bool started = false;
    QObject::connect(&splash, &frmSplash::init, &splash, [&] {
        try {
            window.Init(project);
            started = true;
        } catch (const Error& error) {
            shell.messageBox({failureText(error), Icon::Critical, Buttons::Ok, error.cause()});
        }
    });
    QObject::connect(&splash, &frmSplash::done, &splash, [&] {
        if (!started) {
            QApplication::exit(1);
            return;
        }
        QApplication::setQuitOnLastWindowClosed(true);
        window.show();
        safekeeping.offer();
    });
    shell.setPointer(Pointer::ArrowWithHourglass);
    splash.show();
    const int code = QApplication::exec();
    safekeeping.close();
    return code;
}

}  // namespace

int main(int argc, char* argv[]) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    if (const auto answered = answerWithoutDisplay(arguments)) {
        return *answered;
    }
    const QApplication application(argc, argv);
    QApplication::setApplicationName(ProgramTitle);
    QApplication::setApplicationVersion(Version);
    QApplication::setDesktopFileName(u"nubivane"_s);
    QApplication::setWindowIcon(programIcon(u"nubivane"_s));
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        return runEditor();
    } catch (const Error& error) {
        DesktopShell().messageBox({failureText(error), Icon::Critical, Buttons::Ok, error.cause()});
        return 1;
    }
}
