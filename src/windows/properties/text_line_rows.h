// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/forecast.h"
#include "windows/properties/font_rows.h"
#include "windows/properties/property_grid.h"
#include "windows/properties/record_door.h"

#include <QCoreApplication>

namespace nubivane {

/// The rows of a title or a subtitle.
class TextLineRows {
    Q_DECLARE_TR_FUNCTIONS(nubivane::TextLineRows)

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
    void show(RecordDoor<TextLine> line);
    /// Shows another colour in the swatch than the line's own.
    void setSwatch(qint32 color) { font_.setSwatch(color); }

    TextField* txtText() const { return txtText_; }

  private:
    void fill(const QString& yes);
    void connectCommits();

    std::function<bool()> committing_;
    RecordDoor<TextLine> line_;
    FontRows font_;
    comboColor* cboBackcolor_;
    comboEx* cboBorder_;
    comboColor* cboBorderColor_;
    comboEx* cboAlign_;
    TextField* txtText_;
};

/// Calls `store` with the colour when another item of a combo box is chosen, whenever `committing`
/// says so.
void commitColor(comboColor& combo, std::function<bool()> committing,
                 std::function<void(qint32)> store);

}  // namespace nubivane
