// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"

#include <QString>

namespace nubivane {

/// The publisher's servers and addresses. What the build was not given is empty, and a service
/// without its server cannot connect.
struct Publisher {
    FtpServer reports;
    FtpServer packs;
    FtpServer versions;
    QString downloadHost;    ///< web server of the installers
    QString webAddress;      ///< URL shown in the About box
    QString supportAddress;  ///< e-mail address shown there

    /// Those that this program was built with.
    static Publisher ofThisBuild();
};

}  // namespace nubivane
