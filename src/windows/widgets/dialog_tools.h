// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QToolBar>

#include <functional>

namespace nubivane {

/// One button of a dialog's tool bar.
struct DialogTool {
    const char* name;  ///< object name of action and button
    const char* icon;
    QString text;           ///< below the icon
    QString hint;           ///< what it does, for the tool tip
    QKeySequence shortcut;  ///< in the whole dialog; may be empty
};

/// A tool bar with words below its icons, whose buttons the keyboard reaches too.
class DialogTools : public QToolBar {
    Q_OBJECT

  public:
    DialogTools(const char* name, const QString& title, QWidget* parent);

    QAction* add(const DialogTool& tool, std::function<void()> handler);
};

/// A field whose text can be marked and copied, not changed.
QLineEdit* readOnlyField(const char* name, QWidget* parent);

}  // namespace nubivane
