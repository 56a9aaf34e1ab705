// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/properties/position_rows.h"
#include "windows/properties/property_dialog.h"
#include "windows/properties/symbol_chooser.h"

namespace nubivane {

/// The properties of the Symbol that is selected on the map.
class frmSymbolProperty : public PropertyDialog {
    Q_OBJECT

  public:
    frmSymbolProperty(Workspace& workspace, Shell& shell, SpriteOnMap& control,
                      SymbolChooser chooser, QWidget* parent);

    /// Shows the selected Symbol and waits until the dialog closes; nothing without one.
    void Init();

  protected:
    void closing(QWidget* active) override { position_.closing(active); }

  private:
    void fill();
    cSymbol symbol() const;
    template <class Mutate>
    void change(const char* name, const QString& series, Mutate mutate);
    void connectCommits();
    void chooseSymbol();
    bool commitWidth(const QString& text);
    bool commitHeight(const QString& text);

    SpriteOnMap& control_;
    SymbolChooser chooser_;
    SpriteId id_;
    QString SelectedSymbol_;  ///< the last one chosen; a picker that is shut leaves it
    QLineEdit* txtFilename_;
    QToolButton* cmdSymbol_;
    CheckedField* txtHeight_;
    CheckedField* txtWidth_;
    PositionRows position_;
    TextField* txtLink_;
    TextField* txtTooltip_;
    TextField* txtNote_;
};

}  // namespace nubivane
