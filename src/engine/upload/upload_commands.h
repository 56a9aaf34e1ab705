// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/upload_run.h"

namespace nubivane {

/// The two commands that send files, with what they ask and tell before and after.
class UploadCommands {
  public:
    UploadCommands(Editor editor, UploadView& view, FtpOptions options = {});

    /// Sends the groups that the settings choose.
    void mnuInvia();
    /// The first, full transfer.
    void mnuInitialize();

    UploadRun& run() { return run_; }

  private:
    bool ready();

    Editor editor_;
    UploadView& view_;
    UploadRun run_;
};

/// What the user is told of missing settings, and the tab that holds them.
QString textOf(FtpCheck check);
FtpTab tabOf(FtpCheck check);

/// Notes that the server holds all files: nothing is sent again until it is chosen anew.
void rememberInitialized(SettingsStore& store);

}  // namespace nubivane
