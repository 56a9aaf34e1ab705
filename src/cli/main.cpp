// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/arguments.h"
#include "cli/streams.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/version.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>

#include <clocale>
#include <cstring>
#include <memory>
#include <optional>

#ifdef Q_OS_UNIX
#include <langinfo.h>

using namespace Qt::StringLiterals;
#endif

namespace {

using namespace nubivane;

/// Qt needs a UTF-8 locale and complains on stderr without one; schedulers often run in "C".
void chooseUtf8() {
#ifdef Q_OS_UNIX
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        qputenv("LC_ALL", "C.UTF-8");
    }
#endif
}

/// The words of a command line; nothing when one of them is no UTF-8.
std::optional<QStringList> wordsOf(int argc, char* argv[]) {
    QStringList words;
    for (int i = 1; i < argc; ++i) {
        const QByteArray bytes(argv[i]);
        words += QString::fromUtf8(bytes);
        if (words.last().toUtf8() != bytes) {
            return std::nullopt;
        }
    }
    return words;
}

/// A screen of no display needs no folder for its run either, but Qt would complain of a missing
/// one on stderr, where schedulers see every word.
void dropRuntimeFolderComplaint(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith(QLatin1String("QStandardPaths:"))) {
        streams::writeError(text + u'\n');
    }
}

/// Fonts need an application with a screen; any will do, so it is one that shows nothing.
std::unique_ptr<QCoreApplication> makeApplication(const Arguments& arguments, int& argc,
                                                  char* argv[]) {
    if (!arguments.command->drawsText) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(dropRuntimeFolderComplaint);
    return std::make_unique<QGuiApplication>(argc, argv);
}

ProgramFolder chooseFolder(const Arguments& arguments) {
    if (!arguments.programFolder) {
        return ProgramFolder::ofThisProgram();
    }
    if (!QFileInfo(*arguments.programFolder).isDir()) {
        throw Error(error_number::FileNotFound, u"command line"_s,
                    u"There is no program folder \""_s + *arguments.programFolder + u"\"."_s);
    }
    return ProgramFolder(modelPath(*arguments.programFolder));
}

int run(const Arguments& arguments) {
    ConsoleShell shell;
    try {
        SettingsStore settings(arguments.settingsFile ? *arguments.settingsFile
                                                      : SettingsStore::standardFile());
        if (!settings.setAside().isEmpty()) {
            streams::printError(u"The settings file was damaged. It was renamed to \""_s +
                                settings.setAside() + u"\" and the defaults are used."_s);
        }
        Workspace workspace(chooseFolder(arguments), settings);
        CommandContext context{arguments.arguments, arguments.options, workspace, shell};
        return arguments.command->execute(context);
    } catch (const Error& error) {
        shell.hideProgress();
        streams::printError(error.description(), error.cause());
        return exit_code::Failed;
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    const std::optional<QStringList> words = wordsOf(argc, argv);
    if (!words) {
        streams::printError(u"nubivane-cli: names and texts have to be UTF-8."_s,
                            u"a name that is not would be written as another"_s);
        return exit_code::Failed;
    }
    QString error;
    const auto arguments = parseArguments(*words, error);
    if (!arguments) {
        streams::printUsageError(error);
        return exit_code::WrongUsage;
    }
    switch (arguments->request) {
        case Arguments::Request::Help:
            return streams::writeResult(helpText().toUtf8()) ? exit_code::Done : exit_code::Failed;
        case Arguments::Request::Version:
            return streams::writeResult("Nubivane " + QByteArray(Version.data(), Version.size()) +
                                        '\n')
                       ? exit_code::Done
                       : exit_code::Failed;
        case Arguments::Request::Run:
            break;
    }
    chooseUtf8();
    const auto application = makeApplication(*arguments, argc, argv);
    return run(*arguments);
}
