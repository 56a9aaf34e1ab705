// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

namespace nubivane::testing {

/// How a program ended.
struct ProcessResult {
    int exitCode = -1;  ///< -1 when it was killed or never ran
    QByteArray out;
    QByteArray err;
};

/// Runs a program to its end; after `timeoutMs` it is killed and the test fails.
ProcessResult runProgram(const QString& program, const QStringList& arguments,
                         const QStringList& environment = {}, int timeoutMs = 60000);

/// Host path of the command-line program in the built program folder.
QString cliProgram();

}  // namespace nubivane::testing
