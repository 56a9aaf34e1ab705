// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/processes.h"

#include <QProcess>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <vector>

namespace nubivane::testing {

/// A resource and how much of it a program may take.
struct Limit {
    __rlimit_resource resource;
    rlim_t amount;
};

/// Runs the command-line program under limits. Passing the file size limit fails the write, as a
/// full disk does, and does not end the program.
inline ProcessResult runLimited(const QStringList& arguments, const std::vector<Limit>& limits) {
    QProcess process;
    process.setChildProcessModifier([&limits] {
        ::signal(SIGXFSZ, SIG_IGN);
        for (const Limit& limit : limits) {
            const rlimit both{limit.amount, limit.amount};
            ::setrlimit(limit.resource, &both);
        }
    });
    process.start(cliProgram(), arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished(60000)) {
        ADD_FAILURE() << process.errorString().toStdString();
        process.kill();
        process.waitForFinished();
    }
    ProcessResult result;
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.out = process.readAllStandardOutput();
    result.err = process.readAllStandardError();
    return result;
}

}  // namespace nubivane::testing
