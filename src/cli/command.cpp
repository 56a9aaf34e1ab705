#include "cli/command.h"

#include "core/error.h"
#include "core/host_files.h"
#include "project/open_project.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace nubivane {

namespace {

constexpr std::array pageOptions = {CommandOption{"--type", "1|2|3|4"}};
constexpr std::array planOptions = {CommandOption{"--symbols", ""}, CommandOption{"--maps", ""},
                                    CommandOption{"--html-page", ""}};
constexpr std::array uploadOptions = {
    CommandOption{"--initialize", ""}, CommandOption{"--host", "H"}, CommandOption{"--port", "P"},
    CommandOption{"--user", "U"}, CommandOption{"--password-file", "F"}};

constexpr std::array table = {
    Command{"show", "PROJECT", "print the project as one JSON object", 1, 1, {}, runShow},
    Command{"save",
            "PROJECT [TARGET.nvpf]",
            "open the project and save it, as TARGET if given",
            1,
            2,
            {},
            runSave},
    Command{"page", "PROJECT",
            "make the web page (1 buttons, 2 extended view, 3 time interval, 4 slider;\n"
            "      without --type the setting decides) and print the files written",
            1, 1, pageOptions, runPage},
    Command{"plan", "PROJECT",
            "print the steps that an upload of these groups takes, one a line: command,\n"
            "      two parameters, and 1 where a failure ends the upload, parted by tabs",
            1, 1, planOptions, runPlan},
    Command{"upload", "PROJECT",
            "send the groups of files chosen in the settings, or all with --initialize;\n"
            "      the other options stand in for the settings, and for port 21",
            1, 1, uploadOptions, runUpload},
    Command{
        "settings get", "SECTION GROUP KEY [DEFAULT]", "print a setting", 3, 4, {}, runSettingsGet},
    Command{"settings set", "SECTION GROUP KEY VALUE", "store a setting", 4, 4, {}, runSettingsSet},
    Command{
        "settings delete", "SECTION GROUP KEY", "remove a setting", 3, 3, {}, runSettingsDelete},
};

}  // namespace

std::span<const Command> commands() {
    return table;
}

QString modelPath(const QString& hostPath) {
    return host_files::toModel(QDir::cleanPath(QFileInfo(hostPath).absoluteFilePath()));
}

void openNamedProject(CommandContext& context, const QString& hostFile) {
    if (!QFileInfo(hostFile).isFile()) {
        throw Error(error_number::FileNotFound, "command line",
                    hostFile +
                        ".\rThis is not a valid Nubivane file, or its format is not "
                        "currently supported.",
                    "there is no such file");
    }
    OpenProject(context.editor(), modelPath(hostFile));
}

}  // namespace nubivane
