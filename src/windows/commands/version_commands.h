// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/history/version_store.h"

#include <QCoreApplication>

class QWidget;

namespace nubivane {

class Commands;
class ProjectCommands;
class Shell;
class Workspace;
class frmVersions;

/// "Earlier versions...": what was kept of the project that is open.
class VersionCommands {
    Q_DECLARE_TR_FUNCTIONS(nubivane::VersionCommands)

  public:
    VersionCommands(Workspace& workspace, Shell& shell, ProjectCommands& projects,
                    Commands& commands, QWidget* window);

  private:
    void show();
    void compare(frmVersions& window, const KeptVersion& version);
    bool open(const KeptVersion& version);
    void save(const KeptVersion& version);
    void tellFailure(const QString& text, const class Error& error);

    Workspace& workspace_;
    Shell& shell_;
    ProjectCommands& projects_;
    QWidget* window_;
};

}  // namespace nubivane
