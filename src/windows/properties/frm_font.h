// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/properties/font_object.h"
#include "windows/widgets/combo_color.h"

#include <QDialog>

#include <optional>

class QBoxLayout;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace nubivane {

/// The font dialog. It changes the object it was given when it is closed by OK.
class frmFont : public QDialog {
    Q_OBJECT

  public:
    explicit frmFont(QWidget* parent);

    /// What to choose a font for.
    std::optional<FontObject> oFont;

    /// Shows the object's font and waits until the dialog closes. Does nothing without an object.
    void Init();

  private:
    void buildLists(QBoxLayout& column);
    void buildEffects(QBoxLayout& row);
    void fill(const FontValues& font);
    void connectChanges();
    void refresh();
    FontValues chosen() const;
    void apply();

    QListWidget* lstFont_;
    QListWidget* lstFontStyle_;
    QListWidget* lstFontSize_;
    QLineEdit* txtSelectedFont_;
    QLineEdit* txtSelectedStyle_;
    QLineEdit* txtSelectedSize_;
    QGroupBox* fraEffects_;
    QCheckBox* chkUnderline_;
    QCheckBox* chkOverline_;
    QCheckBox* chkStrikeout_;
    comboColor* cboColor_;
    QLabel* lblSample_;
    FontValues opened_;  ///< what stands where nothing is selected
};

}  // namespace nubivane
