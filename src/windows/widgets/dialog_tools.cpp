// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/dialog_tools.h"

#include "windows/widgets/icons.h"

#include <QToolButton>

#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

DialogTools::DialogTools(const char* name, const QString& title, QWidget* parent)
    : QToolBar(title, parent) {
    setObjectName(name);
    setAccessibleName(title);
    setIconSize({24, 24});
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

QAction* DialogTools::add(const DialogTool& tool, std::function<void()> handler) {
    QAction* action = addAction(programIcon(QLatin1String(tool.icon)), tool.hint);
    action->setObjectName(tool.name);
    action->setIconText(tool.text);
    action->setShortcut(tool.shortcut);
    QString hint = tool.hint;
    if (!tool.shortcut.isEmpty()) {
        hint += u" ("_s + tool.shortcut.toString(QKeySequence::NativeText) + u')';
    }
    action->setToolTip(hint);
    connect(action, &QAction::triggered, this, std::move(handler));
    QWidget* button = widgetForAction(action);
    button->setObjectName(tool.name);
    button->setAccessibleName(tool.hint);
    button->setFocusPolicy(Qt::TabFocus);
    return action;
}

QLineEdit* readOnlyField(const char* name, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setReadOnly(true);
    return field;
}

}  // namespace nubivane
