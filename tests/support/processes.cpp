// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/processes.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

namespace nubivane::testing {

ProcessResult runProgram(const QString& program, const QStringList& arguments,
                         const QStringList& environment, int timeoutMs) {
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString& setting : environment) {
        variables.insert(setting.section(u'=', 0, 0), setting.section(u'=', 1));
    }
    process.setProcessEnvironment(variables);
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished(timeoutMs)) {
        ADD_FAILURE() << program.toStdString() << ": " << process.errorString().toStdString();
        process.kill();
        process.waitForFinished();
    }
    ProcessResult result;
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.out = process.readAllStandardOutput();
    result.err = process.readAllStandardError();
    return result;
}

QString cliProgram() {
    return QStringLiteral(NUBIVANE_PROGRAM_FOLDER "/nubivane-cli");
}

}  // namespace nubivane::testing
