// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/text_item_rows.h"

#include "windows/properties/shared_rows.h"
#include "windows/properties/text_line_rows.h"

#include <QScopedValueRollback>

namespace nubivane {

using namespace Qt::StringLiterals;

TextItemRows::TextItemRows(PropertyGrid& grid, const QString& part, const char* textHelp)
    : font_(grid, part, part),
      cboBackcolor_(grid.addColor(TextBackColorRow, u"cbo"_s + part + u"Backcolor"_s)),
      txtText_(grid.addWrapped({QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Text"), textHelp},
                               u"txt"_s + part + u"Text"_s)) {
    // After the font dialog flags are told with this other word until the item is shown again.
    QObject::connect(&font_, &FontRows::fontChosen, &font_, [this](const FontStyle& font) {
        item_->change({}, [&font](TextItem& item) { item.Font = font; });
    });
    QObject::connect(&font_, &FontRows::fontDialogClosed, &font_, [this] { fill(tr("Si")); });
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
    fill(tr("Yes"));
}

void TextItemRows::fill(const QString& yes) {
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
