// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "engine/core/settings_in_use.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

int told(bool written) {
    if (!written) {
        streams::printError(u"The settings could not be written."_s);
    }
    return written ? exit_code::Done : exit_code::Failed;
}

}  // namespace

int runSettingsGet(CommandContext& context) {
    const QStringList& words = context.arguments;
    const QString value =
        context.workspace.settings.GetSetting(words[0], words[1], words[2], words.value(3));
    return streams::writeResult(value.toUtf8() + '\n') ? exit_code::Done : exit_code::Failed;
}

int runSettingsSet(CommandContext& context) {
    const QStringList& words = context.arguments;
    const int code =
        told(context.workspace.settings.SaveSetting(words[0], words[1], words[2], words[3]));
    if (code == exit_code::Done && !isRead(words[0], words[1], words[2])) {
        streams::printError(
            u"Nothing reads the setting \"%1\" of the group \"%2\" in \"%3\"."_s.arg(
                words[2], words[1], words[0]),
            u"it was stored all the same; the manual lists those that are read"_s);
    }
    return code;
}

int runSettingsDelete(CommandContext& context) {
    const QStringList& words = context.arguments;
    return told(context.workspace.settings.DeleteSetting(words[0], words[1], words[2]));
}

}  // namespace nubivane
