// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/collections/frm_collection_pane.h"

#include <QDialog>

#include <optional>

namespace nubivane {

/// The picker of a symbol.
class frmSymbolSelection : public QDialog {
    Q_OBJECT

  public:
    frmSymbolSelection(Workspace& workspace, AnimationCache& animations, Shell& shell,
                       QWidget* parent);

    /// What the window was left with: the path of the symbol chosen, an empty text by Close,
    /// nothing by Escape.
    const std::optional<QString>& FileName() const { return FileName_; }

    CollectionPane& pane() { return *pane_; }

    void accept() override;

  private:
    Shell& shell_;
    CollectionPane* pane_;
    std::optional<QString> FileName_;
};

}  // namespace nubivane
