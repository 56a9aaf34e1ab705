// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/font_style.h"

#include <QString>

#include <array>
#include <functional>

class QLineEdit;
class QToolButton;

namespace nubivane {

class ColorSwatch;
class PropertyGrid;

/// The rows of a grid that show a font and its colour. They are read-only: a button opens the font
/// dialog.
class FontRows {
  public:
    /// `part` stands in the fields' names ("Title" in "txtTitleFont"), `buttonPart` in the
    /// button's.
    FontRows(PropertyGrid& grid, const QString& part, const QString& buttonPart);

    FontRows(const FontRows&) = delete;
    FontRows& operator=(const FontRows&) = delete;

    /// Shows a font from now on; nullptr empties the rows. `yes` is the word for a flag that is
    /// set.
    void show(const FontStyle* font, const char* yes);
    /// Shows another colour in the swatch than the font's.
    void setSwatch(qint32 color);

    /// Called with the font that OK was given for.
    std::function<void(const FontStyle&)> fontChosen;
    /// Called when the font dialog has closed, however it was closed.
    std::function<void()> fontDialogClosed;

  private:
    void fill(const char* yes);
    void openFontDialog();

    std::optional<FontStyle> style_;
    QLineEdit* txtFont_;
    QToolButton* cmdFont_;
    QLineEdit* txtFontSize_;
    std::array<QLineEdit*, 5> flags_;
    QLineEdit* txtForeColor_;
    ColorSwatch* pctForecolor_;
};

}  // namespace nubivane
