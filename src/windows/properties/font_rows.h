// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/font_style.h"

#include <QObject>
#include <QString>

#include <array>
#include <optional>

class QLineEdit;
class QToolButton;

namespace nubivane {

class ColorSwatch;
class PropertyGrid;

/// The rows of a grid that show a font and its colour. They are read-only: a button opens the font
/// dialog.
class FontRows : public QObject {
    Q_OBJECT

  public:
    /// `part` stands in the fields' names ("Title" in "txtTitleFont"), `buttonPart` in the
    /// button's.
    FontRows(PropertyGrid& grid, const QString& part, const QString& buttonPart);

    /// Shows a font from now on; nullptr empties the rows. `yes` is the word for a flag that is
    /// set.
    void show(const FontStyle* font, const QString& yes);
    /// Shows another colour in the swatch than the font's.
    void setSwatch(qint32 color);

  Q_SIGNALS:
    /// OK was given for a font.
    void fontChosen(const FontStyle& font);
    /// The font dialog has closed, however it was closed.
    void fontDialogClosed();

  private:
    void fill(const QString& yes);
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
