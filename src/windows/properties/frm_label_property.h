// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/properties/font_rows.h"
#include "windows/properties/position_rows.h"
#include "windows/properties/property_dialog.h"

namespace nubivane {

/// The properties of the Label that is selected on the map.
class frmLabelProperty : public PropertyDialog {
    Q_OBJECT

  public:
    frmLabelProperty(Workspace& workspace, Shell& shell, SpriteOnMap& control, QWidget* parent);

    /// Shows the selected Label and waits until the dialog closes; nothing without one.
    void Init();

  protected:
    void closing(QWidget* active) override;

  private:
    void fill();
    cLabel label() const;
    template <class Mutate>
    void change(const char* name, const QString& series, Mutate mutate);
    void refreshSize(const char* name, const QString& series);
    void connectCommits();
    bool commitText(const QString& text);
    void commitBackColor();
    void commitBorder();
    void fontChanged();

    SpriteOnMap& control_;
    SpriteId id_;
    FontRows font_;
    comboColor* cboBackcolor_;
    comboEx* cboBorder_;
    comboColor* cboBorderColor_;
    CheckedField* txtText_;
    PositionRows position_;
    TextField* txtNote_;
};

}  // namespace nubivane
