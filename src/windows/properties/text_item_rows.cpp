// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/text_item_rows.h"

#include "windows/properties/text_line_rows.h"

#include <QScopedValueRollback>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr PropertyRow BackColorRow{"Back color", "Back color",
                                   "Sets background color used to display text"};

}  // namespace

TextItemRows::TextItemRows(PropertyGrid& grid, const QString& part, const char* textHelp)
    : font_(grid, part, part),
      cboBackcolor_(grid.addColor(BackColorRow, "cbo" + part + "Backcolor")),
      txtText_(grid.addWrapped({"Text", "Text", textHelp}, "txt" + part + "Text")) {
    // After the font dialog flags are told with this other word until the item is shown again.
    font_.fontChosen = [this](const FontStyle& font) {
        item_->change({}, [&font](TextItem& item) { item.Font = font; });
    };
    font_.fontDialogClosed = [this] { fill("Si"); };
    commitColor(
        *cboBackcolor_, [this] { return committing(); },
        [this](qint32 color) {
            item_->change(u"background"_s, [color](TextItem& item) { item.BackColor = color; });
        });
    QObject::connect(txtText_, &WrappedField::lineChanged, txtText_, [this](const QString& text) {
        if (committing()) {
            item_->change(u"text"_s, [&text](TextItem& item) { item.Text = text; });
        }
    });
}

void TextItemRows::show(std::optional<RecordDoor<TextItem>> item) {
    item_ = std::move(item);
    fill("Yes");
}

void TextItemRows::fill(const char* yes) {
    const QScopedValueRollback<bool> filling(filling_, true);
    if (item_) {
        const TextItem item = item_->read();
        font_.show(&item.Font, yes);
        cboBackcolor_->setColor(item.BackColor);
        txtText_->setText(item.Text);
    } else {
        font_.show(nullptr, yes);
        cboBackcolor_->setCurrentIndex(-1);
        txtText_->clear();
    }
}

}  // namespace nubivane
