// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/console_shell.h"
#include "engine/core/settings_store.h"
#include "engine/model/editor.h"
#include "engine/model/editor_view.h"
#include "engine/model/workspace.h"

#include <QHash>
#include <QStringList>

#include <optional>
#include <span>

namespace nubivane {

/// How a run of nubivane-cli ends.
namespace exit_code {
inline constexpr int Done = 0;
inline constexpr int Failed = 1;
inline constexpr int WrongUsage = 2;
}  // namespace exit_code

/// What a command is given to work with.
struct CommandContext {
    QStringList arguments;            ///< what stands behind the command's name
    QHash<QString, QString> options;  ///< by name, with the dashes
    Workspace& workspace;
    ConsoleShell& shell;

    EditorView noWindow{};

    Editor editor() { return {workspace, shell, noWindow}; }
};

/// An option of a command.
struct CommandOption {
    const char* name;   ///< with its dashes
    const char* value;  ///< what the help calls it; alternatives parted by "|" are the only values,
                        ///< and an empty text means that the option takes none
};

/// One row of the table from which both parsing and help are made.
struct Command {
    const char* name;       ///< one word or two
    const char* arguments;  ///< as the help shows them
    const char* summary;
    int minArguments;
    int maxArguments;
    std::span<const CommandOption> options;
    int (*execute)(CommandContext& context);  ///< returns the exit code; may raise `Error`
    bool drawsText = false;                   ///< needs fonts, which take a while to set up
};

std::span<const Command> commands();

// One file for each.
int runShow(CommandContext& context);
int runSave(CommandContext& context);
int runPage(CommandContext& context);
int runPlan(CommandContext& context);
int runUpload(CommandContext& context);
int runStill(CommandContext& context);
int runAniGif(CommandContext& context);
int runFilm(CommandContext& context);
int runAvi(CommandContext& context);
int runMp4(CommandContext& context);
int runPrint(CommandContext& context);
int runVersions(CommandContext& context);
int runVersion(CommandContext& context);
int runRecovered(CommandContext& context);
int runRecover(CommandContext& context);
int runSettingsGet(CommandContext& context);
int runSettingsSet(CommandContext& context);
int runSettingsDelete(CommandContext& context);

/// Opens the project that a command names (host path). Raises `Error` with the text that the
/// editor shows when it is started with such a file. `mapsFolder` as in `OpenProject`.
void openNamedProject(CommandContext& context, const QString& hostFile,
                      const std::optional<QString>& mapsFolder = std::nullopt);

/// The model's form of a host path given on the command line.
QString modelPath(const QString& hostPath);

}  // namespace nubivane
