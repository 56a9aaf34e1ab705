// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/properties/position_rows.h"
#include "windows/properties/property_dialog.h"

namespace nubivane {

/// The properties of the Symbol that is selected on the map.
class frmSymbolProperty : public PropertyDialog {
    Q_OBJECT

  public:
    frmSymbolProperty(Workspace& workspace, Shell& shell, SpriteOnMap& control, QWidget* parent);

    /// Shows the selected Symbol and waits until the dialog closes; nothing without one.
    void Init();

    /// The file (path with backslashes) chosen by `openSymbolSelection`; empty for none.
    void setSelectedSymbol(const QString& path) { SelectedSymbol_ = path; }

    /// Lets the person choose a symbol and hands it to `setSelectedSymbol`.
    std::function<void(frmSymbolProperty&)> openSymbolSelection;

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
    SpriteId id_;
    QString SelectedSymbol_;
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
