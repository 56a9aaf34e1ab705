// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/properties/property_dialog.h"
#include "windows/properties/text_line_rows.h"

namespace nubivane {

class Spelling;

/// The texts of the current Frame: title, subtitle and the box around its forecast text.
class frmFrameProperty : public PropertyDialog {
    Q_OBJECT

  public:
    frmFrameProperty(Workspace& workspace, Shell& shell, Spelling& spelling, QWidget* parent);

    /// Shows the current Frame's texts and waits until the dialog closes.
    void Init();

  private:
    void addForecastRows();
    void connectForecast();
    void fillForecast();

    Spelling& spelling_;
    RecordDoor<cDiv> box_;
    std::optional<TextLineRows> title_;
    std::optional<TextLineRows> subtitle_;
    comboColor* cboForecastBackcolor_ = nullptr;
    comboEx* cboForecastBorder_ = nullptr;
    comboColor* cboForecastBorderColor_ = nullptr;
    QToolButton* cmdForecastText_ = nullptr;
};

}  // namespace nubivane
