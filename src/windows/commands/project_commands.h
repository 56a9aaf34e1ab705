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

  private:
    void createNew();
    void save(bool saveAs);

    Editor editor_;
};

}  // namespace nubivane
