// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/project/open_project.h"
#include "engine/project/project_paths.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array stillOptions = {CommandOption{"--format", "bmp|gif|jpg|png|tif"}};
constexpr std::array pageOptions = {CommandOption{"--type", "1|2|3|4|5"},
                                    CommandOption{"--into", "DIR"}};
constexpr std::array planOptions = {CommandOption{"--symbols", ""}, CommandOption{"--maps", ""},
                                    CommandOption{"--html-page", ""}, CommandOption{"--bytes", ""},
                                    CommandOption{"--all", ""}};
constexpr std::array uploadOptions = {CommandOption{"--initialize", ""},
                                      CommandOption{"--all", ""},
                                      CommandOption{"--delete", ""},
                                      CommandOption{"--dry-run", ""},
                                      CommandOption{"--json", ""},
                                      CommandOption{"--verbose", ""},
                                      CommandOption{"--host", "H"},
                                      CommandOption{"--port", "P"},
                                      CommandOption{"--user", "U"},
                                      CommandOption{"--password-file", "F"},
                                      CommandOption{"--encryption", "required|offered|none"},
                                      CommandOption{"--accept-fingerprint", "SHA256"},
                                      CommandOption{"--connections", "N"}};

constexpr std::array listOptions = {CommandOption{"--json", ""}};

constexpr CommandOption compression{"--compression", "1|2|3"};
constexpr CommandOption fine{"--fine", ""};
constexpr std::array aniGifOptions = {compression, fine};
constexpr std::array videoOptions = {CommandOption{"--width", "W"}, CommandOption{"--height", "H"},
                                     compression};
constexpr std::array filmOptions = {CommandOption{"--interval", "HUNDREDTHS"},
                                    CommandOption{"--from", "FRAME"}, fine};

constexpr std::array table = {
    Command{"show", "PROJECT", "print the project as one JSON object", 1, 1, {}, runShow},
    Command{"save",
            "PROJECT [TARGET.nvpf]",
            "open the project and save it, as TARGET if given",
            1,
            2,
            {},
            runSave},
    Command{"versions", "PROJECT",
            "list the states that were kept before each save, the newest first: number,\n"
            "      time, cause, Frames and sprites, parted by tabs, or with --json as JSON",
            1, 1, listOptions, runVersions},
    Command{"version",
            "PROJECT N TARGET.nvpf",
            "write version N of a project as TARGET",
            3,
            3,
            {},
            runVersion},
    Command{"recovered", "",
            "list what editors that run or crashed have open unsaved, the newest\n"
            "      first: number, project, time, \"crashed\" or \"open\", parted by tabs, or\n"
            "      with --json as JSON",
            0, 0, listOptions, runRecovered},
    Command{
        "recover", "N TARGET.nvpf", "write entry N of that list as TARGET", 2, 2, {}, runRecover},
    Command{"page", "PROJECT",
            "make the web page (1 buttons, 2 extended view, 3 time interval, 4 slider,\n"
            "      5 responsive; without --type the setting decides) and print the files\n"
            "      written; --into makes a site of its own in DIR, with all that it shows",
            1, 1, pageOptions, runPage, true},
    Command{"plan", "PROJECT",
            "print the steps that an upload of these groups takes, one a line: command,\n"
            "      two parameters, and 1 where a failure ends the upload, parted by tabs;\n"
            "      with --bytes instead the files that have changed since they were sent,\n"
            "      or with --all each of them, with their bytes",
            1, 1, planOptions, runPlan},
    Command{"upload", "PROJECT",
            "send what has changed of the groups chosen in the settings, or of all with\n"
            "      --initialize; --all sends the rest too, --delete removes what was sent\n"
            "      and is gone here, --dry-run tells what would be done, --json tells each\n"
            "      step on stdout, --verbose the conversation on stderr; the other options\n"
            "      stand in for the settings, and for port 21. H may be sftp://HOST,\n"
            "      file:FOLDER or rclone:REMOTE:FOLDER. A password is taken from F, from\n"
            "      NUBIVANE_PASSWORD, from the settings, or from the desktop's keyring",
            1, 1, uploadOptions, runUpload},
    Command{"still", "PROJECT FRAME FILE",
            "write a Frame as a bmp, gif, jpg, png or tif file and print its name;\n"
            "      FRAME may be \"all\", and FILE then holds %d where its number comes. \"-\"\n"
            "      stands for the standard output, here (as png without --format) and for\n"
            "      anigif, film and print",
            3, 3, stillOptions, runStill, true},
    Command{"anigif", "PROJECT FRAME FILE",
            "write a Frame with its moving symbols as a GIF; --compression leaves out\n"
            "      every second image, or two of three; --fine comes closer to the colours\n"
            "      of maps that have too many, at the cost of bytes and time",
            3, 3, aniGifOptions, runAniGif, true},
    Command{"film", "PROJECT FILE",
            "write all Frames as a GIF, or an MP4 if FILE ends so, one image each, for\n"
            "      100 hundredths of a second without --interval; --from is the Frame whose\n"
            "      symbols stand on the first image; --fine as for anigif",
            2, 2, filmOptions, runFilm, true},
    Command{"avi", "PROJECT FRAME FILE",
            "write a Frame with its moving symbols as an AVI video, as large as its map\n"
            "      without --width and --height; one of them alone keeps the proportions",
            3, 3, videoOptions, runAvi, true},
    Command{"mp4", "PROJECT FRAME FILE", "the same as an MP4 video", 3, 3, videoOptions, runMp4,
            true},
    Command{"print",
            "PROJECT FRAME FILE.pdf",
            "print a Frame, 96 pixels to the inch",
            3,
            3,
            {},
            runPrint,
            true},
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

void openNamedProject(CommandContext& context, const QString& hostFile,
                      const std::optional<QString>& mapsFolder) {
    if (!projectStands(hostFile)) {
        throw Error(error_number::FileNotFound, u"command line"_s,
                    hostFile +
                        u".\rThis is not a valid Nubivane file, or its format is not "_s
                        u"currently supported."_s,
                    u"there is no such file"_s);
    }
    OpenProject(context.editor(), modelPath(hostFile), mapsFolder);
}

}  // namespace nubivane
