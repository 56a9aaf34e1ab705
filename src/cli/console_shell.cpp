// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/console_shell.h"

#include "cli/streams.h"

namespace nubivane {

using namespace Qt::StringLiterals;

ConsoleShell::ConsoleShell() : terminal_(streams::errorIsTerminal()) {}

Answer ConsoleShell::messageBox(const Message& message) {
    hideProgress();
    if (message.icon == Icon::Exclamation && message.buttons == Buttons::Ok) {
        warnings_ += message.text;
    }
    streams::printError(message.text, message.cause);
    return message.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
}

void ConsoleShell::setProgress(int percent) {
    if (terminal_ && percent != shownPercent_) {
        shownPercent_ = percent;
        streams::writeError(QStringLiteral("\r%1 %").arg(percent, 3));
    }
}

void ConsoleShell::hideProgress() {
    if (shownPercent_ >= 0) {
        shownPercent_ = -1;
        streams::writeError(u"\r      \r"_s);
    }
}

}  // namespace nubivane
