// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QTemporaryDir>

namespace nubivane::testing {

/// Keeps what tests save out of the user's own earlier versions and recovery copies: while it lives
/// this process and its children have a state folder of their own.
class OwnStateFolder {
  public:
    OwnStateFolder() { qputenv("XDG_STATE_HOME", QFile::encodeName(folder_.path())); }

  private:
    QTemporaryDir folder_;
};

}  // namespace nubivane::testing
