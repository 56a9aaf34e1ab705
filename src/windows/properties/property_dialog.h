// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QDialog>

#include <functional>

namespace nubivane {

class WindowPlace;
class PropertyGrid;
class Shell;

/// What the property windows share: a grid that commits at once, no OK button, Esc to close, and a
/// place on the screen that they remember together.
class PropertyDialog : public QDialog {
    Q_OBJECT

  public:
    PropertyDialog(const char* name, const QString& heading, Workspace& workspace, Shell& shell,
                   QWidget* parent);

  protected:
    /// Has the rows filled, nothing of which is a commit, gives the keyboard to the field for which
    /// most people come, and waits until the dialog closes.
    void run(const std::function<void()>& fill, QWidget* first);

    /// The commit flag: false while rows are filled and once the dialog is closing.
    bool committing() const { return committing_; }

    /// What a closing dialog does with the field that has the keyboard.
    virtual void closing(QWidget*) {}

    void done(int result) override;

    Workspace& workspace_;
    Shell& shell_;
    PropertyGrid* grid_;

  private:
    void restorePlace();
    void storePlace();

    WindowPlace* place_;
    bool committing_ = false;
};

}  // namespace nubivane
