// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/forecast.h"
#include "windows/properties/font_rows.h"
#include "windows/properties/property_grid.h"

namespace nubivane {

/// The rows of a title or a subtitle.
class TextLineRows {
  public:
    struct Names {
        QString part;        ///< in the fields' names
        QString buttonPart;  ///< in the font button's name
        const char* textHelp;
    };

    TextLineRows(PropertyGrid& grid, const Names& names, std::function<bool()> committing);
    TextLineRows(const TextLineRows&) = delete;
    TextLineRows& operator=(const TextLineRows&) = delete;

    /// Shows a line and writes it from now on, whenever `committing` says so.
    void show(TextLine& line);
    /// Shows another colour in the swatch than the line's own.
    void setSwatch(qint32 color) { font_.setSwatch(color); }

  private:
    void fill(const char* yes);
    void connectCommits();

    std::function<bool()> committing_;
    TextLine* line_ = nullptr;
    FontRows font_;
    comboColor* cboBackcolor_;
    comboEx* cboBorder_;
    comboColor* cboBorderColor_;
    comboEx* cboAlign_;
    TextField* txtText_;
};

/// Sets a colour of the model when another item of a combo box is chosen, whenever `committing`
/// says so. `color` tells where it goes at that time.
void commitColor(comboColor& combo, std::function<bool()> committing,
                 std::function<qint32*()> color);

}  // namespace nubivane
