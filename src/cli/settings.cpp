// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"

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
    return told(context.workspace.settings.SaveSetting(words[0], words[1], words[2], words[3]));
}

int runSettingsDelete(CommandContext& context) {
    const QStringList& words = context.arguments;
    return told(context.workspace.settings.DeleteSetting(words[0], words[1], words[2]));
}

}  // namespace nubivane
