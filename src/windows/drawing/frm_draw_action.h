// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/widgets/window_place.h"

#include <QDialog>

namespace nubivane {

class SettingsStore;

/// `frmDrawAction`: the small floating window that ends the editing of a figure. It lets the
/// keyboard stay on the map, where Enter and Esc do the same. Closing it by its box means cancel.
class frmDrawAction : public QDialog {
    Q_OBJECT

  public:
    frmDrawAction(SettingsStore& settings, QWidget* owner);

    /// Keeps its place, vanishes and goes as soon as no event of its own is being worked on.
    void unload();

  Q_SIGNALS:
    void applied();
    void cancelled();

  protected:
    void reject() override { Q_EMIT cancelled(); }
    void showEvent(QShowEvent* event) override;

  private:
    void restorePlace();

    SettingsStore& settings_;
    WindowPlace* place_;
    bool placed_ = false;
};

}  // namespace nubivane
