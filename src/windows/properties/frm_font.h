// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/font_style.h"
#include "windows/widgets/combo_color.h"

#include <QDialog>

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

    /// What to choose a font for: the style of a Label, a title or a forecast item.
    FontStyle* oFont = nullptr;

    /// Shows the object's font and waits until the dialog closes. Does nothing without an object.
    void Init();

  private:
    void buildLists(QBoxLayout& column);
    void buildEffects(QBoxLayout& row);
    void fill(const FontStyle& font);
    void connectChanges();
    void refresh();
    FontStyle chosen() const;
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
    FontStyle opened_;  ///< what stands where nothing is selected
};

}  // namespace nubivane
