// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/file_state.h"
#include "engine/model/editor.h"

#include <QObject>
#include <QString>

#include <optional>

namespace nubivane {

class Commands;

/// New, open, save and save as, and the page commands, with what their windows show of failures.
class ProjectCommands : public QObject {
    Q_OBJECT

  public:
    ProjectCommands(Editor editor, Commands& commands);

    /// Opens a file (path with backslashes), or asks for one when the path is empty.
    void open(const QString& file);

    /// Where unsaved work belongs: nothing for a new project.
    struct Origin {
        QString project;                  ///< path text
        std::optional<PairState> opened;  ///< how its files stood when the work began
    };
    /// Opens a copy (path text) as work that nobody has saved. The copy is not needed afterwards.
    /// False when it was not opened, which the person has been told.
    bool openUnsaved(const QString& copy, const Origin& origin);

  Q_SIGNALS:
    /// After a failure there is no way on: the program has to end.
    void terminate();
    /// A page (host path) was made.
    void pageMade(const QString& page);

  private:
    void createNew();
    void create();
    void save(bool saveAs);

    void saveSite();

    Editor editor_;
    QString siteFolder_;  ///< path text; empty until one was saved
};

}  // namespace nubivane
