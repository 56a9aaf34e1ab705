// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"

namespace nubivane {

/// Writes a line of a conversation down, if anybody wants it: "> " what we say, "< " what is said.
/// No password may stand in it.
inline void tell(const FtpOptions& options, const QString& line) {
    if (options.log) {
        options.log(line);
    }
}

}  // namespace nubivane
