// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/c_upload.h"

#include <QStringList>

namespace nubivane::testing {

/// The text that a run shows when one command of its conversation fails for good: that of the
/// step it belongs to, or of the next that has to succeed. Empty when nothing more has to. No file
/// may fail by a lost connection.
inline QString textAfter(const UploadPlan& plan, const QStringList& conversation, int failing,
                         bool lost = false) {
    std::size_t step = 0;
    bool begun = false;
    for (int i = 0; i < failing; ++i) {
        const QString verb = conversation[i].section(u' ', 0, 0);
        begun = begun || verb == u"MKD";
        const bool ends = verb == u"MKD" || verb == u"CWD" || verb == u"STOR";
        step += begun && ends ? 1 : 0;
    }
    if (!begun && !conversation[failing].startsWith("MKD")) {
        return "Unable to establish a connection to the remote server";
    }
    const auto mayFail = [&](const cUpload& next) {
        return !next.ErrorCauseStop && !(lost && next.Command == u"UPLOAD");
    };
    while (step < plan.size() && mayFail(plan[step])) {
        ++step;
    }
    if (step == plan.size()) {
        return {};
    }
    return plan[step].Command == u"CHDIR"
               ? "Cannot find " + plan[step].Param1 + " folder"
               : "Cannot upload " + QString(plan[step].Param1).replace('\\', '/') + " file";
}

}  // namespace nubivane::testing
