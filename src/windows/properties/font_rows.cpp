// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/font_rows.h"

#include "windows/properties/frm_font.h"
#include "windows/properties/property_grid.h"
#include "windows/widgets/color_swatch.h"

namespace nubivane {

namespace {

constexpr PropertyRow FontRow{"Font", "Font", "Sets font"};
constexpr PropertyRow SizeRow{"Size", "Size", "Sets font size"};
constexpr PropertyRow ColorRow{"Color", "Color", "Sets font color"};

struct FlagRow {
    PropertyRow row;
    const char* name;
    bool FontValues::*flag;
};

constexpr std::array flagRows = {
    FlagRow{{"Bold", "Bold", "Sets font bold attribute"}, "Fontbold", &FontValues::FontBold},
    FlagRow{
        {"Italic", "Italic", "Sets font italic attribute"}, "FontItalic", &FontValues::FontItalic},
    FlagRow{{"Underline", "Underline", "Sets underline effect"},
            "FontUnderline",
            &FontValues::FontUnderline},
    FlagRow{{"Overline", "Overline", "Sets overline effect"},
            "FontOverline",
            &FontValues::FontOverline},
    FlagRow{{"Strikeout", "Strikeout", "Sets strikeout effect"},
            "FontStrikethourht",
            &FontValues::FontStrikethourht},
};

}  // namespace

FontRows::FontRows(PropertyGrid& grid, const QString& part, const QString& buttonPart)
    : txtFont_(grid.addReadOnly(FontRow, "txt" + part + "Font")),
      cmdFont_(grid.addButton(txtFont_, "cmd" + buttonPart + "Font")),
      txtFontSize_(grid.addReadOnly(SizeRow, "txt" + part + "FontSize")),
      pctForecolor_(new ColorSwatch) {
    for (std::size_t i = 0; i < flagRows.size(); ++i) {
        flags_[i] =
            grid.addReadOnly(flagRows[i].row, "txt" + part + QLatin1String(flagRows[i].name));
    }
    txtForeColor_ = grid.addReadOnly(ColorRow, "txt" + part + "ForeColor");
    grid.putBefore(txtForeColor_, pctForecolor_, "pct" + part + "Forecolor");
    QObject::connect(cmdFont_, &QToolButton::clicked, cmdFont_, [this] { openFontDialog(); });
}

void FontRows::show(std::optional<FontObject> object, const char* yes) {
    object_ = std::move(object);
    cmdFont_->setEnabled(object_.has_value());
    pctForecolor_->setVisible(object_.has_value());
    if (object_) {
        fill(object_->values(), yes);
    } else {
        for (QLineEdit* field : flags_) {
            field->clear();
        }
        txtFont_->clear();
        txtFontSize_->clear();
        txtForeColor_->clear();
    }
}

void FontRows::fill(const FontValues& values, const char* yes) {
    txtFont_->setText(values.FontName);
    txtFont_->setCursorPosition(0);
    txtFontSize_->setText(QString::number(values.FontSize));
    for (std::size_t i = 0; i < flagRows.size(); ++i) {
        flags_[i]->setText(values.*flagRows[i].flag ? yes : "No");
    }
    txtForeColor_->setText(colorName(values.Forecolor));
    pctForecolor_->setBackColor(values.Forecolor);
}

void FontRows::setSwatch(qint32 color) {
    pctForecolor_->setBackColor(color);
}

void FontRows::openFontDialog() {
    if (!object_) {
        return;
    }
    frmFont dialog(cmdFont_->window());
    dialog.oFont = object_;
    dialog.Init();
    fontDialogClosed();
}

}  // namespace nubivane
