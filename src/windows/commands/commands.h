// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QHash>
#include <QObject>

#include <functional>
#include <span>

namespace nubivane {

/// One row of the table of commands.
struct CommandRow {
    const char* name;      ///< its control name, also the action's object name
    const char* caption;   ///< with "&" before the access key
    const char* icon;      ///< file name in the icons' folder without extension, or empty
    const char* shortcut;  ///< key sequence, a standard key's name as "@Save", or empty
    const char* hint;      ///< what the tool tip says where the caption is too short; or empty
};

std::span<const CommandRow> commandTable();

/// All commands of the main window: one action each, shared by menu bar, popup menus and toolbars,
/// so that they always agree. A command without a handler is shown disabled.
class Commands : public QObject {
    Q_OBJECT

  public:
    explicit Commands(QObject* parent);

    QAction* operator[](const char* name) const { return action(name); }
    QAction* action(const QString& name) const;

    /// Gives a command its handler; from then on it can be enabled.
    void handle(const char* name, std::function<void()> handler);
    /// Enables or disables a command as far as it has a handler.
    void setEnabled(std::initializer_list<const char*> names, bool enabled);
    void makeCheckable(std::initializer_list<const char*> names);

  private:
    QHash<QString, QAction*> actions_;
    QHash<QString, bool> handled_;
};

}  // namespace nubivane
