// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/forecast.h"
#include "windows/properties/font_rows.h"
#include "windows/properties/property_grid.h"
#include "windows/properties/record_door.h"

#include <QCoreApplication>

#include <optional>

namespace nubivane {

/// The rows of a header or body item of a forecast text.
class TextItemRows {
    Q_DECLARE_TR_FUNCTIONS(nubivane::TextItemRows)

  public:
    /// `part` stands in the fields' names, "Header" or "Body".
    TextItemRows(PropertyGrid& grid, const QString& part, const char* textHelp);
    TextItemRows(const TextItemRows&) = delete;
    TextItemRows& operator=(const TextItemRows&) = delete;

    /// Shows an item and writes it from now on; nothing empties the rows.
    void show(std::optional<RecordDoor<TextItem>> item);
    WrappedField& text() const { return *txtText_; }

  private:
    void fill(const QString& yes);
    bool committing() const { return item_ && !filling_; }

    std::optional<RecordDoor<TextItem>> item_;
    bool filling_ = false;
    FontRows font_;
    comboColor* cboBackcolor_;
    WrappedField* txtText_;
};

}  // namespace nubivane
