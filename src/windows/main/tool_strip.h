// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/settings_table.h"
#include "windows/commands/commands.h"

#include <QFrame>
#include <QList>
#include <QWidget>

#include <functional>
#include <initializer_list>
#include <optional>

class QAction;
class QToolButton;

namespace nubivane {

class SettingsStore;

/// A bar of buttons with a grip at its left by which it can be dragged inside its strip.
class ToolBar : public QFrame {
    Q_OBJECT

  public:
    struct Button {
        const char* name;  ///< the button's control name
        Command command;   ///< the command it forwards to
    };

    ToolBar(const char* name, const QString& title, std::initializer_list<Button> buttons,
            const Commands& commands, QWidget* parent);

    /// Edge length of the icons in pixels: 16 or 32.
    void setIconSize(int size);

  Q_SIGNALS:
    void moved(QPoint wanted);  ///< while dragged: where its corner wants to be
    void moveFinished();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QList<QToolButton*> buttons_;
    std::optional<QPoint> grabbed_;
};

/// The strip above the map with `StandardBar` and `MapBar`. Remembers which are shown, where they
/// stand and how large their icons are.
class ToolStrip : public QWidget {
    Q_OBJECT

  public:
    ToolStrip(Commands& commands, SettingsStore& settings, QWidget* parent);

    /// Brings bars, icon size and check marks to what the settings say.
    void restore();

    ToolBar* standardBar() const { return standardBar_; }
    ToolBar* mapBar() const { return mapBar_; }

  Q_SIGNALS:
    void heightChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void handleCommands();
    void placeBars();
    void toggle(ToolBar& bar, Command command, Setting setting);
    void useLargeIcons(bool large);
    void resizeBars(int iconSize);
    void setToolbarIcons(int size);
    void arrangeToolbars();
    void moveBar(ToolBar& bar, QPoint wanted);
    void savePlaces();

    Commands& commands_;
    SettingsStore& settings_;
    ToolBar* standardBar_;
    ToolBar* mapBar_;
    bool restored_ = false;
};

}  // namespace nubivane
