// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/text_item_rows.h"

#include "windows/properties/text_line_rows.h"

#include <QScopedValueRollback>

namespace nubivane {

namespace {

constexpr PropertyRow BackColorRow{"Back color", "Back color",
                                   "Sets background color used to display text"};

}  // namespace

TextItemRows::TextItemRows(PropertyGrid& grid, const QString& part, const char* textHelp)
    : font_(grid, part, part),
      cboBackcolor_(grid.addColor(BackColorRow, "cbo" + part + "Backcolor")),
      txtText_(grid.addText({"Text", "Text", textHelp}, "txt" + part + "Text")) {
    // After the font dialog flags are told with this other word until the item is shown again.
    font_.fontDialogClosed = [this] { fill("Si"); };
    commitColor(
        *cboBackcolor_, [this] { return committing(); }, [this] { return &item_->BackColor; });
    QObject::connect(txtText_, &QLineEdit::textChanged, txtText_, [this](const QString& text) {
        if (committing()) {
            item_->Text = text;
        }
    });
}

void TextItemRows::show(TextItem* item) {
    item_ = item;
    fill("Yes");
}

void TextItemRows::fill(const char* yes) {
    const QScopedValueRollback<bool> filling(filling_, true);
    if (item_) {
        font_.show(FontObject(*item_), yes);
        cboBackcolor_->setColor(item_->BackColor);
        txtText_->setText(item_->Text);
        txtText_->setCursorPosition(0);
    } else {
        font_.show(std::nullopt, yes);
        cboBackcolor_->setCurrentIndex(-1);
        txtText_->clear();
    }
}

}  // namespace nubivane
