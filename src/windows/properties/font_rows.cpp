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
    bool FontStyle::*flag;
};

constexpr std::array flagRows = {
    FlagRow{{"Bold", "Bold", "Sets font bold attribute"}, "Fontbold", &FontStyle::Bold},
    FlagRow{{"Italic", "Italic", "Sets font italic attribute"}, "FontItalic", &FontStyle::Italic},
    FlagRow{{"Underline", "Underline", "Sets underline effect"},
            "FontUnderline",
            &FontStyle::Underline},
    FlagRow{{"Overline", "Overline", "Sets overline effect"}, "FontOverline", &FontStyle::Overline},
    FlagRow{{"Strikeout", "Strikeout", "Sets strikeout effect"},
            "FontStrikethourht",
            &FontStyle::Strikeout},
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

void FontRows::show(const FontStyle* font, const char* yes) {
    style_ = font ? std::optional(*font) : std::nullopt;
    cmdFont_->setEnabled(style_.has_value());
    pctForecolor_->setVisible(style_.has_value());
    if (style_) {
        fill(yes);
    } else {
        for (QLineEdit* field : flags_) {
            field->clear();
        }
        txtFont_->clear();
        txtFontSize_->clear();
        txtForeColor_->clear();
    }
}

void FontRows::fill(const char* yes) {
    txtFont_->setText(style_->Name);
    txtFont_->setCursorPosition(0);
    txtFontSize_->setText(QString::number(style_->Size));
    for (std::size_t i = 0; i < flagRows.size(); ++i) {
        flags_[i]->setText((*style_).*flagRows[i].flag ? yes : "No");
    }
    txtForeColor_->setText(colorName(style_->Color));
    pctForecolor_->setBackColor(style_->Color);
}

void FontRows::setSwatch(qint32 color) {
    pctForecolor_->setBackColor(color);
}

void FontRows::openFontDialog() {
    if (!style_) {
        return;
    }
    frmFont dialog(cmdFont_->window());
    FontStyle chosen = *style_;
    dialog.oFont = &chosen;
    dialog.Init();
    if (chosen != *style_) {
        fontChosen(chosen);
    }
    fontDialogClosed();
}

}  // namespace nubivane
