// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/editor.h"

#include <QString>

#include <functional>

namespace nubivane {

class Commands;

/// New, open, save and save as, and the page commands, with what their windows show of failures.
class ProjectCommands {
  public:
    ProjectCommands(Editor editor, Commands& commands);

    /// Opens a file (path with backslashes), or asks for one when the path is empty.
    void open(const QString& file);

    /// Ends the program after a failure from which there is no way on.
    std::function<void()> terminate;
    /// A page (host path) was made.
    std::function<void(const QString&)> pageMade;

  private:
    void createNew();
    void create();
    void save(bool saveAs);

    void saveSite();

    Editor editor_;
    QString siteFolder_;  ///< path text; empty until one was saved
};

}  // namespace nubivane
