// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/command.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace nubivane {

/// A command line taken apart.
struct Arguments {
    enum class Request { Run, Help, Version };

    Request request = Request::Run;
    std::optional<QString> programFolder;  ///< host path
    std::optional<QString> settingsFile;   ///< host path
    const Command* command = nullptr;
    QStringList arguments;
    QHash<QString, QString> options;
};

/// Takes a command line (without the program's name) apart. On wrong usage `error` says what is
/// wrong and nothing is returned.
std::optional<Arguments> parseArguments(const QStringList& words, QString& error);

/// The help text, made from the table of commands.
QString helpText();

}  // namespace nubivane
